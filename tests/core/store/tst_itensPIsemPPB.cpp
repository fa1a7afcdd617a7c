// The rows of products without basic process and their inputs, and the consolidated picture kept beside them:
// NCM_VRT created and removed with the products, an input's documents removed with its last use, the
// statistical total of an input kept through it all.
#include "TestUtil.h"

#include "core/store/ItensPIsemPPB.h"
#include "core/store/modBancoDados.h"

#include <QtTest>

using namespace ItensPIsemPPB;
using modBancoDados::ExecutaSql;

namespace {

const QString Vrt = QStringLiteral("00001/24");

void criaDeclaracao()
{
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT) VALUES (?, '2')"), {Vrt});
}

qint64 produto(const QString& codigo, const QString& ncm, const QString& local, const QString& qt)
{
    const auto item = ProdutoMensal(Vrt, codigo);
    return IncluiProdutoMensal(Vrt, item ? item->id : 0, codigo, QStringLiteral("Produto ") + codigo, ncm,
                               QStringLiteral("UNIDADE"), local, qt);
}

qint64 insumo(qint64 item, const QString& codigo, const QString& qt, const Aliquotas& a = {})
{
    return IncluiInsumoMensal(item, {codigo, QStringLiteral("Insumo"), QStringLiteral("39011000"), qt,
                                     QStringLiteral("QUILOGRAMA")},
                              a);
}

// A DI of the input at a place, with its child row, as the document frame writes them.
void documentoDI(const QString& codigo, const QString& local)
{
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_DI_INS_MEN (ID_VRT_MICRO, CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_DI) "
                              "VALUES (?, ?, ?, '2400000011')"),
               {Vrt, codigo, local});
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_IMPORT_288_INS_MEN (ID_ITEM_DI) SELECT max(ID_ITEM_DI) FROM ITEM_DI_INS_MEN"));
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_DSI_INS_MEN (ID_VRT_MICRO, CD_INT_INSUMO, CD_LOCAL_DESTINO) "
                              "VALUES (?, ?, ?)"),
               {Vrt, codigo, local});
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_NFA_INS_MEN (ID_VRT_MICRO, CD_INT_INSUMO, CD_LOCAL_DESTINO) "
                              "VALUES (?, ?, ?)"),
               {Vrt, codigo, local});
}

int documentos()
{
    return BancoTeste::conta(QStringLiteral("ITEM_DI_INS_MEN")) + BancoTeste::conta(QStringLiteral("ITEM_DSI_INS_MEN"))
           + BancoTeste::conta(QStringLiteral("ITEM_NFA_INS_MEN"))
           + BancoTeste::conta(QStringLiteral("ITEM_IMPORT_288_INS_MEN"));
}

int ncmVrt(const QString& ncm)
{
    return BancoTeste::conta(QStringLiteral("NCM_VRT"), QStringLiteral("ID_VRT_MICRO = ? AND CD_NCM_PRODUTO = ? "
                                                                       "AND IN_MOD_INTERNACAO = '3'"),
                             {Vrt, ncm});
}

qint64 destino(qint64 item, const QString& local)
{
    return BancoTeste::valor(QStringLiteral("SELECT ID_DEST_PRODUTO FROM DESTINO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = ? "
                                            "AND CD_LOCAL_DESTINO = ?"),
                             {item, local})
        .toLongLong();
}

}  // namespace

class tst_itensPIsemPPB : public QObject {
    Q_OBJECT
private slots:
    void novoProdutoComNcmJaRegistradaNaoCriaSegundaLinha();
    void ultimoProdutoDaNcmLevaALinhaSoQuandoNenhumOutroItemAUsa();
    void alterarANcmDoProdutoDeixaALinhaDaNcmAntiga();
    void excluirInsumoDeUmDeDoisProdutosDeixaOsDocumentos();
    void excluirOUltimoDestinoLevaInsumosEDocumentos();
    void excluirUmDeDoisDestinosGuardaOsInsumos();
    void totalEstatisticoFicaQuandoOInsumoSai();
    void consolidadoSomaOsProdutosPorLocal();
    void registroDoInsumoDaOPrimeiroUsoComAliquotas();
};

void tst_itensPIsemPPB::novoProdutoComNcmJaRegistradaNaoCriaSegundaLinha()
{
    BancoTeste banco;
    criaDeclaracao();
    produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    produto(QStringLiteral("P2"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    QCOMPARE(ncmVrt(QStringLiteral("84713012")), 1);
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT QT_TOTAL_NCM FROM NCM_VRT")).toString(), QStringLiteral("0"));
}

void tst_itensPIsemPPB::ultimoProdutoDaNcmLevaALinhaSoQuandoNenhumOutroItemAUsa()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p1 = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("2"), QStringLiteral("1,00000"));
    const qint64 p2 = produto(QStringLiteral("P2"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    ExcluiProdutoMensal(Vrt, p2, destino(p2, QStringLiteral("1")));
    QCOMPARE(ncmVrt(QStringLiteral("84713012")), 1);
    ExcluiProdutoMensal(Vrt, p1, destino(p1, QStringLiteral("1")));
    QCOMPARE(ncmVrt(QStringLiteral("84713012")), 1);
    ExcluiProdutoMensal(Vrt, p1, destino(p1, QStringLiteral("2")));
    QCOMPARE(ncmVrt(QStringLiteral("84713012")), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("ITEM_VRT_MEN")), 0);
}

void tst_itensPIsemPPB::alterarANcmDoProdutoDeixaALinhaDaNcmAntiga()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    AlteraProdutoMensal(p, destino(p, QStringLiteral("1")), QStringLiteral("P1"), QStringLiteral("Produto"),
                        QStringLiteral("85171231"), QStringLiteral("UNIDADE"), QStringLiteral("1"), QStringLiteral("2,00000"));
    QCOMPARE(ncmVrt(QStringLiteral("84713012")), 1);
    QCOMPARE(ncmVrt(QStringLiteral("85171231")), 0);
}

void tst_itensPIsemPPB::excluirInsumoDeUmDeDoisProdutosDeixaOsDocumentos()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p1 = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    const qint64 p2 = produto(QStringLiteral("P2"), QStringLiteral("84713012"), QStringLiteral("2"), QStringLiteral("1,00000"));
    const qint64 i1 = insumo(p1, QStringLiteral("INS"), QStringLiteral("1,00000"));
    const qint64 i2 = insumo(p2, QStringLiteral("INS"), QStringLiteral("2,00000"));
    documentoDI(QStringLiteral("INS"), QStringLiteral("1"));
    documentoDI(QStringLiteral("INS"), QStringLiteral("2"));
    ExcluiInsumoMensal(Vrt, i1);
    // The documents of place 1, which no product of the input reaches now, stay until the input's last use goes.
    QCOMPARE(documentos(), 8);
    ExcluiInsumoMensal(Vrt, i2);
    QCOMPARE(documentos(), 0);
}

void tst_itensPIsemPPB::excluirOUltimoDestinoLevaInsumosEDocumentos()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    insumo(p, QStringLiteral("A"), QStringLiteral("1,00000"));
    insumo(p, QStringLiteral("B"), QStringLiteral("1,00000"));
    documentoDI(QStringLiteral("A"), QStringLiteral("1"));
    documentoDI(QStringLiteral("B"), QStringLiteral("1"));
    QCOMPARE(InsumosDoItem(p), 2);
    ExcluiProdutoMensal(Vrt, p, destino(p, QStringLiteral("1")));
    QCOMPARE(BancoTeste::conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 0);
    QCOMPARE(documentos(), 0);
}

void tst_itensPIsemPPB::excluirUmDeDoisDestinosGuardaOsInsumos()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("2"), QStringLiteral("1,00000"));
    insumo(p, QStringLiteral("A"), QStringLiteral("1,00000"));
    ExcluiProdutoMensal(Vrt, p, destino(p, QStringLiteral("2")));
    QCOMPARE(DestinosDoItem(p), 1);
    QCOMPARE(InsumosDoItem(p), 1);
}

void tst_itensPIsemPPB::totalEstatisticoFicaQuandoOInsumoSai()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    const qint64 i = insumo(p, QStringLiteral("A"), QStringLiteral("1,00000"));
    QVERIFY(!TotalInsumo(Vrt, QStringLiteral("A"), false));
    GravaTotalInsumo(Vrt, QStringLiteral("A"), QStringLiteral("7.50000"), false, false);
    GravaTotalInsumo(Vrt, QStringLiteral("A"), QStringLiteral("8.50000"), true, false);
    ExcluiInsumoMensal(Vrt, i);
    QCOMPARE(InsumosConsolidados(Vrt), QStringList());
    insumo(p, QStringLiteral("A"), QStringLiteral("1,00000"));
    QCOMPARE(TotalInsumo(Vrt, QStringLiteral("A"), false).value_or(QString()), QStringLiteral("8.50000"));
}

void tst_itensPIsemPPB::consolidadoSomaOsProdutosPorLocal()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p1 = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("10,00000"));
    produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("2"), QStringLiteral("4,00000"));
    const qint64 p2 = produto(QStringLiteral("P2"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("3,00000"));
    insumo(p1, QStringLiteral("INS"), QStringLiteral("0,50000"));
    insumo(p2, QStringLiteral("INS"), QStringLiteral("2,00000"));
    QCOMPARE(InsumosConsolidados(Vrt), QStringList{QStringLiteral("INS")});
    const QList<QStringList> locais = LocaisDoInsumo(Vrt, QStringLiteral("INS"));
    QCOMPARE(locais.size(), 2);
    QCOMPARE(locais[0].value(0), QStringLiteral("1"));
    QCOMPARE(locais[0].value(2), QStringLiteral("11,00000"));
    QCOMPARE(locais[1].value(0), QStringLiteral("2"));
    QCOMPARE(locais[1].value(2), QStringLiteral("2,00000"));
}

void tst_itensPIsemPPB::registroDoInsumoDaOPrimeiroUsoComAliquotas()
{
    BancoTeste banco;
    criaDeclaracao();
    const qint64 p1 = produto(QStringLiteral("P1"), QStringLiteral("84713012"), QStringLiteral("1"), QStringLiteral("1,00000"));
    Aliquotas a;
    a.existe = true;
    a.aliqII = QStringLiteral("2,00");
    a.justII = QStringLiteral("Lei");
    const qint64 i = insumo(p1, QStringLiteral("INS"), QStringLiteral("1,00000"), a);
    const auto r = RegistroInsumoMensal(Vrt, QStringLiteral("INS"));
    QVERIFY(r);
    QCOMPARE(r->ncm, QStringLiteral("39011000"));
    QCOMPARE(r->unidade, QStringLiteral("QUILOGRAMA"));
    QVERIFY(r->aliquotas.existe);
    QCOMPARE(r->aliquotas.aliqII, QStringLiteral("2,00"));
    QVERIFY(!RegistroInsumoMensal(Vrt, QStringLiteral("INS"), i));
    AlteraInsumoMensal(p1, i, QStringLiteral("INS"),
                       {QStringLiteral("INS"), QStringLiteral("Insumo"), QStringLiteral("39011000"),
                        QStringLiteral("3,00000"), QStringLiteral("QUILOGRAMA")},
                       {});
    QCOMPARE(BancoTeste::conta(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN")), 0);
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT QT_INSUMO_POR_PROD FROM INSUMO_ITEM_VRT_MEN")).toString(),
             QStringLiteral("3,00000"));
}

QTEST_GUILESS_MAIN(tst_itensPIsemPPB)
#include "tst_itensPIsemPPB.moc"
