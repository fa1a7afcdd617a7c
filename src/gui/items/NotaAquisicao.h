#pragma once
// The rules of an acquisition invoice's own fields, which no other member of the entry-document family has:
// the series' characters, the date's year and the CFOP against the year of the date. Each gives the message to
// show, or an empty text when the value passes.
#include <QString>

namespace NotaAquisicao {

// The series as it may stand after a change: without the special characters and in capitals (monthly editor),
// or letters and digits only (individual editor).
QString FiltraSerie(const QString& texto, bool maiuscula);
// A series of digits only whose value is zero.
bool SerieZero(const QString& serie);

// The eight digits of a filled date: "Data inválida." or, for a year before 1970, `msgAno`.
QString ConfereData(const QString& digitos, const QString& msgAno);

// The CFOP against the date's eight digits (the year counts only when the date is complete): three digits up to
// 2002, four from 2003 on, and a first digit 1, 2, 3, 5 or 6.
QString ConfereCFOP(const QString& cfop, const QString& dataDigitos);

}  // namespace NotaAquisicao
