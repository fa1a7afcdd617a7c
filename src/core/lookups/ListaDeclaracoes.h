#pragma once
// The one list of all declarations in the database, as the declaration chooser shows it and vrt-cli lists it:
// identification, declarant's CNPJ, creation date, type, reference month, exit invoice and series, situation.
#include <QList>
#include <QString>
#include <QStringList>

namespace ListaDeclaracoes {

// Column indexes of a row, in the chooser's order.
enum Coluna {
    Identificacao = 0,
    Internador = 1,
    Criacao = 2,
    Tipo = 3,
    Referencia = 4,
    NotaFiscal = 5,
    Serie = 6,
    Situacao = 7,
    QuantidadeColunas = 8
};

// The chooser's column titles, in order.
QStringList Titulos();

// The table column a list column sorts on ("ID_VRT_MICRO", "NR_CNPJ_INTERNADOR", "DT_REGISTRO_VRT_MICRO",
// "CD_TIPO_VRT" for columns 0 to 3: the stored values, not the shown text); empty for a column that cannot be
// sorted.
QString ColunaOrdenacao(int coluna);

// The list query without its ORDER BY: CNPJ as "99.999.999/9999-99", creation date as dd/mm/yyyy, the type and
// the situation in words, the reference month as mm/yyyy. A monthly row has the invoice columns empty and an
// individual row the reference month.
QString SqlLista();

// The list sorted on `coluna` (0 to 3) in `direcao` ("ASC", "DESC", or empty for ascending); each row holds the
// eight texts of the columns, a missing value as an empty text.
QList<QStringList> Lista(int coluna = Identificacao, const QString& direcao = QStringLiteral("DESC"));

}  // namespace ListaDeclaracoes
