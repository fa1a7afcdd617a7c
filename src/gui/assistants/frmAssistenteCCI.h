#pragma once
// The product assistant: keeps PRODUTO from the Ferramentas menu, and picks a product for an editor.
#include "gui/assistants/AssistenteTabela.h"

class frmAssistenteCCI : public AssistenteTabela {
    Q_OBJECT
public:
    // The face follows ProdutoPeloMenu at creation.
    explicit frmAssistenteCCI(QWidget* pai = nullptr);

    // An editor's picker button: leaves `chave` in ChamadorProduto, starts the list at the calling field's
    // trimmed text, and shows the picker. True when a product was written into the caller's fields.
    static bool Escolhe(const QString& chave, QWidget* pai = nullptr);

    QGroupBox* fraFiltro;
    QLineEdit* txtCodigo;
    QPushButton* cmdFiltro;
    ConsultGrid* grdAssistenteCCI;
    QLabel* lblCodigoProduto;
    QLabel* lblDescricaoProduto;
    QLineEdit* txtCodigoProduto;
    QLineEdit* txtDescricaoProduto;
    QPushButton* cmdIncluir_Produto;
    QPushButton* cmdAlterar_Produto;
    QPushButton* cmdExcluir_Produto;
    QPushButton* cmdOk;
    QPushButton* cmdCancela;
};
