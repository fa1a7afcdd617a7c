#pragma once
// The entry blocks of the tab "PI com PPB", as data: the DCR-E (type '1') and the DCR (type '2') of each editor.
// Monthly: an item (ITEM_VRT_MEN, ITEM_VRT_MEN_PI_COM_PPB) under one number with one grid row per destination
// (DESTINO_ITEM_VRT_MEN); a second place adds only a destination, deleting the last destination deletes the
// item. Individual: an item of the invoice (ITEM_NFS, ITEM_NFS_PI_COM_PPB, and DCRE or DCR).
#include "gui/blocks/ExecutorBloco.h"

namespace BlocosPIcomPPB {

inline const QString TipoDCRE = QStringLiteral("1");
inline const QString TipoDCR = QStringLiteral("2");

// The item number of the individual editor, shared by its two blocks.
inline const QString CampoItem = QStringLiteral("txtPIcomPPBIndividual(0)");

DescricaoBloco Descricao(bool individual, const QString& tipo);

// A number as its grid and messages show it: DCR "00000/0000"; DCR-E "@@@@/@@@@@" or, with ten digits,
// "@@@@/@@@@@-@".
QString MostraNumero(const QString& tipo, const QString& digitos);

// The number checks of Incluir and Alterar: the message of the first that fails, or "". The monthly editor
// and the individual one word them differently.
QString ConfereNumero(const QString& tipo, const QString& digitos, bool individual);

}  // namespace BlocosPIcomPPB
