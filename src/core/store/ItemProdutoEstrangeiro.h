#pragma once
// The rows of the foreign-product modality: in a monthly declaration an item per product (ITEM_VRT_MEN,
// modality "1") spread over destinations (DESTINO_ITEM_VRT_MEN) with at most one row of rates that differ
// from the TEC and the TIPI (JUST_DIF_ALIQ_PROD_VRT_MEN); in an individual one an item of the exit invoice
// (ITEM_NFS) with its values (ITEM_NFS_PE) and its rates (JUST_DIF_ALIQ_PROD_VRT_IND). Numbers travel as the
// text the fields keep.
#include <QList>
#include <QString>
#include <QVariantMap>
#include <optional>

namespace ItemProdutoEstrangeiro {

struct Item {
    qint64 id = 0;
    QString codigo;
    QString nome;
    QString ncm;          // eight digits
    QString unidade;      // the commercial unit
    QString quantidadeEstatistica;  // monthly: the item's total; individual: the item's
};

// Rates that differ from the normal ones, with their legal grounds. `existe` is false when the item has no row.
struct Aliquotas {
    bool existe = false;
    QString aliqII;
    QString justII;
    QString aliqIPI;
    QString justIPI;
};

// The values of an individual item.
struct ValoresNota {
    QString quantidade;       // QT_INT_UNID_NFS
    QString valorUnitario;    // VL_INT_UNID_NFS
    QString quantidadeEst;    // QT_INT_UNID_EST
    QString ipiDestacado;     // VL_IPI_DESTACADO
};

// Monthly.
std::optional<Item> ItemMensal(const QString& idVrt, const QString& codigo);
qint64 InsereItemMensal(const QString& idVrt, const Item& item);
void AlteraItemMensal(qint64 id, const Item& item);
qint64 InsereDestino(qint64 idItem, const QString& local, const QString& quantidade);
void AlteraDestino(qint64 idDestino, const QString& local, const QString& quantidade);
// The location codes of the item's destinations.
QStringList LocaisDoItem(qint64 idItem);
Aliquotas AliquotasMensais(qint64 idItem);
// Rewrites the item's row of rates, or inserts it.
void GravaAliquotasMensais(qint64 idItem, const Aliquotas& a);
void ExcluiAliquotasMensais(qint64 idItem);
// One row per destination of the declaration's foreign products, in order of destination: ID_ITEM_VRT,
// ID_DEST_PRODUTO, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST,
// NM_UNID_MED_PROD, QT_PROD_UNID_EST, CD_LOCAL_DESTINO, NM_LOCAL_DESTINO, QT_PROD_LOC_DEST and the four of the
// rates (empty when none). Each row gives the values of `colunas`, named so, in that order.
QList<QStringList> LinhasMensais(const QString& idVrt, const QStringList& colunas);

// Individual.
// The foreign-product items of this code in every exit invoice of the declaration, but `excetoId`, in order.
QList<Item> ItensDoProduto(const QString& idVrt, const QString& codigo, qint64 excetoId = 0);
qint64 InsereItemNota(qint64 idNfs, const QString& numero, const Item& item, const ValoresNota& v);
void AlteraItemNota(qint64 id, const QString& numero, const Item& item, const ValoresNota& v);
void ExcluiItemNota(qint64 id);
Aliquotas AliquotasNota(qint64 idItem);
void GravaAliquotasNota(qint64 idItem, const Aliquotas& a);
void ExcluiAliquotasNota(qint64 idItem);
// One row per foreign-product item of the exit invoice, by item number: ID_ITEM, NR_ITEM_NF_SAIDA,
// CD_INT_PROD, NM_INT_PROD, CD_NCM_PROD, DESCR_NCM_PRODUTO, NM_UNID_MED_EST, NM_UNID_MED_PROD, the four values
// and the four of the rates; each row the values of `colunas`, in that order.
QList<QStringList> LinhasNota(qint64 idNfs, const QStringList& colunas);

}  // namespace ItemProdutoEstrangeiro
