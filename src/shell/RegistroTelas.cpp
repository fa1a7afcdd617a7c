#include "shell/frmVRTPLN.h"

#include "assistants/frmAssistenteCCI.h"
#include "assistants/frmAssistenteMED.h"

// The screens that the main window's commands open, by their number or name.
void RegistraTelas()
{
    // The maintenance faces of the product and unit assistants, shown modally from the Ferramentas menu; the
    // menu sets ProdutoPeloMenu or UnidadePeloMenu before it builds them.
    RegistraDialogo(QStringLiteral("frmAssistenteCCI"), [](QWidget* pai) { return new frmAssistenteCCI(pai); });
    RegistraDialogo(QStringLiteral("frmAssistenteMED"), [](QWidget* pai) { return new frmAssistenteMED(pai); });
}
