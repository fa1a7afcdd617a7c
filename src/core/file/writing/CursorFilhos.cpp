#include "core/file/writing/CursorFilhos.h"

CursorFilhos::CursorFilhos(const QString& sql, const QVariantList& valores) : m_rs(sql)
{
    m_rs.abre(valores);
    avanca();
}

void CursorFilhos::avanca()
{
    m_valida = m_rs.proxima();
    if (m_valida)
        m_chave = m_rs.inteiro(0);
}
