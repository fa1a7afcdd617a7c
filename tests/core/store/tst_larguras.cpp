// Text that does not fit its column is refused by the database and ends the run through BDTrataErro, as the
// old engine refused it; text that fits exactly is stored as it is.
#include "DeclaracaoCompleta.h"
#include "TestUtil.h"

#include "core/store/modBancoDados.h"

#include <QtTest>

using namespace modBancoDados;
using namespace DeclaracaoCompleta;

class tst_larguras : public QObject {
    Q_OBJECT
private slots:
    void textoNaLarguraPassaEUmCaractereAMaisEncerraPeloBDTrataErro_data();
    void textoNaLarguraPassaEUmCaractereAMaisEncerraPeloBDTrataErro();
    void insercaoComTextoLongoTambemEncerra();
    void larguraContaCaracteresNaoBytes();
};

void tst_larguras::textoNaLarguraPassaEUmCaractereAMaisEncerraPeloBDTrataErro_data()
{
    QTest::addColumn<QString>("tabela");
    QTest::addColumn<QString>("coluna");
    QTest::addColumn<int>("largura");
    // Reference tables and a bare VRT row get a row of their own, inserted with this key column.
    QTest::addColumn<QString>("chavePropria");

    struct Caso {
        const char* tabela;
        const char* coluna;
        int largura;
        const char* chave;
    };
    const Caso casos[] = {
        {"VRT", "ID_VRT_MICRO", 8, "ID_VRT_MICRO"},
        {"VRT", "NR_VRT", 10, ""},
        {"VRT", "IND_RETIFICACAO", 1, ""},
        {"VRT", "NR_CNPJ_INTERNADOR", 14, ""},
        {"VRT", "NR_CPF_REPR_LEGAL", 11, ""},
        {"VRT", "NR_CC_AG_BCO_ARREC", 19, ""},
        {"VRT", "NR_PROC_ADM_FISCAL", 17, ""},
        {"VRT", "HO_REGISTRO_VRT", 255, ""},
        {"VRT_MENSAL", "DT_REFERENCIA_VRT", 6, ""},
        {"VRT_INDIVIDUAL", "IN_SAIDA_ALC_AO", 1, ""},
        {"VALORES_DIVER_RETIF", "CD_TIPO_DIVER_RETIF", 2, ""},
        {"VALORES_DIVER_MANDADO", "VL_TOTAL_DIVER_MANDADO", 17, ""},
        {"MOEDA", "CD_MOEDA", 3, "CD_MOEDA"},
        {"MOEDA", "NM_MOEDA", 35, "CD_MOEDA"},
        {"NCM_ITEM", "DESCR_NCM_PRODUTO", 80, "CD_NCM_PRODUTO"},
        {"NCM_ITEM", "NM_UNID_MED_EST", 50, "CD_NCM_PRODUTO"},
        {"PRODUTO", "CD_INT_PRODUTO", 15, "CD_INT_PRODUTO"},
        {"PRODUTO", "NM_INT_PRODUTO", 80, "CD_INT_PRODUTO"},
        {"UNIDADE_FEDERATIVA", "NM_UF", 25, "CD_UF_DESTINO"},
        {"UNIDADE_MEDIDA", "CD_UNID_MEDIDA", 2, "CD_UNID_MEDIDA"},
        {"UNIDADE_MEDIDA", "NM_MEDIDA", 50, "CD_UNID_MEDIDA"},
        {"LOCAL_DESTINO", "CD_LOCAL_DESTINO", 1, "CD_LOCAL_DESTINO"},
        {"OPERACAO_FISCAL", "CD_OP_FISCAL", 4, "CD_OP_FISCAL"},
        {"ITEM_VRT_MEN", "NM_INT_PRODUTO", 45, ""},
        {"ITEM_VRT_MEN", "NM_UNID_MED_PROD", 20, ""},
        {"ITEM_VRT_MEN", "QT_PROD_UNID_PROD", 16, ""},
        {"ITEM_VRT_MEN", "VL_PROD_UNID_PROD", 22, ""},
        {"ITEM_VRT_MEN_PI_COM_PPB", "NR_DCRE_DCR", 10, ""},
        {"JUST_DIF_ALIQ_PROD_VRT_MEN", "JUST_II_DIF_TEC", 253, ""},
        {"JUST_DIF_ALIQ_PROD_VRT_MEN", "ALIQ_IPI_DIF_TIPI", 7, ""},
        {"DESTINO_ITEM_VRT_MEN", "PC_COEF_REDUCAO_II", 7, ""},
        {"DESTINO_ITEM_VRT_MEN", "VL_COFINS", 22, ""},
        {"INSUMO_ITEM_VRT_MEN", "CD_INT_INSUMO", 15, ""},
        {"ITEM_DI_PE_MEN", "NR_DI", 10, ""},
        {"ITEM_DI_PE_MEN", "NR_ITEM_ADICAO", 2, ""},
        {"ITEM_DSI_PE_MEN", "NR_DSI_ANTIGA", 15, ""},
        {"ITEM_NFA_PE_MEN", "VL_TOT_PROD_OBSOLE", 17, ""},
        {"ITEM_NFA_PE_MEN", "NR_SERIE_NF_AQUIS", 5, ""},
        {"ITEM_IMPORT_288_PE_MEN", "VL_SEGURO_UNID_EST", 22, ""},
        {"ITEM_DI_INS_MEN", "NM_INT_INSUMO", 45, ""},
        {"ITEM_NFA_INS_MEN", "DT_EMISS_NF_AQUIS", 8, ""},
        {"ITEM_IMPORT_288_INS_MEN", "CD_MOEDA_FRETE", 3, ""},
        {"INSUMO_VRT", "QT_TOT_INS_EST", 16, ""},
        {"NCM_VRT", "CD_NCM_PRODUTO", 8, ""},
        {"NOTA_FISCAL_SAIDA", "NR_NF_SAIDA", 6, ""},
        {"NOTA_FISCAL_SAIDA", "NR_DESTINAT", 14, ""},
        {"NOTA_FISCAL_SAIDA", "CD_UF_DESTINO", 2, ""},
        {"ITEM_NFS", "NR_ITEM_NF_SAIDA", 3, ""},
        {"ITEM_NFS_PE", "VL_IPI_DESTACADO", 17, ""},
        {"ITEM_NFS_100", "VL_INT_UNID_EST", 22, ""},
        {"DCR", "NR_DCR", 9, ""},
        {"DCRE", "NR_DCRE", 10, ""},
        {"INSUMO_ITEM_NFS", "QT_INSUMO_POR_PROD", 16, ""},
        {"ITEM_DSI_INS_IND", "VL_INS_UNID_PROD", 22, ""},
        {"ITEM_NFA_INS_IND", "NR_CNPJ_FORNECEDOR", 14, ""},
        {"ITEM_IMPORT_288_INS", "VL_TOT_PROD_INT", 17, ""},
        {"INSUMO_VRT_IND", "QT_TOT_INS", 16, ""},
    };
    for (const Caso& c : casos)
        QTest::addRow("%s.%s com %d", c.tabela, c.coluna, c.largura)
            << QString::fromLatin1(c.tabela) << QString::fromLatin1(c.coluna) << c.largura << QString::fromLatin1(c.chave);
}

void tst_larguras::textoNaLarguraPassaEUmCaractereAMaisEncerraPeloBDTrataErro()
{
    QFETCH(QString, tabela);
    QFETCH(QString, coluna);
    QFETCH(int, largura);
    QFETCH(QString, chavePropria);

    BancoTeste banco;
    MensagensRoteiro msgs;
    QVariant linhaId;
    if (chavePropria.isEmpty()) {
        const ArvoreDeclaracao a = mensal(QStringLiteral("00001/24")) + individual(QStringLiteral("00002/24"));
        const LinhaDeclaracao l = linha(a, tabela);
        linhaId = BancoTeste::valor(QStringLiteral("SELECT rowid FROM %1 WHERE %2 = ?").arg(tabela, l.coluna), {l.chave});
    } else {
        linhaId = insere(tabela, {{chavePropria, QStringLiteral("Z")}}, QStringLiteral("rowid"));
    }
    QVERIFY(linhaId.isValid());
    const QString atualiza = QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?").arg(tabela, coluna);
    const QString le = QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(coluna, tabela);

    const QString cabe(largura, QLatin1Char('9'));
    QCOMPARE(numeroDoFim([&] { ExecutaSql(atualiza, {cabe, linhaId}); }), QString());
    QCOMPARE(BancoTeste::valor(le, {linhaId}).toString(), cabe);
    QCOMPARE(msgs.caixas.size(), 0);

    msgs.responde(Msg::OK);
    const QString numero = numeroDoFim([&] { ExecutaSql(atualiza, {cabe + QLatin1Char('9'), linhaId}); });
    // SQLITE_CONSTRAINT_CHECK
    QCOMPARE(numero, QStringLiteral("275"));
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas[0].texto,
             QStringLiteral("Error #275: CHECK constraint failed: length(%1) <= %2").arg(coluna).arg(largura));
    QCOMPARE(msgs.caixas[0].titulo, QStringLiteral("BDTrataErro"));
    QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    QCOMPARE(msgs.caixas[0].botoes(), Msg::OKOnly);
    QCOMPARE(msgs.inesperadas, 0);
    // The refused statement changed nothing.
    QCOMPARE(BancoTeste::valor(le, {linhaId}).toString(), cabe);
}

void tst_larguras::insercaoComTextoLongoTambemEncerra()
{
    BancoTeste banco;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const QString numero = numeroDoFim([&] {
        ExecutaSql(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                   {QStringLiteral("1234567890123456"), QStringLiteral("Produto")});
    });
    QCOMPARE(numero, QStringLiteral("275"));
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Error #275: CHECK constraint failed: length(CD_INT_PRODUTO) <= 15")});
    QCOMPARE(msgs.inesperadas, 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 0);
}

void tst_larguras::larguraContaCaracteresNaoBytes()
{
    // 25 characters, more bytes in UTF-8: a state name of 25 characters fits whatever its accents.
    BancoTeste banco;
    const QString nome = QStringLiteral("Espírito Santo do Pará çã");
    QCOMPARE(nome.size(), 25);
    QVERIFY(nome.toUtf8().size() > 25);
    ExecutaSql(QStringLiteral("INSERT INTO UNIDADE_FEDERATIVA (CD_UF_DESTINO, NM_UF) VALUES (?, ?)"),
               {QStringLiteral("ZZ"), nome});
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_UF FROM UNIDADE_FEDERATIVA WHERE CD_UF_DESTINO = ?"),
                               {QStringLiteral("ZZ")}).toString(),
             nome);
}

QTEST_GUILESS_MAIN(tst_larguras)
#include "tst_larguras.moc"
