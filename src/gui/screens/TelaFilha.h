#pragma once
// A child screen of the main window (chooser, editors, file chooser, product assistant). The main window shows
// it in an MDI sub-window, hands it an action through FuncaoForm, and asks it to close through closeEvent: a
// screen that refuses (the user answered Cancel) ignores the event and stays open.
#include <QWidget>

class TelaFilha : public QWidget {
    Q_OBJECT
public:
    explicit TelaFilha(QWidget* parent = nullptr) : QWidget(parent) {}
    // The numbered action the main window's command hands over (0 open, 1 eliminate, ... as each screen defines).
    virtual void FuncaoForm(int funcao) { Q_UNUSED(funcao); }
    // The editors re-read their grids after the main window's Salvar, and check and store their general data.
    virtual void RepopulaGrids() {}
    virtual bool ValidaDadosGerais() { return true; }
    virtual void AtualizaDadosGerais() {}
};
