#pragma once
// The store side of the entry documents of items (DI, DSI, acquisition invoice): the lines of one member of the
// family (document kind × product or input × monthly or individual) under one parent, and the child row that a
// DI line keeps its currencies and values in. One description per member, as data, drives every statement:
//
//     const TabelaDocumento diProdutoMensal{
//         "ITEM_DI_PE_MEN", "ID_ITEM_DI", {"ID_DEST_PRODUTO"},
//         {"NR_DI", "NR_DI_ANTIGA", "NR_ADICAO_DI", ...},
//         "ITEM_IMPORT_288_PE_MEN", "ID_ITEM_IMP_288", {"CD_MOEDA_NEG", "VL_PROD_UNID_PROD", ...}};
//
// Rows travel as maps from column name to value. Every value is bound.
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

struct TabelaDocumento {
    QString tabela;              // the lines
    QString colunaId;            // their key, drawn by the database
    QStringList colunasPai;      // the columns that tie a line to its parent (an input's DI: three of them)
    QStringList colunas;         // what the editors write in a line, the parent's columns apart
    QString tabelaValores;       // the child row of values; empty when the values lie in the line
    QString colunaIdValores;
    QStringList colunasValores;  // what the editors write in the child row, its link apart
};

namespace DocumentoEntrada {

// The lines of the parent in order of their key, each with its child row's columns (left-joined, empty when
// there is none) and the key under the name of colunaId.
QList<QVariantMap> Linhas(const TabelaDocumento& t, const QVariantList& pai);
// One line with its child row's columns; empty when the key is unknown.
QVariantMap Le(const TabelaDocumento& t, qint64 id);
// A line of the parent whose columns hold the values of `criterio` (each compared as text).
bool Existe(const TabelaDocumento& t, const QVariantList& pai, const QVariantMap& criterio);
// Writes a new line (a column missing from `linha` is written as empty text) and gives its key.
qint64 Insere(const TabelaDocumento& t, const QVariantList& pai, const QVariantMap& linha);
void Altera(const TabelaDocumento& t, qint64 id, const QVariantMap& linha);
// The child row goes with its line through the schema's cascade.
void Exclui(const TabelaDocumento& t, qint64 id);

// The child row of a line: rewritten when there is one, else inserted.
void GravaValores(const TabelaDocumento& t, qint64 id, const QVariantMap& valores);
void ExcluiValores(const TabelaDocumento& t, qint64 id);
bool TemValores(const TabelaDocumento& t, qint64 id);

// Whether the parent has a line in any of the tables (all with the same parent columns).
bool TemLinhas(const QList<TabelaDocumento>& tabelas, const QVariantList& pai);

}  // namespace DocumentoEntrada
