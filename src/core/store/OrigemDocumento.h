#pragma once
// What the page "Documento de Origem" offers to hang entry documents on: the items of a modality of a monthly
// declaration and their destinations, or the items of a modality of an exit invoice.
#include <QList>
#include <QString>
#include <QVariant>

namespace OrigemDocumento {

struct ItemMensal {
    qint64 id = 0;         // ID_ITEM_VRT
    QString codigo;        // CD_INT_PRODUTO
    QString unidade;       // NM_UNID_MED_PROD
};
struct Destino {
    qint64 id = 0;         // ID_DEST_PRODUTO
    QString codigoLocal;   // CD_LOCAL_DESTINO
    QString local;         // NM_LOCAL_DESTINO
    QString quantidade;    // QT_PROD_LOC_DEST
};
struct ItemNota {
    qint64 id = 0;         // ID_ITEM
    QString numero;        // NR_ITEM_NF_SAIDA
    QString codigo;        // CD_INT_PROD
    QString unidade;       // NM_UNID_MED_PROD
    QString quantidade;    // QT_INT_UNID_NFS of the foreign product's values
};

// The items of the modality of a monthly declaration, in order of product code.
QList<ItemMensal> ItensMensais(const QString& idVrt, const QString& modalidade);
// The destinations of a monthly item, in order of the location's name.
QList<Destino> Destinos(qint64 idItem);
// The foreign-product items of an exit invoice, in order of item number.
QList<ItemNota> ItensNotaPE(qint64 idNfs);

}  // namespace OrigemDocumento
