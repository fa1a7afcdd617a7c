#pragma once
// The reference tables that the pickers list and the maintenance assistants change (products, units of
// measure, NCM codes, currencies), and the declaration itself as a whole: every read and write a screen or
// vrt-cli makes on them, so that no screen composes a statement. Each write runs under the transaction
// guard: inside the transaction an editor or an assistant holds it joins that one, otherwise it commits alone.
#include <QList>
#include <QString>
#include <QStringList>

// One reference table: its code and name columns, an optional third column shown beside them.
struct TabelaCadastro {
    QString tabela;
    QString colunaCodigo;
    QString colunaNome;
    QString colunaComplemento;    // the NCM's statistical unit, or empty
    bool codigoSemCaixa = false;  // codes compared without regard to case, as the old engine did
};

namespace Cadastros {

const TabelaCadastro& Produto();
const TabelaCadastro& UnidadeMedida();
const TabelaCadastro& Ncm();
const TabelaCadastro& Moeda();

// The rows by code: code, name and, when the table has one, the complement. A non-empty `prefixo` keeps the
// codes that start with it.
QList<QStringList> Lista(const TabelaCadastro& t, const QString& prefixo = QString());
bool Existe(const TabelaCadastro& t, const QString& codigo);
void Inclui(const TabelaCadastro& t, const QString& codigo, const QString& nome);
// The row of `codigoAntigo` gets `codigo` and `nome`. Items already stored keep what they copied.
void Altera(const TabelaCadastro& t, const QString& codigoAntigo, const QString& codigo, const QString& nome);
// No test of use: the items keep their copies.
void Exclui(const TabelaCadastro& t, const QString& codigo);

void IncluiProduto(const QString& codigo, const QString& nome);
void AlteraProduto(const QString& codigoAntigo, const QString& codigo, const QString& nome);
void ExcluiProduto(const QString& codigo);
void IncluiUnidade(const QString& codigo, const QString& nome);
void AlteraUnidade(const QString& codigoAntigo, const QString& codigo, const QString& nome);
void ExcluiUnidade(const QString& codigo);

// Whether a declaration of this identification exists.
bool ExisteVrt(const QString& identificacao);
// The type of a declaration ("1" individual, "2" monthly, or what else is stored); a null text when it does not
// exist.
QString TipoVrt(const QString& identificacao);
// The codes of the states, in order, for the lists of the screens.
QStringList CodigosUf();
// Removes a declaration; the cascades of the schema take every row that hangs on it.
void ExcluiVrt(const QString& identificacao);

}  // namespace Cadastros
