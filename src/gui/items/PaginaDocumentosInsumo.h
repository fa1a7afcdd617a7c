#pragma once
// The page "Documentos de Origem" of the tab "PI sem PPB". Monthly: the inputs and places of the consolidated
// picture of the declaration, the input's statistical total (INSUMO_VRT, written when the field is left) and the
// total quantity of the input at the place. Individual: the items of the exit invoice, the inputs of the item
// chosen and the input's statistical total (INSUMO_VRT_IND). The document kinds (EscolhaDocumento) stand below.
#include "gui/items/MembroDocumento.h"

#include <QMap>
#include <QWidget>
#include <functional>

class DecimalField;
class EscolhaDocumento;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QuadroDocumento;
class QuatroBotoes;

class PaginaDocumentosInsumo : public QWidget {
    Q_OBJECT
public:
    PaginaDocumentosInsumo(bool individual, std::function<QString()> idVrt, std::function<qint64()> idNfs,
                           QWidget* parent = nullptr);

    // Entering the page: lists refilled, choices cleared. False (after its message) when there is nothing to hang
    // documents on, and the tab goes back to "Produto".
    bool entra();

    QComboBox* cboItem = nullptr;          // individual: cmdItem_TabPIsemPPB_Documento
    QComboBox* cboInsumo = nullptr;        // cboCCIInsumoPIsemPPB / cmbCodigoControleInternoInsumo
    DecimalField* total = nullptr;         // mskPIsemPPB(0) / mskPIsemPPB
    QComboBox* cboLocal = nullptr;         // monthly: cboLocalDestinoInsumo
    QLineEdit* txtQuantidadeTotalInsumo = nullptr;
    QLabel* rotuloQuantidade = nullptr;
    QRadioButton* opcoes[3] = {};          // optDI_, optDSI_, optNFA_tabPIsemPPB
    QuatroBotoes* botoes = nullptr;
    // The frame of a kind.
    QuadroDocumento* quadro(TipoDocumento tipo) const;

signals:
    void voltaProduto();

private:
    QWidget* constroiQuadro();
    QString codigo() const;
    void escolheItem();
    void escolheInsumo();
    void escolheLocal();
    // A kind may be chosen once the input and its place (the item and its input) are.
    bool podeEscolher();
    void gravaTotal();
    void definePai();

    bool m_individual;
    std::function<QString()> m_idVrt;
    std::function<qint64()> m_idNfs;
    bool m_existe = false;       // the input has its row of statistical total
    QString m_textoAoEntrar;     // the total's text when the field was entered
    EscolhaDocumento* m_docs = nullptr;
};
