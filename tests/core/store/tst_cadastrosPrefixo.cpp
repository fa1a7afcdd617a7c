// The pickers' prefix search in the store: the prefix is compared as text, never as a pattern, and its length
// is counted in characters as the database counts them (a character outside the 16-bit range is one).
#include "TestUtil.h"

#include "core/store/Cadastros.h"

#include <QtTest>

namespace {

void produtos(const QStringList& codigos)
{
    BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
    for (const QString& c : codigos)
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, 'X')"), {c});
}

QStringList codigos(const QString& prefixo)
{
    QStringList r;
    for (const QStringList& l : Cadastros::Lista(Cadastros::Produto(), prefixo))
        r << l.at(0);
    return r;
}

}  // namespace

class tst_cadastrosPrefixo : public QObject {
    Q_OBJECT
private slots:
    void prefixoELiteral_data()
    {
        QTest::addColumn<QString>("prefixo");
        QTest::addColumn<QStringList>("esperados");
        QTest::newRow("por cento") << "A%" << QStringList{"A%1"};
        QTest::newRow("sublinhado") << "A_" << QStringList{"A_1"};
        QTest::newRow("apóstrofo") << "A'" << QStringList{"A'1"};
        QTest::newRow("barra invertida") << "A\\" << QStringList{"A\\1"};
        QTest::newRow("só o curinga") << "%" << QStringList{};
        QTest::newRow("sem caixa") << "ab" << QStringList{"AB1"};
        QTest::newRow("fora dos 16 bits") << QStringLiteral("\U0001D11E") << QStringList{QStringLiteral("\U0001D11EZ")};
        QTest::newRow("longo") << QString(300, QLatin1Char('A')) << QStringList{};
    }
    void prefixoELiteral()
    {
        QFETCH(QString, prefixo);
        QFETCH(QStringList, esperados);
        BancoTeste banco;
        produtos({QStringLiteral("A%1"), QStringLiteral("A'1"), QStringLiteral("A1"), QStringLiteral("AB1"),
                  QStringLiteral("A\\1"), QStringLiteral("A_1"), QStringLiteral("\U0001D11EZ")});
        QCOMPARE(codigos(prefixo), esperados);
    }
};

QTEST_GUILESS_MAIN(tst_cadastrosPrefixo)
#include "tst_cadastrosPrefixo.moc"
