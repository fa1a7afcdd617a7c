#pragma once
// Records 00 to 03 in the order a file must hold them, with the texts the reader gives when one is missing,
// has the wrong length for its layout or stands out of place. The reader stops at the first; the checker lists
// every one with the same text.
#include "core/file/layout/LayoutRegistro.h"

#include <QString>

namespace RegistrosCabeca {
// "00", "01", "02", "03": the head record expected at line `numero` (1 to 4).
QString tipo(int numero);
// Their layout (the same in both declaration types).
const LayoutRegistro& layout(int numero);
// "Erro no arquivo - Não foi localizado o registro 01!"
QString textoAusente(int numero);
// "Erro no registro 01 - Tamanho inválido!"
QString textoTamanho(int numero);
// "Erro no 2º registro - Tipo de registro não é 01!"
QString textoTipo(int numero);
// The first of the length and type tests that `linha` fails, or an empty text.
QString confere(int numero, const QString& linha);
}  // namespace RegistrosCabeca
