#include "gui/editor/frmVRTindividualNovo.h"

#include "gui/screens/Telas.h"

namespace {

ConfigEditor configuracao()
{
    ConfigEditor c;
    c.individual = true;
    c.nome = QStringLiteral("frmVRTindividualNovo");
    c.legendaNova = QStringLiteral("Nova VRT Individual");
    c.legendaAberta = QStringLiteral("VRT Individual");
    c.modoNovo = FuncaoEditor::NovaIndividual;
    c.modoAbrir = FuncaoEditor::AbrirIndividual;
    return c;
}

}  // namespace

frmVRTindividualNovo::frmVRTindividualNovo(QWidget* parent) : EditorDeclaracao(configuracao(), parent) {}
