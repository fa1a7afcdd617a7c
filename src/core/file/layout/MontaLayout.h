#pragma once
// Builds one record layout field by field, in column order, so that the tables in LayoutTabelas read like the
// layout tables of the format. `pronto()` refuses (qFatal) a table with a gap, an overlap or a wrong length.
#include "core/file/layout/LayoutRegistro.h"

class MontaLayout {
public:
    MontaLayout(const QString& tipo, int tamanho, const QString& tabela);
    // The reader accepts shorter lines of this record and fills them with blanks.
    MontaLayout& ateTamanho();
    // Written without its own line end.
    MontaLayout& semFimDeLinha();
    // A field that maps to a column: `coluna` defaults to the name, `tabela` to the record's own.
    MontaLayout& campo(int posicao, int tamanho, TipoCampo tipo, const QString& nome,
                       const QString& coluna = QString(), const QString& tabela = QString());
    // The reader's rule of the field just added, where it differs from its kind's (see LeituraCampo).
    MontaLayout& aparado() { return le(LeituraCampo::Aparado); }
    MontaLayout& zerosVazio() { return le(LeituraCampo::ZerosVazio); }
    MontaLayout& semZerosEsquerda() { return le(LeituraCampo::SemZerosEsquerda); }
    MontaLayout& mesAno() { return le(LeituraCampo::MesAno); }
    MontaLayout& zeroEsquerda() { return le(LeituraCampo::ZeroEsquerda); }
    MontaLayout& ignorado() { return le(LeituraCampo::Ignorado); }
    // Positions 1-2, the record type.
    MontaLayout& tipoRegistro();
    MontaLayout& zeros(int posicao, int tamanho);
    MontaLayout& brancos(int posicao, int tamanho);
    MontaLayout& fixo(int posicao, int tamanho, const QString& constante, const QString& nome = QString());
    LayoutRegistro pronto() const;

private:
    MontaLayout& le(LeituraCampo leitura);
    MontaLayout& constante(int posicao, int tamanho, const QString& nome, const QString& valor);
    LayoutRegistro m_registro;
};
