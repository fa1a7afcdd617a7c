#include "core/file/writing/MapaColunas.h"

#include "core/file/layout/LayoutRegistro.h"
#include "core/store/ComandoSqlite.h"

MapaColunas::MapaColunas(const LayoutRegistro& layout, const ComandoSqlite& consulta)
{
    for (int c = 0; c < consulta.colunas(); ++c) {
        const int campo = layout.indice(consulta.nomeColuna(c));
        if (campo >= 0 && layout.campos.at(campo).tipo != TipoCampo::K)
            m_pares.append({campo, c});
    }
}
