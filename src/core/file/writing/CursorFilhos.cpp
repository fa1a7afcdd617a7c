#include "core/file/writing/CursorFilhos.h"

#include "core/store/modBancoDados.h"

CursorFilhos::CursorFilhos(const QString& sql, const QVariantList& valores) : m_rs(modBancoDados::ConexaoBanco())
{
    m_rs.setForwardOnly(true);
    modBancoDados::AbreConsulta(m_rs, sql, valores);
    avanca();
}

void CursorFilhos::avanca()
{
    m_valida = m_rs.next();
    if (m_valida)
        m_chave = m_rs.value(0).toLongLong();
}
