#pragma once
// The four commands of vrt-cli. Each returns the process's exit status: 0 success, 1 refusal or failure.
#include "cli/OpcoesCli.h"

namespace ComandosCli {

// The database the program uses (beside the executable, or in the user's data folder), or the one named by
// --banco; empty, with the reason on stderr, when there is none.
QString ArquivoDoBanco(const OpcoesCli& opcoes);
// Whether the command writes to the database: it then must hold the database's lock, as the program does.
bool Escreve(const QString& comando);
// Connects `arquivo` as the session's connection.
bool AbreBanco(const QString& arquivo);

// The old version's database brought in; --substituir answers Yes to losing the present data.
int BancoAnterior(const OpcoesCli& opcoes);
int Gravar(const OpcoesCli& opcoes);
int Importar(const OpcoesCli& opcoes);
int Listar(const OpcoesCli& opcoes);
// Needs no database.
int Verificar(const OpcoesCli& opcoes);

}  // namespace ComandosCli
