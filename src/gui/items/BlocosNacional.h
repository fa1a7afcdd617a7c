#pragma once
// The entry block of the tab "100% Nacional", as data: monthly (ITEM_VRT_MEN, modality '4') and individual
// (ITEM_NFS with ITEM_NFS_100).
#include "gui/blocks/ExecutorBloco.h"

namespace BlocosNacional {

DescricaoBloco Mensal();
DescricaoBloco Individual();

}  // namespace BlocosNacional
