#include "gui/items/AbasItens.h"

#include "gui/items/AbaNacional.h"
#include "gui/items/AbaPIcomPPB.h"

AbaItens* CriaAbaItens(int indice, const ContextoItens& contexto, QWidget* parent)
{
    switch (indice) {
    case 2:
        return new AbaPIcomPPB(contexto, parent);
    case 4:
        return new AbaNacional(contexto, parent);
    default:
        return nullptr;
    }
}
