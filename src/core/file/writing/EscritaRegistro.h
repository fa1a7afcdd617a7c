#pragma once
// What the individual and the monthly writers share: records composed from the layouts and the rows of the
// writers' queries, and the frame of writing one declaration's file (open, header records, items, close)
// around each writer's own items and its own failure messages, which differ between the two on purpose.
//
// A writer's query names each column after the field it fills (an alias where the table's column has another
// name) and says in SQL when a field is filled at all: "CASE WHEN x.IND_DL_288_67 = 'S' THEN ... END AS ..."
// for a value written only under a condition, "NULLIF(x.NR_DI, ' ') AS NR_DI" for one blank that leaves the
// field empty. A NULL is an empty field. The record is then filled by LinhaRegistro::preenche; what no row
// holds (a destination code, a run's working value) is put by the writer after it.
#include "core/file/writing/CursorFilhos.h"
#include "core/file/writing/FilhosDoItem.h"
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/MapaColunas.h"
#include "core/file/writing/SaidaVrt.h"

#include <QString>
#include <functional>

class CabecalhoVrt;
class GravacaoVrt;

namespace EscritaRegistro {

// The value of an imported good and its three currencies, as select-list columns from table alias `t`, each
// only where `condicao` holds (an empty condition: always): `campoValor`, CD_MOEDA_NEG,
// VL_FRETE_UNID_<unidade>, CD_MOEDA_FRETE, VL_SEGURO_UNID_<unidade>, CD_MOEDA_SEGURO. The unit is "NFS" (per
// unit of the outgoing invoice) or "INT" (per unit of the product).
QString valoresImportacao(const QString& condicao, const QString& t, const QString& campoValor,
                          const QString& unidade);

// The column `coluna` of alias `t` only where `condicao` holds, named `campo`.
QString se(const QString& condicao, const QString& t, const QString& coluna, const QString& campo);

// The names that differ between the two declarations in the product records 12 and 14: the individual counts
// per unit of the outgoing invoice (..._NFS), the monthly per unit of product (..._PROD).
struct NomesProduto {
    QString quantidade;                  // QT_PROD_UNID_NFS / QT_PROD_UNID_PROD
    bool quantidadeBrancoVazio = false;  // the individual record 12 leaves a blank quantity empty
    QString valorNota;                   // record 12: VL_INS_PROD_UNID_NFS / VL_PROD_UNID_PROD
    QString totalObsoleto;               // record 12: VL_TOT_PROD_INT / VL_TOT_PROD_OBSOLE
};

// The select lists of records 12 (acquisition invoices) and 14 (DSI) of a foreign product over table alias x,
// after the parent's key: the rules the two declarations share.
QString colunas12(const NomesProduto& nomes);
QString colunas14(const NomesProduto& nomes);

// A record filled from a parent's row (an item) and, where it has one, a child's row (a destination, an
// input), which wins where both name a field.
class RegistroComposto {
public:
    // `pai` and `filho` give the names of the columns: the statements whose rows the records are composed from.
    RegistroComposto(const LayoutRegistro& layout, const ComandoSqlite& pai, const ComandoSqlite* filho = nullptr);
    // The record composed from the current rows (a statement's or one FilhosDoItem kept), to be finished by the
    // writer and written.
    template <typename Pai>
    LinhaRegistro& compoe(const Pai& pai)
    {
        m_linha.limpa();
        m_linha.preenche(pai, m_doPai);
        return m_linha;
    }
    template <typename Pai, typename Filho>
    LinhaRegistro& compoe(const Pai& pai, const Filho& filho)
    {
        compoe(pai);
        m_linha.preenche(filho, m_doFilho);
        return m_linha;
    }

private:
    LinhaRegistro m_linha;
    MapaColunas m_doPai;
    MapaColunas m_doFilho;
};

// The records of a child table: one per row under a parent, every field from its column; `aoCompor`, when
// given, finishes each record from the row before it is written.
class RegistrosFilhos {
public:
    using AoCompor = std::function<void(LinhaRegistro&, const ComandoSqlite&)>;
    RegistrosFilhos(const LayoutRegistro& layout, const QString& sql, const QVariantList& valores,
                    AoCompor aoCompor = AoCompor());
    void escreve(SaidaVrt& saida, qint64 pai);

private:
    CursorFilhos m_cursor;
    LinhaRegistro m_linha;
    MapaColunas m_mapa;
    AoCompor m_aoCompor;
};

// The records of a child table under the destinations of one item at a time (FilhosDoItem, column 1 the
// destination): one per row, every field from its column. `aoCompor`, when given, finishes each record from the
// row just before it is written, in the order of the file.
class RegistrosPorDestino {
public:
    using AoCompor = std::function<void(LinhaRegistro&, const FilhosDoItem::Linha&)>;
    RegistrosPorDestino(const LayoutRegistro& layout, const QString& sql, const QVariantList& valores,
                        int primeiraDe = -1, AoCompor aoCompor = AoCompor());
    void carrega(qint64 item) { m_filhos.carrega(item); }
    void escreve(SaidaVrt& saida, qint64 destino);

private:
    FilhosDoItem m_filhos;
    LinhaRegistro m_linha;
    MapaColunas m_mapa;
    AoCompor m_aoCompor;
};

// The text a writer shows for a file error; an empty text lets the error pass and the run reports success.
using MensagemDoErro = QString (*)(const SaidaVrt::Erro& erro);

// Writes the file of one declaration: header records, then `escreveItens`. A file error abandons the file as
// far as it got, shows the writer's message (critical) and marks the run as failed.
void gravaArquivo(const CabecalhoVrt& cabecalho, GravacaoVrt& run,
                  const std::function<void(SaidaVrt&)>& escreveItens, MensagemDoErro mensagemDoErro);

}  // namespace EscritaRegistro
