#pragma once
// The one way to the database: connect, read, write, compact, and the error routine that ends the run.
// Every statement binds its values: `sql` holds "?" placeholders and `valores` their values, in order.
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>
#include <functional>
#include <stdexcept>

namespace modBancoDados {

inline const QString NomeConexao = QStringLiteral("ConexaoBanco");

// Opens the database file as the session's connection, replacing the one open before (its open
// transaction, if any, is rolled back by the engine). On failure BDTrataErro ends the run.
bool ConectaBanco(const QString& caminho);
// Closes the session's connection; never fails.
void DesconectaBanco();
// The session's connection.
QSqlDatabase ConexaoBanco();
bool Conectado();

// Runs a query into `rs` (built on ConexaoBanco()). With `quantidade`: an empty result stores 0 and closes
// `rs`; otherwise the row count is stored and `rs` stays open, before its first row. `rs` still active from an
// earlier use is error 3705. Returns true on success; on failure BDTrataErro ends the run.
bool AbreConsulta(QSqlQuery& rs, const QString& sql, const QVariantList& valores = {}, int* quantidade = nullptr);

// Runs a statement with no result rows. `afetados` receives the rows touched. On failure BDTrataErro.
void ExecutaSql(const QString& sql, const QVariantList& valores = {}, int* afetados = nullptr);

// The single value of a one-row, one-column query (or an invalid QVariant when there is no row).
QVariant ValorUnico(const QString& sql, const QVariantList& valores = {});

// Compacts the database file when it pays (free pages over a threshold), so that the file does not grow
// from start to start. Returns false, with a message shown, when the file is missing or cannot be opened.
bool CompactaBanco(const QString& arquivo);

// Transactions on the session's connection.
void IniciaTransacao();
void ConfirmaTransacao();
void DesfazTransacao();
bool TransacaoAberta();

// Commits when told to, rolls back when it goes out of scope otherwise.
class Transacao {
public:
    Transacao();
    ~Transacao();
    void confirma();
    Transacao(const Transacao&) = delete;
    Transacao& operator=(const Transacao&) = delete;

private:
    bool m_aberta = true;
};

// Shows "Error #" number ": " description (critical, title "BDTrataErro") and ends the run at once.
[[noreturn]] void BDTrataErro(const QString& numero, const QString& descricao);
[[noreturn]] void BDTrataErro(const QSqlError& erro);

// How the run ends after BDTrataErro. The program leaves the process at once; tests throw FimDaExecucao.
struct FimDaExecucao : std::runtime_error {
    FimDaExecucao(QString n, QString d)
        : std::runtime_error("BDTrataErro"), numero(std::move(n)), descricao(std::move(d)) {}
    QString numero;
    QString descricao;
};
using Encerramento = std::function<void(const QString& numero, const QString& descricao)>;
// Replaces the ending (which must not return) and gives back the previous one.
Encerramento DefineEncerramento(Encerramento fim);
// The ending for tests: throws FimDaExecucao.
void EncerramentoPorExcecao(const QString& numero, const QString& descricao);

}  // namespace modBancoDados
