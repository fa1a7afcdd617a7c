#pragma once
// Which characters free-text fields accept: the special characters that some fields refuse (among them the
// quotes, which must never reach a statement) and the characters a declaration file cannot hold.
#include <QString>

namespace Funcoes {

// The forbidden set, the last two being the single and the double quote.
inline const QString CaracteresEspeciais = QStringLiteral("!@#$%\u00A8&*()-+=_{[}]~^:;/?<>.,\\|'\"");

// `valido` is false when the character of `tecla` is in the forbidden set, true otherwise.
void VerificaCaracterEspecial(int tecla, bool& valido);
bool EhCaracterEspecial(QChar c);

// True when Windows-1252, the declaration file's encoding, has a byte for every character of the text.
bool CabeEmWindows1252(const QString& texto);
bool CabeEmWindows1252(QChar c);

}  // namespace Funcoes
