// Pictures of the screens for the help pages, taken offscreen from the real screens with sample data, with a
// check that no caption is cut. They go to <build>/capturas/ajuda; with VRT_ATUALIZA_AJUDA=1 in the environment
// they also replace the pictures in help/img.
#include "ArquivoTabela.h"
#include "DeclaracoesTeste.h"
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "gui/assistants/frmAssistMoeda.h"
#include "gui/assistants/frmAssistNCM.h"
#include "gui/assistants/frmAssistenteCCI.h"
#include "gui/assistants/frmAssistenteMED.h"
#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/assistants/frmManipulaArquivo.h"
#include "gui/assistants/PainelCopiaVrt.h"
#include "gui/widgets/MaskedField.h"
#include "core/refdata/modImportacao.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QFileSystemModel>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <QTemporaryDir>
#include <QtTest>

using namespace modVRTPLN;
using DeclaracoesTeste::Declaracao;

namespace {

// Every caption in view is as wide as it needs.
bool legendasInteiras(QWidget* tela, QString* cortada)
{
    for (QLabel* l : tela->findChildren<QLabel*>()) {
        if (l->isVisible() && !l->wordWrap() && l->width() < l->sizeHint().width()) {
            *cortada = l->text();
            return false;
        }
    }
    for (QAbstractButton* b : tela->findChildren<QAbstractButton*>()) {
        if (b->isVisible() && b->width() < b->sizeHint().width()) {
            *cortada = b->text();
            return false;
        }
    }
    return true;
}

void salva(QWidget* alvo, const QString& nome)
{
    QTest::qWait(50);
    QString cortada;
    QVERIFY2(legendasInteiras(alvo, &cortada), qPrintable(nome + ": " + cortada));
    const QPixmap imagem = alvo->grab();
    QVERIFY(!imagem.isNull());
    const QString pasta = QStringLiteral(VRT_BINARY_DIR "/capturas/ajuda");
    QDir().mkpath(pasta);
    QVERIFY(imagem.save(pasta + QLatin1Char('/') + nome));
    if (qEnvironmentVariableIntValue("VRT_ATUALIZA_AJUDA") == 1) {
        QDir().mkpath(QStringLiteral(VRT_SOURCE_DIR "/help/img"));
        QVERIFY(imagem.save(QStringLiteral(VRT_SOURCE_DIR "/help/img/") + nome));
    }
}

// A part of a widget, the toolbar's buttons, made larger so that the icons can be seen in the page.
void salvaParte(QWidget* alvo, const QRect& parte, const QString& nome)
{
    QTest::qWait(50);
    const QPixmap imagem = alvo->grab(parte.adjusted(-2, -2, 2, 2));
    QVERIFY(!imagem.isNull());
    const QPixmap maior = imagem.scaled(imagem.size() * 2, Qt::KeepAspectRatio, Qt::FastTransformation);
    const QString pasta = QStringLiteral(VRT_BINARY_DIR "/capturas/ajuda");
    QDir().mkpath(pasta);
    QVERIFY(maior.save(pasta + QLatin1Char('/') + nome));
    if (qEnvironmentVariableIntValue("VRT_ATUALIZA_AJUDA") == 1)
        QVERIFY(maior.save(QStringLiteral(VRT_SOURCE_DIR "/help/img/") + nome));
}

// A drive of sample folders, so that the picture shows a user's folders and nothing of the machine's.
QString mostraDisco(const QString& raiz)
{
    for (const char* p : {"Backup", "Documentos", "Tabelas", "Transmissão"})
        QDir(raiz).mkpath(QString::fromUtf8(p));
    return raiz + QStringLiteral("/Tabelas");
}

void escolheDisco(frmManipulaArquivo* tela, const QString& raiz, const QString& pasta)
{
    tela->Drive1->addItem(QStringLiteral("D:  [Dados]"), raiz);
    tela->Drive1->setCurrentIndex(tela->Drive1->count() - 1);
    tela->selecionaPasta(pasta);
    QTest::qWait(300);
}

// A dialog shown inside a window frame of its own, so that the picture has its caption as the user sees it.
class Moldura {
public:
    explicit Moldura(QDialog* dialogo)
    {
        m_area.resize(dialogo->size() + QSize(16, 40));
        m_janela = m_area.addSubWindow(dialogo);
        m_janela->resize(dialogo->size() + QSize(8, 30));
        m_area.show();
        m_janela->show();
        QTest::qWait(30);
    }
    QMdiSubWindow* janela() const { return m_janela; }

private:
    QMdiArea m_area;
    QMdiSubWindow* m_janela = nullptr;
};

QMdiSubWindow* janelaDe(frmVRTPLN& principal)
{
    return principal.mdiArea()->activeSubWindow();
}

void produtos()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
    BancoTeste::executa(QStringLiteral(
        "INSERT INTO PRODUTO VALUES ('CN-0100', 'CANECA DE PORCELANA 300 ML'), ('CN-0200', 'CANECA TÉRMICA INOX'), "
        "('MS-1000', 'MOUSE ÓPTICO SEM FIO'), ('TC-2000', 'TECLADO ABNT2 USB'), ('TV-4300', 'TELEVISOR LED 43 POL'), "
        "('TV-5500', 'TELEVISOR LED 55 POL'), ('CX-0001', 'CAIXA DE SOM PORTÁTIL')"));
}

}  // namespace

class tst_capturasAjuda : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { RegistraTelas(); }

    // The pages of these screens exist, with their pictures and links, and the first page points to them.
    void paginasDeAjuda_data()
    {
        QTest::addColumn<QString>("pagina");
        for (const char* p : {"escolha.html", "copia.html", "arquivos.html", "tabelas.html", "produtos.html", "ncm_moeda.html"})
            QTest::newRow(p) << QString::fromLatin1(p);
    }
    void paginasDeAjuda()
    {
        QFETCH(QString, pagina);
        const QString pasta = QStringLiteral(VRT_SOURCE_DIR "/help/");
        QFile f(pasta + pagina);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(f.readAll());
        QFile indice(pasta + QStringLiteral("index.html"));
        QVERIFY(indice.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(indice.readAll()).contains(QStringLiteral("href=\"") + pagina + QLatin1Char('"')));
        const QRegularExpression alvo(QStringLiteral("(?:src|href)=\"([^\"#:]+)\""));
        int imagens = 0;
        for (auto it = alvo.globalMatch(html); it.hasNext();) {
            const QString caminho = it.next().captured(1);
            QVERIFY2(QFile::exists(pasta + caminho), qPrintable(pagina + ": " + caminho));
            imagens += caminho.startsWith(QLatin1String("img/")) ? 1 : 0;
        }
        QVERIFY(imagens >= 1);
    }

    // The toolbar with nothing open (Salvar and Fechar off) and with a declaration open (only those two on).
    void barraDeFerramentas()
    {
        BancoTeste banco;
        frmVRTPLN principal;
        principal.show();
        QWidget* barra = principal.findChild<QWidget*>(QStringLiteral("tlbDeclaracao"));
        QVERIFY(barra);
        TelaAtual = 0;
        HabilitaMenus(false);
        QVERIFY(!principal.acao(QStringLiteral("tlbDeclaracao(6)"))->isEnabled());
        QVERIFY(principal.acao(QStringLiteral("tlbDeclaracao(2)"))->isEnabled());
        const QRect parte = barra->childrenRect();
        salvaParte(barra, parte, QStringLiteral("tlbDeclaracao.png"));
        TelaAtual = Mensal;
        HabilitaMenus(true);
        QVERIFY(principal.acao(QStringLiteral("tlbDeclaracao(6)"))->isEnabled());
        QVERIFY(!principal.acao(QStringLiteral("tlbDeclaracao(2)"))->isEnabled());
        salvaParte(barra, parte, QStringLiteral("tlbDeclaracao_editor.png"));
        TelaAtual = 0;
    }

    void escolhaDeDeclaracoes()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/24", "2", "11222333000181", "2024-02-05", "N", "012024"});
        DeclaracoesTeste::insere({"00002/24", "1", "11222333000181", "2024-02-19", "N", "", "004512", "1    "});
        DeclaracoesTeste::insere({"00003/24", "2", "11222333000181", "2024-03-04", "S", "012024"});
        DeclaracoesTeste::insere({"00004/24", "2", "44555666000172", "2024-03-08", "N", "022024"});
        DeclaracoesTeste::insere({"00005/24", "1", "44555666000172", "2024-03-12", "N", "", "000087", "A    "});
        frmVRTPLN principal;
        principal.resize(1100, 560);
        principal.show();
        principal.acao(QStringLiteral("mnuFerramentasGravarBackup"))->trigger();
        salva(janelaDe(principal), QStringLiteral("frmAssistenteVRT.png"));
    }

    // The copy panel over the chooser, a monthly declaration picked and "Retificação" chosen.
    void painelDeCopia()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/24", "2", "11222333000181", "2024-02-05", "N", "012024"});
        DeclaracoesTeste::insere({"00002/24", "1", "11222333000181", "2024-02-19", "N", "", "004512", "1    "});
        frmVRTPLN principal;
        principal.resize(1100, 560);
        principal.show();
        principal.acao(QStringLiteral("mnuDeclaracaoCopiarDeclaracao"))->trigger();
        QWidget* tela = principal.telaAberta();
        QTest::mouseClick(tela->findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
        auto* painel = tela->findChild<PainelCopiaVrt*>(QStringLiteral("FraAssistenteVRT_Copia"));
        QVERIFY(painel && painel->isVisible());
        painel->OptRetificacao->click();
        QVERIFY(painel->mskNumVRT->isEnabled());
        salva(janelaDe(principal), QStringLiteral("PainelCopiaVrt.png"));
    }

    void arquivoImportar()
    {
        BancoTeste banco;
        QTemporaryDir disco;
        const QString tabelas = mostraDisco(disco.path());
        for (const char* nome : {"moedas.txt", "ncm.txt", "produtos.txt", "uf.txt", "unidades.txt"})
            QVERIFY(ArquivoTabela::grava(tabelas + QLatin1Char('/') + QLatin1String(nome), {ArquivoTabela::cabecalho()}));
        frmVRTPLN principal;
        principal.resize(900, 620);
        principal.show();
        principal.acao(QStringLiteral("mnuFerramentasImportarTabelasNCM"))->trigger();
        auto* tela = qobject_cast<frmManipulaArquivo*>(principal.telaAberta());
        escolheDisco(tela, disco.path(), tabelas);
        salva(janelaDe(principal), QStringLiteral("frmManipulaArquivo.png"));
    }

    void arquivoGravar()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/24", "2"});
        QTemporaryDir disco;
        mostraDisco(disco.path());
        frmVRTPLN principal;
        principal.resize(900, 620);
        principal.show();
        principal.acao(QStringLiteral("mnuDeclaracaoGravarVRTTransmissao"))->trigger();
        QTest::mouseClick(qobject_cast<frmAssistenteVRT*>(principal.telaAberta())->cmdOk, Qt::LeftButton);
        auto* tela = qobject_cast<frmManipulaArquivo*>(principal.telaAberta());
        escolheDisco(tela, disco.path(), disco.path() + QStringLiteral("/Transmissão"));
        salva(janelaDe(principal), QStringLiteral("frmManipulaArquivo_pasta.png"));
        frmManipulaArquivo::IdVrtEscolhida.clear();
    }

    void produtoManutencao()
    {
        BancoTeste banco;
        produtos();
        ProdutoPeloMenu = true;
        auto* tela = new frmAssistenteCCI;
        Moldura moldura(tela);
        ConsultGrid* g = tela->grdAssistenteCCI;
        QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(3, 1)).center());
        salva(moldura.janela(), QStringLiteral("frmAssistenteCCI.png"));
        tela->reject();
        ProdutoPeloMenu = false;
    }

    void produtoPicker()
    {
        BancoTeste banco;
        produtos();
        auto* tela = new frmAssistenteCCI;
        tela->defineFiltro(QStringLiteral("TV"));
        Moldura moldura(tela);
        salva(moldura.janela(), QStringLiteral("frmAssistenteCCI_picker.png"));
    }

    void unidadeManutencao()
    {
        BancoTeste banco;
        UnidadePeloMenu = true;
        auto* tela = new frmAssistenteMED;
        Moldura moldura(tela);
        salva(moldura.janela(), QStringLiteral("frmAssistenteMED.png"));
        tela->reject();
        UnidadePeloMenu = false;
    }

    void ncm()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
        QTemporaryDir pasta;
        QVERIFY(ArquivoTabela::grava(pasta.filePath(QStringLiteral("ncm.txt")),
                                     ArquivoTabela::linhasNcm(ArquivoTabela::ncmReal(qEnvironmentVariable("VRT_REFDATA_DIR", QStringLiteral(VRT_REFDATA_DIR))))));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        ArquivoImportaTabela = QStringLiteral("SIM");
        modImportacao::ImportaTabela(pasta.path(), QStringLiteral("ncm.txt"));
        ArquivoImportaTabela = QStringLiteral("NAO");
        auto* tela = new frmAssistNCM;
        tela->defineFiltro(QStringLiteral("8471"));
        Moldura moldura(tela);
        salva(moldura.janela(), QStringLiteral("frmAssistNCM.png"));
    }

    void moeda()
    {
        BancoTeste banco;
        auto* tela = new frmAssistMoeda;
        Moldura moldura(tela);
        QVERIFY(tela->grdAssistMoeda->dataRowCount() > 0);
        salva(moldura.janela(), QStringLiteral("frmAssistMoeda.png"));
    }
};

QTEST_MAIN(tst_capturasAjuda)
#include "tst_capturasAjuda.moc"
