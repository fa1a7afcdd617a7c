#pragma once
// The one cache of prepared statements: each statement is prepared once, on first use, and kept for the life
// of the cache, keyed by its text (two texts that are equal share one statement, two that differ never do).
// A long operation (reading a declaration file, a reference import) runs the same dozen statements a hundred
// thousand times; preparing them per row would cost more than running them, and each runs through SQLite's own
// interface (ComandoSqlite) on the session's connection. Values are always bound. A statement
// that cannot be prepared, or a database held by another process, ends the run through BDTrataErro; a statement
// the database refuses does what the caller chose (AntesDeFalhar).
#include <QSqlError>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <memory>
#include <unordered_map>

class ComandoSqlite;

// A row the database refused (a missing parent, a value too wide), thrown under AntesDeFalhar::Recusa.
struct ComandoRecusado {
    QSqlError erro;
};

class ComandosPreparados {
public:
    // What a refused statement does: end the run, leaving the transaction to its guard (Nada); end it after
    // rolling the transaction back, as the reference imports always did (DesfazTransacao); or throw
    // ComandoRecusado, for the declaration reader to refuse the file at that line inside its transaction (Recusa).
    enum class AntesDeFalhar { Nada, DesfazTransacao, Recusa };

    explicit ComandosPreparados(AntesDeFalhar antes = AntesDeFalhar::Nada);
    ~ComandosPreparados();
    ComandosPreparados(const ComandosPreparados&) = delete;
    ComandosPreparados& operator=(const ComandosPreparados&) = delete;

    // Runs a statement without result rows; `sql` has "?" placeholders, bound in order.
    void executa(const QString& sql, const QVariantList& valores);
    // The cached statement of `sql`, for a caller that binds its values one at a time (ComandoSqlite::inicia,
    // liga, ligaTexto) and then runs it through executaLigado. The reference lives as long as the cache.
    ComandoSqlite& comando(const QString& sql);
    // Runs a statement bound by the caller, as `executa` runs one.
    void executaLigado(ComandoSqlite& comando);
    // Key that the engine gave to the row inserted by the last `executa`, or an invalid QVariant.
    QVariant ultimaChave() const { return m_ultimaChave; }
    // First column of the first row, or an invalid QVariant when there is no row.
    QVariant valor(const QString& sql, const QVariantList& valores);
    // Whether the query gives at least one row.
    bool existe(const QString& sql, const QVariantList& valores);
    // How many different statements the cache holds.
    int quantidade() const { return int(m_comandos.size()); }

    // A text value as the reader stores it: never Null, so that an empty field is stored as an empty text.
    static QVariant texto(const QString& valor);

private:
    ComandoSqlite& roda(const QString& sql, const QVariantList& valores);
    [[noreturn]] void falha(const QSqlError& erro);
    std::unordered_map<QString, std::unique_ptr<ComandoSqlite>> m_comandos;
    QVariant m_ultimaChave;
    AntesDeFalhar m_antes;
};
