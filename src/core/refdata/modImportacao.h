#pragma once
// Reference table import: currencies, NCM, products, states and units of measure loaded from a table file.
// The file says by its line types which table each line fills; the menu command only gives the caption.
#include <QString>
#include <functional>

namespace modImportacao {

// How an import ended; the user has already been told by a message box in every case.
enum class Resultado {
    Sucesso,             // "Tabela de ... importada com sucesso."
    SemRegistros,        // empty file
    FormatoErrado,       // bad header, a declaration file, or not a table import
    RegistroInesperado,  // a line of an unknown type: the lines before it stay
    ArquivoInacessivel,  // the file could not be opened
};

// Told the share of the file read so far, 0 to 100, a few times per percent at most.
using Progresso = std::function<void(int percentual)>;

// Imports the table file `pasta`/`nome`. Runs in one transaction of its own on the session's connection,
// committed at the end of the file or at the first unexpected line, so that what a failing file leaves is the
// rows of the lines before the failure.
Resultado ImportaTabela(const QString& pasta, const QString& nome, const Progresso& progresso = {});

// Name of a table for the final message, by line type ("01" to "05"); empty for any other type.
QString NomeTabela(const QString& tipo);

}  // namespace modImportacao
