#include "core/store/BlocoEntrada.h"

#include "core/store/ComandoSqlite.h"
#include "core/store/modBancoDados.h"

#include <QSqlQuery>

using namespace modBancoDados;

namespace {

QString condicaoChave(const BlocoEntrada& b)
{
    QString onde = b.colunaPai + QStringLiteral(" = ?");
    for (const QString& c : b.chave)
        onde += QStringLiteral(" AND ") + c + QStringLiteral(" = ?");
    return onde;
}

QVariantList valoresDe(const BlocoEntrada& b, const QVariantMap& valores)
{
    QVariantList lista;
    for (const QString& c : b.colunas)
        lista << (valores.contains(c) ? valores.value(c) : QVariant(QString()));
    return lista;
}

}  // namespace

QString BlocoEntrada::sqlConsulta(const QStringList& colunasGrade) const
{
    QString sql = QStringLiteral("SELECT ") + colunasGrade.join(QStringLiteral(", ")) + QStringLiteral(" FROM ")
                  + tabela + QStringLiteral(" WHERE ") + colunaPai + QStringLiteral(" = ?");
    if (!ordem.isEmpty())
        sql += QStringLiteral(" ORDER BY ") + ordem.join(QStringLiteral(", "));
    return sql;
}

QString BlocoEntrada::sqlExiste() const
{
    return QStringLiteral("SELECT 1 FROM ") + tabela + QStringLiteral(" WHERE ") + condicaoChave(*this);
}

QString BlocoEntrada::sqlInsere() const
{
    QStringList marcas(colunas.size() + 1, QStringLiteral("?"));
    return QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" (") + colunaPai + QStringLiteral(", ")
           + colunas.join(QStringLiteral(", ")) + QStringLiteral(") VALUES (") + marcas.join(QStringLiteral(", "))
           + QStringLiteral(")");
}

QString BlocoEntrada::sqlAltera() const
{
    QStringList atribuicoes;
    for (const QString& c : colunas)
        atribuicoes << c + QStringLiteral(" = ?");
    return QStringLiteral("UPDATE ") + tabela + QStringLiteral(" SET ") + atribuicoes.join(QStringLiteral(", "))
           + QStringLiteral(" WHERE ") + condicaoChave(*this);
}

QString BlocoEntrada::sqlExclui() const
{
    return QStringLiteral("DELETE FROM ") + tabela + QStringLiteral(" WHERE ") + condicaoChave(*this);
}

QString BlocoEntrada::sqlExcluiTodos() const
{
    return QStringLiteral("DELETE FROM ") + tabela + QStringLiteral(" WHERE ") + colunaPai + QStringLiteral(" = ?");
}

namespace Bloco {

QList<QStringList> Linhas(const BlocoEntrada& b, const QVariant& pai, const QStringList& colunasGrade)
{
    ComandoSqlite rs(b.sqlConsulta(colunasGrade));
    rs.abre({pai});
    QList<QStringList> linhas;
    const int n = colunasGrade.size();
    while (rs.proxima()) {
        QStringList linha;
        linha.reserve(n);
        for (int i = 0; i < n; ++i)
            linha << rs.texto(i);
        linhas << linha;
    }
    return linhas;
}

bool Existe(const BlocoEntrada& b, const QVariant& pai, const QVariantList& chave)
{
    return ValorUnico(b.sqlExiste(), QVariantList{pai} + chave).isValid();
}

void Insere(const BlocoEntrada& b, const QVariant& pai, const QVariantMap& valores)
{
    ExecutaSql(b.sqlInsere(), QVariantList{pai} + valoresDe(b, valores));
}

void Altera(const BlocoEntrada& b, const QVariant& pai, const QVariantList& chaveAntiga, const QVariantMap& valores)
{
    ExecutaSql(b.sqlAltera(), valoresDe(b, valores) + QVariantList{pai} + chaveAntiga);
}

void Exclui(const BlocoEntrada& b, const QVariant& pai, const QVariantList& chave)
{
    ExecutaSql(b.sqlExclui(), QVariantList{pai} + chave);
}

int ExcluiTodos(const BlocoEntrada& b, const QVariant& pai)
{
    int afetados = 0;
    ExecutaSql(b.sqlExcluiTodos(), {pai}, &afetados);
    return afetados;
}

}  // namespace Bloco
