// Pictures of the three pages of the tab "PI sem PPB" for the help page, taken offscreen at 1024×768 from the real
// screens with sample products and inputs. They go to <build>/capturas/ajuda; with VRT_ATUALIZA_AJUDA=1 in the
// environment they also replace those in help/img.
#include "CapturaTeste.h"
#include "ItensTeste.h"

#include <QCheckBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

using namespace ItensTeste;
using CapturaTeste::salva;

namespace {

void produto(Ambiente& a, const QString& codigo, const QString& local, const QString& qt)
{
    a.digita(QStringLiteral("mskNumNCM_TabPIsemPPB"), Ncm1);
    a.digita(QStringLiteral("txtCodProdPIsemPPB"), codigo);
    a.escolhe(QStringLiteral("cboUnidadePIsemPPB"), QStringLiteral("UN"));
    a.escolhe(QStringLiteral("cboLocalPIsemPPB"), local);
    a.digita(QStringLiteral("mskPIsemPPB(3)"), qt);
    a.sai(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
    a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
}

}  // namespace

class tst_capturasPIsemPPB : public QObject {
    Q_OBJECT
private slots:
    void paginasDaDeclaracaoMensal()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        naAba(a, false, 3);
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES ('INS1', 'Chapa de aço')"));
        produto(a, QStringLiteral("P001"), QStringLiteral("Estados AC, AM, RO e RR"), QStringLiteral("10"));
        produto(a, QStringLiteral("P001"), QStringLiteral("Demais Unidades da Federação"), QStringLiteral("4"));
        produto(a, QStringLiteral("P002"), QStringLiteral("Estados AC, AM, RO e RR"), QStringLiteral("3"));
        salva(a, QStringLiteral("abaPIsemPPB_produto.png"));
        auto* paginas = a.campo<QTabWidget>(QStringLiteral("tabPIsemPPB"));
        paginas->setCurrentIndex(1);
        a.escolhe(QStringLiteral("cboDocProdutoPIsemPPB"), QStringLiteral("P001"));
        a.digita(QStringLiteral("mskNumNCMInsumo"), Ncm2);
        a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("INS1"));
        a.escolhe(QStringLiteral("cboUnidadeInsumo"), QStringLiteral("UN"));
        a.digita(QStringLiteral("mskPIsemPPB(4)"), QStringLiteral("0,5"));
        a.sai(QStringLiteral("cmdIncluirInsumo"));
        a.clica(QStringLiteral("cmdIncluirInsumo"));
        a.campo<QCheckBox>(QStringLiteral("chk_Aliquota_tabPIsemPPB"))->setChecked(true);
        salva(a, QStringLiteral("abaPIsemPPB_insumos.png"));
        paginas->setCurrentIndex(2);
        a.escolhe(QStringLiteral("cboCCIInsumoPIsemPPB"), QStringLiteral("INS1"));
        a.escolhe(QStringLiteral("cboLocalDestinoInsumo"), QStringLiteral("Estados AC, AM, RO e RR"));
        a.clica(QStringLiteral("optDI_tabPIsemPPB"));
        salva(a, QStringLiteral("abaPIsemPPB_documentos.png"));
        // At 1024×768 the page of documents scrolls up and down only, whatever kind is shown.
        auto* area = qobject_cast<QScrollArea*>(a.campo(QStringLiteral("tabPIsemPPB(2)"))->parentWidget()->parentWidget());
        QVERIFY(area);
        for (const char* tipo : {"optDI_tabPIsemPPB", "optDSI_tabPIsemPPB", "optNFA_tabPIsemPPB"}) {
            a.clica(QString::fromLatin1(tipo));
            QTest::qWait(20);
            QVERIFY2(area->horizontalScrollBar()->maximum() == 0, tipo);
        }
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_capturasPIsemPPB)
#include "tst_capturasPIsemPPB.moc"
