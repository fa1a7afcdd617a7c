#pragma once
// The layout tables themselves; read them through LayoutRegistro::de().
#include "core/file/layout/LayoutRegistro.h"

namespace LayoutTabelas {
// Records 00 to 03, the same in both declaration types.
QVector<LayoutRegistro> cabecalho();
// Every record of a monthly file (head records included).
QVector<LayoutRegistro> mensal();
// Every record of an individual file (head records included).
QVector<LayoutRegistro> individual();
}  // namespace LayoutTabelas
