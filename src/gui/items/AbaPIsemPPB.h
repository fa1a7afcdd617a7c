#pragma once
// The tab "PI sem PPB" of both editors: the pages "Produto" (the product block), "Insumos" (the product list and
// the input block of the product chosen) and "Documentos de Origem" (PaginaDocumentosInsumo). Both blocks are
// described in BlocosPIsemPPB and run by ExecutorBloco.
#include "gui/items/AbaItens.h"

class ExecutorBloco;
class PaginaDocumentosInsumo;
class QComboBox;
class QLineEdit;
class QTabWidget;

class AbaPIsemPPB : public AbaItens {
    Q_OBJECT
public:
    AbaPIsemPPB(const ContextoItens& contexto, QWidget* parent = nullptr);

    void carrega() override;
    void repopula() override;
    void aoEntrar() override;

    ExecutorBloco* produto() const { return m_produto; }
    ExecutorBloco* insumo() const { return m_insumo; }

    QTabWidget* tabPIsemPPB = nullptr;
    QComboBox* listaProduto = nullptr;      // cboDocProdutoPIsemPPB / cboItem_PIsemPPB_Insumo
    QLineEdit* produtoDoInsumo = nullptr;   // txtDescrProdInsPIsemPPB / txtPIsemPPBNFS(1)
    PaginaDocumentosInsumo* documentos = nullptr;

private:
    QWidget* paginaInsumos();
    void trocaPagina(int indice);
    // Entering "Insumos": the product list refilled, nothing chosen; false (after its message) without products.
    bool entraInsumos();
    void escolheProduto();
    void volta();

    ExecutorBloco* m_produto = nullptr;
    ExecutorBloco* m_insumo = nullptr;
    bool m_voltando = false;
};
