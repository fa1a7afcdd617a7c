#include "gui/items/AbaPIsemPPB.h"

#include "core/lookups/BuscaProduto.h"
#include "core/session/MsgBox.h"
#include "core/store/ItensPIsemPPB.h"
#include "gui/blocks/ExecutorBloco.h"
#include "gui/items/BlocosPIsemPPB.h"
#include "gui/items/CamposItem.h"
#include "gui/items/PaginaDocumentosInsumo.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>

AbaPIsemPPB::AbaPIsemPPB(const ContextoItens& contexto, QWidget* parent)
    : AbaItens(contexto, QStringLiteral("tabPIsemPPB_NFS"), parent)
{
    const bool ind = contexto.individual;
    setObjectName(ind ? QStringLiteral("tabPIsemPPBIndividual") : QStringLiteral("fraPIsemPPBMensal"));
    tabPIsemPPB = new QTabWidget(this);
    tabPIsemPPB->setObjectName(QStringLiteral("tabPIsemPPB"));

    auto idVrt = [this] { return this->contexto().idVrt ? this->contexto().idVrt() : QString(); };
    DescricaoBloco produto = BlocosPIsemPPB::Produto(ind, idVrt);
    if (ind)
        // The individual editor warns that the inputs go with the product when the input grid shows rows.
        produto.perguntaExcluir = [this](const ExecutorBloco&) {
            return m_insumo->temLinhas()
                       ? QStringLiteral("Existem insumos para este produto, que serão excluídos automaticamente. Confirma?")
                       : QStringLiteral("Deseja realmente excluir?");
        };
    m_produto = new ExecutorBloco(produto, [this] { return pai(); }, this);
    auto* paginaProduto = new QWidget(this);
    paginaProduto->setObjectName(QStringLiteral("tabPIsemPPB(0)"));
    m_produto->constroi(paginaProduto);
    CamposItem::registraDestinos(*m_produto);
    tabPIsemPPB->addTab(paginaProduto, QStringLiteral("Produto"));
    tabPIsemPPB->addTab(PaginaRolavel(paginaInsumos(), this), QStringLiteral("Insumos"));

    documentos = new PaginaDocumentosInsumo(ind, idVrt, [this] { return pai().toLongLong(); }, this);
    documentos->setObjectName(QStringLiteral("tabPIsemPPB(2)"));
    tabPIsemPPB->addTab(PaginaRolavel(documentos, this), QStringLiteral("Documentos de Origem"));
    corpo()->addWidget(tabPIsemPPB, 1);

    connect(tabPIsemPPB, &QTabWidget::currentChanged, this, &AbaPIsemPPB::trocaPagina);
    connect(documentos, &PaginaDocumentosInsumo::voltaProduto, this, &AbaPIsemPPB::volta);
}

QWidget* AbaPIsemPPB::paginaInsumos()
{
    const bool ind = individual();
    auto* pagina = new QWidget(this);
    pagina->setObjectName(QStringLiteral("tabPIsemPPB(1)"));
    auto* coluna = new QVBoxLayout(pagina);
    auto* quadro = new QGroupBox(QStringLiteral("Produto"), pagina);
    auto* g = new QGridLayout(quadro);
    listaProduto = new QComboBox(quadro);
    listaProduto->setObjectName(BlocosPIsemPPB::ListaProduto(ind));
    produtoDoInsumo = new QLineEdit(quadro);
    produtoDoInsumo->setObjectName(ind ? QStringLiteral("txtPIsemPPBNFS(1)") : QStringLiteral("txtDescrProdInsPIsemPPB"));
    produtoDoInsumo->setEnabled(false);
    g->addWidget(new QLabel(ind ? QStringLiteral("Item") : QStringLiteral("Código do produto"), quadro), 0, 0);
    g->addWidget(new QLabel(ind ? QStringLiteral("Código do produto") : QStringLiteral("Descrição"), quadro), 0, 1);
    g->addWidget(listaProduto, 1, 0);
    g->addWidget(produtoDoInsumo, 1, 1);
    g->setColumnStretch(1, 1);
    coluna->addWidget(quadro);

    auto idVrt = [this] { return this->contexto().idVrt ? this->contexto().idVrt() : QString(); };
    m_insumo = new ExecutorBloco(BlocosPIsemPPB::Insumo(ind, idVrt), [this] {
        return listaProduto->currentIndex() >= 0 ? listaProduto->currentData() : QVariant(0);
    }, this);
    m_insumo->adotaCampo(listaProduto->objectName(), listaProduto);
    auto* area = new QWidget(pagina);
    m_insumo->constroi(area);
    CamposItem::registraDestinos(*m_insumo);
    coluna->addWidget(area, 1);
    if (!ind)
        // The unit check of an input sends the focus to the product's unit list.
        m_insumo->adotaCampo(QStringLiteral("cboUnidadePIsemPPB"), m_produto->campo(QStringLiteral("cboUnidadePIsemPPB")));
    connect(listaProduto, &QComboBox::activated, this, &AbaPIsemPPB::escolheProduto);
    return pagina;
}

bool AbaPIsemPPB::entraInsumos()
{
    const bool ind = individual();
    m_insumo->limpa();
    listaProduto->clear();
    produtoDoInsumo->clear();
    const QList<QStringList> produtos = ind ? ItensPIsemPPB::LinhasProdutosNota(pai().toLongLong())
                                            : ItensPIsemPPB::ProdutosDaDeclaracao(pai().toString());
    for (const QStringList& p : produtos)
        listaProduto->addItem(p.value(1), p.value(0));  // the item number, or the product code
    listaProduto->setCurrentIndex(-1);
    m_insumo->carrega();
    if (!produtos.isEmpty())
        return true;
    MsgBox(ind ? QStringLiteral("Não existem produtos cadastrados!") : QStringLiteral("Não existem produtos cadastrados"),
           Msg::OKOnly | Msg::Information);
    return false;
}

void AbaPIsemPPB::escolheProduto()
{
    if (individual()) {
        for (const QStringList& p : ItensPIsemPPB::LinhasProdutosNota(pai().toLongLong()))
            if (p.value(0) == listaProduto->currentData().toString())
                produtoDoInsumo->setText(p.value(2));
    } else {
        produtoDoInsumo->setText(modVRTPLN::BuscaProduto(listaProduto->currentText().trimmed(), true));
    }
    m_insumo->limpa();
    m_insumo->carrega();
}

void AbaPIsemPPB::volta()
{
    m_voltando = true;
    tabPIsemPPB->setCurrentIndex(0);
    m_voltando = false;
}

void AbaPIsemPPB::trocaPagina(int indice)
{
    if (m_voltando)
        return;
    if (indice == 1 && !entraInsumos())
        volta();
    else if (indice == 2)
        documentos->entra();
}

void AbaPIsemPPB::carrega()
{
    m_produto->carrega();
}

void AbaPIsemPPB::repopula()
{
    m_produto->carrega();
    m_produto->limpa();
    if (tabPIsemPPB->currentIndex() != 0)
        volta();
}

void AbaPIsemPPB::aoEntrar()
{
    AbaItens::aoEntrar();
    m_produto->carrega();
    if (tabPIsemPPB->currentIndex() == 2)
        documentos->entra();
}
