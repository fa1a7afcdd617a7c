#include "core/lookups/BuscaNcm.h"

#include "core/store/modBancoDados.h"

#include <QSqlQuery>

namespace Funcoes {

bool BuscaNcm(const QString& codigo, QString* descricao, QString* unidadeEstatistica)
{
    QSqlQuery rs(modBancoDados::ConexaoBanco());
    rs.setForwardOnly(true);
    modBancoDados::AbreConsulta(rs,
                                QStringLiteral("SELECT CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST FROM NCM_ITEM "
                                               "WHERE CD_NCM_PRODUTO = ?"),
                                {codigo});
    if (!rs.next())
        return false;
    if (descricao)
        *descricao = rs.value(1).toString();
    if (unidadeEstatistica)
        *unidadeEstatistica = rs.value(2).toString();
    return true;
}

}  // namespace Funcoes
