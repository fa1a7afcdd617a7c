#include "editor/frmVRTmensalNovo.h"

namespace {

ConfigEditor configuracao()
{
    ConfigEditor c;
    c.individual = false;
    c.nome = QStringLiteral("frmVRTmensalNovo");
    c.legendaNova = QStringLiteral("Nova VRT Mensal");
    c.legendaAberta = QStringLiteral("VRT Mensal");
    c.modoNovo = 0;
    c.modoAbrir = 2;
    return c;
}

}  // namespace

frmVRTmensalNovo::frmVRTmensalNovo(QWidget* parent) : EditorDeclaracao(configuracao(), parent) {}
