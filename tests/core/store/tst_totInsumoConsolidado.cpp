// TOT_INSUMO_CONSOLIDADO: per declaration, destination and input, the quantity of the input that the products
// of modality "3" need there: the sum over the products of QT_INSUMO_POR_PROD x QT_PROD_LOC_DEST, as decimal
// text with a comma and five decimals.
#include "TestUtil.h"

#include "core/store/modBancoDados.h"

#include <QtTest>

using namespace modBancoDados;

namespace {

// One product of a monthly declaration: its inputs ("code=quantity per product") and its destinations
// ("place=quantity"), quantities as the screens store them.
struct Produto {
    QString declaracao;
    QString modalidade;
    QStringList insumos;
    QStringList destinos;
};

void criaDeclaracao(const QString& id)
{
    if (BancoTeste::conta(QStringLiteral("VRT"), QStringLiteral("ID_VRT_MICRO = ?"), {id}) == 0)
        ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT) VALUES (?, '2')"), {id});
}

void gravaProduto(const Produto& p)
{
    criaDeclaracao(p.declaracao);
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, IND_MOD_INTERNACAO) VALUES (?, 'P', ?)"),
               {p.declaracao, p.modalidade});
    const QVariant item = ValorUnico(QStringLiteral("SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN"));
    int ordem = 0;
    for (const QString& i : p.insumos)
        ExecutaSql(QStringLiteral("INSERT INTO INSUMO_ITEM_VRT_MEN (NR_ORDEM, ID_ITEM_VRT, CD_INT_INSUMO, QT_INSUMO_POR_PROD) "
                                  "VALUES (?, ?, ?, ?)"),
                   {++ordem, item, i.section(QLatin1Char('='), 0, 0), i.section(QLatin1Char('='), 1)});
    for (const QString& d : p.destinos)
        ExecutaSql(QStringLiteral("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) VALUES (?, ?, ?)"),
                   {item, d.section(QLatin1Char('='), 0, 0), d.section(QLatin1Char('='), 1)});
}

// The view's rows as "declaration|destination|input|quantity", in that order.
QStringList linhasDaVisao()
{
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT ID_VRT_MICRO, CD_LOCAL_DESTINO, CD_INT_INSUMO, QT_TOT_INS_POR_LOC "
                                    "FROM TOT_INSUMO_CONSOLIDADO ORDER BY 1, 2, 3"));
    QStringList l;
    while (rs.next())
        l << QStringLiteral("%1|%2|%3|%4").arg(rs.value(0).toString(), rs.value(1).toString(), rs.value(2).toString(),
                                                rs.value(3).toString());
    return l;
}

const QString A = QStringLiteral("00001/24");
const QString B = QStringLiteral("00002/24");

}  // namespace

Q_DECLARE_METATYPE(QList<Produto>)

class tst_totInsumoConsolidado : public QObject {
    Q_OBJECT
private slots:
    void somaInsumoVezesQuantidadeDoDestinoPorDeclaracaoInsumoELocal_data();
    void somaInsumoVezesQuantidadeDoDestinoPorDeclaracaoInsumoELocal();
    void mostraNaHoraOQueATransacaoAbertaApagou();
    void naoAceitaEscrita();
};

void tst_totInsumoConsolidado::somaInsumoVezesQuantidadeDoDestinoPorDeclaracaoInsumoELocal_data()
{
    QTest::addColumn<QList<Produto>>("produtos");
    QTest::addColumn<QStringList>("esperado");

    const QString tres = QStringLiteral("3");
    QTest::newRow("um produto, um insumo, um local")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=2,5")}, {QStringLiteral("1=4")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|10,00000")};
    QTest::newRow("dois produtos com o mesmo insumo no mesmo local somam")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=2,50000")}, {QStringLiteral("1=4,00000")}},
                          {A, tres, {QStringLiteral("INS=1,25000")}, {QStringLiteral("1=2,00000")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|12,50000")};
    QTest::newRow("um produto em dois locais dá uma linha por local")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=3,00000")}, {QStringLiteral("1=1,00000"), QStringLiteral("4=10,00000")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|3,00000"), QStringLiteral("00001/24|4|INS|30,00000")};
    QTest::newRow("dois insumos do mesmo produto ficam separados")
        << QList<Produto>{{A, tres, {QStringLiteral("INS-A=1,50000"), QStringLiteral("INS-B=0,20000")}, {QStringLiteral("2=5,00000")}}}
        << QStringList{QStringLiteral("00001/24|2|INS-A|7,50000"), QStringLiteral("00001/24|2|INS-B|1,00000")};
    QTest::newRow("cada declaração tem os seus totais")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=1,00000")}, {QStringLiteral("1=2,00000")}},
                          {B, tres, {QStringLiteral("INS=1,00000")}, {QStringLiteral("1=7,00000")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|2,00000"), QStringLiteral("00002/24|1|INS|7,00000")};
    QTest::newRow("só produtos PI sem PPB contam")
        << QList<Produto>{{A, QStringLiteral("1"), {QStringLiteral("INS=9,00000")}, {QStringLiteral("1=9,00000")}},
                          {A, tres, {QStringLiteral("INS=1,00000")}, {QStringLiteral("1=1,00000")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|1,00000")};
    QTest::newRow("produto sem destino não aparece")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=1,00000")}, {}}} << QStringList{};
    QTest::newRow("cinco casas exatas")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=1,23456")}, {QStringLiteral("3=2,00000")}}}
        << QStringList{QStringLiteral("00001/24|3|INS|2,46912")};
    QTest::newRow("nove inteiros e cinco decimais sem perda")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=123456789,12345")}, {QStringLiteral("1=1,00000")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|123456789,12345")};
    QTest::newRow("produto de decimais arredonda na quinta casa")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=0,33333")}, {QStringLiteral("1=0,33333")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|0,11111")};
    QTest::newRow("quantidade vazia conta zero")
        << QList<Produto>{{A, tres, {QStringLiteral("INS=")}, {QStringLiteral("1=3,00000")}}}
        << QStringList{QStringLiteral("00001/24|1|INS|0,00000")};
}

void tst_totInsumoConsolidado::somaInsumoVezesQuantidadeDoDestinoPorDeclaracaoInsumoELocal()
{
    QFETCH(QList<Produto>, produtos);
    QFETCH(QStringList, esperado);
    BancoTeste banco;
    for (const Produto& p : produtos)
        gravaProduto(p);
    QCOMPARE(linhasDaVisao(), esperado);
}

void tst_totInsumoConsolidado::mostraNaHoraOQueATransacaoAbertaApagou()
{
    BancoTeste banco;
    gravaProduto({A, QStringLiteral("3"), {QStringLiteral("INS=2,00000")}, {QStringLiteral("1=1,00000")}});
    gravaProduto({A, QStringLiteral("3"), {QStringLiteral("INS=1,00000")}, {QStringLiteral("1=1,00000")}});
    IniciaTransacao();
    ExecutaSql(QStringLiteral("DELETE FROM ITEM_VRT_MEN WHERE ID_ITEM_VRT = (SELECT MIN(ID_ITEM_VRT) FROM ITEM_VRT_MEN)"));
    QCOMPARE(linhasDaVisao(), QStringList{QStringLiteral("00001/24|1|INS|1,00000")});
    ExecutaSql(QStringLiteral("DELETE FROM INSUMO_ITEM_VRT_MEN"));
    QCOMPARE(linhasDaVisao(), QStringList());
    DesfazTransacao();
    QCOMPARE(linhasDaVisao(), QStringList{QStringLiteral("00001/24|1|INS|3,00000")});
}

void tst_totInsumoConsolidado::naoAceitaEscrita()
{
    // A derived picture: the program reads it and never writes it.
    BancoTeste banco;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    QVERIFY(!numeroDoFim([] {
                 ExecutaSql(QStringLiteral("INSERT INTO TOT_INSUMO_CONSOLIDADO (ID_VRT_MICRO) VALUES ('00001/24')"));
             }).isEmpty());
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas[0].titulo, QStringLiteral("BDTrataErro"));
}

QTEST_GUILESS_MAIN(tst_totInsumoConsolidado)
#include "tst_totInsumoConsolidado.moc"
