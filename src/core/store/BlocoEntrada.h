#pragma once
// The store side of an entry block of the editors: the rows of one table under one parent (a declaration, an
// item), described once as data. From the description come the statements the block needs: the grid's SELECT,
// the duplicate test, INSERT, UPDATE, DELETE of one row and DELETE of all rows of the parent. Every value is
// bound; the description holds only names.
//
//     const BlocoEntrada valoresMandado{
//         "VALORES_DIVER_MANDADO", "ID_VRT_MICRO", {"CD_MOD_MANDADO", "CD_TIPO_DIVER_MANDADO"},
//         {"CD_MOD_MANDADO", "CD_TIPO_DIVER_MANDADO", "NM_MOD_INT_MANDADO", ...},
//         {"CD_MOD_MANDADO", "printf('%02d', CD_TIPO_DIVER_MANDADO)"}};
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

struct BlocoEntrada {
    QString tabela;
    QString colunaPai;      // the column that ties a row to its parent
    QStringList chave;      // the columns that, with the parent, identify one row
    QStringList colunas;    // the columns a row is written with (the parent's apart)
    QStringList ordem;      // ORDER BY of the grid: columns or expressions

    // The statements, with "?" for the parent first and then the values in the order of the lists.
    QString sqlConsulta(const QStringList& colunasGrade) const;
    QString sqlExiste() const;
    QString sqlInsere() const;
    QString sqlAltera() const;
    QString sqlExclui() const;
    QString sqlExcluiTodos() const;
};

// Runs a block's statements on the session's connection, inside whatever transaction is open.
namespace Bloco {

// The rows of the parent, each the values of `colunasGrade` as text (a null column gives ""), in the order of
// the description.
QList<QStringList> Linhas(const BlocoEntrada& b, const QVariant& pai, const QStringList& colunasGrade);
// A row with this key exists under the parent; `chave` in the order of b.chave.
bool Existe(const BlocoEntrada& b, const QVariant& pai, const QVariantList& chave);
// Writes a new row; `valores` by column name, a missing column written as "".
void Insere(const BlocoEntrada& b, const QVariant& pai, const QVariantMap& valores);
// Rewrites the row that had `chaveAntiga` with `valores`.
void Altera(const BlocoEntrada& b, const QVariant& pai, const QVariantList& chaveAntiga, const QVariantMap& valores);
void Exclui(const BlocoEntrada& b, const QVariant& pai, const QVariantList& chave);
// Removes every row of the parent; gives how many went.
int ExcluiTodos(const BlocoEntrada& b, const QVariant& pai);

}  // namespace Bloco
