#pragma once
// The NCM picker: lists NCM_ITEM from a code prefix and writes the chosen code and its statistical unit into
// the calling editor's fields (ChamadorNCM).
#include "gui/assistants/AssistenteTabela.h"

class frmAssistNCM : public AssistenteTabela {
    Q_OBJECT
public:
    explicit frmAssistNCM(QWidget* pai = nullptr);

    // An editor's picker button: leaves `chave` in ChamadorNCM, starts the list at the calling field's text,
    // and shows the picker. True when a NCM was written into the caller's fields.
    static bool Escolhe(const QString& chave, QWidget* pai = nullptr);

    QGroupBox* fraFiltro;
    QLabel* lblFiltro;
    QLineEdit* txtCodigo;
    QPushButton* cmdFiltro;
    ConsultGrid* grdAssistNCM;
    QPushButton* cmdOk;
    QPushButton* cmdCancela;
};
