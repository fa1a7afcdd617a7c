// Bad text in the editors' free-text fields. The series of the individual declaration's exit invoice is the one
// field of the editors that takes free text from the keyboard (the state's name beside it is only shown): quotes,
// percent signs, underscores, backslashes, semicolons and characters outside Windows-1252 are refused as they
// are typed, letters are kept in capitals, and what is kept is stored and read back intact.
#include "DigitaTexto.h"
#include "EditorTeste.h"

#include <QCheckBox>

using namespace EditorTeste;
using namespace modVRTPLN;

class tst_textoRuimNoEditor : public QObject {
    Q_OBJECT
private slots:
    void serieRecusaOsCaracteresRuinsEGuardaORestoIntacto_data()
    {
        QTest::addColumn<QString>("digitado");
        QTest::addColumn<QString>("fica");
        QTest::newRow("aspas e curingas") << QStringLiteral("a'\"%_1") << QStringLiteral("A1");
        QTest::newRow("barra e ponto e vírgula") << QStringLiteral("\\;b2;") << QStringLiteral("B2");
        QTest::newRow("Windows-1252") << QStringLiteral("çé9") << QStringLiteral("ÇÉ9");
        QTest::newRow("fora do Windows-1252") << QStringLiteral("\u03A9x\U0001D11E7") << QStringLiteral("X7");
        QTest::newRow("longo") << QStringLiteral("'%") + QString(200, QLatin1Char('z')) << QStringLiteral("ZZZZZ");
    }
    void serieRecusaOsCaracteresRuinsEGuardaORestoIntacto()
    {
        QFETCH(QString, digitado);
        QFETCH(QString, fica);
        Ambiente a;
        a.novaIndividual();
        a.digita(QStringLiteral("mskDadosGerais(1)"), Cnpj);
        a.digita(QStringLiteral("mskDadosGerais(2)"), QStringLiteral("12345678"));
        a.digita(QStringLiteral("mskDadosGeraisIndividual(3)"), QStringLiteral("4567"));
        auto* serie = a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisIndividual(1)"));
        serie->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        DigitaTexto(serie, digitado);
        QCOMPARE(serie->text(), fica);
        a.digita(QStringLiteral("mskDadosGeraisIndividual(0)"), QStringLiteral("10052009"));
        a.digita(QStringLiteral("mskDadosGeraisIndividual(1)"), QStringLiteral("12052009"));
        a.digita(QStringLiteral("txtDadosGeraisIndividual(2)"), QStringLiteral("6102"));
        a.clica(QStringLiteral("optCPF_tabDadosGerais_Individual"));
        a.digita(QStringLiteral("mskDadosGeraisIndividual(2)"), QStringLiteral("52998224725"));
        a.escolhe(QStringLiteral("cboUF"), QStringLiteral("RR"));
        a.digita(QStringLiteral("txtDadosGerais(1)"), QStringLiteral("237"));
        a.sai(QStringLiteral("txtDadosGerais(2)"));
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        a.incluiValor(0, QStringLiteral("VRT - PI sem PPB"), QStringLiteral("Multa de Mora IPI"), QStringLiteral("99,99"));
        a.vaiParaAba(4);
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
        QVERIFY(!a.editor());
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_SERIE_NF_SAIDA FROM NOTA_FISCAL_SAIDA")).toString().trimmed(),
                 fica);
        // Opened again, the field shows what was stored.
        a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
        QTest::mouseClick(a.janela.findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
        QVERIFY(a.editor());
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisIndividual(1)"))->text().trimmed(), fica);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_textoRuimNoEditor)
#include "tst_textoRuimNoEditor.moc"
