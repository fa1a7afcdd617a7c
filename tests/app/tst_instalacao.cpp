// A system-wide install into a temporary prefix, and a start of the installed program and vrt-cli from there.
#include "TestUtil.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class tst_instalacao : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void instalaProgramaBancoAjudaEEntradaDeMenu();
    void vrtCliInstaladoListaOBancoEntregue();
    void programaInstaladoIniciaComOBancoDaSuaPasta();

private:
    QTemporaryDir m_prefixo;
    QString caminho(const QString& relativo) const { return m_prefixo.filePath(relativo); }
};

void tst_instalacao::initTestCase()
{
    QVERIFY(m_prefixo.isValid());
    QProcess cmake;
    cmake.start(QStringLiteral(VRT_CMAKE_COMMAND),
                {QStringLiteral("--install"), QStringLiteral(VRT_BINARY_DIR), QStringLiteral("--prefix"),
                 m_prefixo.path()});
    QVERIFY(cmake.waitForFinished(120000));
    QVERIFY2(cmake.exitCode() == 0, cmake.readAllStandardError().constData());
}

void tst_instalacao::instalaProgramaBancoAjudaEEntradaDeMenu()
{
    for (const char* f : {"lib/vrt/vrt", "lib/vrt/vrt-cli", "lib/vrt/PLN_VRT_v2.mdb", "lib/vrt/help/index.html",
                          "share/applications/vrt.desktop", "share/icons/hicolor/scalable/apps/vrt.svg"})
        QVERIFY2(QFileInfo::exists(caminho(QString::fromLatin1(f))), f);
    for (const char* f : {"bin/vrt", "bin/vrt-cli"}) {
        const QFileInfo link(caminho(QString::fromLatin1(f)));
        QVERIFY2(link.isSymLink(), f);
        QCOMPARE(QFileInfo(link.symLinkTarget()).canonicalFilePath(),
                 QFileInfo(caminho(QStringLiteral("lib/vrt/") + link.fileName())).canonicalFilePath());
    }
    QVERIFY(QFileInfo(caminho(QStringLiteral("lib/vrt/vrt"))).isExecutable());
}

void tst_instalacao::vrtCliInstaladoListaOBancoEntregue()
{
    QProcess cli;
    cli.start(caminho(QStringLiteral("bin/vrt-cli")), {QStringLiteral("listar")});
    QVERIFY(cli.waitForFinished(60000));
    QCOMPARE(cli.exitCode(), 0);
    QVERIFY(QString::fromUtf8(cli.readAllStandardOutput()).startsWith(QStringLiteral("Identificação")));
}

void tst_instalacao::programaInstaladoIniciaComOBancoDaSuaPasta()
{
    // The program takes its lock beside the database it found: its start is seen from outside by the lock file.
    const QString trava = caminho(QStringLiteral("lib/vrt/PLN_VRT_v2.mdb.lock"));
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    ambiente.insert(QStringLiteral("HOME"), m_prefixo.path());
    QProcess programa;
    programa.setProcessEnvironment(ambiente);
    programa.start(caminho(QStringLiteral("bin/vrt")), {});
    QVERIFY(programa.waitForStarted(60000));
    QElapsedTimer espera;
    espera.start();
    while (!QFileInfo::exists(trava) && programa.state() == QProcess::Running && espera.elapsed() < 120000)
        QTest::qWait(100);
    QVERIFY2(QFileInfo::exists(trava), programa.readAllStandardError().constData());
    QCOMPARE(programa.state(), QProcess::Running);
    programa.kill();
    programa.waitForFinished(30000);
}

QTEST_GUILESS_MAIN(tst_instalacao)
#include "tst_instalacao.moc"
