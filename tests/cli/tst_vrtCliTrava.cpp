// One writer per database: while the program has the database open, a vrt-cli command that writes says so and
// touches nothing, one that only reads goes on without a word; a lock left by a killed process is taken over.
// The program here is the real one, a copy of the built `vrt` beside a copy of the delivered database.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/store/TravaBanco.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
struct Execucao {
    int status = -1;
    QString saida;
    QString erros;
};
}  // namespace

class TstVrtCliTrava : public QObject {
    Q_OBJECT

private:
    BancoTeste* m_banco = nullptr;
    QProcess* m_programa = nullptr;

    QString caminho(const QString& nome) const { return m_banco->pasta() + QLatin1Char('/') + nome; }
    QString trava() const { return TravaBanco::ArquivoTrava(m_banco->arquivo()); }

    Execucao roda(const QStringList& argumentos)
    {
        QProcess p;
        p.setWorkingDirectory(m_banco->pasta());
        p.start(t(VRT_BINARY_DIR "/vrt-cli"), argumentos + QStringList{t("--banco"), m_banco->arquivo()});
        p.waitForFinished(120000);
        return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
                QString::fromUtf8(p.readAllStandardError())};
    }

    // The program, started from its own folder beside the database, with its lock taken.
    bool iniciaPrograma()
    {
        const QString vrt = caminho(t("vrt"));
        if (!QFile::exists(vrt) && !QFile::copy(t(VRT_BINARY_DIR "/vrt"), vrt))
            return false;
        QFile(vrt).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_programa = new QProcess(this);
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(t("QT_QPA_PLATFORM"), t("offscreen"));
        m_programa->setProcessEnvironment(ambiente);
        m_programa->start(vrt, {});
        if (!m_programa->waitForStarted())
            return false;
        QElapsedTimer espera;
        espera.start();
        while (!QFile::exists(trava()) && espera.elapsed() < 120000 && m_programa->state() == QProcess::Running)
            QTest::qWait(50);
        return QFile::exists(trava()) && m_programa->state() == QProcess::Running;
    }
    void paraPrograma()
    {
        if (!m_programa)
            return;
        m_programa->kill();
        m_programa->waitForFinished(60000);
        delete m_programa;
        m_programa = nullptr;
    }
    QString declaracao()
    {
        const QString nome = caminho(t("declaracao"));
        grava(nome, bytes(cabecalhoMensal() + QStringList{r41(t("P4"), t("Caneca"), t("UN"))}));
        return nome;
    }
    QString tabela()
    {
        const QString nome = caminho(t("moedas"));
        grava(nome, QByteArray("00VRT/PLN0 TABELAS\r\n01999MOEDA DE TESTE                    \r\n"));
        return nome;
    }

private slots:
    void init()
    {
        m_banco = new BancoTeste;
        cadastraNcmsDosRegistros();
    }
    void cleanup()
    {
        paraPrograma();
        delete m_banco;
        m_banco = nullptr;
    }

    void comandoQueEscreveRecusadoComOProgramaAberto_data()
    {
        QTest::addColumn<QString>("comando");
        QTest::newRow("importar") << t("importar");
        QTest::newRow("tabela") << t("tabela");
    }
    void comandoQueEscreveRecusadoComOProgramaAberto()
    {
        QFETCH(QString, comando);
        QVERIFY(iniciaPrograma());
        const QStringList antes = retratoDoBanco();
        const Execucao e = roda({comando, comando == t("importar") ? declaracao() : tabela()});
        QCOMPARE(e.status, 1);
        QCOMPARE(e.erros, t("vrt-cli: o banco de dados ") + m_banco->arquivo() +
                              t(" está em uso pelo VRT ou por outro vrt-cli; feche-o e repita o comando.\n"));
        QCOMPARE(e.saida, QString());
        QCOMPARE(retratoDoBanco(), antes);
        QVERIFY(m_programa->state() == QProcess::Running);
    }

    void comandoQueSoLeFuncionaComOProgramaAberto()
    {
        BancoTeste::executa(t("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR) "
                              "VALUES ('00007/08', '2', '12345678000195')"));
        BancoTeste::executa(t("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES ('00007/08', '122008')"));
        QVERIFY(iniciaPrograma());
        const Execucao listar = roda({t("listar")});
        QCOMPARE(listar.status, 0);
        QCOMPARE(listar.erros, QString());
        QVERIFY(listar.saida.contains(t("00007/08")));
        const Execucao verificar = roda({t("verificar"), declaracao()});
        QCOMPARE(verificar.status, 0);
        QCOMPARE(verificar.erros, QString());
    }

    void outroVrtCliQueEscreveTambemTrava()
    {
        // A lock held by a live process of another name (this test) refuses the same way.
        TravaBanco outro(m_banco->arquivo());
        QVERIFY(outro.trava());
        const Execucao e = roda({t("importar"), declaracao()});
        QCOMPARE(e.status, 1);
        QVERIFY(e.erros.contains(t("está em uso pelo VRT ou por outro vrt-cli")));
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
    }

    void travaDeProcessoMortoETomada()
    {
        QVERIFY(iniciaPrograma());
        paraPrograma();
        QVERIFY(QFile::exists(trava()));
        const Execucao e = roda({t("importar"), declaracao()});
        QCOMPARE(e.status, 0);
        QVERIFY(e.erros.contains(t("O arquivo foi importado com sucesso!")));
        QCOMPARE(BancoTeste::conta(t("VRT")), 1);
        // Taken over and released at the end of the command.
        QVERIFY(!QFile::exists(trava()));
    }

    void travaVaziaDeProcessoMortoAoCriarETomada()
    {
        // Killed between creating its lock file and writing its number into it: the empty file names nobody.
        QFile vazia(trava());
        QVERIFY(vazia.open(QIODevice::WriteOnly));
        vazia.close();
        const Execucao e = roda({t("importar"), declaracao()});
        QCOMPARE(e.status, 0);
        QCOMPARE(BancoTeste::conta(t("VRT")), 1);
        QVERIFY(!QFile::exists(trava()));
    }

    void travaDeMortoComRemocaoVaziaETomada()
    {
        // A run killed while it took over a dead run's lock: the dead lock stays, and beside it the empty file
        // of the removal it had just begun.
        QVERIFY(iniciaPrograma());
        paraPrograma();
        QVERIFY(QFile::exists(trava()));
        QFile remocao(trava() + t(".rmlock"));
        QVERIFY(remocao.open(QIODevice::WriteOnly));
        remocao.close();
        const Execucao e = roda({t("importar"), declaracao()});
        QCOMPARE(e.status, 0);
        QCOMPARE(BancoTeste::conta(t("VRT")), 1);
        QVERIFY(!QFile::exists(trava()));
        QVERIFY(!QFile::exists(trava() + t(".rmlock")));
    }
};

QTEST_GUILESS_MAIN(TstVrtCliTrava)
#include "tst_vrtCliTrava.moc"
