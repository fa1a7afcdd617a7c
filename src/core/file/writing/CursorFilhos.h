#pragma once
// The rows of a child table for a whole declaration, read by one forward-only query sorted in the order in
// which the writer visits their parents. Each parent takes its rows by walking forward while they carry its key:
// one query per table instead of one per parent, and nothing held in memory.
//   CursorFilhos destinos(sql, {id});          // column 0 is the parent's key
//   while (destinos.de(idItem)) { ... destinos.texto(3) ...; destinos.avanca(); }
// The query's filter must select exactly the parents the writer visits, in the writer's order.
#include "core/store/ComandoSqlite.h"

#include <QString>
#include <QVariant>
#include <QVariantList>

class CursorFilhos {
public:
    CursorFilhos(const QString& sql, const QVariantList& valores);
    // The current row belongs to that parent.
    bool de(qint64 chave) const { return m_valida && m_chave == chave; }
    void avanca();
    QString texto(int coluna) const { return m_rs.texto(coluna); }
    QVariant valor(int coluna) const { return m_rs.valor(coluna); }
    // The current row, for LinhaRegistro::preenche and MapaColunas.
    const ComandoSqlite& linha() const { return m_rs; }

private:
    ComandoSqlite m_rs;
    bool m_valida = false;
    qint64 m_chave = 0;
};
