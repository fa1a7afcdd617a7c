#pragma once
// The tab "PI com PPB" of both editors: the options "DCR" and "DCR-E", and for the option chosen its entry
// block and grid (BlocosPIcomPPB). One set of four buttons serves whichever option is chosen; in the
// individual editor one item field, beside the invoice head, serves both.
#include "gui/items/AbaItens.h"

class ExecutorBloco;
class QRadioButton;
class QuatroBotoes;

class AbaPIcomPPB : public AbaItens {
    Q_OBJECT
public:
    AbaPIcomPPB(const ContextoItens& contexto, QWidget* parent = nullptr);

    // Loads both grids; the monthly editor then chooses DCR when it has rows, and DCR-E when that one has
    // (DCR-E wins); the individual editor DCR-E when only it has rows, else DCR.
    void carrega() override;
    void repopula() override;
    // The individual editor chooses DCR-E each time the tab comes up, whatever was chosen before.
    void aoEntrar() override;

    ExecutorBloco* bloco(bool dcr) const { return dcr ? m_dcr : m_dcre; }
    ExecutorBloco* blocoEscolhido() const;
    QRadioButton* optDCR = nullptr;
    QRadioButton* optDCRE = nullptr;

private:
    // HabilitaControlesDependentes_optDCR... / _optDCRE...: shows the option's frames, hides the other's.
    void escolhe(bool dcr);
    void mostra(bool dcr);
    // The store has items of this type for the tab's parent (its grid need not be read for that).
    bool temItens(const QString& tipo) const;

    ExecutorBloco* m_dcr = nullptr;
    ExecutorBloco* m_dcre = nullptr;
    QWidget* m_areaDcr = nullptr;
    QWidget* m_areaDcre = nullptr;
    QuatroBotoes* m_botoes = nullptr;
};
