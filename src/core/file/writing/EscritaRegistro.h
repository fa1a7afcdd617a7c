#pragma once
// What the individual and the monthly writers share: a record filled field by field from the columns of a
// child row, and the frame of writing one declaration's file (open, header records, items, close) around each
// writer's own items and its own failure messages, which differ between the two on purpose.
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/SaidaVrt.h"

#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>

class CabecalhoVrt;
class CursorFilhos;
class GravacaoVrt;

namespace EscritaRegistro {

// A field of the record and the column that fills it. With `brancoVazio` a column holding one blank leaves
// the field empty (zeros for a number) instead of writing the blank.
struct Coluna {
    QString campo;
    int coluna = 0;
    bool brancoVazio = false;
};
using Colunas = QVector<Coluna>;

// The value of an imported good and its three currencies (value, freight, insurance), in six columns from
// `primeira`: `campoValor`, CD_MOEDA_NEG, VL_FRETE_UNID_<unidade>, CD_MOEDA_FRETE, VL_SEGURO_UNID_<unidade>,
// CD_MOEDA_SEGURO. The unit is "NFS" (per unit of the outgoing invoice) or "INT" (per unit of the product).
Colunas valoresImportacao(const QString& campoValor, const QString& unidade, int primeira);

// Each field takes its column's text, in the order given.
void poe(LinhaRegistro& r, const CursorFilhos& x, const Colunas& colunas);
void poe(LinhaRegistro& r, const QStringList& x, const Colunas& colunas);

// The names that differ between the two declarations in the product records 12 and 14: the individual counts
// per unit of the outgoing invoice (..._NFS), the monthly per unit of product (..._PROD).
struct NomesProduto {
    QString quantidade;                  // QT_PROD_UNID_NFS / QT_PROD_UNID_PROD
    bool quantidadeBrancoVazio = false;  // the individual record 12 leaves a blank quantity empty
    QString valorNota;                   // record 12: VL_INS_PROD_UNID_NFS / VL_PROD_UNID_PROD
    QString totalObsoleto;               // record 12: VL_TOT_PROD_INT / VL_TOT_PROD_OBSOLE
};

// Records 12 (acquisition invoices) and 14 (DSI) of one foreign product, from the rows of `x` under `pai`.
// Columns of 12: parent, CNPJ, series, number, item, date, CFOP, DL 288, obsolete, quantity, value, total.
// Columns of 14: parent, number, old number, good, quantity, then the six import values, suspension.
void escreveRegistros12(SaidaVrt& saida, const LayoutRegistro& layout, CursorFilhos& x, qint64 pai,
                        const NomesProduto& nomes);
void escreveRegistros14(SaidaVrt& saida, const LayoutRegistro& layout, CursorFilhos& x, qint64 pai,
                        const NomesProduto& nomes);

// The text a writer shows for a file error; an empty text lets the error pass and the run reports success.
using MensagemDoErro = QString (*)(const SaidaVrt::Erro& erro);

// Writes the file of one declaration: header records, then `escreveItens`. A file error abandons the file as
// far as it got, shows the writer's message (critical) and marks the run as failed.
void gravaArquivo(const CabecalhoVrt& cabecalho, GravacaoVrt& run,
                  const std::function<void(SaidaVrt&)>& escreveItens, MensagemDoErro mensagemDoErro);

}  // namespace EscritaRegistro
