#pragma once
// The INSERT that one record of a declaration file gives into one table, generated from the record's layout:
// the columns the caller names first (keys, constants, values the reading carries from earlier records), then
// every field of the layout that maps to a column of that table, in column order, each taken by its own rule
// (CampoLayout::leitura). So a column is named once, in the layout, for the writer, the checker and the reader.
//
//   const InsercaoRegistro destino(layout11, "DESTINO_ITEM_VRT_MEN", {"ID_ITEM_VRT"});
//   destino.executa(comandos, registro, {itemAtual});
//
// Where the system stores something other than the field's rule gives, the reader changes that one value
// (see ExcecoesLeitura.h) between `valores` and `executa`.
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVector>

class ComandoSqlite;
class ComandosPreparados;
class LayoutRegistro;
class RegistroLido;

class InsercaoRegistro {
public:
    // `camposDeFora`: fields that the layout maps to another table but this row stores as well, by their column.
    InsercaoRegistro(const LayoutRegistro& layout, const QString& tabela, const QStringList& colunasAntes = {},
                     const QStringList& camposDeFora = {});

    const QString& sql() const { return m_sql; }
    const QStringList& colunas() const { return m_colunas; }
    // `antes` for the first columns, then the fields of `registro`.
    QVariantList valores(const RegistroLido& registro, const QVariantList& antes) const;
    // Index in `valores` of a field of the layout; a field not in the row is a programming error (qFatal).
    int posicao(const QString& campo) const;

    void executa(ComandosPreparados& comandos, const QVariantList& valores) const;
    void executa(ComandosPreparados& comandos, const RegistroLido& registro, const QVariantList& antes) const;

    // "INSERT INTO tabela (a, b) VALUES (?, ?)".
    static QString monta(const QString& tabela, const QStringList& colunas);

private:
    const LayoutRegistro& m_layout;
    int m_antes = 0;
    QVector<int> m_campos;  // indices into the layout's fields
    QStringList m_colunas;
    QString m_sql;
    // The statement in the cache it was last run on, and room for a field the reading rule rewrites.
    mutable const ComandosPreparados* m_de = nullptr;
    mutable ComandoSqlite* m_comando = nullptr;
    mutable QString m_espaco;
};
