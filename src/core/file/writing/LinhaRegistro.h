#pragma once
// One record being written: its layout and the text of each field, formatted by the field's kind. Fields that
// nobody sets keep what the kind gives for an empty value (zeros for N, D and DT, blanks for X and R, the
// constant for K), which is what the format writes where a column has no value.
//   LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("13")));
//   l.preenche(consulta, mapa);                                      // every field from its column (MapaColunas)
//   l.poe(QStringLiteral("NR_DI"), rs.value(...).toString());        // formatted: ZeroEsquerda to 10
//   l.poeComoEsta(QStringLiteral("NR_DI"), QString(15, u'0'));       // exactly this text, too long or not
//   saida.escreve(l);
//   l.limpa();                                                       // the empty record again, for the next row
//
// Records are written by the hundred thousand, so a record whose fields all hold exactly their width (nearly
// every one) is kept as one line of Windows-1252 bytes, each field written in place, composed from the bytes the
// engine gives where they are ASCII. A field of another width, or a character outside Latin-1, turns the record
// into one text per field, composed as the old writer placed them (see compoeEm).
#include "core/file/layout/LayoutRegistro.h"
#include "core/file/writing/MapaColunas.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QVector>

class LinhaRegistro {
public:
    explicit LinhaRegistro(const LayoutRegistro& layout);

    // The value formatted by the field's kind (see TipoCampo); a null or empty value is an empty column.
    void poe(const QString& nome, const QString& valor);
    void poe(int indice, const QString& valor);
    // The text exactly as given: a text longer than the field pushes the next field to a new line.
    void poeComoEsta(const QString& nome, const QString& texto);
    void poeComoEsta(int indice, const QString& texto);
    // Every field of `mapa` from its column of the row, as poe() of the column's text. The row is a statement's
    // current row (ComandoSqlite) or one kept after it moved on (FilhosDoItem::Linha).
    template <typename Linha>
    void preenche(const Linha& linha, const MapaColunas& mapa)
    {
        QByteArrayView v;
        for (const MapaColunas::Par& p : mapa.pares()) {
            if (linha.utf8(p.coluna, v))
                poeUtf8(p.campo, v);
            else
                poe(p.campo, linha.texto(p.coluna));
        }
    }
    // As poe() of the text whose UTF-8 is `valor` (a null view is a null text).
    void poeUtf8(int indice, QByteArrayView valor);
    // Every field back to its empty form.
    void limpa();
    QString valor(const QString& nome) const;

    const LayoutRegistro& layout() const { return *m_layout; }

    // The record composed on its own, from column 1, with the line breaks a too long value causes and without
    // the line end.
    QString texto() const;
    // Appends the record to a text whose current line stands at `coluna` (from 1) and gives the column after it.
    int compoeEm(QString& destino, int coluna) const;
    // The record as one line of Windows-1252 bytes, every field at its width; null when it is kept as one text
    // per field (then compoeEm composes it).
    const QByteArray& bytes() const { return m_exata ? m_linha : m_nenhuma; }

    // How the writer turns a stored value into the field's text, by kind:
    //  N ZeroEsquerda; X BrancoDireita; R BrancoEsquerda; D2/D5/D7 TiraCaractere of the comma, then ZeroEsquerda;
    //  DT characters 5-8, 3-4, 1-2 of ddmmyyyy, then ZeroEsquerda to 8; K the value, or the constant when null;
    //  A the value as it is.
    static QString formata(const CampoLayout& campo, const QString& valor);
    // The same on the UTF-8 of a value (a null view is a null value) into `saida`; false, leaving the work to
    // formata(), when the value is not all ASCII.
    static bool formataAscii(const CampoLayout& campo, QByteArrayView valor, QByteArray& saida);

private:
    void coloca(int indice, const QString& texto);
    void separaCampos();

    const LayoutRegistro* m_layout;
    bool m_exata = false;
    QByteArray m_linha;             // while m_exata
    QVector<QString> m_valores;     // otherwise
    QByteArray m_formatado;         // scratch of poeUtf8
    static const QByteArray m_nenhuma;
};
