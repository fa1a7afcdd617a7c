#include "core/copy/CopiadorLinhas.h"

#include "core/store/modBancoDados.h"

#include <QSqlError>

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

QString CopiadorLinhas::tabelaMapa(const QString& mapa)
{
    return QStringLiteral("temp.MAPA_COPIA_") + mapa;
}

// `ordem` numbers the rows of the map from 1 in the order they go in; the new key is that number past the
// table's last key. The keys are typed as the table's own: a key without a type would compare to the children's
// column under another affinity, and the index on `antigo` would go unused (a scan of the map for every row).
void CopiadorLinhas::criaMapa(const QString& mapa, const QString& tipo)
{
    const QString tabela = tabelaMapa(mapa);
    executa(QStringLiteral("DROP TABLE IF EXISTS ") + tabela);
    executa(QStringLiteral("CREATE TABLE %1 (ordem INTEGER PRIMARY KEY, antigo %2 UNIQUE, novo %2, grupo TEXT)")
                .arg(tabela, tipo));
    if (!m_mapas.contains(tabela))
        m_mapas << tabela;
}

void CopiadorLinhas::raiz(const QString& mapa, const QVariant& antigo, const QVariant& novo)
{
    criaMapa(mapa, QStringLiteral("TEXT"));
    executa(QStringLiteral("INSERT INTO %1 (antigo, novo) VALUES (?, ?)").arg(tabelaMapa(mapa)), {antigo, novo});
}

void CopiadorLinhas::encerra()
{
    for (const QString& tabela : std::as_const(m_mapas))
        executa(QStringLiteral("DROP TABLE IF EXISTS ") + tabela);
    m_mapas.clear();
}

// The key the engine would give next, less one: the table's counter never goes back to a key it gave before,
// even one whose row is gone.
qint64 CopiadorLinhas::ultimaChave(const QString& tabela, const QString& chave)
{
    return valor(QStringLiteral("SELECT max(coalesce((SELECT seq FROM sqlite_sequence WHERE name = ?), 0), "
                                "coalesce((SELECT max(%1) FROM %2), 0))")
                     .arg(chave, tabela),
                 {tabela})
        .toLongLong();
}

void CopiadorLinhas::copia(const PassoCopia& passo)
{
    const QStringList colunas = colunasCopiadas(passo.tabela, passo.pai);
    QStringList valores;
    for (const QString& c : colunas)
        valores << passo.trocas.value(c, QStringLiteral("t.") + c);
    const QString lista = colunas.join(QLatin1String(", "));
    const QString selecao = valores.join(QLatin1String(", "));
    const QString pais = tabelaMapa(passo.mapaPai);
    const QString origem = QStringLiteral(" FROM %1 t JOIN %2 p ON t.%3 = p.antigo").arg(passo.tabela, pais, passo.pai)
                           + (passo.onde.isEmpty() ? QString() : QStringLiteral(" WHERE ") + passo.onde);
    const QString ordem = QStringLiteral(" ORDER BY p.novo, ") + (passo.ordem.isEmpty() ? QString() : passo.ordem + QStringLiteral(", "))
                          + QStringLiteral("t.rowid");
    if (passo.mapa.isEmpty()) {
        executa(QStringLiteral("INSERT INTO %1 (%2, %3) SELECT p.novo, %4").arg(passo.tabela, passo.pai, lista, selecao)
                + origem + ordem);
        return;
    }
    const QString chave = contador(passo.tabela);
    if (chave.isEmpty() || chave == passo.pai)
        BDTrataErro(QStringLiteral("3078"), QStringLiteral("Tabela sem contador próprio: ") + passo.tabela);
    criaMapa(passo.mapa, QStringLiteral("INTEGER"));
    const QString mapa = tabelaMapa(passo.mapa);
    executa(QStringLiteral("INSERT INTO %1 (antigo, grupo) SELECT t.%2, %3").arg(mapa, chave, passo.grupo.isEmpty() ? QStringLiteral("NULL") : passo.grupo)
            + origem + ordem);
    executa(QStringLiteral("UPDATE %1 SET novo = ordem + ?").arg(mapa), {ultimaChave(passo.tabela, chave)});
    executa(QStringLiteral("INSERT INTO %1 (%2, %3, %4) SELECT m.novo, p.novo, %5 FROM %6 m JOIN %1 t ON t.%2 = m.antigo "
                           "JOIN %7 p ON t.%3 = p.antigo ORDER BY m.ordem")
                .arg(passo.tabela, chave, passo.pai, lista, selecao, mapa, pais));
}
