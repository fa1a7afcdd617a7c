#include "core/lookups/BuscaProduto.h"

#include "core/store/modBancoDados.h"

#include <QSqlQuery>

namespace modVRTPLN {

QString BuscaProduto(const QString& codigo, bool exato)
{
    const QString texto = codigo.isNull() ? QStringLiteral("") : codigo;
    QSqlQuery rs(modBancoDados::ConexaoBanco());
    rs.setForwardOnly(true);
    // Two rows are enough to know that the code does not name one product.
    if (exato)
        modBancoDados::AbreConsulta(rs,
                                    QStringLiteral("SELECT CD_INT_PRODUTO, NM_INT_PRODUTO FROM PRODUTO "
                                                   "WHERE CD_INT_PRODUTO = ? COLLATE NOCASE LIMIT 2"),
                                    {texto});
    else
        modBancoDados::AbreConsulta(rs,
                                    QStringLiteral("SELECT CD_INT_PRODUTO, NM_INT_PRODUTO FROM PRODUTO "
                                                   "WHERE substr(CD_INT_PRODUTO, 1, ?) = ? COLLATE NOCASE LIMIT 2"),
                                    {texto.size(), texto});
    if (!rs.next())
        return QStringLiteral("");
    const QString achado = rs.value(0).toString();
    const QString nome = rs.value(1).toString();
    if (rs.next())
        return QStringLiteral("");
    return achado.compare(texto, Qt::CaseInsensitive) == 0 ? nome : QStringLiteral("");
}

}  // namespace modVRTPLN
