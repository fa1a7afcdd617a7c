#pragma once
// The currency picker: lists MOEDA from a code prefix and writes the chosen code into the calling editor's
// field (ChamadorMoeda).
#include "gui/assistants/AssistenteTabela.h"

class frmAssistMoeda : public AssistenteTabela {
    Q_OBJECT
public:
    explicit frmAssistMoeda(QWidget* pai = nullptr);

    // An editor's picker button: leaves `chave` in ChamadorMoeda, starts the list at the calling field's text,
    // and shows the picker. True when a currency was written into the caller's field.
    static bool Escolhe(const QString& chave, QWidget* pai = nullptr);

    QGroupBox* fraFiltro;
    QLabel* lblFiltro;
    QLineEdit* txtCodigo;
    QPushButton* cmdFiltro;
    ConsultGrid* grdAssistMoeda;
    QPushButton* cmdOk;
    QPushButton* cmdCancela;
};
