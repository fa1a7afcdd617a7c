#include "gui/items/AbaProdutoEstrangeiro.h"

#include "gui/items/PaginaDocumentoOrigem.h"
#include "gui/items/PaginaProdutoIndividual.h"
#include "gui/items/PaginaProdutoMensal.h"

#include <QTabWidget>
#include <QVBoxLayout>

AbaProdutoEstrangeiro::AbaProdutoEstrangeiro(bool individual, std::function<QString()> idVrt,
                                             std::function<qint64()> idNfs, QWidget* parent)
    : QWidget(parent)
{
    auto* coluna = new QVBoxLayout(this);
    coluna->setContentsMargins(0, 0, 0, 0);
    tabProdutoEstrangeiro = new QTabWidget(this);
    tabProdutoEstrangeiro->setObjectName(QStringLiteral("tabProdutoEstrangeiro"));
    QWidget* produto = nullptr;
    if (individual) {
        produtoIndividual = new PaginaProdutoIndividual(idVrt, idNfs);
        connect(produtoIndividual, &PaginaProdutoIndividual::mostraPagina, this, &AbaProdutoEstrangeiro::mostraProduto);
        produto = produtoIndividual;
    } else {
        produtoMensal = new PaginaProdutoMensal(idVrt);
        connect(produtoMensal, &PaginaProdutoMensal::mostraPagina, this, &AbaProdutoEstrangeiro::mostraProduto);
        produto = produtoMensal;
    }
    produto->setObjectName(QStringLiteral("tabProdutoEstrangeiro(0)"));
    documentoOrigem = new PaginaDocumentoOrigem(individual, std::move(idVrt), std::move(idNfs));
    documentoOrigem->setObjectName(QStringLiteral("tabProdutoEstrangeiro(1)"));
    tabProdutoEstrangeiro->addTab(produto, QStringLiteral("Produto"));
    tabProdutoEstrangeiro->addTab(documentoOrigem, QString::fromUtf8("Documento de Origem"));
    coluna->addWidget(tabProdutoEstrangeiro);
    connect(tabProdutoEstrangeiro, &QTabWidget::currentChanged, this, &AbaProdutoEstrangeiro::trocaPagina);
    connect(documentoOrigem, &PaginaDocumentoOrigem::voltaProduto, this, [this] {
        m_voltando = true;
        tabProdutoEstrangeiro->setCurrentIndex(0);
        m_voltando = false;
    });
}

void AbaProdutoEstrangeiro::entra()
{
    if (produtoMensal)
        produtoMensal->CarregaGridPE();
    else
        produtoIndividual->CarregaGridPE();
    if (tabProdutoEstrangeiro->currentIndex() == 1)
        documentoOrigem->entra();
}

void AbaProdutoEstrangeiro::mostraProduto()
{
    emit mostraAba();
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
