#include "TestUtil.h"

#include "core/store/ComandoSqlite.h"
#include "core/store/ComandosPreparados.h"
#include "core/store/modBancoDados.h"

#include <QtTest>

using namespace modBancoDados;

// The statements of the reader, the writer and the imports go through SQLite's own interface: what they bind,
// read back and report must be what the same statement through QSqlQuery gives.
class tst_comandoSqlite : public QObject {
    Q_OBJECT
private slots:
    void valoresLidosComoOsDoQSqlQuery();
    void valoresLigadosComoOsDoQSqlQuery();
    void recusaDaOCodigoEATextoDoQSqlQuery();
    void ultimaChaveEAdaLinhaInserida();
    void mesmaTransacaoDaConexaoDaSessao();
    void textosLigadosUmAUmVoltamIguais();
    void leDizOConteudoDeCadaColuna();
};

void tst_comandoSqlite::valoresLidosComoOsDoQSqlQuery()
{
    BancoTeste banco;
    const QString sql = QStringLiteral("SELECT NULL, 42, 1.5, 'Açúcar', '', x'00ff', 9223372036854775807");
    QSqlQuery q(ConexaoBanco());
    QVERIFY(q.exec(sql));
    QVERIFY(q.next());
    ComandoSqlite c(sql);
    c.abre({});
    QVERIFY(c.proxima());
    for (int i = 0; i < 7; ++i) {
        QCOMPARE(c.valor(i).isValid(), q.value(i).isValid());
        QCOMPARE(c.valor(i).isNull(), q.value(i).isNull());
        QCOMPARE(c.valor(i).typeId(), q.value(i).typeId());
        QCOMPARE(c.valor(i), q.value(i));
        QCOMPARE(c.texto(i), q.value(i).toString());
        QCOMPARE(c.texto(i).isNull(), q.value(i).toString().isNull());
    }
    QVERIFY(!c.proxima());
    QVERIFY(!c.proxima());
}

void tst_comandoSqlite::valoresLigadosComoOsDoQSqlQuery()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("CREATE TABLE L (V)"));
    const QVariantList valores{QVariant(), QString(), QStringLiteral(""), QStringLiteral("Ação ç'"), 7,
                               qint64(1) << 40, 2.25, true, QByteArray("\x01\x02", 2)};
    for (const QVariant& v : valores)
        ExecutaSql(QStringLiteral("INSERT INTO L (V) VALUES (?)"), {v});
    ComandoSqlite insere(QStringLiteral("INSERT INTO L (V) VALUES (?)"));
    for (const QVariant& v : valores)
        QVERIFY(insere.roda({v}));
    ComandoSqlite le(QStringLiteral("SELECT typeof(V), quote(V) FROM L ORDER BY rowid"));
    le.abre({});
    QStringList lidos;
    while (le.proxima())
        lidos << le.texto(0) + QLatin1Char(' ') + le.texto(1);
    QCOMPARE(lidos.size(), 2 * valores.size());
    QCOMPARE(lidos.mid(valores.size()), lidos.mid(0, valores.size()));
    QCOMPARE(lidos.at(1), QStringLiteral("null NULL"));  // a null QString is NULL, as Qt binds it
}

void tst_comandoSqlite::recusaDaOCodigoEATextoDoQSqlQuery()
{
    BancoTeste banco;
    const QString sql = QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO) VALUES (?)");
    QSqlQuery q(ConexaoBanco());
    QVERIFY(q.prepare(sql));
    q.addBindValue(QStringLiteral("99999/99"));
    QVERIFY(!q.exec());
    ComandoSqlite c(sql);
    QVERIFY(!c.roda({QStringLiteral("99999/99")}));
    QCOMPARE(c.erro().nativeErrorCode(), QStringLiteral("787"));
    QCOMPARE(c.erro().nativeErrorCode(), q.lastError().nativeErrorCode());
    QCOMPARE(c.erro().databaseText(), q.lastError().databaseText());
    // The statement runs again after a refusal.
    QVERIFY(!c.roda({QStringLiteral("99999/98")}));
    // Through the cache, a refused row ends the run with the same message as before.
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    ComandosPreparados comandos;
    QCOMPARE(numeroDoFim([&] { comandos.executa(sql, {QStringLiteral("99999/99")}); }), QStringLiteral("787"));
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Error #787: FOREIGN KEY constraint failed")});
}

void tst_comandoSqlite::ultimaChaveEAdaLinhaInserida()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("CREATE TABLE K (ID INTEGER PRIMARY KEY AUTOINCREMENT, V TEXT)"));
    ComandosPreparados comandos;
    comandos.executa(QStringLiteral("INSERT INTO K (V) VALUES (?)"), {QStringLiteral("a")});
    comandos.executa(QStringLiteral("INSERT INTO K (V) VALUES (?)"), {QString()});
    QCOMPARE(comandos.ultimaChave().toLongLong(), 2);
    // The cache stores a null text as an empty one.
    QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT quote(V) FROM K WHERE ID = 2")).toString(), QStringLiteral("''"));
    QCOMPARE(comandos.valor(QStringLiteral("SELECT V FROM K WHERE ID = ?"), {1}).toString(), QStringLiteral("a"));
    QVERIFY(!comandos.valor(QStringLiteral("SELECT V FROM K WHERE ID = ?"), {9}).isValid());
    QVERIFY(comandos.existe(QStringLiteral("SELECT 1 FROM K WHERE ID = ?"), {2}));
}

void tst_comandoSqlite::mesmaTransacaoDaConexaoDaSessao()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("CREATE TABLE M (V TEXT)"));
    IniciaTransacao();
    {
        ComandosPreparados comandos;
        comandos.executa(QStringLiteral("INSERT INTO M (V) VALUES (?)"), {QStringLiteral("x")});
    }
    QCOMPARE(ValorUnico(QStringLiteral("SELECT COUNT(*) FROM M")).toInt(), 1);
    DesfazTransacao();
    QCOMPARE(ValorUnico(QStringLiteral("SELECT COUNT(*) FROM M")).toInt(), 0);
}

void tst_comandoSqlite::textosLigadosUmAUmVoltamIguais()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("CREATE TABLE L (V)"));
    // One position bound again and again: a long text, then shorter ones, so that each reuses the buffer of
    // the one before; two- and three-byte characters, a character beyond 16 bits, a NUL of its own, nothing.
    const QStringList textos{QStringLiteral("Uma descrição bem comprida de produto"), QStringLiteral("XY"),
                             QStringLiteral("Preço € 10"), QStringLiteral("\U0001D11E clave"),
                             QString(QStringLiteral("A\0B")), QStringLiteral(""), QStringLiteral("Z")};
    ComandoSqlite insere(QStringLiteral("INSERT INTO L (V) VALUES (?)"));
    for (const QString& t : textos) {
        insere.inicia();
        insere.ligaTexto(0, t);
        QVERIFY(insere.executa());
    }
    ComandoSqlite le(QStringLiteral("SELECT V, typeof(V) FROM L ORDER BY rowid"));
    le.abre({});
    QStringList lidos;
    while (le.proxima()) {
        QCOMPARE(le.texto(1), QStringLiteral("text"));
        lidos << le.texto(0);
    }
    QCOMPARE(lidos, textos);
}

void tst_comandoSqlite::leDizOConteudoDeCadaColuna()
{
    BancoTeste banco;
    using Conteudo = ComandoSqlite::Conteudo;
    ComandoSqlite c(QStringLiteral("SELECT NULL, 42, 'Açúcar', '', 1.5, x'00ff'"));
    c.abre({});
    QVERIFY(c.proxima());
    QByteArrayView texto;
    qint64 numero = 0;
    QCOMPARE(c.le(0, texto, numero), Conteudo::Nulo);
    QCOMPARE(c.le(1, texto, numero), Conteudo::Inteiro);
    QCOMPARE(numero, 42);
    QCOMPARE(c.le(2, texto, numero), Conteudo::Texto);
    QCOMPARE(QString::fromUtf8(texto), QStringLiteral("Açúcar"));
    QCOMPARE(c.le(3, texto, numero), Conteudo::Texto);
    QVERIFY(texto.isEmpty() && !texto.isNull());
    QCOMPARE(c.le(4, texto, numero), Conteudo::Outro);
    QCOMPARE(c.le(5, texto, numero), Conteudo::Outro);
    // utf8() gives an integer's digits and a null view for NULL, and leaves reals and blobs to texto().
    QVERIFY(c.utf8(0, texto) && texto.isNull());
    QVERIFY(c.utf8(1, texto) && texto == "42");
    QVERIFY(c.utf8(2, texto) && QString::fromUtf8(texto) == QStringLiteral("Açúcar"));
    QVERIFY(!c.utf8(4, texto));
}

QTEST_GUILESS_MAIN(tst_comandoSqlite)
#include "tst_comandoSqlite.moc"
