#pragma once
// One statement run through SQLite's own interface, on the session's connection (the handle Qt SQL exposes):
// same database, same transaction, same foreign keys and busy timeout as every QSqlQuery of the program.
// The declaration reader and writer and the reference imports run a dozen statements a hundred thousand times;
// through QSqlQuery each bound value and each column read is a QVariant and a trip through UTF-16, which costs
// more than the engine's own work. Here a text goes to the engine as UTF-8 and comes back the same way.
//
//   ComandoSqlite c(QStringLiteral("SELECT A, B FROM T WHERE K = ?"));   // prepared once
//   c.abre({chave});                         // binds and runs; an error ends the run (BDTrataErro)
//   while (c.proxima()) ... c.texto(0) ... c.valor(1) ...
//
// Values and errors are what QSqlQuery gives for the same statement: a bound null QVariant (a null QString
// included) is NULL; a column comes back as qint64, double, QString or QByteArray by its stored type, a NULL
// as a null QString; a refused statement gives a QSqlError with SQLite's extended code and message.
#include <QByteArrayView>
#include <QSqlError>
#include <QString>
#include <QStringView>
#include <QVariant>
#include <QVariantList>
#include <QVector>

struct sqlite3;
struct sqlite3_stmt;

// Where the session's connection stands in its writing: any row inserted, updated or deleted on it (by a cascade
// too) moves it on. Two equal marks taken on one connection mean that nothing was written in between, so what
// was read at the first still stands at the second.
struct MarcaEscrita {
    const sqlite3* conexao = nullptr;
    qint64 alteracoes = -1;
    bool operator==(const MarcaEscrita& o) const { return conexao == o.conexao && alteracoes == o.alteracoes; }
    bool operator!=(const MarcaEscrita& o) const { return !(*this == o); }
};

class ComandoSqlite {
public:
    // Prepares `sql` ("?" placeholders) on ConexaoBanco(); a statement that cannot be prepared ends the run.
    explicit ComandoSqlite(const QString& sql);
    ~ComandoSqlite();
    ComandoSqlite(const ComandoSqlite&) = delete;
    ComandoSqlite& operator=(const ComandoSqlite&) = delete;

    // Binds `valores` in order and takes the first step. False when the engine refused the statement: erro()
    // says why and the statement is ready to run again. A row, if any, is then current (see proxima()).
    bool roda(const QVariantList& valores);
    // roda(), ending the run through BDTrataErro when the engine refuses, before the first row.
    void abre(const QVariantList& valores);
    // The same run bound one value at a time, for a statement run a hundred thousand times without building a
    // list of values: inicia(), liga() or ligaTexto() for every placeholder, then executa() (as roda()).
    void inicia();
    void liga(int posicao, const QVariant& v);
    // A text, never NULL (an empty view is an empty text), converted to UTF-8 into a buffer the statement keeps.
    void ligaTexto(int posicao, QStringView texto);
    bool executa();
    int parametros() const { return int(m_textos.size()); }

    // Moves to the next row: the first call after roda()/abre() gives the first row. False at the end.
    bool proxima();
    // Ends the current run early (the engine's locks and cursor are released).
    void encerra();

    // The current row's column as QSqlQuery::value() gives it.
    QVariant valor(int coluna) const;
    // The same as valor(coluna).toString(), without the QVariant.
    QString texto(int coluna) const;
    qint64 inteiro(int coluna) const;
    // What a column of the current row holds, read in one look for code that keeps rows by the hundred thousand:
    // an integer in `numero`, a text's UTF-8 in `texto` (valid until the next step), a NULL, or another type
    // (a real or a blob, which only valor()/texto() tell as QSqlQuery would).
    enum class Conteudo { Nulo, Inteiro, Texto, Outro };
    Conteudo le(int coluna, QByteArrayView& texto, qint64& numero) const;
    // How many columns the statement gives.
    int colunas() const;
    // The name the engine gives a column of the result: its alias, else the column's own name.
    QString nomeColuna(int coluna) const;
    // The current row's column without any conversion, for code that composes bytes: true with the engine's
    // UTF-8 for a text or an integer (its digits, as texto() gives them) and with a null view for a NULL; false
    // for a real or a blob, which only valor()/texto() tell as QSqlQuery would. Valid until the next step.
    bool utf8(int coluna, QByteArrayView& texto) const;

    // Key that the engine gave the last row inserted on this connection, or an invalid QVariant (no row yet).
    QVariant ultimaChave() const;
    const QSqlError& erro() const { return m_erro; }

    // The engine's handle of the session's connection.
    static sqlite3* conexao();
    // The session's connection's mark now.
    static MarcaEscrita marcaEscrita();

private:
    bool passo();

    sqlite3* m_db = nullptr;
    sqlite3_stmt* m_stmt = nullptr;
    QVector<QByteArray> m_textos;  // the UTF-8 of the bound texts, alive until the next run
    QSqlError m_erro;
    bool m_temLinha = false;   // the step of roda() gave a row not yet handed out by proxima()
    bool m_noFim = true;
};
