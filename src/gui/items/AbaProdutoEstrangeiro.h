#pragma once
// The tab "Produto Estrangeiro" of both editors: under the invoice head of the individual editor, the page
// "Produto" (a block of the item foundation, monthly or individual) and the page "Documento de Origem".
#include "gui/items/AbaItens.h"

#include "gui/items/BlocosProdutoEstrangeiro.h"

class ExecutorBloco;
class PaginaDocumentoOrigem;
class QTabWidget;

class AbaProdutoEstrangeiro : public AbaItens {
    Q_OBJECT
public:
    AbaProdutoEstrangeiro(const ContextoItens& contexto, QWidget* parent = nullptr);

    void carrega() override;
    void repopula() override;
    // The tab comes up: the head, the grid of the page "Produto", and the pickers when the other page is shown.
    void aoEntrar() override;

    QTabWidget* tabProdutoEstrangeiro = nullptr;
    ExecutorBloco* produto = nullptr;  // the page "Produto": one block, monthly or individual
    TaxasProduto taxas;                // its two rate frames
    PaginaDocumentoOrigem* documentoOrigem = nullptr;

private:
    void trocaPagina(int indice);
    void mostraProduto();
    bool m_voltando = false;
};
