#pragma once
// The identification a declaration made now is expected to get, shown before it is made (the copy panel):
// NUM_ULTIMA_VRT plus one through "00000", "/", and the last two digits of the year of `hoje`; "00001/" and
// those digits without a row. Only a display: nothing is stored, and a change of year is not looked at.
#include <QDate>
#include <QString>

namespace Funcoes {

QString IdentificacaoPrevista(const QDate& hoje = QDate::currentDate());

}  // namespace Funcoes
