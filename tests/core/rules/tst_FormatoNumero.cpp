#include "core/rules/FormatoNumero.h"

#include <QLocale>
#include <QtTest>

using namespace Funcoes;

class tst_FormatoNumero : public QObject {
    Q_OBJECT
private slots:
    void leNumero_data();
    void leNumero();
    void formataNumero_data();
    void formataNumero();
    void formataMascara_data();
    void formataMascara();
    void formataEscolheNumeroOuMascara_data();
    void formataEscolheNumeroOuMascara();
    void naoDependeDoIdiomaDaMaquina_data();
    void naoDependeDoIdiomaDaMaquina();
    void valorNumerico_data();
    void valorNumerico();
    void soDigitos();
};

void tst_FormatoNumero::leNumero_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("numerico");
    QTest::addColumn<bool>("zero");
    QTest::newRow("inteiro") << "123" << true << false;
    QTest::newRow("com virgula") << "12,5" << true << false;
    QTest::newRow("agrupado") << "1.234.567,89" << true << false;
    QTest::newRow("virgula no fim") << "12," << true << false;
    QTest::newRow("virgula no comeco") << ",5" << true << false;
    QTest::newRow("negativo") << "-3,2" << true << false;
    QTest::newRow("brancos em volta") << " 7 " << true << false;
    QTest::newRow("zeros") << "000" << true << true;
    QTest::newRow("zero com decimais") << "0,00000" << true << true;
    QTest::newRow("zero agrupado") << "0.000,00" << true << true;
    QTest::newRow("vazio") << "" << false << false;
    QTest::newRow("so virgula") << "," << false << false;
    QTest::newRow("duas virgulas") << "1,2,3" << false << false;
    QTest::newRow("ponto depois da virgula") << "1,2.3" << false << false;
    QTest::newRow("letra") << "12a" << false << false;
    QTest::newRow("branco no meio") << "1 2" << false << false;
}

void tst_FormatoNumero::leNumero()
{
    QFETCH(QString, texto);
    QFETCH(bool, numerico);
    QFETCH(bool, zero);
    QCOMPARE(EhNumerico(texto), numerico);
    QCOMPARE(EhZero(texto), zero);
}

void tst_FormatoNumero::formataNumero_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("formato");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("valor unitario sem agrupar") << "1234,5" << "#0.0000000" << "1234,5000000";
    QTest::newRow("quantidade agrupada") << "1234567,5" << "###,###,##0.00000" << "1.234.567,50000";
    QTest::newRow("valor total agrupado") << "1234567890123,45" << "#,###,###,###,##0.00" << "1.234.567.890.123,45";
    QTest::newRow("valor unitario agrupado de treze mais sete")
        << "1234567890123,1234567" << "#,###,###,###,##0.0000000" << "1.234.567.890.123,1234567";
    QTest::newRow("aliquota") << "5" << "##0.00" << "5,00";
    QTest::newRow("zero no formato de quantidade") << "0" << "0.00000" << "0,00000";
    QTest::newRow("abaixo de um ganha o zero") << ",5" << "##0.00" << "0,50";
    QTest::newRow("arredonda meio para cima") << "1,005" << "0.00" << "1,01";
    QTest::newRow("arredonda abaixo do meio para baixo") << "1,00499" << "0.00" << "1,00";
    QTest::newRow("arredonda com vai-um ate os inteiros") << "999,999" << "###,##0.00" << "1.000,00";
    QTest::newRow("negativo arredonda para longe do zero") << "-2,345" << "0.00" << "-2,35";
    QTest::newRow("negativo que arredonda a zero perde o sinal") << "-0,001" << "0.00" << "0,00";
    QTest::newRow("le o texto agrupado da tela") << "1.234,5" << "0.00000" << "1234,50000";
    QTest::newRow("zeros a esquerda somem") << "000123,4" << "#0.00" << "123,40";
    QTest::newRow("tres digitos") << "7" << "000" << "007";
    QTest::newRow("tres digitos mais longo nao corta") << "1234" << "000" << "1234";
    QTest::newRow("vinte digitos sem perder precisao")
        << "9999999999999,9999999" << "0.0000000" << "9999999999999,9999999";
    QTest::newRow("vazio da vazio") << "" << "0.00" << "";
    QTest::newRow("brancos dao vazio") << "  " << "0.00" << "";
    QTest::newRow("texto nao numerico volta igual") << "abc" << "0.00" << "abc";
}

void tst_FormatoNumero::formataNumero()
{
    QFETCH(QString, valor);
    QFETCH(QString, formato);
    QFETCH(QString, esperado);
    QCOMPARE(FormataNumero(valor, formato), esperado);
}

void tst_FormatoNumero::formataMascara_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("formato");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("NCM") << "12345678" << "@@@@.@@.@@" << "1234.56.78";
    QTest::newRow("DI guarda o zero do ano") << "0212345678" << "##/#######-#" << "02/1234567-8";
    QTest::newRow("DCR-E de dez digitos") << "2001123456" << "####/#####-#" << "2001/12345-6";
    QTest::newRow("DCR-E de nove digitos") << "200112345" << "####/#####" << "2001/12345";
    QTest::newRow("DCR") << "123452001" << "@@@@@/@@@@" << "12345/2001";
    QTest::newRow("data de oito digitos") << "31122005" << "00/00/0000" << "31/12/2005";
    QTest::newRow("data de sete digitos ganha o zero") << "1052005" << "00/00/0000" << "01/05/2005";
    QTest::newRow("data em branco") << "" << "00/00/0000" << "00/00/0000";
    QTest::newRow("arroba que sobra vira branco") << "123" << "@@@@@" << "  123";
    QTest::newRow("cerquilha que sobra nao da nada") << "123" << "#####" << "123";
    QTest::newRow("texto mais longo vai inteiro") << "1234567" << "@@@@.@@" << "12345.67";
    QTest::newRow("vazio sem zeros da vazio") << "" << "@@@@.@@.@@" << "";
}

void tst_FormatoNumero::formataMascara()
{
    QFETCH(QString, valor);
    QFETCH(QString, formato);
    QFETCH(QString, esperado);
    QCOMPARE(FormataMascara(valor, formato), esperado);
}

void tst_FormatoNumero::formataEscolheNumeroOuMascara_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("formato");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("formato numerico") << "1234,5" << "###,##0.00" << "1.234,50";
    QTest::newRow("mascara de NCM") << "12345678" << "@@@@.@@.@@" << "1234.56.78";
    QTest::newRow("mascara de DI") << "0212345678" << "##/#######-#" << "02/1234567-8";
    QTest::newRow("mascara de data") << "01012005" << "00/00/0000" << "01/01/2005";
    QTest::newRow("zeros so") << "5" << "000" << "005";
}

void tst_FormatoNumero::formataEscolheNumeroOuMascara()
{
    QFETCH(QString, valor);
    QFETCH(QString, formato);
    QFETCH(QString, esperado);
    QCOMPARE(Formata(valor, formato), esperado);
}

void tst_FormatoNumero::naoDependeDoIdiomaDaMaquina_data()
{
    QTest::addColumn<QString>("idioma");
    QTest::newRow("ingles") << "en_US";
    QTest::newRow("portugues") << "pt_BR";
    QTest::newRow("alemao") << "de_DE";
    QTest::newRow("frances") << "fr_FR";
}

void tst_FormatoNumero::naoDependeDoIdiomaDaMaquina()
{
    QFETCH(QString, idioma);
    const QLocale anterior;
    QLocale::setDefault(QLocale(idioma));
    QCOMPARE(FormataNumero(QStringLiteral("1234567,891"), QStringLiteral("###,###,##0.00")),
             QStringLiteral("1.234.567,89"));
    QCOMPARE(ValorNumerico(QStringLiteral("1.234,5")), 1234.5);
    QLocale::setDefault(anterior);
}

void tst_FormatoNumero::valorNumerico_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<double>("valor");
    QTest::newRow("decimal") << "12,5" << 12.5;
    QTest::newRow("agrupado") << "1.000,25" << 1000.25;
    QTest::newRow("negativo") << "-0,5" << -0.5;
    QTest::newRow("nao numerico da zero") << "x" << 0.0;
    QTest::newRow("vazio da zero") << "" << 0.0;
}

void tst_FormatoNumero::valorNumerico()
{
    QFETCH(QString, texto);
    QFETCH(double, valor);
    QCOMPARE(ValorNumerico(texto), valor);
}

void tst_FormatoNumero::soDigitos()
{
    QCOMPARE(SoDigitos(QStringLiteral("02/1234567-8")), QStringLiteral("0212345678"));
    QCOMPARE(SoDigitos(QStringLiteral(" . . ")), QString());
}

QTEST_GUILESS_MAIN(tst_FormatoNumero)
#include "tst_FormatoNumero.moc"
