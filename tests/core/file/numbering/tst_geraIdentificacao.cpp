#include "TestUtil.h"

#include "core/file/numbering/GeraIdentificacao.h"

#include <QtTest>

using Funcoes::GeraIdentificacao;

class tst_geraIdentificacao : public QObject {
    Q_OBJECT
private slots:
    void primeiraIdentificacaoDaInstalacao();
    void contadorSobeUmEGuardaOAno();
    void contadorNaoVoltaAUmNaViradaDoAno();
    void anoGuardadoComoNumero();
    void depoisDe99999OContadorGuardaOsCincoPrimeirosDigitos();
    void identificacoesSeguidas();
};

namespace {
QString numerador()
{
    return BancoTeste::valor(QStringLiteral("SELECT NUM_ULTIMA_VRT || ';' || ANO FROM ARQUIVO_NUMERADOR")).toString();
}
}  // namespace

void tst_geraIdentificacao::primeiraIdentificacaoDaInstalacao()
{
    BancoTeste banco;
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    QCOMPARE(GeraIdentificacao(QDate(2009, 3, 1)), QStringLiteral("00001/09"));
    QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 1);
    QCOMPARE(numerador(), QStringLiteral("1;9"));
}

void tst_geraIdentificacao::contadorSobeUmEGuardaOAno()
{
    BancoTeste banco;
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (11, 9)"));
    QCOMPARE(GeraIdentificacao(QDate(2009, 7, 15)), QStringLiteral("00012/09"));
    QCOMPARE(numerador(), QStringLiteral("12;9"));
}

void tst_geraIdentificacao::contadorNaoVoltaAUmNaViradaDoAno()
{
    BancoTeste banco;
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (41, 8)"));
    QCOMPARE(GeraIdentificacao(QDate(2009, 1, 2)), QStringLiteral("00042/09"));
    QCOMPARE(numerador(), QStringLiteral("42;9"));
}

void tst_geraIdentificacao::anoGuardadoComoNumero()
{
    BancoTeste banco;
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    GeraIdentificacao(QDate(2010, 5, 5));
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT typeof(ANO) FROM ARQUIVO_NUMERADOR")).toString(),
             QStringLiteral("integer"));
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT ANO FROM ARQUIVO_NUMERADOR")).toInt(), 10);
    QCOMPARE(GeraIdentificacao(QDate(2100, 5, 5)), QStringLiteral("00002/00"));
    QCOMPARE(numerador(), QStringLiteral("2;0"));
}

void tst_geraIdentificacao::depoisDe99999OContadorGuardaOsCincoPrimeirosDigitos()
{
    BancoTeste banco;
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (99999, 9)"));
    QCOMPARE(GeraIdentificacao(QDate(2009, 12, 31)), QStringLiteral("100000/09"));
    QCOMPARE(numerador(), QStringLiteral("10000;9"));
    QCOMPARE(GeraIdentificacao(QDate(2009, 12, 31)), QStringLiteral("10001/09"));
}

void tst_geraIdentificacao::identificacoesSeguidas()
{
    BancoTeste banco;
    BancoTeste::executa(QStringLiteral("DELETE FROM ARQUIVO_NUMERADOR"));
    QStringList ids;
    for (int i = 0; i < 3; ++i)
        ids << GeraIdentificacao(QDate(2011, 2, 3));
    QCOMPARE(ids, QStringList({QStringLiteral("00001/11"), QStringLiteral("00002/11"), QStringLiteral("00003/11")}));
    QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 1);
}

QTEST_GUILESS_MAIN(tst_geraIdentificacao)
#include "tst_geraIdentificacao.moc"
