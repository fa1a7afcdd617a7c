#include "gui/items/PaginaDocumentoOrigem.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/store/OrigemDocumento.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/QuadroDocumento.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const char* NomesOpcoes[3] = {"optDI_tabProdutoEstrangeiro", "optDSI_tabProdutoEstrangeiro",
                              "optNFA_tabProdutoEstrangeiro"};
const char* LegendasOpcoes[3] = {"DI", "DSI", "NF"};

QComboBox* lista(const QString& nome, QWidget* pai)
{
    auto* c = new QComboBox(pai);
    c->setObjectName(nome);
    return c;
}

QLineEdit* leitura(const QString& nome, QWidget* pai)
{
    auto* l = new QLineEdit(pai);
    l->setObjectName(nome);
    l->setReadOnly(true);
    return l;
}

}  // namespace

PaginaDocumentoOrigem::PaginaDocumentoOrigem(bool individual, std::function<QString()> idVrt,
                                             std::function<qint64()> idNfs, QWidget* parent)
    : QWidget(parent), m_individual(individual), m_idVrt(std::move(idVrt)), m_idNfs(std::move(idNfs))
{
    auto* coluna = new QVBoxLayout(this);
    auto* topo = new QGridLayout;
    constroiPickers(topo);
    auto* tipos = new QGroupBox(t("Documento de Entrada"), this);
    tipos->setObjectName(t("fraDocumentoEntrada_tabProdutoEstrangeiro"));
    auto* linhaTipos = new QHBoxLayout(tipos);
    for (int i = 0; i < 3; ++i) {
        opcoes[i] = new QRadioButton(t(LegendasOpcoes[i]), tipos);
        opcoes[i]->setObjectName(t(NomesOpcoes[i]));
        linhaTipos->addWidget(opcoes[i]);
        connect(opcoes[i], &QRadioButton::clicked, this, [this, i] { escolheTipo(i); });
    }
    topo->addWidget(tipos, 0, 3, 2, 1);
    coluna->addLayout(topo);
    botoes = new QuatroBotoes(individual ? t("cmd%1_TabPE") : t("cmd%1_tabProdutoEstrangeiro"), this);
    coluna->addWidget(botoes);
    for (int tipo = 0; tipo < 3; ++tipo) {
        const MembroDocumento* m = Membro(static_cast<TipoDocumento>(tipo), Origem::Produto, individual);
        if (!m)
            continue;
        auto* q = new QuadroDocumento(*m, this);
        m_quadros.insert(tipo, q);
        coluna->addWidget(q, 1);
        connect(q, &QuadroDocumento::selecaoMudou, botoes, &QuatroBotoes::habilitaSelecao);
    }
    coluna->addStretch(0);
    connect(botoes->cmdIncluir, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual())
            q->incluir();
    });
    connect(botoes->cmdAlterar, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual())
            q->alterar();
    });
    connect(botoes->cmdExcluir, &QPushButton::clicked, this, &PaginaDocumentoOrigem::excluir);
    connect(botoes->cmdLimpar, &QPushButton::clicked, this, [this] {
        if (QuadroDocumento* q = atual()) {
            q->limpa();
            q->carrega();
        }
    });
    reinicia();
}

void PaginaDocumentoOrigem::constroiPickers(QGridLayout* g)
{
    const auto poe = [this, g](const QString& rotulo, QWidget* w, int coluna) {
        auto* r = new QLabel(rotulo, this);
        r->setBuddy(w);
        g->addWidget(r, 0, coluna);
        g->addWidget(w, 1, coluna);
    };
    if (m_individual) {
        cboItem = lista(t("cboItem"), this);
        txtCodigoControleInternoProduto = leitura(t("txtCodigoControleInternoProduto"), this);
        txtQuantidadeTotalProduto = leitura(t("txtQuantidadeTotalProduto"), this);
        poe(t("Item"), cboItem, 0);
        poe(t("Código do produto"), txtCodigoControleInternoProduto, 1);
        poe(t("Quantidade Comercial"), txtQuantidadeTotalProduto, 2);
        connect(cboItem, &QComboBox::activated, this, &PaginaDocumentoOrigem::escolheItem);
        return;
    }
    cboDocProdutoPE = lista(t("cboDocProdutoPE"), this);
    cboLocalDestinoProduto = lista(t("cboLocalDestinoProduto"), this);
    txtQuantLocalPEDocOrigem = leitura(t("txtQuantLocalPEDocOrigem"), this);
    poe(t("Código do produto"), cboDocProdutoPE, 0);
    poe(t("Local de destino"), cboLocalDestinoProduto, 1);
    poe(t("Quantidade comercial"), txtQuantLocalPEDocOrigem, 2);
    connect(cboDocProdutoPE, &QComboBox::activated, this, &PaginaDocumentoOrigem::escolheProduto);
    connect(cboLocalDestinoProduto, &QComboBox::activated, this, &PaginaDocumentoOrigem::escolheDestino);
}

// No kind chosen: the three choices off, the frames, grids and buttons hidden.
void PaginaDocumentoOrigem::reinicia()
{
    m_tipo = -1;
    for (QRadioButton* o : opcoes) {
        o->setAutoExclusive(false);
        o->setChecked(false);
        o->setAutoExclusive(true);
    }
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->hide();
    botoes->hide();
}

bool PaginaDocumentoOrigem::entra()
{
    reinicia();
    if (m_individual) {
        cboItem->clear();
        txtCodigoControleInternoProduto->clear();
        txtQuantidadeTotalProduto->clear();
        const auto itens = OrigemDocumento::ItensNotaPE(m_idNfs());
        if (itens.isEmpty()) {
            MsgBox(t("Não existem produtos cadastrados."), Msg::OKOnly | Msg::Critical);
            emit voltaProduto();
            return false;
        }
        for (const auto& i : itens)
            cboItem->addItem(i.numero, i.id);
        cboItem->setCurrentIndex(-1);
        definePai();
        return true;
    }
    cboDocProdutoPE->clear();
    cboLocalDestinoProduto->clear();
    txtQuantLocalPEDocOrigem->clear();
    const auto itens = OrigemDocumento::ItensMensais(m_idVrt(), QStringLiteral("1"));
    if (itens.isEmpty()) {
        MsgBox(t("Não existem produtos cadastrados"), Msg::OKOnly | Msg::Information);
        emit voltaProduto();
        return false;
    }
    for (const auto& i : itens)
        cboDocProdutoPE->addItem(i.codigo, i.id);
    cboDocProdutoPE->setCurrentIndex(-1);
    definePai();
    return true;
}

void PaginaDocumentoOrigem::escolheProduto()
{
    reinicia();
    cboLocalDestinoProduto->clear();
    txtQuantLocalPEDocOrigem->clear();
    const qint64 item = cboDocProdutoPE->currentData().toLongLong();
    for (const auto& d : OrigemDocumento::Destinos(item))
        cboLocalDestinoProduto->addItem(d.local, d.id);
    cboLocalDestinoProduto->setCurrentIndex(-1);
    QString unidade;
    for (const auto& i : OrigemDocumento::ItensMensais(m_idVrt(), QStringLiteral("1")))
        if (i.id == item)
            unidade = i.unidade;
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->defineUnidade(unidade);
    definePai();
}

void PaginaDocumentoOrigem::escolheDestino()
{
    const qint64 item = cboDocProdutoPE->currentData().toLongLong();
    const qint64 destino = cboLocalDestinoProduto->currentData().toLongLong();
    for (const auto& d : OrigemDocumento::Destinos(item))
        if (d.id == destino)
            txtQuantLocalPEDocOrigem->setText(Funcoes::FormataNumero(d.quantidade, QStringLiteral("#,##0.00000")));
    definePai();
    if (QuadroDocumento* q = atual())
        q->carrega();
}

void PaginaDocumentoOrigem::escolheItem()
{
    if (cboItem->currentIndex() < 0) {
        reinicia();
        txtCodigoControleInternoProduto->clear();
        txtQuantidadeTotalProduto->clear();
        definePai();
        return;
    }
    const qint64 id = cboItem->currentData().toLongLong();
    for (const auto& i : OrigemDocumento::ItensNotaPE(m_idNfs())) {
        if (i.id != id)
            continue;
        txtCodigoControleInternoProduto->setText(i.codigo);
        txtQuantidadeTotalProduto->setText(Funcoes::FormataNumero(i.quantidade, QStringLiteral("#,##0.00000")));
        for (QuadroDocumento* q : std::as_const(m_quadros))
            q->defineUnidade(i.unidade);
    }
    definePai();
    if (QuadroDocumento* q = atual())
        q->carrega();
}

// The parent key and the grid's texts for it, from the pickers as they stand.
void PaginaDocumentoOrigem::definePai()
{
    QVariantList pai;
    QMap<QString, QString> textos;
    if (m_individual) {
        if (cboItem->currentIndex() >= 0) {
            pai << cboItem->currentData();
            textos.insert(t("#item"), cboItem->currentText());
            textos.insert(t("#produto"), txtCodigoControleInternoProduto->text());
        }
    } else if (cboDocProdutoPE->currentIndex() >= 0 && cboLocalDestinoProduto->currentIndex() >= 0) {
        pai << cboLocalDestinoProduto->currentData();
        textos.insert(t("#produto"), cboDocProdutoPE->currentText());
        textos.insert(t("#local"), cboLocalDestinoProduto->currentText());
    }
    for (QuadroDocumento* q : std::as_const(m_quadros))
        q->definePai(pai, textos);
}

void PaginaDocumentoOrigem::escolheTipo(int tipo)
{
    if (!m_individual) {
        QComboBox* falta = cboDocProdutoPE->currentIndex() < 0          ? cboDocProdutoPE
                           : cboLocalDestinoProduto->currentIndex() < 0 ? cboLocalDestinoProduto
                                                                       : nullptr;
        if (falta) {
            MsgBox(falta == cboDocProdutoPE ? t("Selecione um produto antes") : t("Selecione um local de destino antes"),
                   Msg::OKOnly | Msg::Critical);
            reinicia();
            falta->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    mostraTipo(tipo);
}

void PaginaDocumentoOrigem::mostraTipo(int tipo)
{
    m_tipo = tipo;
    for (auto i = m_quadros.cbegin(); i != m_quadros.cend(); ++i)
        i.value()->setVisible(i.key() == tipo);
    botoes->show();
    if (QuadroDocumento* q = atual()) {
        q->limpa();
        q->carrega();
    }
}

QuadroDocumento* PaginaDocumentoOrigem::atual() const
{
    return m_quadros.value(m_tipo);
}

void PaginaDocumentoOrigem::excluir()
{
    QuadroDocumento* q = atual();
    if (!q || !q->excluir() || m_individual)
        return;
    // A destination left with no document of any kind shows the page as when it was entered.
    QList<TabelaDocumento> tabelas;
    for (const QuadroDocumento* outro : std::as_const(m_quadros))
        tabelas << outro->membro().dados;
    if (!DocumentoEntrada::TemLinhas(tabelas, {cboLocalDestinoProduto->currentData()}))
        reinicia();
}
