#pragma once
// A rule run when an entry field is left for another control of the screen (not when a message box or another
// window takes the focus). A rule that refuses shows its own message and returns false; the field's tab comes to
// the front and the field gets the focus back.
//     aoSair(txtDadosGerais[1], [this] { return Funcoes::ValidaCampoBancario(CampoBancario::Banco, ...); });
#include <functional>

class QWidget;

void aoSair(QWidget* campo, std::function<bool()> regra);
