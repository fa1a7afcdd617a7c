#include "gui/editor/EditorDeclaracao.h"

#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/editor/AbaDadosGerais.h"
#include "gui/editor/AbaNotaSaida.h"
#include "gui/editor/AbaValores.h"
#include "gui/items/AbasItens.h"
#include "core/file/numbering/GeraIdentificacao.h"
#include "core/session/MsgBox.h"
#include "gui/screens/Telas.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"
#include "gui/widgets/ConsultGrid.h"
#include "gui/widgets/DecimalField.h"
#include "gui/blocks/ExecutorBloco.h"
#include "gui/widgets/MaskedField.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/widgets/ScreenFocus.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace modVRTPLN;

EditorDeclaracao::EditorDeclaracao(const ConfigEditor& config, QWidget* parent) : TelaFilha(parent), m_config(config)
{
    setObjectName(config.nome);
    setWindowTitle(config.legendaNova);
    m_copia.tipo = config.individual ? QStringLiteral("1") : QStringLiteral("2");
    constroiAbas();
    // The editor's own connection and the one transaction of its whole life.
    modBancoDados::ConectaBanco(ArquivoBanco());
    modBancoDados::IniciaTransacao();
    if (notaSaida)
        notaSaida->carregaUf();
    if (!config.individual)
        ligaFocoMensal();
}

// The monthly editor writes its general data when the user leaves it for another window, and brings the CNPJ
// before the user when it comes to the front again. The individual editor has neither.
void EditorDeclaracao::ligaFocoMensal()
{
    auto* foco = new ScreenFocus(this);
    connect(foco, &ScreenFocus::left, this, [this] {
        if (!m_carregando && !m_fechada)
            AtualizaDadosGerais();
    });
    connect(foco, &ScreenFocus::returned, this, [this] {
        // The CNPJ stands on tab 0; on another tab the focus stays where the user left it.
        if (dadosGerais->mskDadosGerais[1]->isVisible())
            dadosGerais->mskDadosGerais[1]->setFocus(Qt::OtherFocusReason);
    });
}

EditorDeclaracao::~EditorDeclaracao() = default;

QSize EditorDeclaracao::sizeHint() const
{
    return minimumSizeHint().expandedTo(QSize(760, 0));
}

void EditorDeclaracao::constroiAbas()
{
    auto* layout = new QVBoxLayout(this);
    tabDeclaracao = new QTabWidget(this);
    tabDeclaracao->setObjectName(QStringLiteral("tabDeclaracao"));
    layout->addWidget(tabDeclaracao);

    auto* geral = new QWidget;
    geral->setObjectName(QStringLiteral("tabDeclaracao(0)"));
    auto* coluna = new QVBoxLayout(geral);
    dadosGerais = new AbaDadosGerais(m_config.individual, &m_carregando, geral);
    coluna->addWidget(dadosGerais);
    if (m_config.individual) {
        notaSaida = new AbaNotaSaida(&m_carregando, geral);
        dadosGerais->defineNota(notaSaida);
        coluna->addWidget(notaSaida);
    }
    valores = new AbaValores([this] { return QVariant(m_copia.idVrt); },
                             [this] { return !dadosGerais->mskDadosGerais[3]->isBlank(); },
                             dadosGerais->quadroRetificacao(), geral);
    coluna->addWidget(valores, 1);
    tabDeclaracao->addTab(geral, QStringLiteral("Dados Gerais"));
    // The item tabs, filled by the item entry of each modality.
    const char* legendas[] = {"&Produto Estrangeiro", "PI com PPB", "PI sem PPB", "100% Nacional"};
    ContextoItens contexto;
    contexto.individual = m_config.individual;
    contexto.idVrt = [this] { return m_copia.idVrt; };
    contexto.idNfs = [this] { return m_copiaNota.idNfs; };
    contexto.nota = [this] { return m_copiaNota; };
    for (int i = 0; i < 4; ++i) {
        auto* pagina = new QWidget;
        pagina->setObjectName(QStringLiteral("tabDeclaracao(%1)").arg(i + 1));
        auto* daPagina = new QVBoxLayout(pagina);
        m_abasItens[i + 1] = CriaAbaItens(i + 1, contexto, pagina);
        if (m_abasItens[i + 1])
            daPagina->addWidget(m_abasItens[i + 1]);
        tabDeclaracao->addTab(pagina, QString::fromUtf8(legendas[i]));
    }

    connect(tabDeclaracao, &QTabWidget::currentChanged, this, &EditorDeclaracao::tabDeclaracao_Click);
    for (int i = 0; i < 2; ++i)
        connect(dadosGerais->ChkMand_Retif[i], &QCheckBox::clicked, this, [this, i] { ChkMand_Retif_Click(i); });
    connect(dadosGerais->chkSimRest, &QCheckBox::clicked, this, &EditorDeclaracao::chkSimRest_Click);
    valores->inicia();
}

void EditorDeclaracao::voltaAbaZero()
{
    m_trocandoAba = true;
    tabDeclaracao->setCurrentIndex(0);
    m_trocandoAba = false;
    m_abaAtual = 0;
}

void EditorDeclaracao::FuncaoForm(int modo)
{
    voltaAbaZero();
    valores->inicia();
    HabilitaMenus(true);
    if (modo == m_config.modoNovo) {
        setWindowTitle(m_config.legendaNova);
        m_copia = DadosGerais();
        m_copia.tipo = m_config.individual ? QStringLiteral("1") : QStringLiteral("2");
        m_copiaNota = NotaSaida();
        m_copiaNota.tipoDestinatario = QStringLiteral("1");
        m_alcCopia = QStringLiteral("N");
    } else if (modo == m_config.modoAbrir) {
        abreDeclaracao(frmAssistenteVRT::IdVrtAbrir.trimmed());
    }
    m_modo = modo;
    AtualizaBarraStatus();
    if (!m_config.individual)
        dadosGerais->mskDadosGerais[1]->setFocus(Qt::OtherFocusReason);
}

void EditorDeclaracao::abreDeclaracao(const QString& id)
{
    m_carregando = true;
    setWindowTitle(m_config.legendaAberta);
    DefinePainelStatus(2, id);
    DadosGerais d;
    NotaSaida n;
    m_copia.idVrt = id;
    if (DadosGeraisVrt::Le(id, d, &n)) {
        dadosGerais->mostra(d);
        if (notaSaida)
            notaSaida->mostra(n, d.alc);
    }
    m_copiaNota.idNfs = n.idNfs;
    // The values grids are read, but their sub-tabs stay closed however the boxes stand: they open only through
    // a click on a box, and the boxes' handlers do nothing while a declaration is being read.
    valores->carrega(0);
    valores->carrega(1);
    for (AbaItens* aba : m_abasItens)
        if (aba)
            aba->carrega();
    m_carregando = false;
    // What the screen now shows is the stored copy, so that closing unchanged asks nothing.
    guardaCopia();
}

void EditorDeclaracao::guardaCopia()
{
    const QString id = m_copia.idVrt;
    const qint64 nfs = m_copiaNota.idNfs;
    m_copia = dadosGerais->daTela();
    m_copia.idVrt = id;
    if (notaSaida) {
        m_copiaNota = notaSaida->daTela();
        m_alcCopia = notaSaida->alc();
        m_copia.alc = m_alcCopia;
    }
    m_copiaNota.idNfs = nfs;
}

bool EditorDeclaracao::ValidaDadosGerais()
{
    return dadosGerais->ValidaDadosGerais();
}

bool EditorDeclaracao::TestaDadosGerais() const
{
    return dadosGerais->difere(m_copia) || (notaSaida && notaSaida->difere(m_copiaNota, m_alcCopia));
}

void EditorDeclaracao::AtualizaDadosGerais()
{
    if (!TestaDadosGerais())
        return;
    const QString id = m_copia.idVrt;
    const qint64 nfs = m_copiaNota.idNfs;
    guardaCopia();
    m_copia.idVrt = id;
    m_copiaNota.idNfs = nfs;
    AlteracaoPendente = true;
    NotaSaida* nota = notaSaida ? &m_copiaNota : nullptr;
    if (!id.isEmpty()) {
        DadosGeraisVrt::Atualiza(m_copia, nota);
        return;
    }
    m_copia.idVrt = Funcoes::GeraIdentificacaoDoAno();
    DefinePainelStatus(2, m_copia.idVrt);
    DadosGeraisVrt::Insere(m_copia, nota);
}

void EditorDeclaracao::tabDeclaracao_Click(int nova)
{
    if (m_trocandoAba)
        return;
    // Only leaving tab 0 is checked.
    if (m_abaAtual == 0 && nova != 0) {
        m_trocandoAba = true;
        const bool valido = ValidaDadosGerais();
        m_trocandoAba = false;
        if (!valido) {
            voltaAbaZero();
            return;
        }
        if (dadosGerais->ChkMand_Retif[1]->isChecked() && dadosGerais->mskDadosGerais[0]->isBlank()) {
            MsgBox(QStringLiteral("Na retificação o preenchimento do número da VRT é obrigatório."),
                   Msg::OKOnly | Msg::Critical);
            voltaAbaZero();
            valores->tabValores->setCurrentIndex(1);
            dadosGerais->mskDadosGerais[0]->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    AtualizaDadosGerais();
    m_abaAtual = nova;
    if (AbaItens* aba = abaItens(nova))
        aba->aoEntrar();
}

void EditorDeclaracao::mostraAbaValores(int indice, bool visivel)
{
    QTabWidget* t = valores->tabValores;
    t->setTabVisible(indice, visivel);
    if (visivel)
        t->setEnabled(true);
}

void EditorDeclaracao::ChkMand_Retif_Click(int indice)
{
    if (m_carregando)
        return;
    QCheckBox* caixa = dadosGerais->ChkMand_Retif[indice];
    const bool marcada = caixa->isChecked();
    if (marcada) {
        if (!ValidaDadosGerais()) {
            caixa->setChecked(false);
            return;
        }
        // The declaration gets its identification before any value row is entered.
        AtualizaDadosGerais();
    }
    ExecutorBloco* bloco = valores->bloco(indice);
    QTabWidget* t = valores->tabValores;
    if (indice == 0) {
        if (marcada) {
            valores->abreEntrada(0, true);
            mostraAbaValores(0, true);
            t->setCurrentIndex(0);
            dadosGerais->mskDadosGerais[0]->clear();
            return;
        }
        bloco->excluiTodos();
        valores->limpa(0);
        valores->abreEntrada(0, false);
        mostraAbaValores(0, false);
        return;
    }
    if (marcada) {
        valores->abreEntrada(1, true);
        mostraAbaValores(1, true);
        if (!t->isTabVisible(0)) {
            t->setCurrentIndex(1);
            dadosGerais->mskDadosGerais[0]->setFocus(Qt::OtherFocusReason);
        } else {
            t->setCurrentIndex(0);
        }
        return;
    }
    dadosGerais->mskDadosGerais[0]->clear();
    bloco->botoes()->cmdIncluir->setEnabled(false);
    bloco->excluiTodos();
    valores->limpa(1);
    valores->carrega(1);
    dadosGerais->chkSimRest->setChecked(false);
    dadosGerais->mskDadosGerais[3]->clear();
    dadosGerais->mskDadosGerais[3]->setEnabled(false);
    bloco->quadroGrade()->setEnabled(true);
    t->setCurrentIndex(0);
    mostraAbaValores(1, false);
}

// A restitution and retification value rows exclude each other.
void EditorDeclaracao::chkSimRest_Click()
{
    if (m_carregando)
        return;
    ExecutorBloco* bloco = valores->bloco(1);
    MaskedField* processo = dadosGerais->mskDadosGerais[3];
    if (dadosGerais->chkSimRest->isChecked()) {
        valores->abreEntrada(1, false);
        for (const char* nome : {"cboModalidade(1)", "cboDescricao(1)"})
            qobject_cast<QComboBox*>(bloco->campo(QLatin1String(nome)))->clear();
        qobject_cast<DecimalField*>(bloco->campo(QStringLiteral("mskValor(1)")))->clear();
        bloco->quadroGrade()->setEnabled(false);
        processo->clear();
        processo->setEnabled(true);
        processo->setFocus(Qt::OtherFocusReason);
        bloco->excluiTodos();
        return;
    }
    bloco->quadroGrade()->setEnabled(true);
    processo->clear();
    processo->setEnabled(false);
    valores->abreEntrada(1, dadosGerais->ChkMand_Retif[1]->isChecked());
}

void EditorDeclaracao::RepopulaGrids()
{
    // Every chosen row is forgotten. The monthly editor re-reads only its item grids, so its values blocks keep
    // their fields and buttons; the individual one re-reads and empties its values blocks as well.
    for (int i = 0; i < 2; ++i)
        valores->bloco(i)->esqueceEscolha();
    for (AbaItens* aba : m_abasItens)
        if (aba)
            aba->repopula();
    if (!m_config.individual)
        return;
    for (int i = 0; i < 2; ++i) {
        valores->carrega(i);
        valores->limpa(i);
    }
}

void EditorDeclaracao::closeEvent(QCloseEvent* evento)
{
    if (m_fechada) {
        evento->accept();
        return;
    }
    AtualizaDadosGerais();
    if (AlteracaoPendente) {
        const int resposta = MsgBox(QStringLiteral("Deseja salvar a VRT?"), Msg::YesNoCancel | Msg::Information,
                                    TituloPadrao);
        if (resposta == Msg::Cancel || (resposta == Msg::Yes && !ValidaDadosGerais())) {
            evento->ignore();
            return;
        }
        if (resposta == Msg::Yes)
            modBancoDados::ConfirmaTransacao();
        else
            modBancoDados::DesfazTransacao();
        AlteracaoPendente = false;
    } else {
        modBancoDados::DesfazTransacao();
    }
    m_fechada = true;
    setWindowTitle(QString());
    DefinePainelStatus(2, QString());
    evento->accept();
}
