// The delete cascades of the declaration tree: one DELETE on a parent takes its whole subtree and nothing else.
#include "DeclaracaoCompleta.h"
#include "TestUtil.h"

#include "core/store/modBancoDados.h"

#include <QtTest>

using namespace modBancoDados;
using namespace DeclaracaoCompleta;

namespace {

const QStringList SubarvoreItemMensal = {
    QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("INSUMO_ITEM_VRT_MEN"),
    QStringLiteral("ITEM_DI_PE_MEN"), QStringLiteral("ITEM_DSI_PE_MEN"),
    QStringLiteral("ITEM_IMPORT_288_PE_MEN"), QStringLiteral("ITEM_NFA_PE_MEN"),
    QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"),
    QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN")};

const QStringList SubarvoreItemNfs = {
    QStringLiteral("DCR"), QStringLiteral("DCRE"), QStringLiteral("INSUMO_ITEM_NFS"),
    QStringLiteral("ITEM_DI_INS_IND"), QStringLiteral("ITEM_DI_PE_IND"), QStringLiteral("ITEM_DSI_INS_IND"),
    QStringLiteral("ITEM_DSI_PE_IND"), QStringLiteral("ITEM_IMPORT_288_INS"), QStringLiteral("ITEM_IMPORT_288_PE"),
    QStringLiteral("ITEM_NFA_INS_IND"), QStringLiteral("ITEM_NFA_PE_IND"), QStringLiteral("ITEM_NFS"),
    QStringLiteral("ITEM_NFS_100"), QStringLiteral("ITEM_NFS_PE"), QStringLiteral("ITEM_NFS_PI_COM_PPB"),
    QStringLiteral("ITEM_NFS_PI_SEM_PPB"), QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"),
    QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_IND")};

QStringList tabelasDe(const ArvoreDeclaracao& a)
{
    QStringList t;
    for (const LinhaDeclaracao& l : a)
        t << l.tabela;
    t.sort();
    return t;
}

QStringList ordenada(QStringList l)
{
    l.sort();
    return l;
}

}  // namespace

class tst_cascatas : public QObject {
    Q_OBJECT
private slots:
    void asDeclaracoesDeTesteTemLinhaEmTodaTabelaDaArvore();
    void apagarUmaLinhaLevaSoASuaSubarvore_data();
    void apagarUmaLinhaLevaSoASuaSubarvore();
    void apagarItemNfsLevaModalidadeDocumentosInsumosEJustificativasNumSoComando();
    void apagarNotaFiscalLevaTodosOsSeusItens();
    void apagarItemMensalDeixaOsDocumentosDoInsumoNaDeclaracao();
    void apagarProdutoDeixaOsItensComoEstavam();
    void substituirTabelasDeReferenciaNaoTocaAsDeclaracoes();
};

void tst_cascatas::asDeclaracoesDeTesteTemLinhaEmTodaTabelaDaArvore()
{
    BancoTeste banco;
    QSet<QString> cobertas;
    for (const LinhaDeclaracao& l : mensal(QStringLiteral("00001/24")) + individual(QStringLiteral("00002/24")))
        cobertas.insert(l.tabela);
    const QSet<QString> referencia = {QStringLiteral("MOEDA"), QStringLiteral("NCM_ITEM"), QStringLiteral("PRODUTO"),
                                      QStringLiteral("UNIDADE_FEDERATIVA"), QStringLiteral("UNIDADE_MEDIDA"),
                                      QStringLiteral("LOCAL_DESTINO"), QStringLiteral("OPERACAO_FISCAL"),
                                      QStringLiteral("ARQUIVO_NUMERADOR"), QStringLiteral("TOT_INSUMO_CONSOLIDADO")};
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') "
                                    "AND name NOT LIKE 'sqlite%'"));
    QSet<QString> todas;
    while (rs.next())
        todas.insert(rs.value(0).toString());
    QCOMPARE(todas.size(), 50);
    QCOMPARE(cobertas.size(), 41);
    QCOMPARE(todas - referencia, cobertas);
}

void tst_cascatas::apagarUmaLinhaLevaSoASuaSubarvore_data()
{
    QTest::addColumn<bool>("ehMensal");
    QTest::addColumn<QString>("tabela");
    QTest::addColumn<QStringList>("levadas");

    QStringList vrtMensal;
    QStringList vrtIndividual;
    {
        BancoTeste banco;
        vrtMensal = tabelasDe(mensal(QStringLiteral("00001/24")));
        vrtIndividual = tabelasDe(individual(QStringLiteral("00002/24")));
    }
    QTest::newRow("VRT mensal leva a declaração inteira até os valores do Decreto-Lei 288/67")
        << true << QStringLiteral("VRT") << vrtMensal;
    QTest::newRow("VRT individual leva a declaração inteira até os valores do Decreto-Lei 288/67")
        << false << QStringLiteral("VRT") << vrtIndividual;
    QTest::newRow("item mensal leva destinos, documentos, insumos e justificativas")
        << true << QStringLiteral("ITEM_VRT_MEN") << SubarvoreItemMensal;
    QTest::newRow("destino mensal leva os documentos do produto e os valores 288/67")
        << true << QStringLiteral("DESTINO_ITEM_VRT_MEN")
        << QStringList{QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ITEM_DI_PE_MEN"),
                       QStringLiteral("ITEM_DSI_PE_MEN"), QStringLiteral("ITEM_IMPORT_288_PE_MEN"),
                       QStringLiteral("ITEM_NFA_PE_MEN")};
    QTest::newRow("linha de DI do produto mensal leva os valores 288/67")
        << true << QStringLiteral("ITEM_DI_PE_MEN")
        << QStringList{QStringLiteral("ITEM_DI_PE_MEN"), QStringLiteral("ITEM_IMPORT_288_PE_MEN")};
    QTest::newRow("insumo mensal leva só a sua justificativa")
        << true << QStringLiteral("INSUMO_ITEM_VRT_MEN")
        << QStringList{QStringLiteral("INSUMO_ITEM_VRT_MEN"), QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN")};
    QTest::newRow("linha de DI do insumo mensal leva os valores 288/67")
        << true << QStringLiteral("ITEM_DI_INS_MEN")
        << QStringList{QStringLiteral("ITEM_DI_INS_MEN"), QStringLiteral("ITEM_IMPORT_288_INS_MEN")};
    QTest::newRow("nota fiscal de saída leva os itens e tudo abaixo deles")
        << false << QStringLiteral("NOTA_FISCAL_SAIDA") << ordenada(QStringList(SubarvoreItemNfs) << QStringLiteral("NOTA_FISCAL_SAIDA"));
    QTest::newRow("item da nota leva modalidades, DCR, DCR-E, documentos, insumos e justificativas")
        << false << QStringLiteral("ITEM_NFS") << SubarvoreItemNfs;
    QTest::newRow("valores PI com PPB levam DCR e DCR-E")
        << false << QStringLiteral("ITEM_NFS_PI_COM_PPB")
        << QStringList{QStringLiteral("DCR"), QStringLiteral("DCRE"), QStringLiteral("ITEM_NFS_PI_COM_PPB")};
    QTest::newRow("linha de DI do produto individual leva os valores 288/67")
        << false << QStringLiteral("ITEM_DI_PE_IND")
        << QStringList{QStringLiteral("ITEM_DI_PE_IND"), QStringLiteral("ITEM_IMPORT_288_PE")};
    QTest::newRow("insumo individual leva justificativa, documentos e valores 288/67")
        << false << QStringLiteral("INSUMO_ITEM_NFS")
        << QStringList{QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("ITEM_DI_INS_IND"),
                       QStringLiteral("ITEM_DSI_INS_IND"), QStringLiteral("ITEM_IMPORT_288_INS"),
                       QStringLiteral("ITEM_NFA_INS_IND"), QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND")};
    QTest::newRow("linha de DI do insumo individual leva os valores 288/67")
        << false << QStringLiteral("ITEM_DI_INS_IND")
        << QStringList{QStringLiteral("ITEM_DI_INS_IND"), QStringLiteral("ITEM_IMPORT_288_INS")};
}

void tst_cascatas::apagarUmaLinhaLevaSoASuaSubarvore()
{
    QFETCH(bool, ehMensal);
    QFETCH(QString, tabela);
    QFETCH(QStringList, levadas);

    BancoTeste banco;
    // Two declarations of each type, so that a cascade that reaches too far shows in the other ones.
    const ArvoreDeclaracao alvo = ehMensal ? mensal(QStringLiteral("00001/24")) : individual(QStringLiteral("00001/24"));
    const ArvoreDeclaracao outraMensal = mensal(QStringLiteral("00002/24"));
    const ArvoreDeclaracao outraIndividual = individual(QStringLiteral("00003/24"));
    QVERIFY(ausentes(alvo).isEmpty());

    const LinhaDeclaracao apagar = linha(alvo, tabela);
    int afetadas = -1;
    ExecutaSql(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(apagar.tabela, apagar.coluna), {apagar.chave},
               &afetadas);
    QCOMPARE(afetadas, 1);

    QCOMPARE(ausentes(alvo), ordenada(levadas));
    QCOMPARE(ausentes(outraMensal), QStringList());
    QCOMPARE(ausentes(outraIndividual), QStringList());
}

void tst_cascatas::apagarItemNfsLevaModalidadeDocumentosInsumosEJustificativasNumSoComando()
{
    BancoTeste banco;
    const ArvoreDeclaracao a = individual(QStringLiteral("00001/24"));
    const QVariant item = linha(a, QStringLiteral("ITEM_NFS")).chave;
    // The editor's Excluir is this one statement on the item alone.
    ExecutaSql(QStringLiteral("DELETE FROM item_nfs WHERE item_nfs.id_item = ?"), {item});
    QCOMPARE(ausentes(a), SubarvoreItemNfs);
    for (const QString& t : SubarvoreItemNfs)
        QCOMPARE(BancoTeste::conta(t), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("NOTA_FISCAL_SAIDA")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("VRT_INDIVIDUAL")), 1);
}

void tst_cascatas::apagarNotaFiscalLevaTodosOsSeusItens()
{
    BancoTeste banco;
    const ArvoreDeclaracao a = individual(QStringLiteral("00001/24"));
    const QVariant nfs = linha(a, QStringLiteral("NOTA_FISCAL_SAIDA")).chave;
    for (const QString& numero : {QStringLiteral("002"), QStringLiteral("003")}) {
        const QVariant item = insere(QStringLiteral("ITEM_NFS"),
                                     {{QStringLiteral("ID_NFS"), nfs}, {QStringLiteral("NR_ITEM_NF_SAIDA"), numero},
                                      {QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("4")}},
                                     QStringLiteral("ID_ITEM"));
        insere(QStringLiteral("ITEM_NFS_100"), {{QStringLiteral("ID_ITEM"), item}});
    }
    individual(QStringLiteral("00002/24"));
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_NFS = ?"), {nfs}), 3);

    ExecutaSql(QStringLiteral("DELETE FROM NOTA_FISCAL_SAIDA WHERE ID_NFS = ?"), {nfs});

    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_NFS = ?"), {nfs}), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_NFS")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_NFS_100")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("VRT"), QStringLiteral("ID_VRT_MICRO = ?"), {QStringLiteral("00001/24")}), 1);
}

void tst_cascatas::apagarItemMensalDeixaOsDocumentosDoInsumoNaDeclaracao()
{
    // The documents of an input are shared by every product that uses it: the editor removes them itself when the
    // input's last use goes, so an item's delete must leave them.
    BancoTeste banco;
    const ArvoreDeclaracao a = mensal(QStringLiteral("00001/24"));
    ExecutaSql(QStringLiteral("DELETE FROM ITEM_VRT_MEN WHERE ID_ITEM_VRT = ?"), {linha(a, QStringLiteral("ITEM_VRT_MEN")).chave});
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_DI_INS_MEN")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_IMPORT_288_INS_MEN")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_DSI_INS_MEN")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_NFA_INS_MEN")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("INSUMO_VRT")), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("NCM_VRT")), 1);
}

void tst_cascatas::apagarProdutoDeixaOsItensComoEstavam()
{
    BancoTeste banco;
    insere(QStringLiteral("PRODUTO"), {{QStringLiteral("CD_INT_PRODUTO"), QStringLiteral("PROD-01")},
                                       {QStringLiteral("NM_INT_PRODUTO"), QStringLiteral("Produto de teste")}});
    insere(QStringLiteral("PRODUTO"), {{QStringLiteral("CD_INT_PRODUTO"), QStringLiteral("INS-01")},
                                       {QStringLiteral("NM_INT_PRODUTO"), QStringLiteral("Insumo de teste")}});
    const ArvoreDeclaracao m = mensal(QStringLiteral("00001/24"));
    const ArvoreDeclaracao i = individual(QStringLiteral("00002/24"));

    int afetadas = 0;
    ExecutaSql(QStringLiteral("DELETE FROM PRODUTO WHERE CD_INT_PRODUTO IN (?, ?)"),
               {QStringLiteral("PROD-01"), QStringLiteral("INS-01")}, &afetadas);
    QCOMPARE(afetadas, 2);

    QCOMPARE(ausentes(m), QStringList());
    QCOMPARE(ausentes(i), QStringList());
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM ITEM_VRT_MEN WHERE CD_INT_PRODUTO = ?"),
                               {QStringLiteral("PROD-01")}).toString(),
             QStringLiteral("Produto de teste"));
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_NFS"), QStringLiteral("CD_INT_PROD = ?"), {QStringLiteral("PROD-01")}), 1);
    QCOMPARE(BancoTeste::conta(QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("CD_INT_INSUMO = ?"),
                               {QStringLiteral("INS-01")}), 1);
}

void tst_cascatas::substituirTabelasDeReferenciaNaoTocaAsDeclaracoes()
{
    // The reference import replaces these tables whole; declarations copy what they need and keep it.
    BancoTeste banco;
    const ArvoreDeclaracao m = mensal(QStringLiteral("00001/24"));
    const ArvoreDeclaracao i = individual(QStringLiteral("00002/24"));
    for (const QString& t : {QStringLiteral("MOEDA"), QStringLiteral("UNIDADE_FEDERATIVA"), QStringLiteral("UNIDADE_MEDIDA"),
                            QStringLiteral("NCM_ITEM"), QStringLiteral("PRODUTO"), QStringLiteral("LOCAL_DESTINO"),
                            QStringLiteral("OPERACAO_FISCAL")})
        ExecutaSql(QStringLiteral("DELETE FROM ") + t);
    QCOMPARE(ausentes(m), QStringList());
    QCOMPARE(ausentes(i), QStringList());
}

QTEST_GUILESS_MAIN(tst_cascatas)
#include "tst_cascatas.moc"
