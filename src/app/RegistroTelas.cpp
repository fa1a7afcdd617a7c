#include "app/RegistroTelas.h"

#include "gui/assistants/frmAssistenteCCI.h"
#include "gui/assistants/frmAssistenteMED.h"
#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/assistants/frmManipulaArquivo.h"
#include "gui/editor/frmVRTindividualNovo.h"
#include "gui/editor/frmVRTmensalNovo.h"
#include "core/session/modVRTPLN.h"
#include "gui/screens/Telas.h"

// The screens that the main window's commands open, by their number or name.
void RegistraTelas()
{
    RegistraTela(modVRTPLN::Escolha, [] { return new frmAssistenteVRT; });
    RegistraTela(modVRTPLN::ManipulaArquivo, [] { return new frmManipulaArquivo; });
    RegistraTela(modVRTPLN::Mensal, [] { return new frmVRTmensalNovo; });
    RegistraTela(modVRTPLN::Individual, [] { return new frmVRTindividualNovo; });
    // The maintenance faces of the product and unit assistants, shown modally from the Ferramentas menu; the
    // menu sets ProdutoPeloMenu or UnidadePeloMenu before it builds them.
    RegistraDialogo(QStringLiteral("frmAssistenteCCI"), [](QWidget* pai) { return new frmAssistenteCCI(pai); });
    RegistraDialogo(QStringLiteral("frmAssistenteMED"), [](QWidget* pai) { return new frmAssistenteMED(pai); });
}
