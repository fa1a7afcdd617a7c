#include "core/rules/Formatadores.h"

#include <QtTest>

using namespace Funcoes;

class tst_Formatadores : public QObject {
    Q_OBJECT
private slots:
    void zeroEsquerda_data();
    void zeroEsquerda();
    void brancoDireita_data();
    void brancoDireita();
    void brancoEsquerda_data();
    void brancoEsquerda();
    void tiraCaractere_data();
    void tiraCaractere();
    void insereVirgula_data();
    void insereVirgula();
    void tiraZerosEsquerda_data();
    void tiraZerosEsquerda();
    void trocaApostrofo_data();
    void trocaApostrofo();
    void nuloEVazioDaoOMesmoResultado();
    void valorVaiAoArquivoEVolta_data();
    void valorVaiAoArquivoEVolta();
};

void tst_Formatadores::zeroEsquerda_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("tamanho");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("mais curto ganha zeros na frente") << "12" << 5 << "00012";
    QTest::newRow("do tamanho volta igual") << "12345" << 5 << "12345";
    QTest::newRow("mais longo nunca e cortado") << "123456" << 3 << "123456";
    QTest::newRow("vazio conta como zero") << "" << 4 << "0000";
    QTest::newRow("nulo conta como zero") << QString() << 3 << "000";
    QTest::newRow("brancos contam como zero") << "   " << 2 << "00";
    QTest::newRow("vazio com tamanho zero da um zero") << "" << 0 << "0";
    QTest::newRow("texto com letras e preenchido igual") << "AB" << 4 << "00AB";
}

void tst_Formatadores::zeroEsquerda()
{
    QFETCH(QString, valor);
    QFETCH(int, tamanho);
    QFETCH(QString, esperado);
    QCOMPARE(ZeroEsquerda(valor, tamanho), esperado);
}

void tst_Formatadores::brancoDireita_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("tamanho");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("brancos atras") << "AB" << 5 << "AB   ";
    QTest::newRow("do tamanho volta igual") << "ABCDE" << 5 << "ABCDE";
    QTest::newRow("mais longo fica inteiro") << "ABCDEF" << 3 << "ABCDEF";
    QTest::newRow("vazio vira so brancos") << "" << 3 << "   ";
    QTest::newRow("nulo vira so brancos") << QString() << 2 << "  ";
    QTest::newRow("acentos contam um caractere") << QStringLiteral("ção") << 4 << QStringLiteral("ção ");
}

void tst_Formatadores::brancoDireita()
{
    QFETCH(QString, valor);
    QFETCH(int, tamanho);
    QFETCH(QString, esperado);
    QCOMPARE(BrancoDireita(valor, tamanho), esperado);
}

void tst_Formatadores::brancoEsquerda_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("tamanho");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("brancos na frente") << "AB" << 5 << "   AB";
    QTest::newRow("do tamanho volta igual") << "ABCDE" << 5 << "ABCDE";
    QTest::newRow("mais longo fica inteiro") << "ABCDEF" << 3 << "ABCDEF";
    QTest::newRow("vazio vira so brancos") << "" << 3 << "   ";
    QTest::newRow("nulo vira so brancos") << QString() << 2 << "  ";
}

void tst_Formatadores::brancoEsquerda()
{
    QFETCH(QString, valor);
    QFETCH(int, tamanho);
    QFETCH(QString, esperado);
    QCOMPARE(BrancoEsquerda(valor, tamanho), esperado);
}

void tst_Formatadores::tiraCaractere_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("caractere");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("tira todas as virgulas") << "1,2,3" << "," << "123";
    QTest::newRow("tira a barra de uma identificacao") << "00012/05" << "/" << "0001205";
    QTest::newRow("sem o caractere volta igual") << "12345" << "," << "12345";
    QTest::newRow("caractere de dois nao faz nada") << "1,2" << ",," << "1,2";
    QTest::newRow("caractere vazio nao faz nada") << "1,2" << "" << "1,2";
    QTest::newRow("vazio conta como zero") << "" << "," << "0";
    QTest::newRow("nulo conta como zero") << QString() << "," << "0";
    QTest::newRow("brancos contam como zero") << "  " << "," << "0";
    QTest::newRow("vazio sem zeros quando o caractere e zero") << "" << "0" << "";
}

void tst_Formatadores::tiraCaractere()
{
    QFETCH(QString, valor);
    QFETCH(QString, caractere);
    QFETCH(QString, esperado);
    QCOMPARE(TiraCaractere(valor, caractere), esperado);
}

void tst_Formatadores::insereVirgula_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("casas");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("cinco com sete casas") << "5" << 7 << "0,0000005";
    QTest::newRow("mais digitos que casas") << "123456" << 2 << "1234,56";
    QTest::newRow("tantos digitos quanto casas") << "12" << 2 << "0,12";
    QTest::newRow("um digito a menos") << "12" << 3 << "0,012";
    QTest::newRow("texto com virgula volta igual") << "12,5" << 2 << "12,5";
    QTest::newRow("vazio da vazio") << "" << 2 << "";
    QTest::newRow("nulo da vazio") << QString() << 2 << "";
    QTest::newRow("brancos dao vazio") << "   " << 2 << "";
    QTest::newRow("zero casas deixa a virgula no fim") << "12" << 0 << "12,";
}

void tst_Formatadores::insereVirgula()
{
    QFETCH(QString, valor);
    QFETCH(int, casas);
    QFETCH(QString, esperado);
    QCOMPARE(InsereVirgula(valor, casas), esperado);
}

void tst_Formatadores::tiraZerosEsquerda_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("00100 da 100") << "00100" << "100";
    QTest::newRow("000 da vazio") << "000" << "";
    QTest::newRow("0 da vazio") << "0" << "";
    QTest::newRow("zero com decimais da vazio") << "0,00" << "";
    QTest::newRow("sem zeros volta igual") << "123" << "123";
    QTest::newRow("zeros no meio ficam") << "0010203" << "10203";
    QTest::newRow("decimal abaixo de um perde o zero") << "00,5" << ",5";
    QTest::newRow("texto nao numerico a partir do primeiro nao zero") << "00AB0" << "AB0";
    QTest::newRow("vazio da vazio") << "" << "";
    QTest::newRow("nulo da vazio") << QString() << "";
    QTest::newRow("brancos dao vazio") << "  " << "";
}

void tst_Formatadores::tiraZerosEsquerda()
{
    QFETCH(QString, valor);
    QFETCH(QString, esperado);
    QCOMPARE(TiraZerosEsquerda(valor), esperado);
}

void tst_Formatadores::trocaApostrofo_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<QString>("caractere");
    QTest::addColumn<QString>("esperado");
    QTest::newRow("apostrofo vira acento agudo") << "D'AGUA" << "'" << QStringLiteral("D´AGUA");
    QTest::newRow("todas as ocorrencias") << "'A'B'" << "'" << QStringLiteral("´A´B´");
    QTest::newRow("outro caractere") << "A\"B" << "\"" << QStringLiteral("A´B");
    QTest::newRow("sem o caractere volta igual") << "ABC" << "'" << "ABC";
    QTest::newRow("vazio da vazio") << "" << "'" << "";
    QTest::newRow("nulo da vazio") << QString() << "'" << "";
    QTest::newRow("caractere vazio nao faz nada") << "A'B" << "" << "A'B";
}

void tst_Formatadores::trocaApostrofo()
{
    QFETCH(QString, valor);
    QFETCH(QString, caractere);
    QFETCH(QString, esperado);
    QCOMPARE(TrocaApostrofo(valor, caractere), esperado);
}

// A bound null QString becomes an SQL NULL, so an empty result must never be a null string.
void tst_Formatadores::nuloEVazioDaoOMesmoResultado()
{
    QCOMPARE(ZeroEsquerda(QString(), 3), ZeroEsquerda(QStringLiteral(""), 3));
    QVERIFY(!BrancoDireita(QString(), 0).isNull());
    QVERIFY(!BrancoEsquerda(QString(), 0).isNull());
    QVERIFY(!InsereVirgula(QString(), 2).isNull());
    QVERIFY(!TiraZerosEsquerda(QString()).isNull());
    QVERIFY(!TrocaApostrofo(QString(), QStringLiteral("'")).isNull());
    QCOMPARE(TiraCaractere(QString(), QStringLiteral(",")), TiraCaractere(QStringLiteral(""), QStringLiteral(",")));
}

// A value goes to the file without its comma, zero-filled to the width, and comes back by TiraZerosEsquerda and
// InsereVirgula.
void tst_Formatadores::valorVaiAoArquivoEVolta_data()
{
    QTest::addColumn<QString>("valor");
    QTest::addColumn<int>("casas");
    QTest::addColumn<int>("largura");
    QTest::addColumn<QString>("noArquivo");
    QTest::addColumn<QString>("devolta");
    QTest::newRow("quantidade") << "1234,50000" << 5 << 15 << "000000123450000" << "1234,50000";
    QTest::newRow("valor abaixo de um") << "0,0000005" << 7 << 20 << "00000000000000000005" << "0,0000005";
    QTest::newRow("zero vira vazio na volta") << "0,00" << 2 << 15 << "000000000000000" << "";
}

void tst_Formatadores::valorVaiAoArquivoEVolta()
{
    QFETCH(QString, valor);
    QFETCH(int, casas);
    QFETCH(int, largura);
    QFETCH(QString, noArquivo);
    QFETCH(QString, devolta);
    const QString arquivo = ZeroEsquerda(TiraCaractere(valor, QStringLiteral(",")), largura);
    QCOMPARE(arquivo, noArquivo);
    QCOMPARE(InsereVirgula(TiraZerosEsquerda(arquivo), casas), devolta);
}

QTEST_GUILESS_MAIN(tst_Formatadores)
#include "tst_Formatadores.moc"
