// vrt-cli killed (SIGKILL) at random moments of a long import: after each kill the database passes its
// integrity check and holds exactly its last committed state, the one before the import (no declaration, no
// number consumed, no table half-written). Each kill leaves a stale lock behind, which the next run takes over.
#include "ArquivoTeste.h"
#include "ArquivoTabela.h"
#include "TestUtil.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
constexpr int Mortes = 50;
}  // namespace

class TstQuedaVrtCli : public QObject {
    Q_OBJECT

private:
    BancoTeste* m_banco = nullptr;
    QString m_original;  // the database before any run, copied for each run
    QString m_trabalho;  // the database the runs work on

    QString caminho(const char* nome) const { return m_banco->pasta() + QLatin1Char('/') + t(nome); }

    void restauraTrabalho()
    {
        modBancoDados::DesconectaBanco();
        QFile::remove(m_trabalho);
        QFile::remove(m_trabalho + t("-journal"));
        QVERIFY(QFile::copy(m_original, m_trabalho));
        QFile(m_trabalho).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    }
    // The state of the work database, after its integrity check.
    QStringList estadoVerificado()
    {
        modBancoDados::ConectaBanco(m_trabalho);
        const QString integridade = BancoTeste::valor(t("PRAGMA integrity_check")).toString();
        const QStringList estado = retratoDoBanco();
        modBancoDados::DesconectaBanco();
        if (integridade != t("ok"))
            return {t("integrity_check: ") + integridade};
        return estado;
    }
    void inicia(QProcess& p, const QStringList& argumentos)
    {
        p.start(t(VRT_BINARY_DIR "/vrt-cli"), argumentos + QStringList{t("--banco"), m_trabalho});
        QVERIFY(p.waitForStarted());
    }

    // Runs the command once to its end (its duration bounds the moments of the kills), then 50 times killed
    // at a random moment within that duration.
    void mataEmMomentosAleatorios(const QStringList& argumentos)
    {
        restauraTrabalho();
        const QStringList antes = estadoVerificado();
        QElapsedTimer relogio;
        QProcess completo;
        relogio.start();
        inicia(completo, argumentos);
        QVERIFY(completo.waitForFinished(300000));
        const qint64 duracao = relogio.elapsed();
        QCOMPARE(completo.exitCode(), 0);
        const QStringList depois = estadoVerificado();
        QVERIFY(depois != antes);

        const quint32 semente = QRandomGenerator::global()->generate();
        QRandomGenerator sorteio(semente);
        int mortasAntesDoFim = 0;
        for (int i = 0; i < Mortes; ++i) {
            restauraTrabalho();
            QProcess p;
            inicia(p, argumentos);
            QThread::msleep(sorteio.bounded(quint32(qMax<qint64>(duracao, 1))));
            const bool rodava = p.state() == QProcess::Running;
            p.kill();
            QVERIFY(p.waitForFinished(60000));
            const QStringList estado = estadoVerificado();
            if (rodava && p.exitStatus() == QProcess::CrashExit) {
                // A kill after the commit and before the exit finds the import whole, never half of it.
                QVERIFY2(estado == antes || estado == depois,
                         qPrintable(t("morte %1 (semente %2): estado parcial").arg(i).arg(semente)));
                if (estado == antes)
                    ++mortasAntesDoFim;
            } else {
                // Ended on its own before the kill: the import is whole, and if not, say how the run ended.
                QVERIFY2(estado == depois,
                         qPrintable(t("morte %1: saída %2, estado %3, %4").arg(i).arg(p.exitCode())
                                        .arg(int(p.exitStatus())).arg(QString::fromUtf8(p.readAllStandardError()))));
            }
        }
        qInfo("%s: %d de %d mortes antes do fim (duração completa %lld ms, semente %u)",
              qPrintable(argumentos.first()), mortasAntesDoFim, Mortes, duracao, semente);
        QVERIFY(mortasAntesDoFim > 0);

        // A run killed while it holds the lock leaves its lock file; the next run takes it over.
        restauraTrabalho();
        QProcess morto;
        inicia(morto, argumentos);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_trabalho + t(".lock")) || morto.state() != QProcess::Running, 60000);
        morto.kill();
        QVERIFY(morto.waitForFinished(60000));
        if (morto.exitStatus() != QProcess::CrashExit)
            QSKIP("the run ended before it could be killed holding its lock");
        QVERIFY(QFile::exists(m_trabalho + t(".lock")));
        QProcess ultimo;
        inicia(ultimo, argumentos);
        QVERIFY(ultimo.waitForFinished(300000));
        QCOMPARE(ultimo.exitCode(), 0);
        QCOMPARE(estadoVerificado(), depois);
    }

private slots:
    void init()
    {
        m_banco = new BancoTeste;
        cadastraNcmsDosRegistros();
        modBancoDados::DesconectaBanco();
        m_original = m_banco->arquivo();
        m_trabalho = caminho("trabalho.mdb");
    }
    void cleanup()
    {
        modBancoDados::DesconectaBanco();
        delete m_banco;
        m_banco = nullptr;
    }

    void importarMortoDeixaOBancoComoAntes()
    {
        QStringList linhas = cabecalhoMensal();
        for (int i = 0; i < 20000; ++i)
            linhas << r41(t("P%1").arg(i), t("Produto número %1; 100% \"bom\"").arg(i), t("UN"));
        grava(caminho("grande.txt"), bytes(linhas));
        mataEmMomentosAleatorios({t("importar"), caminho("grande.txt")});
    }

    void tabelaMortaDeixaOBancoComoAntes()
    {
        QStringList linhas{ArquivoTabela::cabecalho()};
        for (int i = 0; i < 50000; ++i)
            linhas << ArquivoTabela::produto(t("PROD%1").arg(i), t("Produto de tabela %1").arg(i));
        QVERIFY(ArquivoTabela::grava(caminho("produtos.txt"), linhas));
        mataEmMomentosAleatorios({t("tabela"), caminho("produtos.txt")});
    }
};

int main(int argc, char** argv)
{
    // A hundred runs of vrt-cli on a shared machine may outlast QtTest's five minutes per function.
    if (!qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", "1200000");
    QCoreApplication app(argc, argv);
    TstQuedaVrtCli teste;
    return QTest::qExec(&teste, argc, argv);
}
#include "tst_quedaVrtCli.moc"
