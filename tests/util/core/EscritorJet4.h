#pragma once
// A test-only writer of Access (Jet 4) database files, written from the published description of the format
// (the HACKING notes of mdbtools): a header page, one page of usage maps, the catalog MSysObjects, and per table a
// definition page and its data pages. It writes what the tests need and nothing more: no index, no long values,
// no deleted rows, columns of three kinds. Every file it writes is meant to be read back with mdbtools' own
// mdb-export before a test trusts it (see LeituraMdbExport).
#include <QDate>
#include <QList>
#include <QString>
#include <QVariantList>

struct ColunaJet {
    enum Tipo { Longo, Texto, DataHora };
    QString nome;
    Tipo tipo = Texto;
};

struct TabelaJet {
    QString nome;
    QList<ColunaJet> colunas;
    QList<QVariantList> linhas;  // per row, one value per column; a null QVariant is a Null
};

// Writes `tabelas` to `caminho` as a Jet 4 file. False when the file cannot be written or a row does not fit in a
// page.
bool EscreveJet4(const QString& caminho, const QList<TabelaJet>& tabelas);
