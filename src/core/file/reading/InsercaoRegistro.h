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
    // A row fed by several records read together: the head records, whose VRT row takes fields of records 00 to
    // 03. A column that two of them give is a programming error (qFatal): the copy is marked ignored in its layout.
    InsercaoRegistro(const QVector<const LayoutRegistro*>& layouts, const QString& tabela,
                     const QStringList& colunasAntes = {});

    const QString& sql() const { return m_sql; }
    const QStringList& colunas() const { return m_colunas; }
    // `antes` for the first columns, then the fields of `registro`.
    QVariantList valores(const RegistroLido& registro, const QVariantList& antes) const;
    // The same over several records, one per layout, in the order of the layouts.
    QVariantList valores(const QVector<const RegistroLido*>& registros, const QVariantList& antes) const;
    // Index in `valores` of a field of the layout; a field not in the row is a programming error (qFatal).
    int posicao(const QString& campo) const;

    void executa(ComandosPreparados& comandos, const QVariantList& valores) const;
    void executa(ComandosPreparados& comandos, const RegistroLido& registro, const QVariantList& antes) const;

    // "INSERT INTO tabela (a, b) VALUES (?, ?)".
    static QString monta(const QString& tabela, const QStringList& colunas);

private:
    void acrescenta(int registro, const QString& tabela, const QStringList& camposDeFora);
    const LayoutRegistro& campoDe(int k) const;

    const LayoutRegistro& m_layout;
    QVector<const LayoutRegistro*> m_layouts;  // m_layout alone, or the records read together
    int m_antes = 0;
    QVector<int> m_campos;     // indices into their layout's fields
    QVector<int> m_registros;  // the layout of each field, an index into m_layouts
    QStringList m_colunas;
    QString m_sql;
    // The statement in the cache it was last run on, and room for a field the reading rule rewrites.
    mutable const ComandosPreparados* m_de = nullptr;
    mutable ComandoSqlite* m_comando = nullptr;
    mutable QString m_espaco;
};
