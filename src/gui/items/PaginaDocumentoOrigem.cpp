#include "gui/items/PaginaDocumentoOrigem.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/store/OrigemDocumento.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/EscolhaDocumento.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

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
    m_docs = new EscolhaDocumento({Origem::Produto, individual, t("Documento de Entrada"),
                                   t("fraDocumentoEntrada_tabProdutoEstrangeiro"),
                                   individual ? t("cmd%1_TabPE") : t("cmd%1_tabProdutoEstrangeiro"), QString()},
                                  this);
    for (int i = 0; i < 3; ++i)
        opcoes[i] = m_docs->opcoes[i];
    botoes = m_docs->botoes;
    topo->addWidget(m_docs->tipos, 0, 3, 2, 1);
    coluna->addLayout(topo);
    coluna->addWidget(botoes);
    m_docs->poeQuadros(coluna);
    m_docs->podeEscolher = [this] { return podeEscolher(); };
    if (!individual)
        m_docs->paiDasLinhas = [this] { return QVariantList{cboLocalDestinoProduto->currentData()}; };
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

bool PaginaDocumentoOrigem::entra()
{
    m_docs->reinicia();
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
    m_docs->reinicia();
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
    m_docs->defineUnidade(unidade);
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
    m_docs->recarrega();
}

void PaginaDocumentoOrigem::escolheItem()
{
    if (cboItem->currentIndex() < 0) {
        m_docs->reinicia();
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
        m_docs->defineUnidade(i.unidade);
    }
    definePai();
    m_docs->recarrega();
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
    m_docs->definePai(pai, textos);
}

bool PaginaDocumentoOrigem::podeEscolher()
{
    if (m_individual)
        return true;
    QComboBox* falta = cboDocProdutoPE->currentIndex() < 0          ? cboDocProdutoPE
                       : cboLocalDestinoProduto->currentIndex() < 0 ? cboLocalDestinoProduto
                                                                   : nullptr;
    if (!falta)
        return true;
    MsgBox(falta == cboDocProdutoPE ? t("Selecione um produto antes") : t("Selecione um local de destino antes"),
           Msg::OKOnly | Msg::Critical);
    falta->setFocus(Qt::OtherFocusReason);
    return false;
}

QuadroDocumento* PaginaDocumentoOrigem::quadro(TipoDocumento tipo) const
{
    return m_docs->quadro(tipo);
}
