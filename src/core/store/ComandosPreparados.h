#pragma once
// The one cache of prepared statements: each statement is prepared once, on first use, and kept for the life
// of the cache, keyed by its text (two texts that are equal share one statement, two that differ never do).
// A long operation (reading a declaration file, a reference import) runs the same dozen statements a hundred
// thousand times; preparing them per row would cost more than running them. Values are always bound; a failed
// statement ends the run through BDTrataErro.
#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <memory>

class ComandosPreparados {
public:
    // What a failed statement does before BDTrataErro: the reference imports roll their transaction back first,
    // as they always did; every other caller leaves the transaction to its guard.
    enum class AntesDeFalhar { Nada, DesfazTransacao };

    explicit ComandosPreparados(AntesDeFalhar antes = AntesDeFalhar::Nada);
    ~ComandosPreparados();
    ComandosPreparados(const ComandosPreparados&) = delete;
    ComandosPreparados& operator=(const ComandosPreparados&) = delete;

    // Runs a statement without result rows; `sql` has "?" placeholders, bound in order.
    void executa(const QString& sql, const QVariantList& valores);
    // Key that the engine gave to the row inserted by the last `executa`, or an invalid QVariant.
    QVariant ultimaChave() const { return m_ultimaChave; }
    // First column of the first row, or an invalid QVariant when there is no row.
    QVariant valor(const QString& sql, const QVariantList& valores);
    // Whether the query gives at least one row.
    bool existe(const QString& sql, const QVariantList& valores);
    // How many different statements the cache holds.
    int quantidade() const { return int(m_consultas.size()); }

    // A text value as the reader stores it: never Null, so that an empty field is stored as an empty text.
    static QVariant texto(const QString& valor);

private:
    QSqlQuery& roda(const QString& sql, const QVariantList& valores);
    [[noreturn]] void falha(const QSqlQuery& q);
    QHash<QString, std::shared_ptr<QSqlQuery>> m_consultas;
    QVariant m_ultimaChave;
    AntesDeFalhar m_antes;
};
