#pragma once
// The numbering of declarations on this machine (ARQUIVO_NUMERADOR), used when a declaration is made by an
// editor, read from a file or copied.
#include <QDate>
#include <QString>

namespace Funcoes {

// The next identification, "NNNNN/AA": the counter plus one, "/", the last two digits of the year of `hoje`;
// the counter and the year are stored back. The counter is never reset at a change of year: ANO only records
// the year of the last number. Past 99999 the number has six digits and the counter stored is its first five.
QString GeraIdentificacao(const QDate& hoje = QDate::currentDate());

// The editors' numbering: the counter plus one within the same year; at the first declaration of a new year the
// counter starts again at 1 and ANO takes the new year. The identification is read back from the stored row.
QString GeraIdentificacaoDoAno(const QDate& hoje = QDate::currentDate());

}  // namespace Funcoes
