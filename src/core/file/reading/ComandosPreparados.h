#pragma once
// The statements of a long operation, each prepared once on first use and kept for the whole run: a file of
// a hundred thousand records runs the same dozen statements over and over, and preparing them per row would
// cost more than running them. Values are always bound; a failed statement ends the run through BDTrataErro.
#include <QSqlQuery>
#include <QVariant>
#include <QVariantList>
#include <memory>
#include <unordered_map>

class ComandosPreparados {
public:
    ComandosPreparados();
    ~ComandosPreparados();
    ComandosPreparados(const ComandosPreparados&) = delete;
    ComandosPreparados& operator=(const ComandosPreparados&) = delete;

    // Runs a statement without result rows. `sql` is a literal with "?" placeholders: it is the cache key.
    void executa(const char* sql, const QVariantList& valores);
    // Key that the engine gave to the row inserted by the last `executa`, or an invalid QVariant.
    QVariant ultimaChave() const { return m_ultimaChave; }
    // The key of the row just inserted into `chave`; without one, `mensagem` is shown (critical) and the result
    // is false. Each reader keeps its own message per record.
    bool novaChave(QVariant& chave, const QString& mensagem);
    // First column of the first row, or an invalid QVariant when there is no row.
    QVariant valor(const char* sql, const QVariantList& valores);
    // Whether the query gives at least one row.
    bool existe(const char* sql, const QVariantList& valores);

    // A text value as the reader stores it: never Null, so that an empty field is stored as an empty text.
    static QVariant texto(const QString& valor);

private:
    QSqlQuery& roda(const char* sql, const QVariantList& valores);
    std::unordered_map<const char*, std::unique_ptr<QSqlQuery>> m_consultas;
    QVariant m_ultimaChave;
};
