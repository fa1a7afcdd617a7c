#pragma once
// The grids of the tab "100% Nacional" (items of modality '4').
#include <QList>
#include <QStringList>

namespace ItensNacional {

// Monthly, by ID_ITEM_VRT: ID_ITEM_VRT, CD_INT_PRODUTO, NM_INT_PRODUTO, QT_PROD_UNID_PROD, CD_NCM_PRODUTO,
// NM_UNID_MED_PROD, QT_PROD_UNID_EST, VL_PROD_UNID_PROD, NM_UNID_MED_EST. The join with NCM_ITEM leaves out an
// item whose NCM is not in the table, as the grid always has.
QList<QStringList> LinhasMensal(const QString& idVrt);
// Individual, in the order of the rows: NR_ITEM_NF_SAIDA, CD_INT_PROD, QT_INT_UNID_NFS, CD_NCM_PROD,
// NM_UNID_MED_PROD, VL_INT_UNID_NFS, QT_INT_UNID_EST, VL_INT_UNID_EST, ID_ITEM, NM_INT_PROD, NR_NF_SAIDA,
// NR_SERIE_NF_SAIDA, ID_NFS.
QList<QStringList> LinhasIndividual(qint64 idNfs);

}  // namespace ItensNacional
