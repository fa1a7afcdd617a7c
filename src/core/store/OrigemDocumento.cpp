#include "core/store/OrigemDocumento.h"

#include "core/store/modBancoDados.h"

using namespace modBancoDados;

namespace OrigemDocumento {

QList<ItemMensal> ItensMensais(const QString& idVrt, const QString& modalidade)
{
    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(true);
    AbreConsulta(rs,
                 QStringLiteral("SELECT ID_ITEM_VRT, CD_INT_PRODUTO, NM_UNID_MED_PROD FROM ITEM_VRT_MEN "
                                "WHERE ID_VRT_MICRO = ? AND IND_MOD_INTERNACAO = ? ORDER BY CD_INT_PRODUTO"),
                 {idVrt, modalidade});
    QList<ItemMensal> itens;
    while (rs.next())
        itens << ItemMensal{rs.value(0).toLongLong(), rs.value(1).toString(), rs.value(2).toString()};
    return itens;
}

QList<Destino> Destinos(qint64 idItem)
{
    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(true);
    AbreConsulta(rs,
                 QStringLiteral("SELECT D.ID_DEST_PRODUTO, D.CD_LOCAL_DESTINO, L.NM_LOCAL_DESTINO, D.QT_PROD_LOC_DEST "
                                "FROM DESTINO_ITEM_VRT_MEN D JOIN LOCAL_DESTINO L "
                                "ON L.CD_LOCAL_DESTINO = D.CD_LOCAL_DESTINO "
                                "WHERE D.ID_ITEM_VRT = ? ORDER BY L.NM_LOCAL_DESTINO"),
                 {idItem});
    QList<Destino> destinos;
    while (rs.next())
        destinos << Destino{rs.value(0).toLongLong(), rs.value(1).toString(), rs.value(2).toString(),
                            rs.value(3).toString()};
    return destinos;
}

QList<ItemNota> ItensNotaPE(qint64 idNfs)
{
    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(true);
    AbreConsulta(rs,
                 QStringLiteral("SELECT I.ID_ITEM, I.NR_ITEM_NF_SAIDA, I.CD_INT_PROD, I.NM_UNID_MED_PROD, "
                                "P.QT_INT_UNID_NFS FROM ITEM_NFS I LEFT JOIN ITEM_NFS_PE P ON P.ID_ITEM = I.ID_ITEM "
                                "WHERE I.ID_NFS = ? AND I.IND_MOD_INTERNACAO = '1' ORDER BY I.NR_ITEM_NF_SAIDA"),
                 {idNfs});
    QList<ItemNota> itens;
    while (rs.next())
        itens << ItemNota{rs.value(0).toLongLong(), rs.value(1).toString(), rs.value(2).toString(),
                          rs.value(3).toString(), rs.value(4).toString()};
    return itens;
}

}  // namespace OrigemDocumento
