// Pictures of the tabs "100% Nacional" and "PI com PPB" for the help page, taken offscreen at 1024×768 from the
// real screens with sample items. They go to <build>/capturas/ajuda; with VRT_ATUALIZA_AJUDA=1 in the environment
// they also replace those in help/img.
#include "ItensTeste.h"

#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>

using namespace ItensTeste;

namespace {

void salva(Ambiente& a, const QString& nome)
{
    QTest::qWait(50);
    QVERIFY(a.janela.mdiArea()->activeSubWindow());
    const QPixmap imagem = a.janela.grab();
    const QString pasta = QStringLiteral(VRT_BINARY_DIR "/capturas/ajuda");
    QDir().mkpath(pasta);
    QVERIFY(imagem.save(pasta + QLatin1Char('/') + nome));
    if (qEnvironmentVariableIntValue("VRT_ATUALIZA_AJUDA") == 1)
        QVERIFY(imagem.save(QStringLiteral(VRT_SOURCE_DIR "/help/img/") + nome));
}

}  // namespace

class tst_capturasItens : public QObject {
    Q_OBJECT
private slots:
    void abasDaDeclaracaoMensal()
    {
        Ambiente a;
        a.janela.resize(1024, 768);
        naAba(a, false, 4);
        a.digita(QStringLiteral("mskNumNCM100"), Ncm1);
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        a.digita(QStringLiteral("msk100N(2)"), QStringLiteral("10"));
        a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
        a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("2,5"));
        a.digita(QStringLiteral("msk100N(1)"), QStringLiteral("1234,56"));
        a.sai(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        a.digita(QStringLiteral("mskNumNCM100"), Ncm2);
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P002"));
        salva(a, QStringLiteral("aba100Nacional_mensal.png"));
        a.vaiParaAba(2);
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Mensal"));
        a.digita(QStringLiteral("mskDCRPIcomPPB"), QStringLiteral("000121999"));
        a.digita(QStringLiteral("txtCodProdDCRPIcomPPB"), QStringLiteral("Q9"));
        a.escolhe(QStringLiteral("cboLocalDCR"), QStringLiteral("Estados AC, AM, RO e RR"));
        a.digita(QStringLiteral("mskPIcomPPB(1)"), QStringLiteral("2,5"));
        a.digita(QStringLiteral("mskPIcomPPB(2)"), QStringLiteral("40"));
        a.digita(QStringLiteral("mskPIcomPPB(3)"), QStringLiteral("6"));
        a.escolhe(QStringLiteral("cboUnidadeDCR"), QStringLiteral("UN"));
        a.sai(QStringLiteral("cmdIncluir_tabPIcomPPB"));
        a.clica(QStringLiteral("cmdIncluir_tabPIcomPPB"));
        salva(a, QStringLiteral("abaPIcomPPB_mensal.png"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The page exists, shows its pictures, and the first page points to it.
    void paginaDeAjudaDosItens()
    {
        QFile pagina(QStringLiteral(VRT_SOURCE_DIR "/help/itens.html"));
        QVERIFY(pagina.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(pagina.readAll());
        for (const char* img : {"aba100Nacional_mensal.png", "abaPIcomPPB_mensal.png"}) {
            QVERIFY2(html.contains(QStringLiteral("img/") + QLatin1String(img)), img);
            QVERIFY2(QFile::exists(QStringLiteral(VRT_SOURCE_DIR "/help/img/") + QLatin1String(img)), img);
        }
        QFile indice(QStringLiteral(VRT_SOURCE_DIR "/help/index.html"));
        QVERIFY(indice.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(indice.readAll()).contains(QStringLiteral("itens.html")));
    }
};

QTEST_MAIN(tst_capturasItens)
#include "tst_capturasItens.moc"
