// Pictures of the three pages of the tab "PI sem PPB" for the help page, taken offscreen at 1024×768 from the real
// screens with sample products and inputs. They go to <build>/capturas/ajuda; with VRT_ATUALIZA_AJUDA=1 in the
// environment they also replace those in help/img.
#include "CapturaTeste.h"
#include "ItensTeste.h"
#include "PISemPPBTeste.h"

#include <QCheckBox>
#include <QScrollArea>
#include <QScrollBar>

using namespace ItensTeste;
using namespace PISemPPBTeste;
using CapturaTeste::salva;

class tst_capturasPIsemPPB : public QObject {
    Q_OBJECT
private slots:
    void paginasDaDeclaracaoMensal()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        naAba(a, false, 3);
        cadastraInsumo(QStringLiteral("INS1"), QStringLiteral("Chapa de aço"));
        incluiProduto(a, ProdutoMensal{QStringLiteral("P001"), Local1, QStringLiteral("10")});
        incluiProduto(a, ProdutoMensal{QStringLiteral("P001"), Local2, QStringLiteral("4")});
        incluiProduto(a, ProdutoMensal{QStringLiteral("P002"), Local1, QStringLiteral("3")});
        salva(a, QStringLiteral("abaPIsemPPB_produto.png"));
        paginas(a)->setCurrentIndex(1);
        escolheProdutoDoInsumo(a, false, QStringLiteral("P001"));
        incluiInsumo(a, InsumoMensal{});
        a.campo<QCheckBox>(QStringLiteral("chk_Aliquota_tabPIsemPPB"))->setChecked(true);
        salva(a, QStringLiteral("abaPIsemPPB_insumos.png"));
        escolheInsumoDosDocumentos(a, false);
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
