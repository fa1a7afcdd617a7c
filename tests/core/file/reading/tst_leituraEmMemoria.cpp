// Reading and checking a declaration file held in memory: the reader's outcome says the line, the record and
// the message and shows nothing by itself but its questions; the outcome then goes through the message seam;
// the head records are measured against their layouts; the checker reads any device as well.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/file/checking/VerificaArquivoVrt.h"

#include <QBuffer>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
}  // namespace

class TstLeituraEmMemoria : public QObject {
    Q_OBJECT

private:
    std::optional<BancoDeLeitura> m_banco;

private slots:
    void init() { m_banco.emplace(); }
    void cleanup() { m_banco.reset(); }

    void resultadoDizLinhaRegistroEMensagemSemMostrarNada()
    {
        MensagensRoteiro msgs;
        QBuffer arquivo;
        arquivo.setData(bytes(cabecalhoMensal() + QStringList{r41(t("P1"), t("Cabo"), t("M")) + t("X")}));
        LeArquivoVrt leitura(arquivo);
        const ResultadoLeitura& r = leitura.le();
        QVERIFY(!r.concluida);
        QVERIFY(msgs.caixas.isEmpty());
        QVERIFY(r.falha());
        QCOMPARE(r.falha()->linha, 5);
        QCOMPARE(r.falha()->registro, t("41"));
        QCOMPARE(r.falha()->texto, t("Erro no 5º registro (registro 41) - Tamanho inválido!"));
        QCOMPARE(r.falha()->estilo, Msg::Critical);
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);

        msgs.responde(Msg::OK);
        LeArquivoVrt::mostra(r, ModoLeitura::Importar);
        QCOMPARE(msgs.textos(), QStringList{t("Erro no 5º registro (registro 41) - Tamanho inválido!")});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
    }

    void leituraConcluidaNaoTemFalhaEMostraORelatorio()
    {
        MensagensRoteiro msgs;
        QBuffer arquivo;
        arquivo.setData(bytes(cabecalhoMensal()));
        LeArquivoVrt leitura(arquivo);
        const ResultadoLeitura& r = leitura.le();
        QVERIFY(r.concluida);
        QVERIFY(!r.falha());
        QVERIFY(r.mensagens.isEmpty());
        QVERIFY(msgs.caixas.isEmpty());
        QCOMPARE(r.IdVrtLida, identificacao(1));
        msgs.responde(Msg::OK);
        LeArquivoVrt::mostra(r, ModoLeitura::Restaurar);
        QCOMPARE(msgs.textos(), QStringList{t("Backup restaurado com o nome ") + identificacao(1)});
    }

    void registrosDoCabecalhoMedidosPeloLayout_data()
    {
        QTest::addColumn<int>("linha");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("registro 00 com 62") << 1 << t("Erro no registro 00 - Tamanho inválido!");
        QTest::newRow("registro 01 com 114") << 2 << t("Erro no registro 01 - Tamanho inválido!");
        QTest::newRow("registro 02 com 564") << 3 << t("Erro no registro 02 - Tamanho inválido!");
        QTest::newRow("registro 03 com 525") << 4 << t("Erro no registro 03 - Tamanho inválido!");
    }
    void registrosDoCabecalhoMedidosPeloLayout()
    {
        QFETCH(int, linha);
        QFETCH(QString, mensagem);
        QStringList linhas = cabecalhoMensal();
        linhas[linha - 1] += t(" ");
        MensagensRoteiro msgs;
        QBuffer arquivo;
        arquivo.setData(bytes(linhas));
        LeArquivoVrt leitura(arquivo);
        const ResultadoLeitura& r = leitura.le();
        QVERIFY(r.falha());
        QCOMPARE(r.falha()->linha, linha);
        QCOMPARE(r.falha()->registro, QStringLiteral("0%1").arg(linha - 1));
        QCOMPARE(r.falha()->texto, mensagem);

        VerificaArquivoVrt verificacao;
        arquivo.close();
        QVERIFY(verificacao.verifica(arquivo));
        QVERIFY(!verificacao.problemas().isEmpty());
        QCOMPARE(verificacao.problemas().at(0).linha, linha);
        QVERIFY(verificacao.problemas().at(0).descricao.startsWith(mensagem));
    }

    void verificadorLeUmDispositivo()
    {
        QBuffer arquivo;
        arquivo.setData(bytes(cabecalhoMensal() + QStringList{r41(t("P1"), t("Cabo"), t("M"))}));
        VerificaArquivoVrt verificacao;
        QVERIFY(verificacao.verifica(arquivo));
        QCOMPARE(verificacao.problemas().size(), 0);
        QCOMPARE(verificacao.linhas(), 5);
    }

    void caminhoContinuaAbrindoOArquivo()
    {
        const QString caminho = m_banco->pasta() + t("/0000126");
        grava(caminho, bytes(cabecalhoMensal()));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(LeArquivoVrtEm(m_banco->pasta(), t("0000126")));
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas.at(0).texto.startsWith(t("Relatório da importação:")));
    }
};

QTEST_GUILESS_MAIN(TstLeituraEmMemoria)
#include "tst_leituraEmMemoria.moc"
