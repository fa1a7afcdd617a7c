#pragma once
// The page "Documentos de Origem" of the tab "PI sem PPB". Monthly: the inputs and places of the consolidated
// picture of the declaration, the input's statistical total (INSUMO_VRT, written when the field is left) and the
// total quantity of the input at the place. Individual: the items of the exit invoice, the inputs of the item
// chosen and the input's statistical total (INSUMO_VRT_IND). The document kind is chosen below them.
#include "gui/items/MembroDocumento.h"

#include <QMap>
#include <QWidget>
#include <functional>

class DecimalField;
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
    // The frame of a kind; nullptr when its member is not described.
    QuadroDocumento* quadro(TipoDocumento tipo) const { return m_quadros.value(static_cast<int>(tipo)); }

signals:
    void voltaProduto();

private:
    QString codigo() const;
    void escolheItem();
    void escolheInsumo();
    void escolheLocal();
    void escolheTipo(int tipo);
    void gravaTotal();
    void reinicia();
    void definePai();
    void mostraTipo(int tipo);
    QuadroDocumento* atual() const { return m_quadros.value(m_tipo); }
    void excluir();

    bool m_individual;
    std::function<QString()> m_idVrt;
    std::function<qint64()> m_idNfs;
    bool m_existe = false;       // the input has its row of statistical total
    QString m_textoAoEntrar;     // the total's text when the field was entered
    QMap<int, QuadroDocumento*> m_quadros;
    int m_tipo = -1;
};
