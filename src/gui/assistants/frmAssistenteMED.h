#pragma once
// The commercial unit assistant: keeps UNIDADE_MEDIDA from the Ferramentas menu. It has no filter and picks
// nothing: outside the menu it only lists the units.
#include "gui/assistants/AssistenteTabela.h"

class frmAssistenteMED : public AssistenteTabela {
    Q_OBJECT
public:
    // The face follows UnidadePeloMenu at creation.
    explicit frmAssistenteMED(QWidget* pai = nullptr);

    ConsultGrid* grdAssistenteMED;
    QLabel* lblCodigoUnidade;
    QLabel* lblDescricaoUnidade;
    QLineEdit* txtCodigoUnidade;
    QLineEdit* txtDescricaoUnidade;
    QPushButton* cmdIncluir_UnidadeMedida;
    QPushButton* cmdAlterar_UnidadeMedida;
    QPushButton* cmdExcluir_UnidadeMedida;
    QPushButton* cmdCancela;
};
