#pragma once
// The record layouts of the declaration file, as data: one table per record type and declaration type, used by
// the writers, the readers and the checker alike, so that a position is written down once.
//
// How to use it:
//   const LayoutRegistro& r = LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("13"));  // or 13
//   const CampoLayout& di = r.campo(QStringLiteral("NR_DI"));   // di.posicao (from 1), di.tamanho, di.tipo
//   QString texto = di.de(linha);                               // the field's characters in a line
//   for (const CampoLayout& c : r.campos) ...                   // every field in column order, fillers included
//   r.tamanho, r.tamanhoExato                                   // the length the reader enforces
//   r.semFimDeLinha                                             // records 31/32 (monthly), 12 (individual)
//
// Field names are unique inside a record. Most are the column the field maps to (`coluna`, in `tabela` or, when
// that is empty, the record's own `tabela`). Fields that map to no column are named by what they hold:
// "TIPO_REGISTRO" (positions 1-2), "ZEROS_<pos>" and "BRANCOS_<pos>" (fillers, kind K, the filler as constant),
// "FIXO_<pos>" (other constants). Repeated columns get a suffix: the four destination pairs of record 31 are
// "CD_LOCAL_DESTINO_1".."_4" and "QT_PROD_LOC_DEST_1".."_4"; the slots of records 02 and 03 are
// "IND_MANDADO_01".."_35", "VL_MANDADO_01".."_35" and "VL_RETIF_01".."_33" (see SlotsValores.h for their codes).
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

// CD_TIPO_VRT "2" and "1".
enum class TipoDeclaracao { Mensal, Individual };

// The kinds of field of the format:
//  N   digits, zero-filled on the left (ZeroEsquerda)
//  X   text, blank-filled on the right (BrancoDireita)
//  R   text, blank-filled on the left (BrancoEsquerda); only NR_DESTINAT
//  D2, D5, D7  decimal with 2, 5 or 7 implied decimals: the stored text without its comma, zero-filled
//  DT  date yyyymmdd, from the stored ddmmyyyy
//  K   constant: `constante`; an empty constante means one the writer chooses (the origin digit of record 00)
//  A   as stored: the column's text written as it is, without filling (CD_TIPO_VRT and the CNPJ of records
//      00 and 01); digits in every file this system writes
enum class TipoCampo { N, X, R, D2, D5, D7, DT, K, A };

// How the reader turns a field into the text it stores (RegistroLido::lido):
//  ComoEsta          the characters as they stand (X, N, A)
//  Aparado           trimmed of blanks on both sides (R, and the codes and names the layouts mark)
//  ZerosVazio        as it stands, but a field of zeros stores an empty text
//  SemZerosEsquerda  leading zeros removed
//  Decimal           leading zeros removed, the comma put at the field's scale (D2, D5, D7)
//  Data              yyyymmdd back to ddmmyyyy (DT)
//  MesAno            yyyymm back to mmyyyy (the reference month of record 00)
//  ZeroEsquerda      as it stands, but a blank field gives zeros at its width (ZeroEsquerda)
//  Ignorado          not taken: a copy of a field that an earlier record gives (record 01 repeats record 00)
enum class LeituraCampo { ComoEsta, Aparado, ZerosVazio, SemZerosEsquerda, Decimal, Data, MesAno, ZeroEsquerda,
                          Ignorado };

struct CampoLayout {
    int posicao = 0;  // first column, counted from 1
    int tamanho = 0;
    TipoCampo tipo = TipoCampo::X;
    QString nome;       // unique inside the record
    QString coluna;     // the column it maps to; empty for fillers and constants
    QString tabela;     // the column's table when not the record's own
    QString constante;  // kind K only
    LeituraCampo leitura = LeituraCampo::ComoEsta;  // the reader's rule; MontaLayout gives each kind its own

    int fim() const { return posicao + tamanho - 1; }
    // The field's text in a line (shorter at the end of a short line).
    QString de(const QString& linha) const { return linha.mid(posicao - 1, tamanho); }
    // Implied decimals of a D field, else 0.
    int casas() const;
    // Kinds whose characters are digits in a well-formed file: N, D2, D5, D7, DT and A.
    bool numerico() const;
    // The table of the column: its own `tabela`, else the record's.
    const QString& tabelaDe(const QString& tabelaDoRegistro) const { return tabela.isEmpty() ? tabelaDoRegistro : tabela; }
};

class LayoutRegistro {
public:
    QString tipo;                // "00" .. "41"
    int tamanho = 0;             // length of the record
    bool tamanhoExato = true;    // false: the reader accepts shorter lines and fills them with blanks
    bool semFimDeLinha = false;  // written without its own line end (the next record writes it)
    QString tabela;              // the table most of its fields map to
    QVector<CampoLayout> campos; // in column order, covering 1..tamanho without gaps

    // The field of that name; a name that the record does not have is a programming error (qFatal).
    const CampoLayout& campo(const QString& nome) const;
    // The field of that name, or nullptr.
    const CampoLayout* procura(const QString& nome) const;
    // Index of the field in `campos`, or -1: hashed once the layout is built (MontaLayout::pronto), a scan of
    // `campos` for a layout put together by hand.
    int indice(const QString& nome) const;
    // Fills the hash of indice() from `campos`.
    void indexa();

    // The layout of a record type for a declaration type; an unknown type is a programming error (qFatal).
    static const LayoutRegistro& de(TipoDeclaracao declaracao, const QString& tipo);
    // The same by number (11 for "11"), without building a text: for writers that ask once per record.
    static const LayoutRegistro& de(TipoDeclaracao declaracao, int tipo);
    // The same, or nullptr for a type the format does not have.
    static const LayoutRegistro* procura(TipoDeclaracao declaracao, const QString& tipo);
    // Every record type of the format, in the order of the head records and then by number.
    static const QStringList& tipos();
    // Kind names as written in the layout tables ("N", "D5", ...), for messages of the checker.
    static QString nomeTipo(TipoCampo tipo);

private:
    QHash<QString, int> m_indices;
};
