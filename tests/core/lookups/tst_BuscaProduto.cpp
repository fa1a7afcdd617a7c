// The product search of the editors' code fields: one product whose code is the one given, or nothing.
#include "TestUtil.h"

#include "core/lookups/BuscaProduto.h"

#include <QtTest>

class tst_BuscaProduto : public QObject {
    Q_OBJECT
private slots:
    void busca_data()
    {
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<bool>("exato");
        QTest::addColumn<QString>("nome");
        QTest::newRow("código completo e único, parcial") << "B100" << false << "ARRUELA";
        QTest::newRow("código completo e único, exato") << "B100" << true << "ARRUELA";
        QTest::newRow("sem diferença de caixa") << "b100" << false << "ARRUELA";
        QTest::newRow("sem diferença de caixa, exato") << "b100" << true << "ARRUELA";
        QTest::newRow("código parcial de um só produto") << "B1" << false << "";
        QTest::newRow("código que começa outro, parcial") << "A1" << false << "";
        QTest::newRow("código que começa outro, exato") << "A1" << true << "CURTO";
        QTest::newRow("código desconhecido") << "Z9" << false << "";
        QTest::newRow("vazio") << "" << false << "";
        QTest::newRow("código com brancos no fim gravado pela importação")
            << "C300           " << false << "IMPORTADO";
        QTest::newRow("sem os brancos não é o mesmo") << "C300" << true << "";
    }
    void busca()
    {
        QFETCH(QString, codigo);
        QFETCH(bool, exato);
        QFETCH(QString, nome);
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('A1', 'CURTO'), ('A100', 'PARAFUSO'), "
                                           "('B100', 'ARRUELA'), ('C300           ', 'IMPORTADO')"));
        QCOMPARE(modVRTPLN::BuscaProduto(codigo, exato), nome);
    }
};

QTEST_GUILESS_MAIN(tst_BuscaProduto)
#include "tst_BuscaProduto.moc"
