#include "core/rules/CaracteresTexto.h"

namespace Funcoes {

void VerificaCaracterEspecial(int tecla, bool& valido)
{
    valido = !(tecla > 0 && tecla <= 0xFFFF && EhCaracterEspecial(QChar(tecla)));
}

bool EhCaracterEspecial(QChar c)
{
    return CaracteresEspeciais.contains(c);
}

bool CabeEmWindows1252(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF))
        return true;
    // The printable characters that Windows-1252 puts at 0x80..0x9F in place of the C1 controls.
    static const char16_t extras[] = {0x20AC, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
                                      0x0160, 0x2039, 0x0152, 0x017D, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x017E, 0x0178};
    for (char16_t e : extras) {
        if (e == u)
            return true;
    }
    return false;
}

bool CabeEmWindows1252(const QString& texto)
{
    for (QChar c : texto) {
        if (!CabeEmWindows1252(c))
            return false;
    }
    return true;
}

}  // namespace Funcoes
