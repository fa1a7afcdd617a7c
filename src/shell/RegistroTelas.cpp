#include "shell/frmVRTPLN.h"

#include "assistants/frmAssistenteCCI.h"
#include "assistants/frmAssistenteMED.h"
#include "assistants/frmAssistenteVRT.h"
#include "editor/frmVRTindividualNovo.h"
#include "editor/frmVRTmensalNovo.h"
#include "file/frmManipulaArquivo.h"
#include "shell/modVRTPLN.h"

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
