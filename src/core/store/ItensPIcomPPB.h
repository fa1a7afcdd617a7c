#pragma once
// The grids and the cross-row tests of the tab "PI com PPB" (items of modality '2' under a DCR-E, type '1', or a
// DCR, type '2').
#include <QList>
#include <QStringList>

namespace ItensPIcomPPB {

// Monthly, one row per destination, by number: ID_ITEM_VRT, NR_DCRE_DCR, CD_INT_PRODUTO, NM_INT_PRODUTO,
// NM_LOCAL_DESTINO, QT_PROD_LOC_DEST, ID_DEST_PRODUTO, CD_LOCAL_DESTINO, then for a DCR VL_II_UNIT_DOLAR,
// PC_COEF_REDUCAO_II, NM_UNID_MED_DEST, and last VL_PIS, VL_COFINS.
QList<QStringList> LinhasMensal(const QString& idVrt, const QString& tipo);
// Individual, one row per item: ID_ITEM, NR_ITEM_NF_SAIDA, the number (NR_DCRE or NR_DCR), CD_INT_PROD,
// NM_INT_PROD, QT_PRODUTO, then for a DCR VL_II_UNIT_DOLAR, PC_COEF_REDUCAO_II, NM_UNID_MED_PROD, and last
// VL_PIS, VL_COFINS.
QList<QStringList> LinhasIndividual(qint64 idNfs, const QString& tipo);
// Whether those grids would have a row, without reading them.
bool TemLinhasMensal(const QString& idVrt, const QString& tipo);
bool TemLinhasIndividual(qint64 idNfs, const QString& tipo);

// Monthly. A number under which the product stands with this type in the declaration (other than `exceto`),
// or "".
QString NumeroDoProduto(const QString& idVrt, const QString& produto, const QString& tipo,
                        const QString& exceto = QString());
// A product other than `exceto` that stands under this number and type in the declaration, or "".
QString ProdutoDoNumero(const QString& idVrt, const QString& numero, const QString& tipo, const QString& exceto);
// The item of this product under this number and type, or 0.
qint64 ItemDoDocumento(const QString& idVrt, const QString& produto, const QString& numero, const QString& tipo);
// Another item than `exceto` stands under this number and type in the declaration.
bool NumeroEmOutroItem(const QString& idVrt, const QString& numero, const QString& tipo, qint64 exceto);

// Individual. The number of the product's item of this type on the invoice, or "".
QString NumeroNaNota(qint64 idNfs, const QString& produto, const QString& tipo);
// A product other than `exceto` on an item under this DCR number, in any declaration, or "".
QString ProdutoDoDcr(const QString& numero, const QString& exceto);

}  // namespace ItensPIcomPPB
