#pragma once
// Date and year rules shared by the screens. Dates stand on screen and in the database as eight digits ddmmyyyy;
// the rules read them in the form dd/mm/aaaa and compare their parts as text, as the system always has.
#include <QString>

namespace Funcoes {

// Empty is valid; any length other than 10 is not. Year "1950" to "2100", month "01" to "12", day within the
// month, February 29 when the year is divisible by 4 (so 29/02/2100 passes). Shows nothing.
bool ValidaData(const QString& data);

// The eight digits of a date field in the form ValidaData reads, through "00/00/0000": a blank field gives
// "00/00/0000", which the caller takes as empty.
QString DataParaValidar(const QString& digitos);

// True when `DataParaValidar` gave the blank date.
bool DataEmBranco(const QString& data);

// Empty is valid; length other than 4 is not; otherwise at or above "2002" compared as text.
bool ValidaAno(const QString& ano);

// Two dates as eight digits ddmmyyyy: false only when `segunda` lies before `primeira`. Either blank: true.
bool ComparaDatas(const QString& primeira, const QString& segunda);

}  // namespace Funcoes
