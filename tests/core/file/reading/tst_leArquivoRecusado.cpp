// A declaration file whose lines the database refuses (a row with no parent, a value too wide) ends like any
// refused file: the reader's message with the line and the record, the database as it was, the run going on.
// Files found by fuzzing the reader (tests/data/fuzz/leitura) are read the same way: a message, never an end.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QDir>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
}  // namespace

class TstLeArquivoRecusado : public QObject {
    Q_OBJECT

private:
    std::optional<BancoDeLeitura> m_banco;
    bool le(const QByteArray& conteudo)
    {
        grava(m_banco->pasta() + t("/arquivo"), conteudo);
        return LeArquivoVrtEm(m_banco->pasta(), t("arquivo"));
    }

private slots:
    void init() { m_banco.emplace(); }
    void cleanup() { m_banco.reset(); }

    void registroSemPai_data()
    {
        QTest::addColumn<QStringList>("linhas");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("registro 12 antes de qualquer 11, mensal")
            << (cabecalhoMensal() + QStringList{r12()})
            << t("Erro no 5º registro (registro 12) - Registro não aceito pelo banco de dados!");
        QTest::newRow("registro 13 antes de qualquer 11, mensal")
            << (cabecalhoMensal() + QStringList{r41(t("P1"), t("Fio"), t("M")), r13()})
            << t("Erro no 6º registro (registro 13) - Registro não aceito pelo banco de dados!");
        QTest::newRow("registro 33 antes de qualquer 31, mensal")
            << (cabecalhoMensal() + QStringList{r33(t("INS-1"))})
            << t("Erro no 5º registro (registro 33) - Registro não aceito pelo banco de dados!");
    }
    void registroSemPai()
    {
        QFETCH(QStringList, linhas);
        QFETCH(QString, mensagem);
        const QStringList antes = retratoDoBanco();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        bool lido = true;
        const QString fim = numeroDoFim([&] { lido = le(bytes(linhas)); });
        QCOMPARE(fim, QString());
        QVERIFY(!lido);
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
        QVERIFY(!modBancoDados::TransacaoAberta());
        QCOMPARE(retratoDoBanco(), antes);
    }

    void arquivosDoFuzzing_data()
    {
        QTest::addColumn<QString>("caminho");
        const QDir pasta(t(VRT_TEST_DATA "/fuzz/leitura"));
        const QStringList nomes = pasta.entryList(QDir::Files, QDir::Name);
        QVERIFY(!nomes.isEmpty());
        for (const QString& nome : nomes)
            QTest::newRow(qPrintable(nome)) << pasta.filePath(nome);
    }
    void arquivosDoFuzzing()
    {
        QFETCH(QString, caminho);
        QFile f(caminho);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray conteudo = f.readAll();
        const QStringList antes = retratoDoBanco();
        MensagensRoteiro msgs;
        for (int i = 0; i < 4; ++i)
            msgs.responde(Msg::Yes);
        bool lido = true;
        const QString fim = numeroDoFim([&] { lido = le(conteudo); });
        QCOMPARE(fim, QString());
        QVERIFY(!modBancoDados::TransacaoAberta());
        if (!lido) {
            QVERIFY(!msgs.caixas.isEmpty());
            QCOMPARE(retratoDoBanco(), antes);
        }
    }
};

QTEST_GUILESS_MAIN(TstLeArquivoRecusado)
#include "tst_leArquivoRecusado.moc"
