#pragma once
// The head working values of one declaration, prepared before any of its records is written, and the four head
// records 00 to 03 written from them. The defaults are what a monthly declaration writes in the invoice's
// fields; an individual declaration fills them from its invoice.
#include "core/file/layout/LayoutRegistro.h"

#include <QString>
#include <QVariant>
#include <QVector>

class SaidaVrt;

class CabecalhoVrt {
public:
    // Prepares the values of a declaration; false when VRT has no row for it (the declaration is skipped).
    bool carrega(const QString& idVrtMicro);
    // Records 00, 01, 02 and 03, with `origem` ("1" transmission, "3" backup) at position 10 of record 00.
    void escreve(SaidaVrt& saida, const QString& origem) const;

    // CD_TIPO_VRT "2" is monthly; any other value is written as an individual declaration.
    TipoDeclaracao tipo() const;

    QString idVrtMicro;
    QString cdTipoVrt;
    QString cnpj = QStringLiteral("00000000000000");
    QString nrVrt = QStringLiteral("0000000000");
    QString nrProcAdmFiscal = QStringLiteral("00000000000000000");
    QString indMandadoJudic;
    QString banco;
    QString agencia;
    QString conta;
    QString referencia = QStringLiteral("000000");  // yyyymm
    QString inscricaoEstadual = QStringLiteral("00000000000000");
    QString serieNf = QStringLiteral("     ");
    QString numeroNf = QStringLiteral("000000");
    QString dtEmissao = QStringLiteral("00000000");  // as stored, ddmmyyyy
    QString dtSaida = QStringLiteral("00000000");
    QString cfop = QStringLiteral("0000");
    bool cfopNulo = false;
    QString tipoDestinatario = QStringLiteral("0");
    QString nrDestinatario = QStringLiteral("              ");
    QString uf = QStringLiteral("  ");
    QString saidaAlcAo = QStringLiteral(" ");
    QVariant idNfs;   // the invoice of an individual declaration
    QString destino;  // its destination code, "1" to "4"

    QVector<QString> indicadoresMandado;  // 35 flags "S"/"N"
    QVector<QString> valoresMandado;      // 35 values of 15 digits
    QVector<QString> valoresRetif;        // 33 values of 15 digits

    // The destination code of an individual declaration from its UF and IN_SAIDA_ALC_AO.
    static QString codigoDestino(const QString& uf, const QString& saidaAlcAo);

private:
    // The values of the court order (record 02) and of the rectification (record 03) by their slots.
    void carregaValores();
};
