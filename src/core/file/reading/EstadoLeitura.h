#pragma once
// The working state of one reading of a declaration file, shared by the head reader and the two record
// readers: lines counted, the identification being filled, the report counters and the current keys under
// which the next rows hang. It lives for one file: a record that needs a key no earlier record of the same
// file gave finds it empty.
#include "core/file/layout/LayoutRegistro.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QVariant>

struct EstadoLeitura {
    int ContaLinhas = 0;
    QString IdVrtLida;
    QString TipoVrtLida;  // position 16 of record 00
    TipoDeclaracao declaracao = TipoDeclaracao::Mensal;

    // Current keys: monthly item, destination and input; individual invoice, item and input.
    QVariant itemAtual;
    QVariant destinoAtual;
    QString localDestinoAtual;
    QVariant insumoAtual;
    QString codigoInsumoAtual;
    QString nomeInsumoAtual;
    QVariant idNfs;
    // The name of a product or input that the individual reader read last (records 11 to 41 and 32).
    QString nomeLido;

    // What the run itself inserted, so that the searches of the readers need no statement: inside the
    // reading's transaction the declaration's rows are all its own.
    QHash<QString, QVariant> itensPE;       // monthly record 11: product code -> item
    QSet<qint64> itensComJustificativa;     // JUST_DIF_ALIQ_PROD_VRT_MEN
    QSet<qint64> insumosComJustificativa;   // JUST_DIF_ALIQ_INS_VRT_MEN
    QSet<QString> insumosComTotal;          // INSUMO_VRT / INSUMO_VRT_IND

    // "Erro no " + ContaLinhas + "º registro (registro " + tipo + ") - " + motivo + "!", a critical box; false.
    bool erroRegistro(const QString& tipo, const QString& motivo) const;
    // The length that the record's layout enforces: exact, or at most, a shorter line then filled with blanks
    // up to it. False, with "Tamanho inválido", otherwise.
    bool confereTamanho(const LayoutRegistro& layout, QString& linha) const;
};
