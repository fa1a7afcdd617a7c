#include "core/rules/Datas.h"

#include <QtTest>

using namespace Funcoes;

class tst_Datas : public QObject {
    Q_OBJECT
private slots:
    void validaData_data();
    void validaData();
    void dataParaValidar_data();
    void dataParaValidar();
    void validaAno_data();
    void validaAno();
    void comparaDatas_data();
    void comparaDatas();
};

void tst_Datas::validaData_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<bool>("valida");
    QTest::newRow("31 de abril e falsa") << "31/04/2005" << false;
    QTest::newRow("30 de abril") << "30/04/2005" << true;
    QTest::newRow("29 de fevereiro de 2100 passa pela regra do quatro") << "29/02/2100" << true;
    QTest::newRow("29 de fevereiro de 1900 falha pelo ano") << "29/02/1900" << false;
    QTest::newRow("vazia") << "" << true;
    QTest::newRow("31 de dezembro") << "31/12/2005" << true;
    QTest::newRow("31 de janeiro") << "31/01/2005" << true;
    QTest::newRow("31 de julho") << "31/07/2005" << true;
    QTest::newRow("31 de agosto") << "31/08/2005" << true;
    QTest::newRow("31 de setembro") << "31/09/2005" << false;
    QTest::newRow("31 de novembro") << "31/11/2005" << false;
    QTest::newRow("32 de janeiro") << "32/01/2005" << false;
    QTest::newRow("dia zero") << "00/01/2005" << false;
    QTest::newRow("mes zero") << "01/00/2005" << false;
    QTest::newRow("mes treze") << "01/13/2005" << false;
    QTest::newRow("28 de fevereiro") << "28/02/2005" << true;
    QTest::newRow("29 de fevereiro fora do bissexto") << "29/02/2005" << false;
    QTest::newRow("29 de fevereiro bissexto") << "29/02/2004" << true;
    QTest::newRow("30 de fevereiro bissexto") << "30/02/2004" << false;
    QTest::newRow("1950 e o primeiro ano") << "01/01/1950" << true;
    QTest::newRow("1949 e cedo demais") << "31/12/1949" << false;
    QTest::newRow("2100 e o ultimo ano") << "31/12/2100" << true;
    QTest::newRow("2101 e tarde demais") << "01/01/2101" << false;
    QTest::newRow("data em branco da tela") << "00/00/0000" << false;
    QTest::newRow("oito digitos sem barras") << "01012005" << false;
    QTest::newRow("dia de um digito") << "1/01/20050" << false;
}

void tst_Datas::validaData()
{
    QFETCH(QString, data);
    QFETCH(bool, valida);
    QCOMPARE(ValidaData(data), valida);
}

void tst_Datas::dataParaValidar_data()
{
    QTest::addColumn<QString>("digitos");
    QTest::addColumn<QString>("data");
    QTest::addColumn<bool>("emBranco");
    QTest::newRow("oito digitos") << "31122005" << "31/12/2005" << false;
    QTest::newRow("campo em branco") << "" << "00/00/0000" << true;
    QTest::newRow("campo de brancos") << "        " << "00/00/0000" << true;
}

void tst_Datas::dataParaValidar()
{
    QFETCH(QString, digitos);
    QFETCH(QString, data);
    QFETCH(bool, emBranco);
    QCOMPARE(DataParaValidar(digitos), data);
    QCOMPARE(DataEmBranco(DataParaValidar(digitos)), emBranco);
}

void tst_Datas::validaAno_data()
{
    QTest::addColumn<QString>("ano");
    QTest::addColumn<bool>("valido");
    QTest::newRow("2002 passa apesar de maior na mensagem") << "2002" << true;
    QTest::newRow("2001") << "2001" << false;
    QTest::newRow("20021 tem cinco digitos") << "20021" << false;
    QTest::newRow("vazio") << "" << true;
    QTest::newRow("2050") << "2050" << true;
    QTest::newRow("tres digitos") << "200" << false;
    QTest::newRow("9999") << "9999" << true;
}

void tst_Datas::validaAno()
{
    QFETCH(QString, ano);
    QFETCH(bool, valido);
    QCOMPARE(ValidaAno(ano), valido);
}

void tst_Datas::comparaDatas_data()
{
    QTest::addColumn<QString>("primeira");
    QTest::addColumn<QString>("segunda");
    QTest::addColumn<bool>("resultado");
    QTest::newRow("datas iguais") << "15062005" << "15062005" << true;
    QTest::newRow("segunda depois") << "15062005" << "16062005" << true;
    QTest::newRow("segunda antes") << "15062005" << "14062005" << false;
    QTest::newRow("mes decide antes do dia") << "31012005" << "01022005" << true;
    QTest::newRow("ano decide antes do mes") << "01122004" << "01012005" << true;
    QTest::newRow("ano anterior") << "01012005" << "31122004" << false;
    QTest::newRow("primeira em branco") << "" << "01012005" << true;
    QTest::newRow("segunda em branco") << "01012005" << "" << true;
    QTest::newRow("segunda de brancos") << "01012005" << "        " << true;
}

void tst_Datas::comparaDatas()
{
    QFETCH(QString, primeira);
    QFETCH(QString, segunda);
    QFETCH(bool, resultado);
    QCOMPARE(ComparaDatas(primeira, segunda), resultado);
}

QTEST_GUILESS_MAIN(tst_Datas)
#include "tst_Datas.moc"
