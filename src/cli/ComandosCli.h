#pragma once
// The four commands of vrt-cli. Each returns the process's exit status: 0 success, 1 refusal or failure.
#include "cli/OpcoesCli.h"

namespace ComandosCli {

// Connects the database the program uses (beside the executable), or the one named by --banco; false, with
// the reason on stderr, when there is none.
bool AbreBanco(const OpcoesCli& opcoes);

int Gravar(const OpcoesCli& opcoes);
int Importar(const OpcoesCli& opcoes);
int Listar(const OpcoesCli& opcoes);
// Needs no database.
int Verificar(const OpcoesCli& opcoes);

}  // namespace ComandosCli
