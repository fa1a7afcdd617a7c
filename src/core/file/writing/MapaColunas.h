#pragma once
// Which column of a statement's result fills which field of a record: the field whose name is the column's
// name (or its alias), found once by name, so that a writer's query says what goes into the record and the
// layout says where and how (LinhaRegistro::preenche). Constants and fillers take no column; a column that
// names no field (a key, a condition) is left alone.
//   CursorFilhos di(QStringLiteral("SELECT x.ID_DEST_PRODUTO, x.NR_DI, ... FROM ..."), {id});
//   const MapaColunas mapa(layout(13), di.linha());
//   r.preenche(di.linha(), mapa);
#include <QVector>

class ComandoSqlite;
class LayoutRegistro;

class MapaColunas {
public:
    struct Par {
        int campo = 0;   // index in the layout's fields
        int coluna = 0;  // column of the result
    };

    MapaColunas() = default;
    MapaColunas(const LayoutRegistro& layout, const ComandoSqlite& consulta);
    const QVector<Par>& pares() const { return m_pares; }

private:
    QVector<Par> m_pares;
};
