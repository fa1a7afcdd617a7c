#pragma once
// The rows of the modality "PI sem PPB" (IND_MOD_INTERNACAO "3"): products made here without a basic process and
// the inputs they consume, with the consolidated picture a monthly declaration keeps beside them.
//
// Monthly: an item per product (ITEM_VRT_MEN) spread over destinations (DESTINO_ITEM_VRT_MEN), its inputs
// (INSUMO_ITEM_VRT_MEN) each with at most one row of differing rates (JUST_DIF_ALIQ_INS_VRT_MEN). An input's
// documents hang on the declaration, the input code and the place, shared by every product that uses the input;
// TestaDocOrigemInsumo removes them when the input's last use goes. NCM_VRT keeps one row per NCM of the
// modality, created with "0" when its first product comes and removed when its last one goes.
// Individual: an item of the exit invoice (ITEM_NFS, ITEM_NFS_PI_SEM_PPB) with its inputs (INSUMO_ITEM_NFS), on
// which the documents hang.
//
// Numbers travel as the text the fields keep ("12,50000").
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace ItensPIsemPPB {

inline const QString Modalidade = QStringLiteral("3");

// Rates of an input that differ from the TEC and the TIPI, with their grounds. `existe`: the input has a row.
struct Aliquotas {
    bool existe = false;
    QString aliqII;
    QString justII;
    QString aliqIPI;
    QString justIPI;
};

struct Insumo {
    QString codigo;
    QString nome;
    QString ncm;
    QString quantidade;  // per unit of the product
    QString unidade;
};

// What an input looks like in the rows of the declaration already holding it (the first of them).
struct RegistroInsumo {
    QString ncm;
    QString unidade;
    Aliquotas aliquotas;
};

// Monthly products.
struct ItemMensal {
    qint64 id = 0;
    QString unidade;
};
std::optional<ItemMensal> ProdutoMensal(const QString& idVrt, const QString& codigo);
// Inserts the item (with its NCM_VRT row when the NCM has none yet) unless `idItem` names it, then the destination.
// Gives the item's key.
qint64 IncluiProdutoMensal(const QString& idVrt, qint64 idItem, const QString& codigo, const QString& nome,
                           const QString& ncm, const QString& unidade, const QString& local,
                           const QString& quantidade);
// Rewrites the item's product columns and the destination; NCM_VRT is left as it is.
void AlteraProdutoMensal(qint64 idItem, qint64 idDestino, const QString& codigo, const QString& nome,
                         const QString& ncm, const QString& unidade, const QString& local,
                         const QString& quantidade);
int DestinosDoItem(qint64 idItem);
int InsumosDoItem(qint64 idItem);
// Removes a destination. The last one takes the item's inputs (each followed by TestaDocOrigemInsumo), the item
// and, when no other item of the modality has its NCM, the NCM_VRT row.
void ExcluiProdutoMensal(const QString& idVrt, qint64 idItem, qint64 idDestino);
// Grid rows, by item and destination: ID_ITEM_VRT, ID_DEST_PRODUTO, CD_INT_PRODUTO, NM_INT_PRODUTO,
// NM_LOCAL_DESTINO, QT_PROD_LOC_DEST, CD_NCM_PRODUTO, NM_UNID_MED_PROD, CD_LOCAL_DESTINO.
QList<QStringList> LinhasProdutosMensal(const QString& idVrt);
// The items of the modality, for the product list of the page "Insumos": (ID_ITEM_VRT, CD_INT_PRODUTO).
QList<QStringList> ProdutosDaDeclaracao(const QString& idVrt);
bool ExisteNcmVrt(const QString& idVrt, const QString& ncm);

// Monthly inputs.
bool InsumoNoItem(qint64 idItem, const QString& codigo);
// The first row of this input in the declaration's products, but the row `excetoId`.
std::optional<RegistroInsumo> RegistroInsumoMensal(const QString& idVrt, const QString& codigo, qint64 excetoId = 0);
qint64 IncluiInsumoMensal(qint64 idItem, const Insumo& insumo, const Aliquotas& a);
// Rewrites the input row of `codigoAntigo` under the item; the rates row is rewritten, inserted or removed.
void AlteraInsumoMensal(qint64 idItem, qint64 idInsumo, const QString& codigoAntigo, const Insumo& insumo,
                        const Aliquotas& a);
void ExcluiInsumoMensal(const QString& idVrt, qint64 idInsumo);
// Grid rows: ID_INSUMO_ITEM, CD_INT_INSUMO, NM_INT_INSUMO, QT_INSUMO_POR_PROD, CD_NCM_INSUMO, NR_ORDEM,
// NM_UNID_MED_INSUMO, TEM_ALIQ_II, ALIQ_II_DIF_TEC, JUST_II_DIF_TEC, TEM_ALIQ_IPI, ALIQ_IPI_DIF_TIPI,
// JUST_IPI_DIF_TIPI.
QList<QStringList> LinhasInsumosMensal(qint64 idItem);

// Keeps the documents of an input from outliving it: with no consolidated row left for the code, its DI, DSI
// and acquisition-invoice rows of the declaration go (the DI's child rows by the cascade). INSUMO_VRT stays.
void TestaDocOrigemInsumo(const QString& idVrt, const QString& codigo);

// The consolidated picture.
QStringList InsumosConsolidados(const QString& idVrt);
// (CD_LOCAL_DESTINO, NM_LOCAL_DESTINO, QT_TOT_INS_POR_LOC) of the input, in order of place.
QList<QStringList> LocaisDoInsumo(const QString& idVrt, const QString& codigo);
QString UnidadeDoInsumo(const QString& idVrt, const QString& codigo);
// The input's name in the first of its rows in the declaration's products.
QString NomeDoInsumo(const QString& idVrt, const QString& codigo);
// INSUMO_VRT (monthly) or INSUMO_VRT_IND (individual): the statistical total, nullopt without a row.
std::optional<QString> TotalInsumo(const QString& idVrt, const QString& codigo, bool individual);
// Updates the row when `existe`, else inserts it.
void GravaTotalInsumo(const QString& idVrt, const QString& codigo, const QString& valor, bool existe, bool individual);

// Individual products.
// The first item of this product of the modality in the declaration's invoices, but `excetoId`: NCM and unit.
std::optional<RegistroInsumo> ProdutoNaDeclaracao(const QString& idVrt, const QString& codigo, qint64 excetoId = 0);
qint64 IncluiProdutoNota(qint64 idNfs, const QString& numero, const QString& codigo, const QString& nome,
                         const QString& ncm, const QString& unidade, const QString& quantidade,
                         const QString& valorUnitario);
void AlteraProdutoNota(qint64 idItem, const QString& numero, const QString& codigo, const QString& nome,
                       const QString& ncm, const QString& unidade, const QString& quantidade,
                       const QString& valorUnitario);
// Grid rows: ID_ITEM, NR_ITEM_NF_SAIDA, CD_INT_PROD, NM_INT_PROD, CD_NCM_PROD, NM_UNID_MED_PROD, QT_INT_UNID_NFS,
// VL_INT_UNID_NFS.
QList<QStringList> LinhasProdutosNota(qint64 idNfs);

// Individual inputs.
std::optional<RegistroInsumo> RegistroInsumoNota(const QString& idVrt, const QString& codigo, qint64 excetoId = 0);
qint64 IncluiInsumoNota(qint64 idItem, const Insumo& insumo, const Aliquotas& a);
void AlteraInsumoNota(qint64 idInsumo, const Insumo& insumo, const Aliquotas& a);
// Grid rows, as LinhasInsumosMensal with ID_INSUMO first.
QList<QStringList> LinhasInsumosNota(qint64 idItem);

}  // namespace ItensPIsemPPB
