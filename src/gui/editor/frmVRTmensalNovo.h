#pragma once
// The monthly declaration's editor (CD_TIPO_VRT "2"): FuncaoForm 0 new, 2 open.
#include "gui/editor/EditorDeclaracao.h"

class frmVRTmensalNovo : public EditorDeclaracao {
    Q_OBJECT
public:
    explicit frmVRTmensalNovo(QWidget* parent = nullptr);
};
