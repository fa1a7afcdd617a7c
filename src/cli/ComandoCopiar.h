#pragma once
// vrt-cli copiar ID [--retificacao NUMERO]: copies a declaration, whole, under the next identification, as the
// chooser's copy panel does; "Original" without the option, "Retificadora" with it.
#include "cli/OpcoesCli.h"

namespace ComandosCli {

// 0 when the copy was committed (its identification on stdout); 1 for an identification that does not exist
// or a declaration number refused with the panel's own messages.
int Copiar(const OpcoesCli& opcoes);

}  // namespace ComandosCli
