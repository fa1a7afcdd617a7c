#include "TestUtil.h"

#include "gui/shell/frmAbout.h"
#include "gui/shell/frmAjuda.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "app/RegistroTelas.h"
#include "gui/assistants/frmAssistMoeda.h"
#include "gui/screens/TelaFilha.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
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
    void topicosReusaAJanelaDeAjudaAberta();
    void figurasCabemNaLarguraDaAjuda();
    void f1AbreAPaginaDaTelaDaFrente();
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

// The help pages and their pictures, beside the program of the test.
void copiaAjuda(const QString& programa)
{
    for (const QString& sub : {QStringLiteral("help"), QStringLiteral("help/img")}) {
        QDir().mkpath(programa + "/" + sub);
        const QDir origem(QStringLiteral(VRT_SOURCE_DIR "/") + sub);
        for (const QString& f : origem.entryList(QDir::Files))
            QFile::copy(origem.filePath(f), programa + "/" + sub + "/" + f);
    }
}

QList<frmAjuda*> ajudasAbertas()
{
    QList<frmAjuda*> abertas;
    for (QWidget* w : QApplication::allWidgets())
        if (auto* a = qobject_cast<frmAjuda*>(w); a && a->isVisible())
            abertas << a;
    return abertas;
}

QString paginaAberta()
{
    const QList<frmAjuda*> abertas = ajudasAbertas();
    return abertas.size() == 1 ? abertas.first()->txtPagina->source().fileName() : QString();
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

void tst_comandosAuxiliares::topicosReusaAJanelaDeAjudaAberta()
{
    BancoTeste banco(false);
    copiaAjuda(banco.pasta());
    frmVRTPLN janela;
    janela.show();
    janela.acao("mnuAjudaTopicos")->trigger();
    frmAjuda* primeira = frmAjuda::aberta();
    QVERIFY(primeira);
    primeira->txtPagina->setSource(QUrl::fromLocalFile(banco.pasta() + "/help/escolha.html"));
    janela.acao("mnuAjudaTopicos")->trigger();
    QCOMPARE(ajudasAbertas().size(), 1);
    QCOMPARE(frmAjuda::aberta(), primeira);
    QCOMPARE(paginaAberta(), QStringLiteral("index.html"));
    primeira->close();
}

// A picture wider than the viewer is shown at the viewer's width: the page never needs a sideways scroll.
void tst_comandosAuxiliares::figurasCabemNaLarguraDaAjuda()
{
    BancoTeste banco(false);
    copiaAjuda(banco.pasta());
    const QImage figura(banco.pasta() + "/help/img/frmAssistenteVRT.png");
    QVERIFY(figura.width() > 600);
    frmVRTPLN janela;
    frmAjuda* ajuda = frmAjuda::mostra(banco.pasta() + "/help/escolha.html", &janela);
    QVERIFY(ajuda);
    ajuda->resize(520, 500);
    QTest::qWait(50);
    QVERIFY(ajuda->txtPagina->viewport()->width() < figura.width());
    QCOMPARE(ajuda->txtPagina->horizontalScrollBar()->maximum(), 0);
    ajuda->resize(900, 500);
    QTest::qWait(50);
    QCOMPARE(ajuda->txtPagina->horizontalScrollBar()->maximum(), 0);
    ajuda->close();
}

// F1 opens the page of the screen in front, in the one help window: the main window's first page, the
// chooser's, the file chooser's, a modal picker's.
void tst_comandosAuxiliares::f1AbreAPaginaDaTelaDaFrente()
{
    BancoTeste banco;
    copiaAjuda(banco.pasta());
    RegistraTelas();
    frmVRTPLN janela;
    janela.show();
    QVERIFY(QTest::qWaitForWindowActive(&janela));
    QTest::keyClick(&janela, Qt::Key_F1);
    QCOMPARE(paginaAberta(), QStringLiteral("index.html"));
    janela.acao("mnuDeclaracaoAbrir")->trigger();
    QWidget* escolha = janela.telaAberta();
    QVERIFY(escolha);
    QTest::keyClick(escolha->findChild<QWidget*>("cmdCancela"), Qt::Key_F1);
    QCOMPARE(paginaAberta(), QStringLiteral("escolha.html"));
    janela.acao("mnuFerramentasImportarTabelasNCM")->trigger();
    QTest::keyClick(janela.telaAberta(), Qt::Key_F1);
    QCOMPARE(paginaAberta(), QStringLiteral("tabelas.html"));
    janela.acao("mnuDeclaracaoImportar")->trigger();
    QTest::keyClick(janela.telaAberta(), Qt::Key_F1);
    QCOMPARE(paginaAberta(), QStringLiteral("arquivos.html"));
    QString noSeletor;
    QTimer::singleShot(100, this, [&] {
        QWidget* seletor = QApplication::activeModalWidget();
        QVERIFY(seletor);
        QTest::keyClick(seletor, Qt::Key_F1);
        noSeletor = paginaAberta();
        seletor->close();
    });
    frmAssistMoeda::Escolhe(QStringLiteral("produtoPEDIProd"), &janela);
    QCOMPARE(noSeletor, QStringLiteral("ncm_moeda.html"));
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
