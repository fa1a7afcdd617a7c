#pragma once
// The item tabs of the editors, by their index in tabDeclaracao: 1 "&Produto Estrangeiro", 2 "PI com PPB",
// 3 "PI sem PPB", 4 "100% Nacional". A tab not built yet gives nullptr and its page stays empty.
#include "gui/items/AbaItens.h"

AbaItens* CriaAbaItens(int indice, const ContextoItens& contexto, QWidget* parent = nullptr);
