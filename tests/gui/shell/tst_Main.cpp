#include "TestUtil.h"

#include "gui/shell/Main.h"
#include "gui/shell/frmSplashScreen.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QStandardPaths>
#include <QThread>
#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace modVRTPLN;

namespace {

bool existeSplash()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<frmSplashScreen*>(w) && w->isVisible())
            return true;
    return false;
}

// Stores a committed monthly declaration through its own short connection.
void gravaDeclaracao(const QString& arquivo)
{
    modBancoDados::ConectaBanco(arquivo);
    BancoTeste::executa("INSERT INTO VRT (ID_VRT_MICRO, NR_CNPJ_INTERNADOR, CD_TIPO_VRT) VALUES (?, ?, ?)",
                        {"00001/26", "11222333000181", "2"});
    BancoTeste::executa("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, ?)",
                        {"00001/26", "102026"});
    modBancoDados::DesconectaBanco();
}

// Inserts some megabytes of products through a short connection of its own, commits, and deletes them again.
void escreveEApagaProdutos(const QString& arquivo)
{
    modBancoDados::ConectaBanco(arquivo);
    modBancoDados::IniciaTransacao();
    const QString nome(80, QLatin1Char('p'));
    for (int i = 0; i < 40000; ++i)
        BancoTeste::executa("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)",
                            {QStringLiteral("LASTRO%1").arg(i), nome});
    modBancoDados::ConfirmaTransacao();
    BancoTeste::executa("DELETE FROM PRODUTO WHERE CD_INT_PRODUTO LIKE 'LASTRO%'");
    modBancoDados::DesconectaBanco();
}

// The lock file a program leaves when it is killed: a child process takes the lock and is killed holding it.
bool deixaTravaDeProcessoMorto(const QString& arquivoTrava)
{
    const pid_t filho = fork();
    if (filho == 0) {
        QLockFile trava(arquivoTrava);
        if (!trava.tryLock(0))
            _exit(2);
        kill(getpid(), SIGKILL);
    }
    int estado = 0;
    waitpid(filho, &estado, 0);
    return WIFSIGNALED(estado) && WTERMSIG(estado) == SIGKILL && QFileInfo::exists(arquivoTrava);
}

void encerra(Execucao& run)
{
    if (run.janela)
        run.janela->close();
    run.janela.reset();
    run.trava.reset();
}

}  // namespace

class tst_Main : public QObject {
    Q_OBJECT
private slots:
    void inicioMostraJanelaPrincipalConectada();
    void inicioMantemDeclaracaoConfirmadaEArquivoNaoCresce();
    void inicioCompactaBancoComMuitasPaginasLivres();
    void bancoAusenteEncerraAntesDoSplashSemJanela();
    void bancoSomenteLeituraEncerraOInicioSemJanela_data();
    void bancoSomenteLeituraEncerraOInicioSemJanela();
    void travaDeixadaPorProgramaMortoEAssumidaNoInicio();
    void segundaCopiaNoMesmoBancoERecusada();
    void pastaDoProgramaSemEscritaUsaPastaDoUsuario();
    void esperaDuraAoMenosOsSegundos();
    void comSplashNaTelaComandosEsperamOFimDaEspera();
};

void tst_Main::inicioMostraJanelaPrincipalConectada()
{
    BancoTeste banco(false);
    MensagensRoteiro msgs;
    Execucao run = Main(banco.pasta(), 0);
    QVERIFY(run.iniciada());
    QCOMPARE(frmVRTPLN::instancia(), run.janela.get());
    QVERIFY(run.janela->isVisible());
    QCOMPARE(run.janela->painel(3)->text(), QStringLiteral("Versão 04.00"));
    QVERIFY(modBancoDados::Conectado());
    QVERIFY(!modBancoDados::TransacaoAberta());
    QVERIFY(run.janela->acao("mnuDeclaracaoAbrir")->isEnabled());
    QVERIFY(run.janela->acao("mnuDeclaracaoNovaMensal")->isEnabled());
    QVERIFY(!run.janela->acao("mnuDeclaracaoSalvar")->isEnabled());
    QCOMPARE(msgs.caixas.size(), 0);
    encerra(run);
    QVERIFY(!modBancoDados::Conectado());
}

void tst_Main::inicioMantemDeclaracaoConfirmadaEArquivoNaoCresce()
{
    BancoTeste banco(false);
    gravaDeclaracao(banco.arquivo());
    qint64 tamanhoAnterior = QFileInfo(banco.arquivo()).size();
    for (int inicio = 0; inicio < 3; ++inicio) {
        // Between two starts the program wrote a great deal and deleted it again: the pages it took stay in the
        // file, free, until a start compacts it.
        if (inicio > 0)
            escreveEApagaProdutos(banco.arquivo());
        Execucao run = Main(banco.pasta(), 0);
        QVERIFY(run.iniciada());
        QCOMPARE(BancoTeste::conta("VRT", "ID_VRT_MICRO = ?", {"00001/26"}), 1);
        QCOMPARE(BancoTeste::valor("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?", {"00001/26"})
                     .toString(),
                 QStringLiteral("102026"));
        encerra(run);
        const qint64 tamanho = QFileInfo(banco.arquivo()).size();
        QVERIFY2(tamanho <= tamanhoAnterior, qPrintable(QStringLiteral("%1 > %2").arg(tamanho).arg(tamanhoAnterior)));
        tamanhoAnterior = tamanho;
    }
}

void tst_Main::inicioCompactaBancoComMuitasPaginasLivres()
{
    BancoTeste banco(false);
    modBancoDados::ConectaBanco(banco.arquivo());
    BancoTeste::executa("CREATE TABLE LASTRO (T TEXT)");
    modBancoDados::IniciaTransacao();
    const QString bloco(2000, QLatin1Char('x'));
    for (int i = 0; i < 2000; ++i)
        BancoTeste::executa("INSERT INTO LASTRO VALUES (?)", {bloco});
    modBancoDados::ConfirmaTransacao();
    BancoTeste::executa("DELETE FROM LASTRO");
    modBancoDados::DesconectaBanco();
    const qint64 antes = QFileInfo(banco.arquivo()).size();
    Execucao run = Main(banco.pasta(), 0);
    QVERIFY(run.iniciada());
    encerra(run);
    const qint64 depois = QFileInfo(banco.arquivo()).size();
    QVERIFY2(depois * 4 < antes, qPrintable(QStringLiteral("%1 -> %2").arg(antes).arg(depois)));
}

void tst_Main::bancoAusenteEncerraAntesDoSplashSemJanela()
{
    QTemporaryDir vazia;
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    Execucao run = Main(vazia.path(), 1);
    QVERIFY(!run.iniciada());
    QVERIFY(!frmVRTPLN::instancia());
    QVERIFY(!existeSplash());
    QCOMPARE(msgs.caixas.size(), 1);
    QVERIFY(msgs.caixas[0].texto.startsWith(QStringLiteral("O banco de dados não foi encontrado:")));
    QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    // No empty database was made in its place.
    QVERIFY(!QFileInfo::exists(vazia.path() + "/PLN_VRT_v2.mdb"));
}

void tst_Main::bancoSomenteLeituraEncerraOInicioSemJanela_data()
{
    QTest::addColumn<bool>("comPaginasLivres");
    QTest::newRow("sem páginas livres") << false;
    QTest::newRow("com muitas páginas livres") << true;
}

void tst_Main::bancoSomenteLeituraEncerraOInicioSemJanela()
{
    QFETCH(bool, comPaginasLivres);
    BancoTeste banco(false);
    gravaDeclaracao(banco.arquivo());
    if (comPaginasLivres)
        escreveEApagaProdutos(banco.arquivo());
    QFile arquivo(banco.arquivo());
    QVERIFY(arquivo.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const qint64 tamanho = arquivo.size();
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    Execucao run = Main(banco.pasta(), 1);
    QVERIFY(!run.iniciada());
    QVERIFY(!frmVRTPLN::instancia());
    QVERIFY(!existeSplash());
    QVERIFY(!modBancoDados::Conectado());
    QCOMPARE(msgs.caixas.size(), 1);
    QCOMPARE(msgs.caixas[0].texto, QStringLiteral("O banco de dados está protegido contra gravação:\n") + banco.arquivo());
    QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
    // Nothing was compacted nor written.
    QCOMPARE(QFileInfo(banco.arquivo()).size(), tamanho);
    QVERIFY(arquivo.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
}

void tst_Main::travaDeixadaPorProgramaMortoEAssumidaNoInicio()
{
    BancoTeste banco(false);
    const QString trava = banco.arquivo() + ".lock";
    QVERIFY(deixaTravaDeProcessoMorto(trava));
    MensagensRoteiro msgs;
    Execucao run = Main(banco.pasta(), 0);
    QVERIFY(run.iniciada());
    QCOMPARE(msgs.caixas.size(), 0);
    // The lock is this run's now: another program is kept off.
    QLockFile outra(trava);
    QVERIFY(!outra.tryLock(0));
    encerra(run);
    QVERIFY(outra.tryLock(0));
}

void tst_Main::segundaCopiaNoMesmoBancoERecusada()
{
    BancoTeste banco(false);
    Execucao primeira = Main(banco.pasta(), 0);
    QVERIFY(primeira.iniciada());
    // A second program on the same database is stopped by the lock beside it.
    QLockFile outra(banco.arquivo() + ".lock");
    QVERIFY(!outra.tryLock(0));
    frmVRTPLN* janela = primeira.janela.release();
    {
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        Execucao segunda = Main(banco.pasta(), 0);
        QVERIFY(!segunda.iniciada());
        QCOMPARE(msgs.caixas.size(), 1);
        QVERIFY(msgs.caixas[0].texto.startsWith(QStringLiteral("O VRT já está em execução com este banco de dados.")));
    }
    primeira.janela.reset(janela);
    encerra(primeira);
    QVERIFY(outra.tryLock(0));
}

void tst_Main::pastaDoProgramaSemEscritaUsaPastaDoUsuario()
{
    QStandardPaths::setTestModeEnabled(true);
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
    BancoTeste banco(false);
    CaminhoAplicacao = banco.pasta();
    QVERIFY(LocalizaBancoNaPastaDoUsuario());
    QCOMPARE(CaminhoDados, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QVERIFY(QFileInfo::exists(ArquivoBanco()));
    QVERIFY(ArquivoBanco() != banco.arquivo());
    // A second start keeps the user's copy: what was written there stays.
    modBancoDados::ConectaBanco(ArquivoBanco());
    BancoTeste::executa("INSERT INTO UNIDADE_FEDERATIVA (CD_UF_DESTINO, NM_UF) VALUES ('ZZ', 'Teste')");
    modBancoDados::DesconectaBanco();
    QVERIFY(LocalizaBancoNaPastaDoUsuario());
    modBancoDados::ConectaBanco(ArquivoBanco());
    QCOMPARE(BancoTeste::conta("UNIDADE_FEDERATIVA", "CD_UF_DESTINO = 'ZZ'"), 1);
    modBancoDados::DesconectaBanco();
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
    CaminhoDados = banco.pasta();
}

void tst_Main::esperaDuraAoMenosOsSegundos()
{
    QElapsedTimer relogio;
    relogio.start();
    Espera(1);
    // Only the lower bound is the behaviour: how much longer it takes depends on how busy the machine is.
    const qint64 ms = relogio.elapsed();
    QVERIFY2(ms >= 1000, qPrintable(QString::number(ms)));
}

void tst_Main::comSplashNaTelaComandosEsperamOFimDaEspera()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    int disparos = 0;
    connect(janela.acao("mnuAjudaLocalizar"), &QAction::triggered, this, [&] { ++disparos; });
    // A command that arrives while the splash holds the screen.
    QThread* clique = QThread::create([&janela] {
        QThread::msleep(300);
        QMetaObject::invokeMethod(janela.acao("mnuAjudaLocalizar"), "trigger", Qt::QueuedConnection);
    });
    clique->start();
    MostraSplash(1);
    clique->wait();
    delete clique;
    QCOMPARE(disparos, 0);
    QVERIFY(!existeSplash());
    QCoreApplication::processEvents();
    QCOMPARE(disparos, 1);
}

QTEST_MAIN(tst_Main)
#include "tst_Main.moc"
