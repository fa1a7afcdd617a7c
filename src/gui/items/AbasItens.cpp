#include "gui/items/AbasItens.h"

#include "gui/items/AbaNacional.h"
#include "gui/items/AbaPIcomPPB.h"
#include "gui/items/AbaPIsemPPB.h"
#include "gui/items/AbaProdutoEstrangeiro.h"

AbaItens* CriaAbaItens(int indice, const ContextoItens& contexto, QWidget* parent)
{
    switch (indice) {
    case 1:
        return new AbaProdutoEstrangeiro(contexto, parent);
    case 2:
        return new AbaPIcomPPB(contexto, parent);
    case 3:
        return new AbaPIsemPPB(contexto, parent);
    case 4:
        return new AbaNacional(contexto, parent);
    default:
        return nullptr;
    }
}
