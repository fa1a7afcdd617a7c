#pragma once
// One line of a declaration file read through the layout of its record: fields are asked for by the names of
// the layout tables, so that the readers hold no positions of their own. Each way of taking a field is one of
// the reader's rules of the format (as it stands, trimmed, zeros to empty, decimal, date).
#include "core/file/layout/LayoutRegistro.h"

#include <QString>
#include <QStringView>

class RegistroLido {
public:
    RegistroLido(const QString& linha, const LayoutRegistro& layout);

    const QString& linha() const { return m_linha; }
    const LayoutRegistro& layout() const { return m_layout; }

    // The field's characters as they stand.
    QString texto(const QString& campo) const;
    // Trimmed of blanks on both sides.
    QString aparado(const QString& campo) const;
    // As it stands, but a field of zeros gives an empty text.
    QString semZeros(const QString& campo) const;
    // Leading zeros removed (TiraZerosEsquerda): a field of zeros gives an empty text.
    QString semZerosEsquerda(const QString& campo) const;
    // A D field: TiraZerosEsquerda, then the comma at the field's scale (InsereVirgula); zeros give empty.
    QString decimal(const QString& campo) const;
    // A DT field from yyyymmdd back to ddmmyyyy.
    QString data(const QString& campo) const;
    // The field by its own rule (CampoLayout::leitura): what the reader stores.
    QString lido(const CampoLayout& campo) const;
    QString lido(const QString& campo) const;
    // The same text as lido(campo), without a new text where the rule only cuts the field: a view into the line,
    // or into `espaco` when the rule changes the characters. Valid while the line and `espaco` are.
    QStringView lidoEm(const CampoLayout& campo, QString& espaco) const;
    bool zeros(const QString& campo) const;
    bool brancos(const QString& campo) const;

    // The same tests on any text.
    static bool soZeros(const QString& texto);
    static bool soBrancos(const QString& texto);
    // yyyymmdd to ddmmyyyy.
    static QString dataDoArquivo(const QString& aaaammdd);

private:
    const CampoLayout& campo(const QString& nome) const;
    QString m_linha;
    const LayoutRegistro& m_layout;
};
