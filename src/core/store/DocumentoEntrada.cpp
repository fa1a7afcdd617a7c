#include "core/store/DocumentoEntrada.h"

#include "core/store/modBancoDados.h"

#include <QSqlRecord>

using namespace modBancoDados;

namespace {

QString condicaoPai(const TabelaDocumento& t, const QString& prefixo = QString())
{
    QStringList partes;
    for (const QString& c : t.colunasPai)
        partes << prefixo + c + QStringLiteral(" = ?");
    return partes.join(QStringLiteral(" AND "));
}

// The line's columns and its child row's, the key first.
QString selecao(const TabelaDocumento& t)
{
    QStringList colunas{QStringLiteral("L.") + t.colunaId};
    for (const QString& c : t.colunas)
        colunas << QStringLiteral("L.") + c;
    for (const QString& c : t.colunasValores)
        colunas << QStringLiteral("V.") + c;
    QString sql = QStringLiteral("SELECT ") + colunas.join(QStringLiteral(", ")) + QStringLiteral(" FROM ")
                  + t.tabela + QStringLiteral(" L");
    if (!t.tabelaValores.isEmpty())
        sql += QStringLiteral(" LEFT JOIN ") + t.tabelaValores + QStringLiteral(" V ON V.") + t.colunaId
               + QStringLiteral(" = L.") + t.colunaId;
    return sql;
}

QList<QVariantMap> consulta(const TabelaDocumento& t, const QString& sql, const QVariantList& valores)
{
    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(true);
    AbreConsulta(rs, sql, valores);
    QStringList nomes{t.colunaId};
    nomes << t.colunas << t.colunasValores;
    QList<QVariantMap> linhas;
    while (rs.next()) {
        QVariantMap m;
        for (int i = 0; i < nomes.size(); ++i)
            m.insert(nomes.at(i).toUpper(), rs.value(i).isNull() ? QString() : rs.value(i).toString());
        linhas << m;
    }
    return linhas;
}

QVariantList valoresDe(const QStringList& colunas, const QVariantMap& mapa)
{
    QVariantList v;
    // A column without a value is written as empty text, never as Null: the file writer and the grids read "".
    for (const QString& c : colunas) {
        const QString texto = mapa.value(c.toUpper()).toString();
        v << (texto.isNull() ? QStringLiteral("") : texto);
    }
    return v;
}

QString atribuicoes(const QStringList& colunas)
{
    QStringList a;
    for (const QString& c : colunas)
        a << c + QStringLiteral(" = ?");
    return a.join(QStringLiteral(", "));
}

QString insercao(const QString& tabela, const QStringList& colunas)
{
    return QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" (") + colunas.join(QStringLiteral(", "))
           + QStringLiteral(") VALUES (") + QStringList(colunas.size(), QStringLiteral("?")).join(QStringLiteral(", "))
           + QStringLiteral(")");
}

}  // namespace

namespace DocumentoEntrada {

QList<QVariantMap> Linhas(const TabelaDocumento& t, const QVariantList& pai)
{
    return consulta(t, selecao(t) + QStringLiteral(" WHERE ") + condicaoPai(t, QStringLiteral("L."))
                           + QStringLiteral(" ORDER BY L.") + t.colunaId,
                    pai);
}

QVariantMap Le(const TabelaDocumento& t, qint64 id)
{
    const QList<QVariantMap> l =
        consulta(t, selecao(t) + QStringLiteral(" WHERE L.") + t.colunaId + QStringLiteral(" = ?"), {id});
    return l.isEmpty() ? QVariantMap() : l.first();
}

bool Existe(const TabelaDocumento& t, const QVariantList& pai, const QVariantMap& criterio)
{
    QString sql = QStringLiteral("SELECT 1 FROM ") + t.tabela + QStringLiteral(" WHERE ") + condicaoPai(t);
    QVariantList valores = pai;
    for (auto i = criterio.cbegin(); i != criterio.cend(); ++i) {
        sql += QStringLiteral(" AND COALESCE(") + i.key() + QStringLiteral(", '') = ?");
        valores << i.value().toString();
    }
    return ValorUnico(sql, valores).isValid();
}

qint64 Insere(const TabelaDocumento& t, const QVariantList& pai, const QVariantMap& linha)
{
    ExecutaSql(insercao(t.tabela, t.colunasPai + t.colunas), pai + valoresDe(t.colunas, linha));
    return ValorUnico(QStringLiteral("SELECT max(") + t.colunaId + QStringLiteral(") FROM ") + t.tabela)
        .toLongLong();
}

void Altera(const TabelaDocumento& t, qint64 id, const QVariantMap& linha)
{
    ExecutaSql(QStringLiteral("UPDATE ") + t.tabela + QStringLiteral(" SET ") + atribuicoes(t.colunas)
                   + QStringLiteral(" WHERE ") + t.colunaId + QStringLiteral(" = ?"),
               valoresDe(t.colunas, linha) << id);
}

void Exclui(const TabelaDocumento& t, qint64 id)
{
    ExecutaSql(QStringLiteral("DELETE FROM ") + t.tabela + QStringLiteral(" WHERE ") + t.colunaId
                   + QStringLiteral(" = ?"),
               {id});
}

bool TemValores(const TabelaDocumento& t, qint64 id)
{
    return ValorUnico(QStringLiteral("SELECT 1 FROM ") + t.tabelaValores + QStringLiteral(" WHERE ") + t.colunaId
                          + QStringLiteral(" = ?"),
                      {id})
        .isValid();
}

void GravaValores(const TabelaDocumento& t, qint64 id, const QVariantMap& valores)
{
    if (TemValores(t, id)) {
        ExecutaSql(QStringLiteral("UPDATE ") + t.tabelaValores + QStringLiteral(" SET ")
                       + atribuicoes(t.colunasValores) + QStringLiteral(" WHERE ") + t.colunaId
                       + QStringLiteral(" = ?"),
                   valoresDe(t.colunasValores, valores) << id);
        return;
    }
    ExecutaSql(insercao(t.tabelaValores, QStringList{t.colunaId} + t.colunasValores),
               QVariantList{id} + valoresDe(t.colunasValores, valores));
}

void ExcluiValores(const TabelaDocumento& t, qint64 id)
{
    ExecutaSql(QStringLiteral("DELETE FROM ") + t.tabelaValores + QStringLiteral(" WHERE ") + t.colunaId
                   + QStringLiteral(" = ?"),
               {id});
}

bool TemLinhas(const QList<TabelaDocumento>& tabelas, const QVariantList& pai)
{
    for (const TabelaDocumento& t : tabelas)
        if (ValorUnico(QStringLiteral("SELECT 1 FROM ") + t.tabela + QStringLiteral(" WHERE ") + condicaoPai(t), pai)
                .isValid())
            return true;
    return false;
}

}  // namespace DocumentoEntrada
