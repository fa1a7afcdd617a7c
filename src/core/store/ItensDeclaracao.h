#pragma once
// The rows every item tab of the editors writes, whatever its modality: an item of a monthly declaration
// (ITEM_VRT_MEN) with its destinations (DESTINO_ITEM_VRT_MEN), an item of an exit invoice (ITEM_NFS), and the
// rows of a modality's own tables that hang on either. A tab names its table and hands the values by column;
// every value is bound. New keys are read back with max(key) inside the editor's open transaction, as the
// editors have always done.
//
//     const qint64 item = ItensDeclaracao::Insere("ITEM_VRT_MEN", "ID_ITEM_VRT", valores);
//     ItensDeclaracao::Insere("ITEM_VRT_MEN_PI_COM_PPB", {}, {{"ID_ITEM_VRT", item}, ...});
//     if (ItensDeclaracao::NumeroItemUsado(idNfs, "001")) ...   // any modality of the invoice
//     ItensDeclaracao::ExcluiDestino(idDest);                   // the item goes with its last destination
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

namespace ItensDeclaracao {

// Writes a row of `tabela` with `valores` by column; with `colunaChave`, gives max(colunaChave) afterwards
// (the new row's key), else 0.
qint64 Insere(const QString& tabela, const QString& colunaChave, const QVariantMap& valores);
// Rewrites the columns of `valores` in the row whose `colunaChave` is `chave`.
void Altera(const QString& tabela, const QString& colunaChave, const QVariant& chave, const QVariantMap& valores);
void Exclui(const QString& tabela, const QString& colunaChave, const QVariant& chave);

// Monthly. The item of this product in this modality, or 0.
qint64 ItemMensal(const QString& idVrt, const QString& produto, const QString& modalidade);
// Removes one destination; when the item has none left the item goes too (its rows of other tables by the
// cascade). True when the item went.
bool ExcluiDestino(qint64 idDestino, qint64 idItem);
// The item already has a destination at this place.
bool LocalNoItem(qint64 idItem, const QString& local);

// Individual. The item number stands on another item of the invoice, in any modality.
bool NumeroItemUsado(qint64 idNfs, const QString& numero);

// The units of the unit lists (NM_MEDIDA, in order of name) and the destination places (code and name, in
// order of name).
QStringList Unidades();
QList<QStringList> Locais();

// The rows of a grid query of an item tab's core routines, each row its columns as text (null gives "").
QList<QStringList> Linhas(const QString& sql, const QVariantList& valores);

}  // namespace ItensDeclaracao
