#include "core/store/ItensDeclaracao.h"

#include "core/store/ComandoSqlite.h"
#include "core/store/modBancoDados.h"

#include <QSqlQuery>
#include <QSqlRecord>

using namespace modBancoDados;

namespace ItensDeclaracao {

qint64 Insere(const QString& tabela, const QString& colunaChave, const QVariantMap& valores)
{
    const QStringList colunas = valores.keys();
    QStringList marcas(colunas.size(), QStringLiteral("?"));
    ExecutaSql(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                   .arg(tabela, colunas.join(QStringLiteral(", ")), marcas.join(QStringLiteral(", "))),
               valores.values());
    if (colunaChave.isEmpty())
        return 0;
    return ValorUnico(QStringLiteral("SELECT max(%1) FROM %2").arg(colunaChave, tabela)).toLongLong();
}

void Altera(const QString& tabela, const QString& colunaChave, const QVariant& chave, const QVariantMap& valores)
{
    QStringList atribuicoes;
    for (const QString& c : valores.keys())
        atribuicoes << c + QStringLiteral(" = ?");
    ExecutaSql(QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
                   .arg(tabela, atribuicoes.join(QStringLiteral(", ")), colunaChave),
               valores.values() + QVariantList{chave});
}

void Exclui(const QString& tabela, const QString& colunaChave, const QVariant& chave)
{
    ExecutaSql(QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(tabela, colunaChave), {chave});
}

qint64 ItemMensal(const QString& idVrt, const QString& produto, const QString& modalidade)
{
    return ValorUnico(QStringLiteral("SELECT ID_ITEM_VRT FROM ITEM_VRT_MEN WHERE ID_VRT_MICRO = ? AND "
                                     "CD_INT_PRODUTO = ? AND IND_MOD_INTERNACAO = ? LIMIT 1"),
                      {idVrt, produto, modalidade})
        .toLongLong();
}

bool ExcluiDestino(qint64 idDestino, qint64 idItem)
{
    ExecutaSql(QStringLiteral("DELETE FROM DESTINO_ITEM_VRT_MEN WHERE ID_DEST_PRODUTO = ?"), {idDestino});
    if (ValorUnico(QStringLiteral("SELECT 1 FROM DESTINO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = ? LIMIT 1"), {idItem})
            .isValid())
        return false;
    Exclui(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"), idItem);
    return true;
}

bool LocalNoItem(qint64 idItem, const QString& local)
{
    return ValorUnico(QStringLiteral("SELECT 1 FROM DESTINO_ITEM_VRT_MEN WHERE CD_LOCAL_DESTINO = ? AND "
                                     "ID_ITEM_VRT = ? LIMIT 1"),
                      {local, idItem})
        .isValid();
}

bool NumeroItemUsado(qint64 idNfs, const QString& numero)
{
    return ValorUnico(QStringLiteral("SELECT NR_ITEM_NF_SAIDA FROM ITEM_NFS WHERE ID_NFS = ? AND "
                                     "NR_ITEM_NF_SAIDA = ? LIMIT 1"),
                      {idNfs, numero})
        .isValid();
}

QList<QStringList> Linhas(const QString& sql, const QVariantList& valores)
{
    // Through the engine's own interface: a grid of ten thousand rows is read without a QVariant per cell.
    ComandoSqlite rs(sql);
    rs.abre(valores);
    QList<QStringList> linhas;
    const int n = rs.colunas();
    while (rs.proxima()) {
        QStringList linha;
        linha.reserve(n);
        for (int i = 0; i < n; ++i)
            linha << rs.texto(i);
        linhas << linha;
    }
    return linhas;
}

QStringList Unidades()
{
    QStringList nomes;
    for (const QStringList& l : Linhas(QStringLiteral("SELECT NM_MEDIDA FROM UNIDADE_MEDIDA ORDER BY NM_MEDIDA"), {}))
        nomes << l.at(0);
    return nomes;
}

QList<QStringList> Locais()
{
    return Linhas(QStringLiteral("SELECT CD_LOCAL_DESTINO, NM_LOCAL_DESTINO FROM LOCAL_DESTINO ORDER BY NM_LOCAL_DESTINO"),
                  {});
}

}  // namespace ItensDeclaracao
