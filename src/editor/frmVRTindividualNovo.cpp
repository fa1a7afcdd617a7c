#include "editor/frmVRTindividualNovo.h"

namespace {

ConfigEditor configuracao()
{
    ConfigEditor c;
    c.individual = true;
    c.nome = QStringLiteral("frmVRTindividualNovo");
    c.legendaNova = QStringLiteral("Nova VRT Individual");
    c.legendaAberta = QStringLiteral("VRT Individual");
    c.modoNovo = 1;
    c.modoAbrir = 3;
    return c;
}

}  // namespace

frmVRTindividualNovo::frmVRTindividualNovo(QWidget* parent) : EditorDeclaracao(configuracao(), parent) {}
