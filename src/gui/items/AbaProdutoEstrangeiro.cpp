#include "gui/items/AbaProdutoEstrangeiro.h"

#include "gui/items/PaginaDocumentoOrigem.h"
#include "gui/items/AliquotaDiferente.h"
#include "gui/items/CamposItem.h"
#include "gui/widgets/FieldFocus.h"

#include <QTabWidget>
#include <QVBoxLayout>

AbaProdutoEstrangeiro::AbaProdutoEstrangeiro(const ContextoItens& contexto, QWidget* parent)
    : AbaItens(contexto, QStringLiteral("tabProdutoEstrangeiro_NFS"), parent)
{
    tabProdutoEstrangeiro = new QTabWidget(this);
    tabProdutoEstrangeiro->setObjectName(QStringLiteral("tabProdutoEstrangeiro"));
    setProperty("paginaAjuda", QStringLiteral("produto_estrangeiro.html"));
    auto* pagina = new QWidget;
    pagina->setObjectName(QStringLiteral("tabProdutoEstrangeiro(0)"));
    taxas = BlocosProdutoEstrangeiro::Taxas(contexto.individual, pagina);
    produto = new ExecutorBloco(BlocosProdutoEstrangeiro::Descricao(contexto, taxas), [this] { return pai(); }, this);
    taxas.ii->entregaA(*produto);
    taxas.ipi->entregaA(*produto);
    produto->constroi(pagina);
    // The product and NCM pickers write into this page's fields.
    CamposItem::registraDestinos(*produto);
    connect(produto, &ExecutorBloco::recusou, this, &AbaProdutoEstrangeiro::mostraProduto);
    documentoOrigem = new PaginaDocumentoOrigem(contexto.individual, contexto.idVrt, contexto.idNfs);
    documentoOrigem->setObjectName(QStringLiteral("tabProdutoEstrangeiro(1)"));
    tabProdutoEstrangeiro->addTab(PaginaRolavel(pagina, this), QStringLiteral("Produto"));
    tabProdutoEstrangeiro->addTab(PaginaRolavel(documentoOrigem, this), QString::fromUtf8("Documento de Origem"));
    corpo()->addWidget(tabProdutoEstrangeiro, 1);
    connect(tabProdutoEstrangeiro, &QTabWidget::currentChanged, this, &AbaProdutoEstrangeiro::trocaPagina);
    connect(documentoOrigem, &PaginaDocumentoOrigem::voltaProduto, this, [this] {
        m_voltando = true;
        tabProdutoEstrangeiro->setCurrentIndex(0);
        m_voltando = false;
    });
}

void AbaProdutoEstrangeiro::carrega()
{
    produto->carrega();
}

void AbaProdutoEstrangeiro::repopula()
{
    produto->limpa();
    carrega();
}

void AbaProdutoEstrangeiro::aoEntrar()
{
    AbaItens::aoEntrar();
    carrega();
    if (tabProdutoEstrangeiro->currentIndex() == 1)
        documentoOrigem->entra();
}

// A check of the page "Produto" failed: the tab and the page come to the front.
void AbaProdutoEstrangeiro::mostraProduto()
{
    showFieldTab(tabProdutoEstrangeiro);
    m_voltando = true;
    tabProdutoEstrangeiro->setCurrentIndex(0);
    m_voltando = false;
}

void AbaProdutoEstrangeiro::trocaPagina(int indice)
{
    if (m_voltando || indice == 0)
        return;
    documentoOrigem->entra();
}
