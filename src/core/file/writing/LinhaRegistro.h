#pragma once
// One record being written: its layout and the text of each field, formatted by the field's kind. Fields that
// nobody sets keep what the kind gives for an empty value (zeros for N, D and DT, blanks for X and R, the
// constant for K), which is what the format writes where a column has no value.
//   LinhaRegistro l(LayoutRegistro::de(TipoDeclaracao::Mensal, QStringLiteral("13")));
//   l.poe(QStringLiteral("NR_DI"), rs.value(...).toString());        // formatted: ZeroEsquerda to 10
//   l.poeComoEsta(QStringLiteral("NR_DI"), QString(15, u'0'));       // exactly this text, too long or not
//   saida.escreve(l);
#include "core/file/layout/LayoutRegistro.h"

#include <QString>
#include <QVector>

class LinhaRegistro {
public:
    explicit LinhaRegistro(const LayoutRegistro& layout);

    // The value formatted by the field's kind (see TipoCampo); a null or empty value is an empty column.
    void poe(const QString& nome, const QString& valor);
    // The text exactly as given: a text longer than the field pushes the next field to a new line.
    void poeComoEsta(const QString& nome, const QString& texto);
    QString valor(const QString& nome) const;

    const LayoutRegistro& layout() const { return *m_layout; }
    const QVector<QString>& valores() const { return m_valores; }

    // The record composed on its own, from column 1, with the line breaks a too long value causes and without
    // the line end.
    QString texto() const;
    // Appends the record to a text whose current line stands at `coluna` (from 1) and gives the column after it.
    int compoeEm(QString& destino, int coluna) const;

    // How the writer turns a stored value into the field's text, by kind:
    //  N ZeroEsquerda; X BrancoDireita; R BrancoEsquerda; D2/D5/D7 TiraCaractere of the comma, then ZeroEsquerda;
    //  DT characters 5-8, 3-4, 1-2 of ddmmyyyy, then ZeroEsquerda to 8; K the value, or the constant when null;
    //  A the value as it is.
    static QString formata(const CampoLayout& campo, const QString& valor);

private:
    const LayoutRegistro* m_layout;
    QVector<QString> m_valores;
};
