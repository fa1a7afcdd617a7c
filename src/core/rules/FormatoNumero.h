#pragma once
// Numbers as the program keeps them: text with a decimal comma and "." grouping, whatever the machine's locale
// says. Values of the 13+7 family hold twenty significant digits, more than a double carries, so formatting
// works on the digits themselves and never goes through floating point.
#include <QString>

namespace Funcoes {

// A number read from text: sign, integer digits (no leading zeros kept beyond one "0") and decimal digits.
struct NumeroDecimal {
    bool negativo = false;
    QString inteiros;  // at least "0"
    QString decimais;  // may be empty
    bool ehZero() const;
};

// Reads "1.234.567,891", "-12,5", ",5", "007" and the like: optional sign, digits with "." as grouping, at most
// one comma followed by digits. Blanks around are ignored. False for anything else, an empty text included.
bool LeNumero(const QString& texto, NumeroDecimal* numero = nullptr);

// True when the text reads as a number by LeNumero.
bool EhNumerico(const QString& texto);

// True when the text reads as a number whose value is zero ("0", "000", "0,00").
bool EhZero(const QString& texto);

// The value as a double, for sums and comparisons; 0 when the text is not a number.
double ValorNumerico(const QString& texto);

// Formats a number by a numeric format made of "#", "0", "," (grouping) and "." (decimal point):
// "#0.0000000", "###,###,##0.00000", "#,###,###,###,##0.00", "##0.00", "0.00000", "000". The output always has
// a decimal comma and "." grouping. Rounds half away from zero. A blank text gives empty; a text that is not a
// number comes back unchanged.
QString FormataNumero(const QString& valor, const QString& formato);

// Formats a text by a character mask: "@", "#" and "0" are placeholders, everything else is a literal
// ("@@@@.@@.@@", "##/#######-#", "####/#####-#", "@@@@@/@@@@", "00/00/0000"). The characters of the text are
// kept as they stand (leading zeros included) and fill the placeholders from the right; a placeholder left
// over gives a blank for "@", a zero for "0" and nothing for "#". Characters beyond the placeholders go in
// front. A blank text gives empty, except that "0" placeholders still give their zeros.
QString FormataMascara(const QString& valor, const QString& formato);

// FormataNumero for formats made only of "#", "0", "," and "."; FormataMascara for any other.
QString Formata(const QString& valor, const QString& formato);

// The digits of a text alone: what a masked field hands over once its punctuation is taken out.
QString SoDigitos(const QString& texto);

}  // namespace Funcoes
