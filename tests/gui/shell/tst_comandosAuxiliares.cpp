#include "TestUtil.h"

#include "gui/shell/frmAbout.h"
#include "gui/shell/frmAjuda.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

// The calculator, the help topics and the system information: programs and pages outside the declaration work.
class tst_comandosAuxiliares : public QObject {
    Q_OBJECT
private slots:
    void init() { m_path = qgetenv("PATH"); }
    void cleanup() { qputenv("PATH", m_path); }
    void calculadoraInstaladaEIniciada();
    void semCalculadoraInstaladaOProgramaDiz();
    void topicosAbreAPaginaInicialDaAjuda();
    void topicosSemArquivoDeAjudaDiz();
    void informacoesDoSistemaIndisponiveis();

private:
    QByteArray m_path;
};

namespace {

// A folder on PATH holding one executable script that leaves a mark when it runs.
QString programaFalso(const QTemporaryDir& pasta, const QString& nome)
{
    const QString marca = pasta.path() + "/" + nome + ".executou";
    QFile script(pasta.path() + "/" + nome);
    script.open(QIODevice::WriteOnly);
    script.write(QStringLiteral("#!/bin/sh\n/usr/bin/touch '%1'\n").arg(marca).toUtf8());
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return marca;
}

}  // namespace

void tst_comandosAuxiliares::calculadoraInstaladaEIniciada()
{
    BancoTeste banco(false);
    QTemporaryDir bin;
    const QString marca = programaFalso(bin, "galculator");
    qputenv("PATH", bin.path().toLocal8Bit());
    MensagensRoteiro msgs;
    frmVRTPLN janela;
    janela.acao("mnuFerramentasCalculadora")->trigger();
    QTRY_VERIFY(QFile::exists(marca));
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_comandosAuxiliares::semCalculadoraInstaladaOProgramaDiz()
{
    QTemporaryDir vazio;
    qputenv("PATH", vazio.path().toLocal8Bit());
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    frmVRTPLN janela;
    janela.acao("mnuFerramentasCalculadora")->trigger();
    QCOMPARE(msgs.textos(), QStringList{"Nenhuma calculadora está instalada neste computador."});
    QCOMPARE(msgs.caixas[0].icone(), Msg::Information);
}

void tst_comandosAuxiliares::topicosAbreAPaginaInicialDaAjuda()
{
    BancoTeste banco(false);
    QDir().mkpath(banco.pasta() + "/help");
    QVERIFY(QFile::copy(QStringLiteral(VRT_SOURCE_DIR "/help/index.html"), banco.pasta() + "/help/index.html"));
    MensagensRoteiro msgs;
    frmVRTPLN janela;
    janela.acao("mnuAjudaTopicos")->trigger();
    auto* ajuda = janela.findChild<frmAjuda*>();
    QVERIFY(ajuda);
    QVERIFY(ajuda->isVisible());
    QVERIFY(ajuda->txtPagina->toPlainText().contains("Como os menus estão organizados"));
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_comandosAuxiliares::topicosSemArquivoDeAjudaDiz()
{
    BancoTeste banco(false);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    frmVRTPLN janela;
    janela.acao("mnuAjudaTopicos")->trigger();
    QVERIFY(!janela.findChild<frmAjuda*>());
    QCOMPARE(msgs.caixas.size(), 1);
    QVERIFY(msgs.caixas[0].texto.startsWith("Não foi possível abrir o arquivo de ajuda:"));
}

void tst_comandosAuxiliares::informacoesDoSistemaIndisponiveis()
{
    QTemporaryDir vazio;
    qputenv("PATH", vazio.path().toLocal8Bit());
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    frmAbout sobre;
    QTest::mouseClick(sobre.cmdSysInfo, Qt::LeftButton);
    QCOMPARE(msgs.textos(), QStringList{"Informações do sistema não está disponível"});
    QTest::mouseClick(sobre.cmdOK, Qt::LeftButton);
    QCOMPARE(sobre.result(), int(QDialog::Accepted));
}

QTEST_MAIN(tst_comandosAuxiliares)
#include "tst_comandosAuxiliares.moc"
