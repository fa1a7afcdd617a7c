// vrt-cli tabela: the table import run from the command line on a copy of the delivered database.
#include "ArquivoTabela.h"
#include "TestUtil.h"

#include <QProcess>
#include <QtTest>

namespace T = ArquivoTabela;

namespace {
struct Execucao {
    int status = -1;
    QString saida;
    QString erros;
};
}  // namespace

class tst_vrtCliTabela : public QObject {
    Q_OBJECT

private:
    Execucao roda(const BancoTeste& banco, const QStringList& argumentos)
    {
        QProcess p;
        p.setWorkingDirectory(banco.pasta());
        p.start(QStringLiteral(VRT_BINARY_DIR "/vrt-cli"), argumentos + QStringList{"--banco", banco.arquivo()});
        p.waitForFinished(120000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
                QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
    }

private slots:
    void importaUmaTabela()
    {
        BancoTeste banco;
        const QString arquivo = banco.pasta() + QStringLiteral("/moedas.txt");
        QVERIFY(T::grava(arquivo, {T::cabecalho(), T::moeda("220", "DOLAR DOS EUA"), T::moeda("978", "EURO")}));
        const Execucao e = roda(banco, {"tabela", arquivo});
        QCOMPARE(e.status, 0);
        QVERIFY2(e.erros.contains(QStringLiteral("Tabela de moeda importada com sucesso.")), qPrintable(e.erros));
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), 2);
    }

    void arquivoRecusadoSaiComUm_data()
    {
        QTest::addColumn<QStringList>("linhas");
        QTest::addColumn<QString>("mensagem");
        QTest::addColumn<int>("moedas");
        QTest::newRow("arquivo de declaração") << QStringList{"00VRT/PLN102.00", T::moeda("220", "DOLAR")}
                                               << "Erro - Arquivo com formato errado!" << -1;
        QTest::newRow("linha inesperada") << QStringList{T::cabecalho(), T::moeda("001", "UM"), "99", T::moeda("2", "X")}
                                          << "Registro inesperado!" << 1;
    }
    void arquivoRecusadoSaiComUm()
    {
        QFETCH(QStringList, linhas);
        QFETCH(QString, mensagem);
        QFETCH(int, moedas);
        BancoTeste banco;
        const int antes = BancoTeste::conta(QStringLiteral("MOEDA"));
        const QString arquivo = banco.pasta() + QStringLiteral("/tabela.txt");
        QVERIFY(T::grava(arquivo, linhas));
        const Execucao e = roda(banco, {"tabela", arquivo});
        QCOMPARE(e.status, 1);
        QVERIFY2(e.erros.contains(mensagem), qPrintable(e.erros));
        QCOMPARE(BancoTeste::conta(QStringLiteral("MOEDA")), moedas < 0 ? antes : moedas);
    }

    void arquivoInexistente()
    {
        BancoTeste banco;
        const Execucao e = roda(banco, {"tabela", banco.pasta() + QStringLiteral("/nao-existe.txt")});
        QCOMPARE(e.status, 1);
        QVERIFY2(e.erros.contains(QStringLiteral("arquivo não encontrado")), qPrintable(e.erros));
    }

    void usoErrado()
    {
        BancoTeste banco;
        QCOMPARE(roda(banco, {"tabela"}).status, 2);
        QCOMPARE(roda(banco, {"tabela", "a.txt", "b.txt"}).status, 2);
        const Execucao ajuda = roda(banco, {"--help"});
        QVERIFY(ajuda.saida.contains(QStringLiteral("tabela ARQUIVO")));
    }
};

QTEST_GUILESS_MAIN(tst_vrtCliTabela)
#include "tst_vrtCliTabela.moc"
