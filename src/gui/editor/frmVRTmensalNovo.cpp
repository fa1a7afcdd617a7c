#include "gui/editor/frmVRTmensalNovo.h"

#include "gui/screens/Telas.h"

namespace {

ConfigEditor configuracao()
{
    ConfigEditor c;
    c.individual = false;
    c.nome = QStringLiteral("frmVRTmensalNovo");
    c.legendaNova = QStringLiteral("Nova VRT Mensal");
    c.legendaAberta = QStringLiteral("VRT Mensal");
    c.modoNovo = FuncaoEditor::NovaMensal;
    c.modoAbrir = FuncaoEditor::AbrirMensal;
    return c;
}

}  // namespace

frmVRTmensalNovo::frmVRTmensalNovo(QWidget* parent) : EditorDeclaracao(configuracao(), parent) {}
