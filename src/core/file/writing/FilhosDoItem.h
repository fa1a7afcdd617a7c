#pragma once
// The rows of a child table for a whole declaration, taken one item at a time and handed out in the order of a
// child's key. The query walks the items in the writer's order and, inside an item, follows the table's
// indexes (a destination's code before its key, an input's order number before its key), so that the engine
// sorts nothing; the few rows of one item are kept here and put in the order of column 1, the order of the
// file. Sorting each item's handful of rows here costs far less than the engine sorting them all.
//   FilhosDoItem nfa(sql, {id});     // column 0 the item, column 1 the key the rows go by (a destination)
//   nfa.carrega(idItem);             // every row of that item
//   for (int k : nfa.de(idDestino))  // that destination's rows, in the query's order
//       r.preenche(nfa.linha(k), mapa);
//
// `primeiraDe`, when given, is a column whose value repeats over rows that the query's join multiplied: only
// the first row of each value is kept (a DI's first import row, as the lowest key of a joined table). It is an
// integer key.
#include "core/file/writing/CursorFilhos.h"
#include "core/file/writing/LinhasGuardadas.h"

#include <QString>
#include <vector>

class FilhosDoItem {
public:
    using Linha = LinhasGuardadas::Linha;

    // Positions k of linha(k).
    using Faixa = LinhasGuardadas::Faixa;

    FilhosDoItem(const QString& sql, const QVariantList& valores, int primeiraDe = -1);

    // Keeps every row of `item`, in the order of column 1 (rows of the same key in the query's order).
    void carrega(qint64 item);
    int quantas() const { return int(m_ordem.size()); }
    // The k-th row in that order.
    Linha linha(int k) const { return m_linhas.linha(m_ordem.at(k)); }
    qint64 chave(int k) const { return m_chaves.at(m_ordem.at(k)); }
    // The rows whose column 1 is `chave`.
    Faixa de(qint64 chave) const;
    // The statement, for the names of its columns (MapaColunas).
    const ComandoSqlite& consulta() const { return m_cursor.linha(); }

private:
    // The current row of the statement carries the `primeiraDe` value of the last row kept.
    bool repeteAnterior() const;

    CursorFilhos m_cursor;
    int m_primeiraDe;
    LinhasGuardadas m_linhas;
    std::vector<qint64> m_chaves;  // column 1 of each row
    std::vector<int> m_ordem;      // the rows in the order of their keys
};
