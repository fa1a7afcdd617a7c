#pragma once
// Check digits of the document numbers: the declaration's own number, DI, DSI, CPF, CNPJ and DCR-E. All work
// on the digits alone, the mask's punctuation already taken out, and keep the number as text so that its
// leading zeros stay.
#include <QString>

namespace Funcoes {

// The ending every routine here shares: the weighted sum modulo 11; a remainder of 0 or 1 gives the digit 0,
// any other 11 minus the remainder.
int DigitoModulo11(int somaPonderada);

// Declaration number, DI or DSI: ten digits of the form AA/NNNNNNN-D, the last one the check digit. A prefix
// digit ("5" for "VRT", "2" for "DI", "4" for "DSI") takes part in the sum; weights run 2..9 from the right and
// wrap to 2. Any other tipo sums the digits left of the check digit alone. Shows no message.
bool ValidaDigito(const QString& numero, const QString& tipo);

// True for an empty text. Otherwise shows its own box (warning icon, the main window's caption) and gives false
// for a length other than 11, a value of zero or a wrong check digit. Repeated digits are not refused.
bool ValidaCPF(const QString& cpf);

// True for an empty text. Otherwise "CNPJ inválido." (warning icon, the main window's caption) and false for a
// length other than 14, a value of zero or a wrong check digit.
bool ValidaCNPJ(const QString& cnpj);

// On the text with blanks cut from both ends: empty and shorter than 9 are refused with a critical box; ten
// characters must carry a good check digit (warning box otherwise); nine or more than ten pass.
bool ValidaDCRE(const QString& numero);

}  // namespace Funcoes
