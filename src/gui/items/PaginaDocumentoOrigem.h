#pragma once
// The page "Documento de Origem" of the foreign-product tab: the product and destination pickers (monthly) or
// the item picker (individual) above the document kinds of EscolhaDocumento.
#include "gui/items/MembroDocumento.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QRadioButton;
class EscolhaDocumento;
class QuadroDocumento;
class QuatroBotoes;

class PaginaDocumentoOrigem : public QWidget {
    Q_OBJECT
public:
    // `idVrt` and `idNfs` give the declaration and, in the individual editor, its exit invoice when asked.
    PaginaDocumentoOrigem(bool individual, std::function<QString()> idVrt, std::function<qint64()> idNfs,
                          QWidget* parent = nullptr);

    // Entering the page: pickers reloaded, choices cleared, frames hidden. False (after its message) when the
    // declaration has no foreign product yet, so that the tab goes back to "Produto".
    bool entra();
    // The frame of a kind.
    QuadroDocumento* quadro(TipoDocumento tipo) const;

    QComboBox* cboDocProdutoPE = nullptr;         // monthly
    QComboBox* cboLocalDestinoProduto = nullptr;  // monthly
    QLineEdit* txtQuantLocalPEDocOrigem = nullptr;
    QComboBox* cboItem = nullptr;                 // individual
    QLineEdit* txtCodigoControleInternoProduto = nullptr;
    QLineEdit* txtQuantidadeTotalProduto = nullptr;
    QRadioButton* opcoes[3] = {};                 // optDI_, optDSI_, optNFA_tabProdutoEstrangeiro
    QuatroBotoes* botoes = nullptr;

signals:
    // The page asks to go back to "Produto" (no product to hang documents on).
    void voltaProduto();

private:
    void constroiPickers(class QGridLayout* g);
    void escolheProduto();
    void escolheDestino();
    void escolheItem();
    // A kind may be chosen once the product and its destination are (monthly).
    bool podeEscolher();
    void definePai();

    bool m_individual;
    std::function<QString()> m_idVrt;
    std::function<qint64()> m_idNfs;
    EscolhaDocumento* m_docs = nullptr;
};
