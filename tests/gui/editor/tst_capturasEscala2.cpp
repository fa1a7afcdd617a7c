// The editors and the chooser as a user sees them on a 1024×768 screen with the scale factor 2 (a screen of
// 512×384 points): pictures taken offscreen from the real screens go to <build>/capturas/escala2, with checks
// that the main window stays on the screen and that every field of a screen larger than it can be scrolled to.
#include "EditorTeste.h"

#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace EditorTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

void salva(Ambiente& a, const QString& nome)
{
    QTest::qWait(50);
    const QString pasta = t(VRT_BINARY_DIR "/capturas/escala2");
    QDir().mkpath(pasta);
    QVERIFY(a.janela.grab().save(pasta + QLatin1Char('/') + nome));
    const QRect tela = a.janela.screen()->availableGeometry();
    QVERIFY2(tela.contains(a.janela.frameGeometry()),
             qPrintable(QStringLiteral("%1: janela %2x%3 numa tela de %4x%5")
                            .arg(nome)
                            .arg(a.janela.frameGeometry().width())
                            .arg(a.janela.frameGeometry().height())
                            .arg(tela.width())
                            .arg(tela.height())));
    // A screen larger than the area starts at its top left corner, and the area's scroll bars reach the rest.
    QMdiArea* area = a.janela.mdiArea();
    QMdiSubWindow* sub = area->activeSubWindow();
    QVERIFY(sub);
    QCOMPARE(area->horizontalScrollBar()->value(), 0);
    QVERIFY(sub->x() >= 0 && sub->y() >= 0);
    QVERIFY2(area->viewport()->width() + area->horizontalScrollBar()->maximum() >= sub->geometry().right(),
             qPrintable(nome));
    QVERIFY2(area->viewport()->height() + area->verticalScrollBar()->maximum() >= sub->geometry().bottom(),
             qPrintable(nome));
}

// A field out of view is brought into it by the main window's scroll bars, whole.
bool alcancavel(QMdiArea* area, QWidget* campo)
{
    const QPoint naArea = campo->mapTo(area->viewport(), QPoint(0, 0));
    QScrollBar* h = area->horizontalScrollBar();
    QScrollBar* v = area->verticalScrollBar();
    h->setValue(h->value() + qMax(0, naArea.x() + campo->width() - area->viewport()->width()));
    v->setValue(v->value() + qMax(0, naArea.y() + campo->height() - area->viewport()->height()));
    QCoreApplication::processEvents();
    const QRect visto(campo->mapTo(area->viewport(), QPoint(0, 0)), campo->size());
    const bool inteiro = area->viewport()->rect().contains(visto);
    h->setValue(0);
    v->setValue(0);
    return inteiro;
}

}  // namespace

class tst_capturasEscala2 : public QObject {
    Q_OBJECT
private slots:
    void telaTemEscala2()
    {
        QCOMPARE(QGuiApplication::primaryScreen()->geometry().size(), QSize(512, 384));
    }

    void editorMensal()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal(t("5"), t("2009"));
        a.digita(t("txtDadosGerais(3)"), t("998877X"));
        a.sai(t("txtDadosGerais(1)"));
        a.clica(t("ChkMand_Retif(0)"));
        a.incluiValor(0, t("VRT - PE"), t("Imposto sobre Prod. Industrializados"), t("1234,5"));
        a.incluiValor(0, t("VRT"), t("Multa por Atraso"), t("75"));
        salva(a, t("frmVRTmensalNovo.png"));
        for (const char* nome : {"mskDadosGerais(1)", "txtDadosGerais(3)", "cmdIncluirValores(0)", "mskValor(0)",
                                 "cmdLimparValores(0)"})
            QVERIFY2(alcancavel(a.janela.mdiArea(), a.campo(t(nome))), nome);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void editorIndividual()
    {
        Ambiente a;
        a.novaIndividual();
        a.digita(t("mskDadosGerais(1)"), Cnpj);
        a.digita(t("mskDadosGerais(2)"), t("12345678"));
        a.digita(t("mskDadosGeraisIndividual(3)"), t("4567"));
        a.digita(t("txtDadosGeraisIndividual(1)"), t("U1"));
        a.digita(t("mskDadosGeraisIndividual(0)"), t("10052009"));
        a.digita(t("txtDadosGeraisIndividual(2)"), t("6102"));
        a.digita(t("mskDadosGeraisIndividual(2)"), t("33000167000101"));
        a.escolhe(t("cboUF"), t("AM"));
        a.sai(t("txtDadosGerais(1)"));
        salva(a, t("frmVRTindividualNovo.png"));
        for (const char* nome : {"mskDadosGerais(1)", "cboUF", "ChkMand_Retif(2)", "txtDadosGeraisIndividual(2)"})
            QVERIFY2(alcancavel(a.janela.mdiArea(), a.campo(t(nome))), nome);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void escolhedor()
    {
        Ambiente a;
        BancoTeste::executa(QStringLiteral(
            "INSERT INTO VRT (ID_VRT_MICRO, NR_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, IND_RETIFICACAO, "
            "NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, CD_TIPO_VRT, NR_PROC_ADM_FISCAL, IND_RESTITUICAO) "
            "VALUES ('00005/09', '', ?, 'N', 'N', '', '', '', '2', '', 'N')"),
                            {Cnpj});
        BancoTeste::executa(QStringLiteral("INSERT INTO VRT_MENSAL VALUES ('00005/09', '052009')"));
        a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
        salva(a, t("frmAssistenteVRT.png"));
    }
};

// A screen of 1024×768 pixels, and every size in points doubled on it.
int main(int argc, char** argv)
{
    QTemporaryDir pasta;
    const QString config = pasta.path() + QStringLiteral("/tela.json");
    QFile arquivo(config);
    if (!arquivo.open(QIODevice::WriteOnly))
        return 1;
    arquivo.write(R"({"screens": [{"name": "tela", "x": 0, "y": 0, "width": 1024, "height": 768,)"
                  R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    arquivo.close();
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen:configfile=") + config.toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    tst_capturasEscala2 teste;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&teste, argc, argv);
}

#include "tst_capturasEscala2.moc"
