#include "TestUtil.h"

#include "core/store/modBancoDados.h"

#include <QtTest>

using namespace modBancoDados;

namespace {

void criaTabelaT(int linhas)
{
    ExecutaSql(QStringLiteral("CREATE TABLE T (A TEXT, N INTEGER)"));
    for (int i = 1; i <= linhas; ++i)
        ExecutaSql(QStringLiteral("INSERT INTO T (A, N) VALUES (?, ?)"), {QStringLiteral("linha %1").arg(i), i});
}

int contaProduto(const QString& codigo)
{
    return BancoTeste::conta(QStringLiteral("PRODUTO"), QStringLiteral("CD_INT_PRODUTO = ?"), {codigo});
}

void gravaProduto(const QString& codigo)
{
    ExecutaSql(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
               {codigo, QStringLiteral("Produto ") + codigo});
}

// The user's save point: a commit of everything so far, then the session goes on in a new transaction.
void salvar()
{
    ConfirmaTransacao();
    IniciaTransacao();
}

}  // namespace

class tst_modBancoDados : public QObject {
    Q_OBJECT
private slots:
    void abreConsultaSemLinhasDaZeroEFechaOResultado();
    void abreConsultaComLinhasDaAContagemEFicaAntesDaPrimeira_data();
    void abreConsultaComLinhasDaAContagemEFicaAntesDaPrimeira();
    void abreConsultaSemContagemDeixaOResultadoAbertoMesmoVazio();
    void abreConsultaSobreResultadoAindaAbertoEncerraComErro13();
    void comandoInvalidoEncerraPeloBDTrataErro();
    void executaSqlDaAQuantidadeDeLinhasAfetadas_data();
    void executaSqlDaAQuantidadeDeLinhasAfetadas();
    void confirmaGuardaEDesfazDescarta();
    void guardaTransacaoDesfazAoSairSemConfirmar();
    void depoisDeSalvarDesfazerVoltaSoAtePontoSalvo();
    void falhaNoMeioDaSessaoPerdeSoODesdeOUltimoSalvar();
    void valorComAspasSimplesGravadoELidoIntacto_data();
    void valorComAspasSimplesGravadoELidoIntacto();
    void conexaoTemChavesEstrangeirasLigadas();
};

void tst_modBancoDados::abreConsultaSemLinhasDaZeroEFechaOResultado()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("CREATE TABLE T (A TEXT)"));
    QSqlQuery rs(ConexaoBanco());
    int quantidade = -1;
    QVERIFY(AbreConsulta(rs, QStringLiteral("SELECT A FROM T WHERE A = ?"), {QStringLiteral("x")}, &quantidade));
    QCOMPARE(quantidade, 0);
    QVERIFY(!rs.isActive());
}

void tst_modBancoDados::abreConsultaComLinhasDaAContagemEFicaAntesDaPrimeira_data()
{
    QTest::addColumn<bool>("soParaFrente");
    QTest::newRow("resultado navegável") << false;
    QTest::newRow("resultado só para frente") << true;
}

void tst_modBancoDados::abreConsultaComLinhasDaAContagemEFicaAntesDaPrimeira()
{
    QFETCH(bool, soParaFrente);
    BancoTeste banco;
    criaTabelaT(3);
    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(soParaFrente);
    int quantidade = -1;
    QVERIFY(AbreConsulta(rs, QStringLiteral("SELECT A FROM T WHERE N >= ? ORDER BY N"), {1}, &quantidade));
    QCOMPARE(quantidade, 3);
    QVERIFY(rs.isActive());
    QCOMPARE(rs.at(), int(QSql::BeforeFirstRow));
    QStringList lidas;
    while (rs.next())
        lidas << rs.value(0).toString();
    QCOMPARE(lidas, (QStringList{QStringLiteral("linha 1"), QStringLiteral("linha 2"), QStringLiteral("linha 3")}));
}

void tst_modBancoDados::abreConsultaSemContagemDeixaOResultadoAbertoMesmoVazio()
{
    BancoTeste banco;
    criaTabelaT(0);
    QSqlQuery rs(ConexaoBanco());
    QVERIFY(AbreConsulta(rs, QStringLiteral("SELECT A FROM T")));
    QVERIFY(rs.isActive());
    QVERIFY(!rs.next());
}

void tst_modBancoDados::abreConsultaSobreResultadoAindaAbertoEncerraComErro13()
{
    // The old error routine meant to report 3705 ("already open") but its message could never be composed: the
    // run ended in a type mismatch, error 13. That is what the user sees, and it stays so.
    BancoTeste banco;
    criaTabelaT(2);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    QSqlQuery rs(ConexaoBanco());
    int quantidade = 0;
    AbreConsulta(rs, QStringLiteral("SELECT A FROM T"), {}, &quantidade);
    QCOMPARE(quantidade, 2);
    QCOMPARE(numeroDoFim([&] { AbreConsulta(rs, QStringLiteral("SELECT N FROM T")); }), QStringLiteral("13"));
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas[0].texto, QStringLiteral("Error #13: Type mismatch"));
    QCOMPARE(msgs.caixas[0].titulo, QStringLiteral("BDTrataErro"));
    QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    QCOMPARE(msgs.caixas[0].botoes(), Msg::OKOnly);
    QCOMPARE(msgs.inesperadas, 0);
}

void tst_modBancoDados::comandoInvalidoEncerraPeloBDTrataErro()
{
    BancoTeste banco;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    QCOMPARE(numeroDoFim([] { ExecutaSql(QStringLiteral("DELETE FROM TABELA_QUE_NAO_EXISTE")); }), QStringLiteral("1"));
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Error #1: no such table: TABELA_QUE_NAO_EXISTE")});
    QCOMPARE(msgs.caixas[0].titulo, QStringLiteral("BDTrataErro"));
    QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    QCOMPARE(msgs.inesperadas, 0);
}

void tst_modBancoDados::executaSqlDaAQuantidadeDeLinhasAfetadas_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QVariantList>("valores");
    QTest::addColumn<int>("afetadas");
    QTest::addColumn<int>("restam");
    QTest::newRow("update de nenhuma linha") << QStringLiteral("UPDATE T SET A = 'x' WHERE N > ?") << QVariantList{10} << 0 << 5;
    QTest::newRow("update de uma linha") << QStringLiteral("UPDATE T SET A = 'x' WHERE N = ?") << QVariantList{3} << 1 << 5;
    QTest::newRow("update de três linhas") << QStringLiteral("UPDATE T SET A = 'x' WHERE N <= ?") << QVariantList{3} << 3 << 5;
    QTest::newRow("delete de duas linhas") << QStringLiteral("DELETE FROM T WHERE N > ?") << QVariantList{3} << 2 << 3;
    QTest::newRow("delete de todas") << QStringLiteral("DELETE FROM T") << QVariantList{} << 5 << 0;
    QTest::newRow("insert de uma linha") << QStringLiteral("INSERT INTO T (A, N) VALUES (?, ?)")
                                         << QVariantList{QStringLiteral("nova"), 6} << 1 << 6;
}

void tst_modBancoDados::executaSqlDaAQuantidadeDeLinhasAfetadas()
{
    QFETCH(QString, sql);
    QFETCH(QVariantList, valores);
    QFETCH(int, afetadas);
    QFETCH(int, restam);
    BancoTeste banco;
    criaTabelaT(5);
    int n = -1;
    ExecutaSql(sql, valores, &n);
    QCOMPARE(n, afetadas);
    QCOMPARE(BancoTeste::conta(QStringLiteral("T")), restam);
}

void tst_modBancoDados::confirmaGuardaEDesfazDescarta()
{
    BancoTeste banco;
    IniciaTransacao();
    QVERIFY(TransacaoAberta());
    gravaProduto(QStringLiteral("A"));
    ConfirmaTransacao();
    QVERIFY(!TransacaoAberta());
    IniciaTransacao();
    gravaProduto(QStringLiteral("B"));
    // Reads in the transaction see its writes.
    QCOMPARE(contaProduto(QStringLiteral("B")), 1);
    DesfazTransacao();
    QVERIFY(!TransacaoAberta());
    QCOMPARE(contaProduto(QStringLiteral("A")), 1);
    QCOMPARE(contaProduto(QStringLiteral("B")), 0);
}

void tst_modBancoDados::guardaTransacaoDesfazAoSairSemConfirmar()
{
    BancoTeste banco;
    {
        Transacao t;
        gravaProduto(QStringLiteral("A"));
        t.confirma();
    }
    {
        Transacao t;
        gravaProduto(QStringLiteral("B"));
    }
    QVERIFY(!TransacaoAberta());
    QCOMPARE(contaProduto(QStringLiteral("A")), 1);
    QCOMPARE(contaProduto(QStringLiteral("B")), 0);
}

void tst_modBancoDados::depoisDeSalvarDesfazerVoltaSoAtePontoSalvo()
{
    BancoTeste banco;
    IniciaTransacao();
    gravaProduto(QStringLiteral("ANTES"));
    salvar();
    QVERIFY(TransacaoAberta());
    gravaProduto(QStringLiteral("DEPOIS"));
    ExecutaSql(QStringLiteral("UPDATE PRODUTO SET NM_INT_PRODUTO = ? WHERE CD_INT_PRODUTO = ?"),
               {QStringLiteral("mudado"), QStringLiteral("ANTES")});
    // Closing with No.
    DesfazTransacao();
    QCOMPARE(contaProduto(QStringLiteral("ANTES")), 1);
    QCOMPARE(contaProduto(QStringLiteral("DEPOIS")), 0);
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = ?"),
                               {QStringLiteral("ANTES")}).toString(),
             QStringLiteral("Produto ANTES"));
}

void tst_modBancoDados::falhaNoMeioDaSessaoPerdeSoODesdeOUltimoSalvar()
{
    BancoTeste banco;
    gravaProduto(QStringLiteral("JA_EXISTIA"));
    IniciaTransacao();
    gravaProduto(QStringLiteral("SALVO"));
    salvar();
    gravaProduto(QStringLiteral("NAO_SALVO"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const QString numero = numeroDoFim([] {
        ExecutaSql(QStringLiteral("UPDATE PRODUTO SET NM_INT_PRODUTO = ? WHERE CD_INT_PRODUTO = ?"),
                   {QString(81, QLatin1Char('x')), QStringLiteral("SALVO")});
    });
    QCOMPARE(numero, QStringLiteral("275"));
    QCOMPARE(msgs.inesperadas, 0);
    // The run ends here: the engine drops the open transaction. A new start sees the file as it was left.
    ConectaBanco(banco.arquivo());
    QVERIFY(!TransacaoAberta());
    QCOMPARE(contaProduto(QStringLiteral("JA_EXISTIA")), 1);
    QCOMPARE(contaProduto(QStringLiteral("SALVO")), 1);
    QCOMPARE(contaProduto(QStringLiteral("NAO_SALVO")), 0);
}

void tst_modBancoDados::valorComAspasSimplesGravadoELidoIntacto_data()
{
    QTest::addColumn<QString>("nome");
    QTest::newRow("uma aspa") << QStringLiteral("D'Ávila");
    QTest::newRow("aspas seguidas") << QStringLiteral("O''Neil ''");
    QTest::newRow("aspa que fecharia o texto") << QStringLiteral("x'); DELETE FROM PRODUTO; --");
    QTest::newRow("aspas duplas e acento agudo") << QStringLiteral("polegada \" e ´");
}

void tst_modBancoDados::valorComAspasSimplesGravadoELidoIntacto()
{
    QFETCH(QString, nome);
    BancoTeste banco;
    gravaProduto(QStringLiteral("OUTRO"));
    ExecutaSql(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
               {QStringLiteral("C'1"), nome});
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = ?"),
                               {QStringLiteral("C'1")}).toString(),
             nome);
    QSqlQuery rs(ConexaoBanco());
    int quantidade = 0;
    AbreConsulta(rs, QStringLiteral("SELECT CD_INT_PRODUTO FROM PRODUTO WHERE NM_INT_PRODUTO = ?"), {nome}, &quantidade);
    QCOMPARE(quantidade, 1);
    QVERIFY(rs.next());
    QCOMPARE(rs.value(0).toString(), QStringLiteral("C'1"));
    QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 2);
}

void tst_modBancoDados::conexaoTemChavesEstrangeirasLigadas()
{
    BancoTeste banco;
    QCOMPARE(BancoTeste::valor(QStringLiteral("PRAGMA foreign_keys")).toInt(), 1);
    // A child row with no parent is refused.
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    QCOMPARE(numeroDoFim([] {
                 ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO) VALUES (?)"), {QStringLiteral("99999/99")});
             }),
             QStringLiteral("787"));  // SQLITE_CONSTRAINT_FOREIGNKEY
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Error #787: FOREIGN KEY constraint failed")});
}

QTEST_GUILESS_MAIN(tst_modBancoDados)
#include "tst_modBancoDados.moc"
