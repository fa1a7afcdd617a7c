// Quotes, semicolons, percent signs, backslashes, Windows-1252 letters and bytes that Windows-1252 leaves
// undefined, in the names of a declaration file and of a reference table file: stored and read back as the
// file has them (an apostrophe of a table file becomes "´"), never a failed statement.
#include "ArquivoTeste.h"
#include "ArquivoTabela.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/refdata/modImportacao.h"
#include "core/session/modVRTPLN.h"

#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
}  // namespace

class TstTextoDificilNosLeitores : public QObject {
    Q_OBJECT

private slots:
    void nomes_data()
    {
        QTest::addColumn<QString>("nome");
        QTest::newRow("aspas duplas e ponto e vírgula") << t("Caneca \"G\"; tampa");
        QTest::newRow("por cento, sublinhado e barra invertida") << t("100% a_b c\\d \\\\");
        QTest::newRow("letras do Windows-1252") << t("Ação “€” Œ œ ™ ñ ‰ ¼");
        QTest::newRow("apóstrofo") << t("D'Ávila");
        QTest::newRow("comando SQL") << t("x'); DROP TABLE VRT; --");
    }

    void nomes()
    {
        QFETCH(QString, nome);
        BancoTeste banco;
        cadastraNcmsDosRegistros();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        grava(banco.pasta() + t("/declaracao"), bytes(cabecalhoMensal() + QStringList{r41(t("P1"), nome, t("UN"))}));
        bool lido = false;
        QCOMPARE(numeroDoFim([&] { lido = LeArquivoVrtEm(banco.pasta(), t("declaracao")); }), QString());
        QVERIFY(lido);
        // The item keeps the field as the file has it, with the blanks that fill it to 45 positions.
        QCOMPARE(BancoTeste::valor(t("SELECT NM_INT_PRODUTO FROM ITEM_VRT_MEN")).toString(), nome.leftJustified(45));
        QCOMPARE(BancoTeste::valor(t("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'P1'")).toString(),
                 nome);

        // The same name in a product table file: an apostrophe is stored as "´", the rest as it stands.
        QVERIFY(ArquivoTabela::grava(banco.pasta() + t("/tabela"),
                                     {ArquivoTabela::cabecalho(), ArquivoTabela::produto(t("T1"), nome)}));
        modVRTPLN::ArquivoImportaTabela = t("SIM");
        msgs.limpa();
        msgs.responde(Msg::OK);
        modImportacao::Resultado r = modImportacao::Resultado::ArquivoInacessivel;
        QCOMPARE(numeroDoFim([&] { r = modImportacao::ImportaTabela(banco.pasta(), t("tabela")); }), QString());
        modVRTPLN::ArquivoImportaTabela = t("NAO");
        QCOMPARE(r, modImportacao::Resultado::Sucesso);
        // Codes and names of a table file keep the blanks that fill their fields.
        QCOMPARE(BancoTeste::valor(t("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = ?"),
                                   {ArquivoTabela::fixo(t("T1"), 15)})
                     .toString(),
                 ArquivoTabela::fixo(QString(nome).replace(QLatin1Char('\''), t("´")), 80));
        QCOMPARE(msgs.inesperadas, 0);
    }

    // Bytes 0x81, 0x8D, 0x8F, 0x90 and 0x9D have no character in Windows-1252: the reader takes them for the
    // characters of the same number, and a declaration written back carries the same bytes.
    void bytesSemCaractereNoWindows1252()
    {
        BancoTeste banco;
        cadastraNcmsDosRegistros();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QByteArray conteudo = bytes(cabecalhoMensal() + QStringList{r41(t("P1"), t("ABCDE"), t("UN"))});
        const qsizetype nome = conteudo.lastIndexOf("ABCDE");
        const QByteArray indefinidos("\x81\x8D\x8F\x90\x9D", 5);
        conteudo.replace(nome, 5, indefinidos);
        grava(banco.pasta() + t("/declaracao"), conteudo);
        bool lido = false;
        QCOMPARE(numeroDoFim([&] { lido = LeArquivoVrtEm(banco.pasta(), t("declaracao")); }), QString());
        QVERIFY(lido);
        const QString guardado = BancoTeste::valor(t("SELECT NM_INT_PRODUTO FROM ITEM_VRT_MEN")).toString();
        QCOMPARE(guardado.size(), 45);
        QCOMPARE(QByteArray(QStringEncoder("windows-1252").encode(guardado.left(5))), indefinidos);
    }
};

QTEST_GUILESS_MAIN(TstTextoDificilNosLeitores)
#include "tst_textoDificilNosLeitores.moc"
