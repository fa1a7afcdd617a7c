#pragma once
// Copies rows of a declaration's tables under a new parent, with every value bound. The columns copied are the
// table's own, read from the schema, less the parent column (given anew) and the table's own counter (made anew
// by the engine). Statements are prepared once per run: a copy of ten thousand items runs the same few over and
// over. A failed statement ends the run through BDTrataErro, and the open transaction goes with it.
#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <memory>

class CopiadorLinhas {
public:
    CopiadorLinhas();
    ~CopiadorLinhas();
    CopiadorLinhas(const CopiadorLinhas&) = delete;
    CopiadorLinhas& operator=(const CopiadorLinhas&) = delete;

    // "INSERT INTO tabela (pai, ...) SELECT novo, ... FROM tabela WHERE pai = antigo [AND filtro]", in the order
    // the rows were made.
    void copiaTodas(const QString& tabela, const QString& pai, const QVariant& antigo, const QVariant& novo,
                    const QString& filtro = QString());
    // The row whose counter `chave` is `antigaChave` goes in again under the parent `novo`; gives the new row's
    // counter, fetched by "SELECT max(chave) FROM tabela" right after the insert.
    QVariant copiaUma(const QString& tabela, const QString& chave, const QVariant& antigaChave, const QString& pai,
                      const QVariant& novo);
    // The counters of the rows under `antigo` (with the optional filter), in their order.
    QVariantList chaves(const QString& tabela, const QString& chave, const QString& pai, const QVariant& antigo,
                        const QString& filtro = QString());

    // Runs a statement, prepared once; for a query, the caller reads the rows before the next call with the same
    // text.
    QSqlQuery& executa(const QString& sql, const QVariantList& valores = {});
    // First column of the first row, or an invalid QVariant without rows.
    QVariant valor(const QString& sql, const QVariantList& valores = {});

    // The columns of `tabela` that travel in a copy under a new `pai`.
    QStringList colunasCopiadas(const QString& tabela, const QString& pai);
    // The table's own counter (an INTEGER key alone in the primary key), or empty.
    QString contador(const QString& tabela);

private:
    void leEsquema(const QString& tabela);
    QHash<QString, QStringList> m_colunas;
    QHash<QString, QString> m_contador;
    QHash<QString, std::shared_ptr<QSqlQuery>> m_consultas;
};
