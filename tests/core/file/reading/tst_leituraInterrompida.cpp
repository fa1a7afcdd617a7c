// A declaration file that becomes shorter while it is read (truncated by another program, its medium pulled):
// the reading stops with a message that says so, and the database stays exactly as it was. The lines are read a
// block at a time, so the cut is noticed at the first block after it; the lines across the blocks are those of
// the same bytes read from memory.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/checking/VerificaArquivoVrt.h"
#include "core/file/layout/LinhasArquivo.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// A monthly declaration of national products long enough to span several blocks.
QByteArray declaracaoLonga()
{
    QStringList linhas = cabecalhoMensal();
    for (int i = 1; i <= 6000; ++i)
        linhas << r41(t("P") + QString::number(i), t("Produto ") + QString::number(i), t("M"));
    return bytes(linhas);
}

// Lines ended in the file by its first `tamanho` bytes.
int linhasInteiras(const QByteArray& conteudo, qint64 tamanho)
{
    return int(conteudo.left(tamanho).count('\n'));
}
// A file whose medium goes away after its lines were counted: the second pass gives `limite` bytes, then fails.
class ArquivoQueFalha : public QFile {
public:
    ArquivoQueFalha(const QString& caminho, qint64 limite) : QFile(caminho), m_limite(limite) {}
    bool seek(qint64 posicao) override
    {
        m_contado = true;
        m_lidos = posicao;
        return QFile::seek(posicao);
    }

protected:
    qint64 readData(char* dados, qint64 maximo) override
    {
        if (!m_contado)
            return QFile::readData(dados, maximo);
        if (m_lidos >= m_limite)
            return -1;
        const qint64 n = QFile::readData(dados, std::min(maximo, m_limite - m_lidos));
        m_lidos += std::max<qint64>(n, 0);
        return n;
    }

private:
    qint64 m_limite;
    qint64 m_lidos = 0;
    bool m_contado = false;
};
}  // namespace

class TstLeituraInterrompida : public QObject {
    Q_OBJECT

private:
    std::optional<BancoDeLeitura> m_banco;
    QTemporaryDir m_pasta;

private slots:
    void init() { m_banco.emplace(); }
    void cleanup() { m_banco.reset(); }

    void arquivoEncurtadoDuranteALeituraNaoDeixaNada()
    {
        const QByteArray conteudo = declaracaoLonga();
        QVERIFY(conteudo.size() > 3 * LinhasArquivo::TamanhoBloco);
        const QString caminho = m_pasta.filePath(t("encurtado.vrt"));
        grava(caminho, conteudo);
        const QStringList antes = retratoDoBanco();

        LeArquivoVrt leitura(m_pasta.path(), t("encurtado.vrt"));
        bool cortado = false;
        leitura.defineProgresso([&](qint64, qint64) {
            if (!cortado)
                cortado = QFile::resize(caminho, LinhasArquivo::TamanhoBloco / 2);
        });
        MensagensRoteiro msgs;
        const ResultadoLeitura& r = leitura.le();
        QVERIFY(cortado);
        QVERIFY(!r.concluida);
        QVERIFY(r.falha());
        // The lines of the first block were read whole; the next block was no longer there.
        const int lidas = linhasInteiras(conteudo, LinhasArquivo::TamanhoBloco);
        QCOMPARE(r.falha()->texto, t("Erro na leitura do arquivo ") + caminho + t(" após o ") + QString::number(lidas) +
                                       t("º registro - o arquivo foi alterado ou retirado durante a leitura!"));
        QCOMPARE(r.mensagens.size(), 1);
        QCOMPARE(msgs.caixas.size(), 0);
        QCOMPARE(retratoDoBanco(), antes);
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
    }

    void falhaDeLeituraMostradaComoErro()
    {
        const QByteArray conteudo = declaracaoLonga();
        const QString caminho = m_pasta.filePath(t("retirado.vrt"));
        grava(caminho, conteudo);
        const QStringList antes = retratoDoBanco();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        bool cortado = false;
        QVERIFY(!LeArquivoVrtEm(m_pasta.path(), t("retirado.vrt"), ModoLeitura::Importar, [&](qint64, qint64) {
            if (!cortado)
                cortado = QFile::resize(caminho, 0);
        }));
        QVERIFY(cortado);
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas.at(0).texto.endsWith(t("o arquivo foi alterado ou retirado durante a leitura!")));
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(retratoDoBanco(), antes);
    }

    // The checker reads the same way: a head cut by the failure is told as the read error alone, not as
    // missing head records.
    void verificacaoDeCabecaCortadaSoDizOErroDeLeitura()
    {
        const QByteArray conteudo = declaracaoLonga();
        const QString caminho = m_pasta.filePath(t("verificado.vrt"));
        grava(caminho, conteudo);
        ArquivoQueFalha arquivo(caminho, conteudo.indexOf('\n') + 1 + 5);
        VerificaArquivoVrt verificacao;
        QVERIFY(verificacao.verifica(arquivo));
        QStringList textos;
        for (const ProblemaArquivo& p : verificacao.problemas())
            textos << p.descricao;
        QCOMPARE(textos, QStringList{t("Erro na leitura do arquivo ") + caminho +
                                     t(" - o arquivo foi alterado ou retirado durante a leitura!")});
    }

    void linhasDadasAntesDoCorteSaoInteiras()
    {
        const QByteArray conteudo = declaracaoLonga();
        const QString caminho = m_pasta.filePath(t("linhas.vrt"));
        grava(caminho, conteudo);
        QFile arquivo(caminho);
        LinhasArquivo linhas;
        QVERIFY(linhas.abre(arquivo));
        QCOMPARE(linhas.total(), qint64(6004));
        QVERIFY(QFile::resize(caminho, 10));
        QStringList lidas;
        while (!linhas.fim())
            lidas << linhas.proxima();
        QVERIFY(linhas.falhou());
        QCOMPARE(lidas.size(), linhasInteiras(conteudo, LinhasArquivo::TamanhoBloco));
        QCOMPARE(lidas.last(), r41(t("P") + QString::number(lidas.size() - 4), t("Produto ") +
                                       QString::number(lidas.size() - 4), t("M")));
        QCOMPARE(linhas.proxima(), QString());
    }

    void linhasAtravesDosBlocosSaoAsDaMemoria_data()
    {
        QTest::addColumn<bool>("fimDeLinhaNoFim");
        QTest::newRow("CR LF no fim") << true;
        QTest::newRow("sem CR LF no fim") << false;
    }
    void linhasAtravesDosBlocosSaoAsDaMemoria()
    {
        QFETCH(bool, fimDeLinhaNoFim);
        // Lines of many lengths, one longer than two blocks, and letters of the code page above 0x7F.
        QStringList texto;
        for (int i = 0; i < 6000; ++i)
            texto << QString(i % 397, QLatin1Char('a' + i % 26)) + t("ção€") + QString::number(i);
        texto.insert(3000, QString(int(2 * LinhasArquivo::TamanhoBloco + 7), QLatin1Char('x')));
        const QByteArray conteudo = bytes(texto, fimDeLinhaNoFim);
        const QString caminho = m_pasta.filePath(t("blocos.txt"));
        grava(caminho, conteudo);

        QFile arquivo(caminho);
        QBuffer memoria;
        memoria.setData(conteudo);
        LinhasArquivo doArquivo, daMemoria;
        QVERIFY(doArquivo.abre(arquivo));
        QVERIFY(daMemoria.abre(memoria));
        QCOMPARE(doArquivo.total(), qint64(texto.size()));
        QCOMPARE(daMemoria.total(), qint64(texto.size()));
        QStringList lidas;
        while (!doArquivo.fim()) {
            lidas << doArquivo.proxima();
            QCOMPARE(lidas.last(), daMemoria.proxima());
        }
        QVERIFY(daMemoria.fim());
        QVERIFY(!doArquivo.falhou());
        QCOMPARE(lidas, texto);
    }
};

QTEST_GUILESS_MAIN(TstLeituraInterrompida)
#include "tst_leituraInterrompida.moc"
