#pragma once
// The members of the entry-document family described beside the DI, one file per document kind; only the table
// of MembroDocumento.cpp uses them.
#include "gui/items/MembroDocumento.h"

namespace MembrosFamilia {

// The DSI of a foreign product, monthly or individual.
MembroDocumento dsiProduto(bool individual);
// The acquisition invoice of a foreign product, monthly or individual.
MembroDocumento nfaProduto(bool individual);

}  // namespace MembrosFamilia
