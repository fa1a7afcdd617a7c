#pragma once
// vrt-cli tabela ARQUIVO: imports a reference table file (currencies, NCM, products, states, units) as the
// program's table import commands do.
#include "cli/OpcoesCli.h"

namespace ComandosCli {

// 0 when the file was read to its end; 1 for a file refused or stopped at an unexpected line.
int Tabela(const OpcoesCli& opcoes);

}  // namespace ComandosCli
