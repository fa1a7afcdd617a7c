#pragma once
// The editor of a declaration tied to one exit invoice (CD_TIPO_VRT "1"): FuncaoForm 1 new, 3 open.
#include "gui/editor/EditorDeclaracao.h"

class frmVRTindividualNovo : public EditorDeclaracao {
    Q_OBJECT
public:
    explicit frmVRTindividualNovo(QWidget* parent = nullptr);
};
