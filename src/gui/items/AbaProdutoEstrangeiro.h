#pragma once
// The tab "Produto Estrangeiro" of both editors: under the invoice head of the individual editor, the page
// "Produto" (monthly or individual) and the page "Documento de Origem".
#include "gui/items/AbaItens.h"

class PaginaDocumentoOrigem;
class PaginaProdutoIndividual;
class PaginaProdutoMensal;
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
    PaginaProdutoMensal* produtoMensal = nullptr;         // the monthly editor
    PaginaProdutoIndividual* produtoIndividual = nullptr; // the individual editor
    PaginaDocumentoOrigem* documentoOrigem = nullptr;

private:
    void trocaPagina(int indice);
    void mostraProduto();
    bool m_voltando = false;
};
