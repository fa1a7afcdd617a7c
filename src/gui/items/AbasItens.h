#pragma once
// The item tabs of the editors, by their index in tabDeclaracao: 1 "&Produto Estrangeiro", 2 "PI com PPB",
// 3 "PI sem PPB", 4 "100% Nacional". Any other index gives nullptr.
#include "gui/items/AbaItens.h"

AbaItens* CriaAbaItens(int indice, const ContextoItens& contexto, QWidget* parent = nullptr);
