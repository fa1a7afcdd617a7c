#include "core/store/ItensNacional.h"

#include "core/store/ItensDeclaracao.h"

namespace ItensNacional {

QList<QStringList> LinhasMensal(const QString& idVrt)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT I.ID_ITEM_VRT, I.CD_INT_PRODUTO, I.NM_INT_PRODUTO, I.QT_PROD_UNID_PROD, "
                       "I.CD_NCM_PRODUTO, I.NM_UNID_MED_PROD, I.QT_PROD_UNID_EST, I.VL_PROD_UNID_PROD, "
                       "N.NM_UNID_MED_EST FROM ITEM_VRT_MEN I INNER JOIN NCM_ITEM N ON N.CD_NCM_PRODUTO = "
                       "I.CD_NCM_PRODUTO WHERE I.ID_VRT_MICRO = ? AND I.IND_MOD_INTERNACAO = '4' "
                       "ORDER BY I.ID_ITEM_VRT"),
        {idVrt});
}

QList<QStringList> LinhasIndividual(qint64 idNfs)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT I.NR_ITEM_NF_SAIDA, I.CD_INT_PROD, C.QT_INT_UNID_NFS, I.CD_NCM_PROD, "
                       "I.NM_UNID_MED_PROD, C.VL_INT_UNID_NFS, C.QT_INT_UNID_EST, C.VL_INT_UNID_EST, I.ID_ITEM, "
                       "I.NM_INT_PROD, N.NR_NF_SAIDA, N.NR_SERIE_NF_SAIDA, N.ID_NFS FROM NOTA_FISCAL_SAIDA N "
                       "INNER JOIN ITEM_NFS I ON I.ID_NFS = N.ID_NFS INNER JOIN ITEM_NFS_100 C ON C.ID_ITEM = "
                       "I.ID_ITEM WHERE N.ID_NFS = ? ORDER BY I.ID_ITEM"),
        {idNfs});
}

}  // namespace ItensNacional
