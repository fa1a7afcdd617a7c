#include "core/copy/CopiadorLinhas.h"

#include "core/store/modBancoDados.h"

#include <QSqlError>
#include <QSqlRecord>

using namespace modBancoDados;

CopiadorLinhas::CopiadorLinhas() = default;

CopiadorLinhas::~CopiadorLinhas()
{
    for (auto& q : m_consultas)
        q->finish();
}

QSqlQuery& CopiadorLinhas::executa(const QString& sql, const QVariantList& valores)
{
    auto& q = m_consultas[sql];
    if (!q) {
        q = std::make_shared<QSqlQuery>(ConexaoBanco());
        q->setForwardOnly(true);
        if (!q->prepare(sql))
            BDTrataErro(q->lastError());
    }
    q->finish();
    for (int i = 0; i < valores.size(); ++i)
        q->bindValue(i, valores.at(i));
    if (!q->exec())
        BDTrataErro(q->lastError());
    return *q;
}

QVariant CopiadorLinhas::valor(const QString& sql, const QVariantList& valores)
{
    QSqlQuery& q = executa(sql, valores);
    const QVariant v = q.next() ? q.value(0) : QVariant();
    q.finish();
    return v;
}

void CopiadorLinhas::leEsquema(const QString& tabela)
{
    if (m_colunas.contains(tabela))
        return;
    // The table name comes from this module's own code, never from the user.
    QSqlQuery& q = executa(QStringLiteral("SELECT name, type, pk FROM pragma_table_info(?) ORDER BY cid"), {tabela});
    QStringList colunas;
    QStringList chavePrimaria;
    QString tipoChave;
    while (q.next()) {
        const QString nome = q.value(0).toString();
        colunas << nome;
        if (q.value(2).toInt() > 0) {
            chavePrimaria << nome;
            tipoChave = q.value(1).toString();
        }
    }
    q.finish();
    if (colunas.isEmpty())
        BDTrataErro(QStringLiteral("3078"), QStringLiteral("Tabela inexistente: ") + tabela);
    m_colunas.insert(tabela, colunas);
    const bool contadorProprio = chavePrimaria.size() == 1 && tipoChave.compare(QLatin1String("INTEGER"), Qt::CaseInsensitive) == 0;
    m_contador.insert(tabela, contadorProprio ? chavePrimaria.first() : QString());
}

QString CopiadorLinhas::contador(const QString& tabela)
{
    leEsquema(tabela);
    return m_contador.value(tabela);
}

QStringList CopiadorLinhas::colunasCopiadas(const QString& tabela, const QString& pai)
{
    leEsquema(tabela);
    const QString proprio = m_contador.value(tabela);
    QStringList r;
    for (const QString& c : m_colunas.value(tabela)) {
        if (c != pai && (c != proprio || proprio == pai))
            r << c;
    }
    return r;
}

void CopiadorLinhas::copiaTodas(const QString& tabela, const QString& pai, const QVariant& antigo,
                                const QVariant& novo, const QString& filtro)
{
    const QString lista = colunasCopiadas(tabela, pai).join(QLatin1String(", "));
    QString sql = QStringLiteral("INSERT INTO %1 (%2, %3) SELECT ?, %3 FROM %1 WHERE %2 = ?").arg(tabela, pai, lista);
    if (!filtro.isEmpty())
        sql += QStringLiteral(" AND ") + filtro;
    // In the order the rows were made, which is the order the writer reads them in; a key's index would give
    // another.
    sql += QStringLiteral(" ORDER BY rowid");
    executa(sql, {novo, antigo});
}

QVariant CopiadorLinhas::copiaUma(const QString& tabela, const QString& chave, const QVariant& antigaChave,
                                  const QString& pai, const QVariant& novo)
{
    const QString lista = colunasCopiadas(tabela, pai).join(QLatin1String(", "));
    executa(QStringLiteral("INSERT INTO %1 (%2, %3) SELECT ?, %3 FROM %1 WHERE %4 = ?").arg(tabela, pai, lista, chave),
            {novo, antigaChave});
    return valor(QStringLiteral("SELECT max(%1) FROM %2").arg(chave, tabela));
}

QVariantList CopiadorLinhas::chaves(const QString& tabela, const QString& chave, const QString& pai,
                                    const QVariant& antigo, const QString& filtro)
{
    QString sql = QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(chave, tabela, pai);
    if (!filtro.isEmpty())
        sql += QStringLiteral(" AND ") + filtro;
    sql += QStringLiteral(" ORDER BY ") + chave;
    QSqlQuery& q = executa(sql, {antigo});
    QVariantList r;
    while (q.next())
        r << q.value(0);
    q.finish();
    return r;
}
