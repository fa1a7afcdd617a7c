#include "shell/frmVRTPLN.h"

// The screens that the main window's commands open, by their number or name.
void RegistraTelas()
{
}
