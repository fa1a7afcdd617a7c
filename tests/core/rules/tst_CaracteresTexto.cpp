#include "core/rules/CaracteresTexto.h"

#include <QtTest>

using namespace Funcoes;

class tst_CaracteresTexto : public QObject {
    Q_OBJECT
private slots:
    void verificaCaracterEspecial_data();
    void verificaCaracterEspecial();
    void todoOConjuntoProibidoERecusado();
    void cabeEmWindows1252_data();
    void cabeEmWindows1252();
};

void tst_CaracteresTexto::verificaCaracterEspecial_data()
{
    QTest::addColumn<int>("tecla");
    QTest::addColumn<bool>("valido");
    QTest::newRow("aspas duplas recusadas num codigo de produto") << int('"') << false;
    QTest::newRow("apostrofo recusado") << int('\'') << false;
    QTest::newRow("letra acentuada aceita") << 0xE9 << true;
    QTest::newRow("cedilha aceita") << 0xE7 << true;
    QTest::newRow("trema recusado") << 0xA8 << false;
    QTest::newRow("barra invertida recusada") << int('\\') << false;
    QTest::newRow("barra vertical recusada") << int('|') << false;
    QTest::newRow("ponto recusado") << int('.') << false;
    QTest::newRow("virgula recusada") << int(',') << false;
    QTest::newRow("letra aceita") << int('A') << true;
    QTest::newRow("digito aceito") << int('7') << true;
    QTest::newRow("branco aceito") << int(' ') << true;
    QTest::newRow("backspace aceito") << 8 << true;
    QTest::newRow("acento agudo solto aceito") << 0xB4 << true;
}

void tst_CaracteresTexto::verificaCaracterEspecial()
{
    QFETCH(int, tecla);
    QFETCH(bool, valido);
    bool resultado = !valido;
    VerificaCaracterEspecial(tecla, resultado);
    QCOMPARE(resultado, valido);
}

void tst_CaracteresTexto::todoOConjuntoProibidoERecusado()
{
    const QString conjunto = QStringLiteral("!@#$%¨&*()-+=_{[}]~^:;/?<>.,\\|'\"");
    QCOMPARE(conjunto.size(), 32);
    QCOMPARE(CaracteresEspeciais, conjunto);
    for (QChar c : conjunto) {
        bool valido = true;
        VerificaCaracterEspecial(c.unicode(), valido);
        QVERIFY2(!valido, qPrintable(QString(c)));
    }
    for (char c = 'a'; c <= 'z'; ++c)
        QVERIFY(!EhCaracterEspecial(QLatin1Char(c)));
}

void tst_CaracteresTexto::cabeEmWindows1252_data()
{
    QTest::addColumn<QString>("texto");
    QTest::addColumn<bool>("cabe");
    QTest::newRow("ascii") << "PRODUTO 1" << true;
    QTest::newRow("acentos") << QStringLiteral("ação é ü") << true;
    QTest::newRow("euro") << QStringLiteral("€") << true;
    QTest::newRow("aspas curvas") << QStringLiteral("“”‘’") << true;
    QTest::newRow("travessao") << QStringLiteral("—") << true;
    QTest::newRow("controle C1 nao cabe") << QString(QChar(0x81)) << false;
    QTest::newRow("letra grega nao cabe") << QStringLiteral("α") << false;
    QTest::newRow("ideograma nao cabe") << QStringLiteral("中") << false;
    QTest::newRow("emoji nao cabe") << QStringLiteral("😀") << false;
    QTest::newRow("vazio cabe") << "" << true;
}

void tst_CaracteresTexto::cabeEmWindows1252()
{
    QFETCH(QString, texto);
    QFETCH(bool, cabe);
    QCOMPARE(CabeEmWindows1252(texto), cabe);
}

QTEST_GUILESS_MAIN(tst_CaracteresTexto)
#include "tst_CaracteresTexto.moc"
