#pragma once
// The small text formatters that move a value between a screen, a table row and a field of the declaration
// file. They take and give text; a null QString and an empty one are treated alike everywhere.
#include <QString>

namespace Funcoes {

// Zeros in front up to `tamanho`. Null, empty or blank counts as "0". A longer text comes back whole: nothing
// is ever cut.
QString ZeroEsquerda(const QString& valor, int tamanho);

// Blanks behind up to `tamanho`; null counts as empty; a longer text comes back whole.
QString BrancoDireita(const QString& valor, int tamanho);

// Blanks in front up to `tamanho`; null counts as empty; a longer text comes back whole.
QString BrancoEsquerda(const QString& valor, int tamanho);

// Every occurrence of `caractere` taken away, when `caractere` is exactly one character; any other length
// leaves the text alone. Null, empty or blank counts as "0" (so an empty value still gives a digit to fill).
QString TiraCaractere(const QString& valor, const QString& caractere);

// Digits with an implied scale of `casas` decimals turned into a decimal text: "5" with 7 gives "0,0000005".
// Null, empty or blank gives empty; a text that already holds a comma comes back as it is.
QString InsereVirgula(const QString& valor, int casas);

// The text from its first character other than "0" to its end. Null, empty, blank or a value of zero gives
// empty.
QString TiraZerosEsquerda(const QString& valor);

// Every occurrence of `caractere` becomes the acute accent "´", so that a quote never reaches a statement.
QString TrocaApostrofo(const QString& valor, const QString& caractere = QStringLiteral("'"));

}  // namespace Funcoes
