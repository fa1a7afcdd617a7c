#pragma once
// Which column of a statement's result fills which field of a record: the field whose name is the column's
// name (or its alias), found once by name, so that a writer's query says what goes into the record and the
// layout says where and how (LinhaRegistro::preenche). Constants and fillers take no column.
//   CursorFilhos di(QStringLiteral("SELECT x.ID_DEST_PRODUTO, x.NR_DI, ... FROM ..."), {id});
//   const MapaColunas mapa(layout(13), di.linha());
//   r.preenche(di.linha(), mapa);
//
// A column that names no field of the record must say why, or the map ends the run (qFatal), so that a misspelt
// alias never writes a silent blank. It may be:
//  - a field of another record of the format (one item query fills records 11, 21, 31 and 41);
//  - the name of a table's column (a key, a condition the writer reads itself);
//  - a name beginning with "_": a value the writer reads itself and writes, or not, on its own terms.
#include <QStringList>
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

    // The names of the columns of `consulta` that name no field of `layout` and give no reason above.
    static QStringList semCampo(const LayoutRegistro& layout, const ComandoSqlite& consulta);

private:
    QVector<Par> m_pares;
};
