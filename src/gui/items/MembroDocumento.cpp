#include "gui/items/MembroDocumento.h"
#include "gui/items/MembrosFamilia.h"

const QList<MembroDocumento>& MembrosDocumento()
{
    static const QList<MembroDocumento> membros = [] {
        QList<MembroDocumento> l;
        for (Origem origem : {Origem::Produto, Origem::Insumo})
            for (bool individual : {false, true})
                l << MembrosFamilia::di(origem, individual) << MembrosFamilia::dsi(origem, individual)
                  << MembrosFamilia::nfa(origem, individual);
        return l;
    }();
    return membros;
}

const MembroDocumento* Membro(TipoDocumento tipo, Origem origem, bool individual)
{
    for (const MembroDocumento& m : MembrosDocumento())
        if (m.tipo == tipo && m.origem == origem && m.individual == individual)
            return &m;
    return nullptr;
}
