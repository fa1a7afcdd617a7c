#include "gui/shell/frmVRTPLN.h"

#include "core/session/MsgBox.h"
#include "gui/shell/frmAbout.h"
#include "gui/shell/frmAjuda.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"
#include "gui/screens/TelaFilha.h"
#include "gui/widgets/ToolbarIcon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QDialog>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

using namespace modVRTPLN;

namespace {

frmVRTPLN* janelaPrincipal = nullptr;

// The MDI window of a child screen: tells the main window, at once, when its screen has accepted to close, so
// that the unload step runs before the next screen's load step.
class JanelaFilha : public QMdiSubWindow {
public:
    std::function<void()> aoFechar;

protected:
    void closeEvent(QCloseEvent* evento) override
    {
        QMdiSubWindow::closeEvent(evento);
        if (evento->isAccepted() && aoFechar) {
            auto passo = std::move(aoFechar);
            aoFechar = nullptr;
            passo();
        }
    }
};

// The commands that HabilitaMenus governs, as control names.
const QStringList comandosDeclaracao = {
    QStringLiteral("mnuDeclaracaoAbrir"), QStringLiteral("mnuDeclaracaoCopiarDeclaracao"),
    QStringLiteral("mnuDeclaracaoEliminar"), QStringLiteral("mnuDeclaracaoNovaIndividual"),
    QStringLiteral("mnuDeclaracaoNovaMensal")};
const QStringList comandosEditor = {QStringLiteral("mnuDeclaracaoSalvar"), QStringLiteral("mnuDeclaracaoFechar")};
const QStringList comandosTabelas = {QStringLiteral("mnuFerramentasTabelasProduto"),
                                     QStringLiteral("mnuFerramentasTabelasUnidMedida")};

}  // namespace

frmVRTPLN::frmVRTPLN(QWidget* parent) : QMainWindow(parent)
{
    janelaPrincipal = this;
    InstalaAnfitriaoTelas(this);
    setObjectName(QStringLiteral("frmVRTPLN"));
    setWindowTitle(TituloPadrao);
    m_mdi = new QMdiArea(this);
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    m_mdi->setBackground(palette().brush(QPalette::Dark));
    // On a small screen or at a large scale a screen larger than the area is scrolled into view, not cut.
    m_mdi->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_mdi->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(m_mdi);
    criaMenus();
    criaBarraFerramentas();
    criaBarraStatus();
    // F1 anywhere in the program opens the help page of the screen in front.
    qApp->installEventFilter(this);
    if (QScreen* tela = screen())
        ajustaATela(tela->availableGeometry());
}

void frmVRTPLN::ajustaATela(const QRect& disponivel)
{
    // The window's frame, as far as the window system tells it before the window is shown.
    const QMargins moldura(4, 28, 4, 4);
    const QSize livre = disponivel.marginsRemoved(moldura).size();
    resize(QSize(1024, 720).boundedTo(livre).expandedTo(minimumSizeHint().boundedTo(livre)));
    move(disponivel.topLeft() + QPoint(moldura.left() + (livre.width() - width()) / 2,
                                       moldura.top() + (livre.height() - height()) / 2));
}

QString frmVRTPLN::paginaAjuda(QWidget* alvo)
{
    for (QWidget* w = alvo; w; w = w->parentWidget()) {
        const QString pagina = w->property("paginaAjuda").toString();
        if (!pagina.isEmpty())
            return pagina;
    }
    return QStringLiteral("index.html");
}

void frmVRTPLN::ajudaDaTela(QWidget* origem)
{
    // The screen in front: a modal one, else the one the key was pressed in, else the active child screen.
    QWidget* alvo = origem;
    if (QWidget* modal = QApplication::activeModalWidget(); modal && !(alvo && modal->isAncestorOf(alvo)))
        alvo = modal;
    if (alvo && qobject_cast<frmAjuda*>(alvo->window()))
        return;
    if (paginaAjuda(alvo) == QLatin1String("index.html"))
        if (QMdiSubWindow* janela = m_mdi->activeSubWindow())
            alvo = janela->widget();
    frmAjuda::mostra(CaminhoAplicacao + QStringLiteral("/help/") + paginaAjuda(alvo), this);
}

bool frmVRTPLN::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(evento)->key() == Qt::Key_F1
        && objeto->isWidgetType()) {
        ajudaDaTela(static_cast<QWidget*>(objeto));
        return true;
    }
    return QMainWindow::eventFilter(objeto, evento);
}

frmVRTPLN::~frmVRTPLN()
{
    if (janelaPrincipal == this) {
        janelaPrincipal = nullptr;
        InstalaAnfitriaoTelas(nullptr);
    }
}

frmVRTPLN* frmVRTPLN::instancia()
{
    return janelaPrincipal;
}

bool frmVRTPLN::carrega()
{
    if (!modBancoDados::CompactaBanco(ArquivoBanco()))
        return false;
    HabilitaMenus(false);
    modBancoDados::ConectaBanco(ArquivoBanco());
    m_paineis[2]->setText(QStringLiteral("Versão ") + VersaoPrograma);
    return true;
}

QAction* frmVRTPLN::novaAcao(const QString& nome, const QString& texto)
{
    auto* a = new QAction(texto, this);
    a->setObjectName(nome);
    m_acoes.insert(nome, a);
    return a;
}

QAction* frmVRTPLN::acao(const QString& nome) const
{
    return m_acoes.value(nome);
}

QLabel* frmVRTPLN::painel(int numero) const
{
    return (numero >= 1 && numero <= 3) ? m_paineis[numero - 1] : nullptr;
}

void frmVRTPLN::criaMenus()
{
    QMenu* declaracao = menuBar()->addMenu(QStringLiteral("&Declaração"));
    declaracao->setObjectName(QStringLiteral("mnuDeclaracao"));
    QMenu* nova = declaracao->addMenu(QStringLiteral("&Nova..."));
    nova->setObjectName(QStringLiteral("mnuDeclaracaoNova"));
    nova->addAction(novaAcao(QStringLiteral("mnuDeclaracaoNovaMensal"), QStringLiteral("&Mensal")));
    nova->addAction(novaAcao(QStringLiteral("mnuDeclaracaoNovaIndividual"), QStringLiteral("&Individual")));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoAbrir"), QStringLiteral("&Abrir...")));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoSalvar"), QStringLiteral("&Salvar")));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoEliminar"), QStringLiteral("&Eliminar...")));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoFechar"), QStringLiteral("&Fechar")));
    declaracao->addSeparator()->setObjectName(QStringLiteral("lin11"));
    declaracao->addAction(
        novaAcao(QStringLiteral("mnuDeclaracaoCopiarDeclaracao"), QStringLiteral("&Copiar Declaração...")));
    declaracao->addSeparator()->setObjectName(QStringLiteral("lin12"));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoImportar"), QStringLiteral("Impor&tar ...")));
    declaracao->addSeparator()->setObjectName(QStringLiteral("lin14"));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoGravarVRTTransmissao"),
                                   QStringLiteral("&Gravar para transmissão...")));
    declaracao->addSeparator()->setObjectName(QStringLiteral("lin15"));
    declaracao->addAction(novaAcao(QStringLiteral("mnuDeclaracaoSair"), QStringLiteral("Sai&r")));

    QMenu* ferramentas = menuBar()->addMenu(QStringLiteral("&Ferramentas"));
    ferramentas->setObjectName(QStringLiteral("mnuFerramentas"));
    ferramentas->addAction(novaAcao(QStringLiteral("mnuFerramentasCalculadora"), QStringLiteral("&Calculadora")));
    ferramentas->addSeparator()->setObjectName(QStringLiteral("lin21"));
    ferramentas->addAction(novaAcao(QStringLiteral("mnuFerramentasGravarBackup"), QStringLiteral("&Gravar backup")));
    ferramentas->addAction(
        novaAcao(QStringLiteral("mnuFerramentasRestaurarBackup"), QStringLiteral("&Restaurar backup")));
    ferramentas->addSeparator()->setObjectName(QStringLiteral("lin22"));
    QMenu* tabelas = ferramentas->addMenu(QStringLiteral("&Tabelas"));
    tabelas->setObjectName(QStringLiteral("mnuFerramentasImportarTabelas"));
    QMenu* importacao = tabelas->addMenu(QStringLiteral("&Importação"));
    importacao->setObjectName(QStringLiteral("mnuFerramentasImportar"));
    importacao->addAction(novaAcao(QStringLiteral("mnuFerramentasImportarTabelasMoeda"), QStringLiteral("&Moeda")));
    importacao->addAction(novaAcao(QStringLiteral("mnuFerramentasImportarTabelasNCM"), QStringLiteral("&NCM")));
    importacao->addAction(
        novaAcao(QStringLiteral("mnuFerramentasImportarTabelasProduto"), QStringLiteral("&Produto")));
    importacao->addAction(novaAcao(QStringLiteral("mnuFerramentasImportarTabelasUF"),
                                   QStringLiteral("&UF - Unidade da Federação")));
    importacao->addAction(novaAcao(QStringLiteral("mnuFerramentasImportarTabelasUnidadeMedida"),
                                   QStringLiteral("U&nidade de Medida Comercial")));
    QMenu* manutencao = tabelas->addMenu(QStringLiteral("&Manutenção"));
    manutencao->setObjectName(QStringLiteral("mnuFerramentasManutTabelaProduto"));
    manutencao->addAction(novaAcao(QStringLiteral("mnuFerramentasTabelasProduto"), QStringLiteral("&Produto")));
    manutencao->addAction(novaAcao(QStringLiteral("mnuFerramentasTabelasUnidMedida"),
                                   QStringLiteral("U&nidade de Medida Comercial")));
    ferramentas->addSeparator()->setObjectName(QStringLiteral("ln23"));
    ferramentas->addAction(novaAcao(QStringLiteral("mnuImportarBancoAnterior"),
                                    QStringLiteral("Importar Banco de Dados da Versão 1.0")));

    QMenu* ajuda = menuBar()->addMenu(QStringLiteral("&Ajuda"));
    ajuda->setObjectName(QStringLiteral("mnuAjuda"));
    ajuda->addAction(novaAcao(QStringLiteral("mnuAjudaTopicos"), QStringLiteral("&Tópicos")));
    ajuda->addAction(novaAcao(QStringLiteral("mnuAjudaLocalizar"), QStringLiteral("&Localizar")));
    ajuda->addAction(novaAcao(QStringLiteral("mnuAjudaComoUsarAjuda"), QStringLiteral("&Como usar a ajuda")));
    ajuda->addSeparator()->setObjectName(QStringLiteral("lin31"));
    ajuda->addAction(novaAcao(QStringLiteral("mnuAjudaSobreVRT"), QStringLiteral("&Sobre")));

    auto liga = [this](const char* nome, auto&& passo) {
        connect(m_acoes.value(QLatin1String(nome)), &QAction::triggered, this, passo);
    };
    liga("mnuDeclaracaoNovaMensal", [this] { novaDeclaracao(Mensal, FuncaoEditor::NovaMensal); });
    liga("mnuDeclaracaoNovaIndividual", [this] { novaDeclaracao(Individual, FuncaoEditor::NovaIndividual); });
    liga("mnuDeclaracaoAbrir", [this] { abreEscolha(FuncaoEscolha::Abrir); });
    liga("mnuDeclaracaoSalvar", [this] { salvar(); });
    liga("mnuDeclaracaoEliminar", [this] { abreEscolha(FuncaoEscolha::Eliminar); });
    liga("mnuDeclaracaoFechar", [this] { fechaTela(); });
    liga("mnuDeclaracaoCopiarDeclaracao", [this] { abreEscolha(FuncaoEscolha::Copiar); });
    liga("mnuDeclaracaoImportar", [this] { abreTelaArquivo(QStringLiteral("NAO"), QStringLiteral("Importar VRT")); });
    liga("mnuDeclaracaoGravarVRTTransmissao", [this] { abreEscolha(FuncaoEscolha::GravarTransmissao); });
    liga("mnuDeclaracaoSair", [this] { close(); });
    liga("mnuFerramentasCalculadora", [this] { calculadora(); });
    liga("mnuFerramentasGravarBackup", [this] { abreEscolha(FuncaoEscolha::GravarBackup); });
    liga("mnuFerramentasRestaurarBackup",
         [this] { abreTelaArquivo(QStringLiteral("NAO"), QStringLiteral("Restaurar Backup")); });
    liga("mnuFerramentasImportarTabelasMoeda",
         [this] { abreTelaArquivo(QStringLiteral("SIM"), QStringLiteral("Importar Moeda")); });
    liga("mnuFerramentasImportarTabelasNCM",
         [this] { abreTelaArquivo(QStringLiteral("SIM"), QStringLiteral("Importar NCM")); });
    liga("mnuFerramentasImportarTabelasProduto",
         [this] { abreTelaArquivo(QStringLiteral("SIM"), QStringLiteral("Importar Produto")); });
    liga("mnuFerramentasImportarTabelasUF",
         [this] { abreTelaArquivo(QStringLiteral("SIM"), QStringLiteral("Importar UF")); });
    liga("mnuFerramentasImportarTabelasUnidadeMedida", [this] {
        abreTelaArquivo(QStringLiteral("SIM"), QStringLiteral("Importar Unidade de Medida Comercial"));
    });
    liga("mnuFerramentasTabelasProduto",
         [this] { mostraManutencao(QStringLiteral("frmAssistenteCCI"), ProdutoPeloMenu); });
    liga("mnuFerramentasTabelasUnidMedida",
         [this] { mostraManutencao(QStringLiteral("frmAssistenteMED"), UnidadePeloMenu); });
    liga("mnuImportarBancoAnterior", [this] {
        abreTelaArquivo(QStringLiteral("NAO"), QStringLiteral("Importar Banco de Dados da Versão 1.0"));
    });
    liga("mnuAjudaTopicos", [this] { topicos(); });
    // Localizar and Como usar a ajuda are there and do nothing.
    liga("mnuAjudaSobreVRT", [this] {
        frmAbout sobre(this);
        sobre.exec();
    });
}

void frmVRTPLN::criaBarraFerramentas()
{
    m_barra = addToolBar(QStringLiteral("Declaração"));
    m_barra->setObjectName(QStringLiteral("tlbDeclaracao"));
    m_barra->setMovable(false);
    struct Botao {
        int indice;
        const char* dica;
        const char* comando;
        ToolbarIcon icone;
    };
    const Botao botoes[] = {
        {2, "Nova VRT Mensal", "mnuDeclaracaoNovaMensal", ToolbarIcon::NewMonthly},
        {3, "Nova VRT Individual", "mnuDeclaracaoNovaIndividual", ToolbarIcon::NewIndividual},
        {5, "Abrir VRT", "mnuDeclaracaoAbrir", ToolbarIcon::Open},
        {6, "Salvar VRT", "mnuDeclaracaoSalvar", ToolbarIcon::Save},
        {7, "Eliminar VRT", "mnuDeclaracaoEliminar", ToolbarIcon::Delete},
        {8, "Fechar VRT", "mnuDeclaracaoFechar", ToolbarIcon::Close},
        {10, "Copiar VRT", "mnuDeclaracaoCopiarDeclaracao", ToolbarIcon::Copy},
    };
    m_barra->addSeparator()->setObjectName(QStringLiteral("tlbDeclaracao(1)"));
    for (const Botao& b : botoes) {
        if (b.indice == 5 || b.indice == 10)
            m_barra->addSeparator()->setObjectName(QStringLiteral("tlbDeclaracao(%1)").arg(b.indice - 1));
        // The button is its own action, kept in step with the menu item's enabled state.
        QAction* menu = m_acoes.value(QLatin1String(b.comando));
        auto* botao = new QAction(toolbarIcon(b.icone), QString::fromUtf8(b.dica), this);
        botao->setObjectName(QStringLiteral("tlbDeclaracao(%1)").arg(b.indice));
        botao->setToolTip(QString::fromUtf8(b.dica));
        connect(botao, &QAction::triggered, menu, &QAction::trigger);
        connect(menu, &QAction::enabledChanged, botao, &QAction::setEnabled);
        botao->setEnabled(menu->isEnabled());
        m_barra->addAction(botao);
        m_barra->widgetForAction(botao)->setObjectName(botao->objectName());
        m_acoes.insert(botao->objectName(), botao);
    }
}

void frmVRTPLN::criaBarraStatus()
{
    statusBar()->setObjectName(QStringLiteral("staDeclaracao"));
    for (int i = 0; i < 3; ++i) {
        m_paineis[i] = new QLabel(this);
        m_paineis[i]->setObjectName(QStringLiteral("staDeclaracao(%1)").arg(i + 1));
        m_paineis[i]->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        // Narrow enough that the window fits a small screen at a large scale; the panels share the width there is.
        m_paineis[i]->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 4);
        statusBar()->addPermanentWidget(m_paineis[i], i == 0 ? 3 : 1);
    }
    m_paineis[2]->setText(QStringLiteral("Versão ") + VersaoPrograma);
}

void frmVRTPLN::abreTela(int tela)
{
    if (tela == Nenhuma)
        return;
    fechaTela();
    QMdiSubWindow* janela = m_telas.value(tela);
    if (!janela) {
        const FabricaTela fabrica = FabricaDaTela(tela);
        if (!fabrica)
            return;
        TelaFilha* filha = fabrica();
        auto* nova = new JanelaFilha;
        nova->setWidget(filha);
        nova->setAttribute(Qt::WA_DeleteOnClose);
        nova->setWindowTitle(filha->windowTitle());
        m_mdi->addSubWindow(nova);
        janela = nova;
        m_telas.insert(tela, janela);
        // The unload step of every child screen.
        nova->aoFechar = [this, tela] {
            m_telas.remove(tela);
            HabilitaMenus(false);
            ZeraTelaAtual();
            AtualizaBarraStatus();
        };
        // The load step: the matrix is applied on TelaAtual as it still stands, before AbreTela sets it.
        HabilitaMenus(true);
        CentralizaForm(this, janela);
    }
    janela->show();
    janela->widget()->show();
    m_mdi->setActiveSubWindow(janela);
    TelaAtual = tela;
}

void frmVRTPLN::fechaTela()
{
    if (QMdiSubWindow* janela = m_telas.value(TelaAtual))
        janela->close();
}

TelaFilha* frmVRTPLN::telaAberta() const
{
    QMdiSubWindow* janela = m_telas.value(TelaAtual);
    return janela ? qobject_cast<TelaFilha*>(janela->widget()) : nullptr;
}

void frmVRTPLN::abreTelaArquivo(const QString& importaTabela, const QString& titulo)
{
    ArquivoImportaTabela = importaTabela;
    abreTela(ManipulaArquivo);
    if (QMdiSubWindow* janela = m_telas.value(ManipulaArquivo)) {
        janela->widget()->setWindowTitle(titulo);
        janela->setWindowTitle(titulo);
    }
    m_paineis[0]->setText(titulo);
}

void frmVRTPLN::abreEscolha(int funcao)
{
    AbreTelaComFuncao(Escolha, funcao);
}

void frmVRTPLN::novaDeclaracao(int tela, int funcao)
{
    IdVrtAbrir.clear();
    m_paineis[1]->clear();
    AbreTelaComFuncao(tela, funcao);
}

void frmVRTPLN::mostraManutencao(const QString& nome, bool& peloMenu)
{
    const FabricaDialogo fabrica = FabricaDoDialogo(nome);
    if (!fabrica)
        return;
    peloMenu = true;
    QDialog* dialogo = fabrica(this);
    dialogo->exec();
    delete dialogo;
    peloMenu = false;
}

void frmVRTPLN::salvar()
{
    TelaFilha* ativa = nullptr;
    if (QMdiSubWindow* janela = m_mdi->activeSubWindow())
        ativa = qobject_cast<TelaFilha*>(janela->widget());
    const QString nome = ativa ? ativa->objectName() : QString();
    // The old command compared the screen's name with two spellings that no screen has, so the general data
    // are never validated nor stored from here: only what the user already confirmed is saved.
    if (ativa && (nome == QLatin1String("FRMVRTINDIVIDUALNOVO") || nome == QLatin1String("frmVRTMensalNovo"))) {
        if (ativa->ValidaDadosGerais())
            ativa->AtualizaDadosGerais();
    }
    if (!AlteracaoPendente)
        return;
    modBancoDados::ConfirmaTransacao();
    modBancoDados::IniciaTransacao();
    const QString maiusculo = nome.toUpper();
    if (ativa && (maiusculo == QLatin1String("FRMVRTINDIVIDUALNOVO") || maiusculo == QLatin1String("FRMVRTMENSALNOVO")))
        ativa->RepopulaGrids();
    AlteracaoPendente = false;
}

void frmVRTPLN::topicos()
{
    frmAjuda::mostra(CaminhoAplicacao + QStringLiteral("/help/index.html"), this);
}

void frmVRTPLN::calculadora()
{
    const QStringList programas = {QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"),
                                   QStringLiteral("mate-calc"), QStringLiteral("galculator"),
                                   QStringLiteral("qalculate-gtk"), QStringLiteral("xcalc")};
    for (const QString& p : programas) {
        const QString caminho = QStandardPaths::findExecutable(p);
        if (!caminho.isEmpty() && QProcess::startDetached(caminho, {}))
            return;
    }
    MsgBox(QStringLiteral("Nenhuma calculadora está instalada neste computador."), Msg::Information);
}

void frmVRTPLN::closeEvent(QCloseEvent* evento)
{
    // Each open child screen is offered its closing step; one that refuses keeps the program running.
    for (QMdiSubWindow* janela : m_mdi->subWindowList()) {
        if (!janela->close()) {
            evento->ignore();
            return;
        }
    }
    modBancoDados::DesconectaBanco();
    evento->accept();
}

void frmVRTPLN::habilitaMenus(bool telaAberta)
{
    const bool editor = TelaAtual == Individual || TelaAtual == Mensal;
    for (const QString& c : comandosDeclaracao)
        acao(c)->setEnabled(!telaAberta);
    for (const QString& c : comandosEditor)
        acao(c)->setEnabled(editor && telaAberta);
    if (editor)
        for (const QString& c : comandosTabelas)
            acao(c)->setEnabled(!telaAberta);
}

void frmVRTPLN::atualizaBarraStatus()
{
    TelaFilha* ativa = telaAberta();
    m_paineis[0]->setText(TelaAtual != Nenhuma && ativa ? ativa->windowTitle() : QString());
}

void frmVRTPLN::definePainelStatus(int numero, const QString& texto)
{
    if (QLabel* p = painel(numero))
        p->setText(texto);
}

QString frmVRTPLN::textoPainelStatus(int numero) const
{
    QLabel* p = painel(numero);
    return p ? p->text() : QString();
}

void CentralizaForm(QWidget* principal, QWidget* form)
{
    QWidget* area = principal;
    if (auto* janela = qobject_cast<frmVRTPLN*>(principal))
        area = janela->mdiArea();
    const QSize tamanho = form->sizeHint().expandedTo(form->size());
    form->move(qMax(0, (area->width() - tamanho.width()) / 2), qMax(0, (area->height() - tamanho.height()) / 2));
}
