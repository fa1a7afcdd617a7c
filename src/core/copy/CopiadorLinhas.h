#pragma once
// Copies the rows of a declaration's tables under new parents, a table at a time: one INSERT ... SELECT moves
// every row of a table, whatever the number of items. The new keys of a table that has children are kept in a
// key map, a temporary table of the old counter and the new, which the children's statement joins to find their
// new parent. The columns copied are the table's own, read from the schema, less the parent column (given anew)
// and the table's own counter (made anew). A failed statement ends the run through BDTrataErro, and the open
// transaction goes with it.
//
// The rows go in, and the counters are given, in the order a copy made row by row would give them: parent by
// parent in the order of the parents' new keys, and under one parent in the order the rows were made. That is the
// order the writer reads them in.
#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <memory>

// One table of a copy.
struct PassoCopia {
    QString tabela;
    QString pai;      // the column that names the parent
    QString mapaPai;  // the key map of the parents (see CopiadorLinhas::raiz)
    // The members below are optional: a step names only those it needs, in order.
    // A further condition, on `t` (the row copied) and `p` (its parent's row in the map: antigo, novo, grupo).
    QString onde{};
    // An order of the rows of one parent that comes before the order they were made in.
    QString ordem{};
    // When set, the key map this table gives its children, named so.
    QString mapa{};
    // With `mapa`: a value kept beside each key (an expression on t and p) for the children's `onde`.
    QString grupo{};
    // Columns that take an expression in place of the copied value ("''" to leave them empty).
    QHash<QString, QString> trocas{};
};

class CopiadorLinhas {
public:
    CopiadorLinhas();
    ~CopiadorLinhas();
    CopiadorLinhas(const CopiadorLinhas&) = delete;
    CopiadorLinhas& operator=(const CopiadorLinhas&) = delete;

    // The map that starts a copy: the one parent `antigo`, a text key, copied as `novo`.
    void raiz(const QString& mapa, const QVariant& antigo, const QVariant& novo);
    // Copies the rows of one table, in one statement (three for a table that makes a map).
    void copia(const PassoCopia& passo);
    // The temporary table that holds the map `mapa`, for statements of the caller's own.
    static QString tabelaMapa(const QString& mapa);
    // Drops the maps; called before the commit, so that the connection goes on without them.
    void encerra();

    // Runs a statement, prepared once.
    QSqlQuery& executa(const QString& sql, const QVariantList& valores = {});
    // First column of the first row, or an invalid QVariant without rows.
    QVariant valor(const QString& sql, const QVariantList& valores = {});

    // The columns of `tabela` that travel in a copy under a new `pai`.
    QStringList colunasCopiadas(const QString& tabela, const QString& pai);
    // The table's own counter (an INTEGER key alone in the primary key), or empty.
    QString contador(const QString& tabela);

private:
    void leEsquema(const QString& tabela);
    void criaMapa(const QString& mapa, const QString& tipo);
    qint64 ultimaChave(const QString& tabela, const QString& chave);
    QHash<QString, QStringList> m_colunas;
    QHash<QString, QString> m_contador;
    QHash<QString, std::shared_ptr<QSqlQuery>> m_consultas;
    QStringList m_mapas;
};
