#pragma once
// The page "Documento de Origem" of the foreign-product tab: the product and destination pickers (monthly) or
// the item picker (individual), the choice of the document kind, the four buttons that act on the kind in force,
// and one QuadroDocumento per kind whose member is described.
#include "gui/items/MembroDocumento.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QRadioButton;
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
    // The frame of a kind; nullptr when its member is not described.
    QuadroDocumento* quadro(TipoDocumento tipo) const { return m_quadros.value(static_cast<int>(tipo)); }

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
    void reinicia();
    void escolheProduto();
    void escolheDestino();
    void escolheItem();
    void escolheTipo(int tipo);
    void mostraTipo(int tipo);
    void definePai();
    QuadroDocumento* atual() const;
    void excluir();

    bool m_individual;
    std::function<QString()> m_idVrt;
    std::function<qint64()> m_idNfs;
    QMap<int, QuadroDocumento*> m_quadros;
    int m_tipo = -1;
};
