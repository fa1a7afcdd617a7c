// A machine that stops during an editor session loses what was done since the last Salvar, and nothing
// before it: a child process works on the database as an editor does (a transaction for the whole session,
// Salvar as a commit followed by a new begin, writes in between) and is killed with SIGKILL.
#include "TestUtil.h"

#include <QCoreApplication>
#include <QProcess>
#include <QThread>
#include <QtTest>
#include <cstdio>

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString InsereProduto = QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)");

// The child: an editor's session on the database named by its argument, then it waits to be killed.
int sessaoDeEditor(const QString& banco)
{
    modBancoDados::ConectaBanco(banco);
    modBancoDados::IniciaTransacao();
    modBancoDados::ExecutaSql(InsereProduto, {t("SALVO-1"), t("Gravado antes do Salvar")});
    modBancoDados::ExecutaSql(t("UPDATE MOEDA SET NM_MOEDA = 'Antes do Salvar' WHERE CD_MOEDA = '220'"));
    // Salvar: commit, and the session goes on in a new transaction.
    modBancoDados::ConfirmaTransacao();
    modBancoDados::IniciaTransacao();
    modBancoDados::ExecutaSql(InsereProduto, {t("PERDIDO-1"), t("Depois do Salvar")});
    modBancoDados::ExecutaSql(t("UPDATE MOEDA SET NM_MOEDA = 'Depois do Salvar' WHERE CD_MOEDA = '220'"));
    modBancoDados::ExecutaSql(t("DELETE FROM PRODUTO WHERE CD_INT_PRODUTO = 'SALVO-1'"));
    for (int i = 0; i < 2000; ++i)
        modBancoDados::ExecutaSql(InsereProduto, {t("PERDIDO-%1").arg(i + 2), t("Depois do Salvar")});
    std::fputs("pronto\n", stdout);
    std::fflush(stdout);
    for (;;)
        QThread::sleep(1);
}
}  // namespace

class TstQuedaSessao : public QObject {
    Q_OBJECT

private slots:
    void maquinaParadaPerdeSoOQueVeioDepoisDoSalvar()
    {
        BancoTeste banco;
        QVERIFY(BancoTeste::valor(t("SELECT COUNT(*) FROM MOEDA WHERE CD_MOEDA = '220'")).toInt() == 1);
        modBancoDados::DesconectaBanco();

        QProcess filho;
        filho.start(QCoreApplication::applicationFilePath(), {t("--sessao-de-editor"), banco.arquivo()});
        QVERIFY(filho.waitForStarted());
        QVERIFY(filho.waitForReadyRead(120000));
        QCOMPARE(filho.readLine().trimmed(), QByteArray("pronto"));
        filho.kill();
        QVERIFY(filho.waitForFinished(60000));
        QCOMPARE(filho.exitStatus(), QProcess::CrashExit);

        modBancoDados::ConectaBanco(banco.arquivo());
        QCOMPARE(BancoTeste::valor(t("PRAGMA integrity_check")).toString(), t("ok"));
        QCOMPARE(BancoTeste::conta(t("PRODUTO"), t("CD_INT_PRODUTO = 'SALVO-1'")), 1);
        QCOMPARE(BancoTeste::conta(t("PRODUTO"), t("CD_INT_PRODUTO LIKE 'PERDIDO-%'")), 0);
        QCOMPARE(BancoTeste::valor(t("SELECT NM_MOEDA FROM MOEDA WHERE CD_MOEDA = '220'")).toString(),
                 t("Antes do Salvar"));
    }
};

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "--sessao-de-editor")
        return sessaoDeEditor(QString::fromLocal8Bit(argv[2]));
    TstQuedaSessao teste;
    return QTest::qExec(&teste, argc, argv);
}
#include "tst_quedaSessao.moc"
