// The list query the chooser and vrt-cli share: the old engine's formats and IIf in SQLite, and the sort columns.
#include "DeclaracoesTeste.h"
#include "TestUtil.h"

#include "core/lookups/ListaDeclaracoes.h"

#include <QtTest>

class tst_ListaDeclaracoes : public QObject {
    Q_OBJECT
private slots:
    void formatos_data()
    {
        QTest::addColumn<QString>("cnpj");
        QTest::addColumn<QString>("criacao");
        QTest::addColumn<QString>("retificacao");
        QTest::addColumn<QString>("referencia");
        QTest::addColumn<QStringList>("esperado");
        QTest::newRow("completo") << "11222333000181" << "2009-12-31" << "S" << "122009"
                                  << QStringList{"11.222.333/0001-81", "31/12/2009", "Retificadora", "12/2009"};
        // A short text fills the mask from the right, the placeholders left over are blanks.
        QTest::newRow("CNPJ curto") << "1222333000181" << "2010-01-05" << "N" << "12009"
                                    << QStringList{" 1.222.333/0001-81", "05/01/2010", "Original", " 1/2009"};
        QTest::newRow("valores ausentes") << QString() << QString() << QString() << QString()
                                          << QStringList{"", "", "Original", ""};
        QTest::newRow("retificação em minúscula não conta") << "11222333000181" << "2009-01-01" << "s" << "012009"
                                                            << QStringList{"11.222.333/0001-81", "01/01/2009",
                                                                           "Original", "01/2009"};
    }
    void formatos()
    {
        QFETCH(QString, cnpj);
        QFETCH(QString, criacao);
        QFETCH(QString, retificacao);
        QFETCH(QString, referencia);
        QFETCH(QStringList, esperado);
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, "
                                           "DT_REGISTRO_VRT_MICRO, IND_RETIFICACAO) VALUES ('00001/09', '2', ?, ?, ?)"),
                            {cnpj.isNull() ? QVariant() : cnpj, criacao.isNull() ? QVariant() : criacao,
                             retificacao.isNull() ? QVariant() : retificacao});
        BancoTeste::executa(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES "
                                           "('00001/09', ?)"),
                            {referencia.isNull() ? QVariant() : referencia});
        const QList<QStringList> lista = ListaDeclaracoes::Lista();
        QCOMPARE(lista.size(), 1);
        const QStringList l = lista.first();
        QCOMPARE(l.size(), 8);
        QCOMPARE((QStringList{l[1], l[2], l[7], l[4]}), esperado);
        QCOMPARE(l[3], QStringLiteral("Mensal"));
        QCOMPARE(l[5], QString());
        QCOMPARE(l[6], QString());
    }

    void tipoDiferenteDe1EhMensal()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT) VALUES ('00001/09', '1'), "
                                           "('00002/09', '2'), ('00003/09', NULL)"));
        QList<QStringList> lista = ListaDeclaracoes::Lista(ListaDeclaracoes::Identificacao, QStringLiteral("ASC"));
        QCOMPARE(lista.size(), 3);
        QCOMPARE(lista[0][3], QStringLiteral("Individual"));
        QCOMPARE(lista[1][3], QStringLiteral("Mensal"));
        QCOMPARE(lista[2][3], QStringLiteral("Mensal"));
    }

    void colunasDeOrdenacao()
    {
        QCOMPARE(ListaDeclaracoes::ColunaOrdenacao(0), QStringLiteral("ID_VRT_MICRO"));
        QCOMPARE(ListaDeclaracoes::ColunaOrdenacao(1), QStringLiteral("NR_CNPJ_INTERNADOR"));
        QCOMPARE(ListaDeclaracoes::ColunaOrdenacao(2), QStringLiteral("DT_REGISTRO_VRT_MICRO"));
        QCOMPARE(ListaDeclaracoes::ColunaOrdenacao(3), QStringLiteral("CD_TIPO_VRT"));
        for (int c = 4; c < 8; ++c)
            QCOMPARE(ListaDeclaracoes::ColunaOrdenacao(c), QString());
    }

    void umaLinhaPorDeclaracaoIndividual()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/09", "1"});
        DeclaracoesTeste::insere({"00002/09", "2"});
        const QList<QStringList> lista = ListaDeclaracoes::Lista(ListaDeclaracoes::Identificacao, QString());
        QCOMPARE(lista.size(), 2);
        QCOMPARE(lista[0][0], QStringLiteral("00001/09"));
        QCOMPARE(lista[0][5], QStringLiteral("000123"));
        QCOMPARE(lista[0][6], QStringLiteral("1    "));
        QCOMPARE(lista[0][4], QString());
    }
};

QTEST_GUILESS_MAIN(tst_ListaDeclaracoes)
#include "tst_ListaDeclaracoes.moc"
