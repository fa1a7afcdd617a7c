#include "core/store/ItemProdutoEstrangeiro.h"

#include "core/store/modBancoDados.h"

#include <QSqlRecord>

using namespace modBancoDados;

namespace {

qint64 maximo(const QString& coluna, const QString& tabela)
{
    return ValorUnico(QStringLiteral("SELECT max(%1) FROM %2").arg(coluna, tabela)).toLongLong();
}

QList<QVariantMap> mapas(const QString& sql, const QVariantList& valores)
{
    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(true);
    AbreConsulta(rs, sql, valores);
    QList<QVariantMap> linhas;
    while (rs.next()) {
        QVariantMap m;
        const QSqlRecord r = rs.record();
        for (int i = 0; i < r.count(); ++i)
            m.insert(r.fieldName(i).toUpper(), rs.value(i).isNull() ? QString() : rs.value(i).toString());
        linhas << m;
    }
    return linhas;
}

ItemProdutoEstrangeiro::Aliquotas aliquotas(const QString& tabela, const QString& chave, qint64 id)
{
    const auto l = mapas(QStringLiteral("SELECT ALIQ_II_DIF_TEC, JUST_II_DIF_TEC, ALIQ_IPI_DIF_TIPI, JUST_IPI_DIF_TIPI "
                                        "FROM %1 WHERE %2 = ?").arg(tabela, chave),
                         {id});
    if (l.isEmpty())
        return {};
    const QVariantMap& m = l.first();
    return {true, m.value(QStringLiteral("ALIQ_II_DIF_TEC")).toString(), m.value(QStringLiteral("JUST_II_DIF_TEC")).toString(),
            m.value(QStringLiteral("ALIQ_IPI_DIF_TIPI")).toString(), m.value(QStringLiteral("JUST_IPI_DIF_TIPI")).toString()};
}

void gravaAliquotas(const QString& tabela, const QString& chave, qint64 id, const ItemProdutoEstrangeiro::Aliquotas& a)
{
    const QVariantList v{a.aliqII, a.justII, a.aliqIPI, a.justIPI, id};
    if (aliquotas(tabela, chave, id).existe)
        ExecutaSql(QStringLiteral("UPDATE %1 SET ALIQ_II_DIF_TEC = ?, JUST_II_DIF_TEC = ?, ALIQ_IPI_DIF_TIPI = ?, "
                                  "JUST_IPI_DIF_TIPI = ? WHERE %2 = ?").arg(tabela, chave),
                   v);
    else
        ExecutaSql(QStringLiteral("INSERT INTO %1 (ALIQ_II_DIF_TEC, JUST_II_DIF_TEC, ALIQ_IPI_DIF_TIPI, "
                                  "JUST_IPI_DIF_TIPI, %2) VALUES (?, ?, ?, ?, ?)").arg(tabela, chave),
                   v);
}

}  // namespace

namespace ItemProdutoEstrangeiro {

std::optional<Item> ItemMensal(const QString& idVrt, const QString& codigo)
{
    const auto l = mapas(QStringLiteral("SELECT ID_ITEM_VRT, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, "
                                        "NM_UNID_MED_PROD, QT_PROD_UNID_EST FROM ITEM_VRT_MEN WHERE ID_VRT_MICRO = ? "
                                        "AND CD_INT_PRODUTO = ? AND IND_MOD_INTERNACAO = '1' ORDER BY ID_ITEM_VRT"),
                         {idVrt, codigo});
    if (l.isEmpty())
        return std::nullopt;
    const QVariantMap& m = l.first();
    return Item{m.value(QStringLiteral("ID_ITEM_VRT")).toLongLong(), m.value(QStringLiteral("CD_INT_PRODUTO")).toString(),
                m.value(QStringLiteral("NM_INT_PRODUTO")).toString(), m.value(QStringLiteral("CD_NCM_PRODUTO")).toString(),
                m.value(QStringLiteral("NM_UNID_MED_PROD")).toString(),
                m.value(QStringLiteral("QT_PROD_UNID_EST")).toString()};
}

qint64 InsereItemMensal(const QString& idVrt, const Item& item)
{
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, "
                              "NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_EST) VALUES (?, ?, ?, ?, ?, '1', ?)"),
               {idVrt, item.codigo.trimmed(), item.nome.trimmed(), item.ncm, item.unidade, item.quantidadeEstatistica});
    return maximo(QStringLiteral("ID_ITEM_VRT"), QStringLiteral("ITEM_VRT_MEN"));
}

void AlteraItemMensal(qint64 id, const Item& item)
{
    ExecutaSql(QStringLiteral("UPDATE ITEM_VRT_MEN SET CD_INT_PRODUTO = ?, NM_INT_PRODUTO = ?, CD_NCM_PRODUTO = ?, "
                              "NM_UNID_MED_PROD = ?, QT_PROD_UNID_EST = ? WHERE ID_ITEM_VRT = ?"),
               {item.codigo.trimmed(), item.nome.trimmed(), item.ncm, item.unidade, item.quantidadeEstatistica, id});
}

qint64 InsereDestino(qint64 idItem, const QString& local, const QString& quantidade)
{
    ExecutaSql(QStringLiteral("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                              "VALUES (?, ?, ?)"),
               {idItem, local, quantidade});
    return maximo(QStringLiteral("ID_DEST_PRODUTO"), QStringLiteral("DESTINO_ITEM_VRT_MEN"));
}

void AlteraDestino(qint64 idDestino, const QString& local, const QString& quantidade)
{
    ExecutaSql(QStringLiteral("UPDATE DESTINO_ITEM_VRT_MEN SET CD_LOCAL_DESTINO = ?, QT_PROD_LOC_DEST = ? "
                              "WHERE ID_DEST_PRODUTO = ?"),
               {local, quantidade, idDestino});
}

QStringList LocaisDoItem(qint64 idItem)
{
    QStringList locais;
    for (const QVariantMap& m : mapas(QStringLiteral("SELECT CD_LOCAL_DESTINO FROM DESTINO_ITEM_VRT_MEN "
                                                     "WHERE ID_ITEM_VRT = ? ORDER BY ID_DEST_PRODUTO"),
                                      {idItem}))
        locais << m.value(QStringLiteral("CD_LOCAL_DESTINO")).toString();
    return locais;
}

Aliquotas AliquotasMensais(qint64 idItem)
{
    return aliquotas(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"), idItem);
}

void GravaAliquotasMensais(qint64 idItem, const Aliquotas& a)
{
    gravaAliquotas(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"), idItem, a);
}

void ExcluiAliquotasMensais(qint64 idItem)
{
    ExecutaSql(QStringLiteral("DELETE FROM JUST_DIF_ALIQ_PROD_VRT_MEN WHERE ID_ITEM_VRT = ?"), {idItem});
}

QList<QVariantMap> LinhasMensais(const QString& idVrt)
{
    return mapas(QStringLiteral(
                     "SELECT I.ID_ITEM_VRT, D.ID_DEST_PRODUTO, I.CD_INT_PRODUTO, I.NM_INT_PRODUTO, I.CD_NCM_PRODUTO, "
                     "N.DESCR_NCM_PRODUTO, N.NM_UNID_MED_EST, I.NM_UNID_MED_PROD, I.QT_PROD_UNID_PROD, "
                     "I.QT_PROD_UNID_EST, D.CD_LOCAL_DESTINO, L.NM_LOCAL_DESTINO, D.QT_PROD_LOC_DEST, J.ALIQ_II_DIF_TEC, "
                     "J.JUST_II_DIF_TEC, J.ALIQ_IPI_DIF_TIPI, J.JUST_IPI_DIF_TIPI "
                     "FROM ITEM_VRT_MEN I JOIN DESTINO_ITEM_VRT_MEN D ON D.ID_ITEM_VRT = I.ID_ITEM_VRT "
                     "JOIN LOCAL_DESTINO L ON L.CD_LOCAL_DESTINO = D.CD_LOCAL_DESTINO "
                     "LEFT JOIN NCM_ITEM N ON N.CD_NCM_PRODUTO = I.CD_NCM_PRODUTO "
                     "LEFT JOIN JUST_DIF_ALIQ_PROD_VRT_MEN J ON J.ID_ITEM_VRT = I.ID_ITEM_VRT "
                     "WHERE I.ID_VRT_MICRO = ? AND I.IND_MOD_INTERNACAO = '1' ORDER BY D.ID_DEST_PRODUTO"),
                 {idVrt});
}

QList<Item> ItensDoProduto(const QString& idVrt, const QString& codigo, qint64 excetoId)
{
    QList<Item> itens;
    for (const QVariantMap& m :
         mapas(QStringLiteral("SELECT I.ID_ITEM, I.CD_INT_PROD, I.NM_INT_PROD, I.CD_NCM_PROD, I.NM_UNID_MED_PROD, "
                              "P.QT_INT_UNID_EST FROM ITEM_NFS I JOIN NOTA_FISCAL_SAIDA N ON N.ID_NFS = I.ID_NFS "
                              "LEFT JOIN ITEM_NFS_PE P ON P.ID_ITEM = I.ID_ITEM WHERE N.ID_VRT_MICRO = ? "
                              "AND I.CD_INT_PROD = ? AND I.IND_MOD_INTERNACAO = '1' AND I.ID_ITEM <> ? "
                              "ORDER BY I.ID_ITEM"),
               {idVrt, codigo.trimmed(), excetoId}))
        itens << Item{m.value(QStringLiteral("ID_ITEM")).toLongLong(), m.value(QStringLiteral("CD_INT_PROD")).toString(),
                      m.value(QStringLiteral("NM_INT_PROD")).toString(), m.value(QStringLiteral("CD_NCM_PROD")).toString(),
                      m.value(QStringLiteral("NM_UNID_MED_PROD")).toString(),
                      m.value(QStringLiteral("QT_INT_UNID_EST")).toString()};
    return itens;
}

qint64 InsereItemNota(qint64 idNfs, const QString& numero, const Item& item, const ValoresNota& v)
{
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_NFS (ID_NFS, NR_ITEM_NF_SAIDA, CD_INT_PROD, NM_INT_PROD, CD_NCM_PROD, "
                              "IND_MOD_INTERNACAO, NM_UNID_MED_PROD) VALUES (?, ?, ?, ?, ?, '1', ?)"),
               {idNfs, numero, item.codigo.trimmed(), item.nome.trimmed(), item.ncm, item.unidade});
    const qint64 id = maximo(QStringLiteral("ID_ITEM"), QStringLiteral("ITEM_NFS"));
    ExecutaSql(QStringLiteral("INSERT INTO ITEM_NFS_PE (ID_ITEM, QT_INT_UNID_NFS, QT_INT_UNID_EST, VL_INT_UNID_NFS, "
                              "VL_IPI_DESTACADO) VALUES (?, ?, ?, ?, ?)"),
               {id, v.quantidade, v.quantidadeEst, v.valorUnitario, v.ipiDestacado});
    return id;
}

void AlteraItemNota(qint64 id, const QString& numero, const Item& item, const ValoresNota& v)
{
    ExecutaSql(QStringLiteral("UPDATE ITEM_NFS SET NR_ITEM_NF_SAIDA = ?, CD_INT_PROD = ?, NM_INT_PROD = ?, "
                              "CD_NCM_PROD = ?, NM_UNID_MED_PROD = ? WHERE ID_ITEM = ?"),
               {numero, item.codigo.trimmed(), item.nome.trimmed(), item.ncm, item.unidade, id});
    ExecutaSql(QStringLiteral("UPDATE ITEM_NFS_PE SET QT_INT_UNID_NFS = ?, QT_INT_UNID_EST = ?, VL_INT_UNID_NFS = ?, "
                              "VL_IPI_DESTACADO = ? WHERE ID_ITEM = ?"),
               {v.quantidade, v.quantidadeEst, v.valorUnitario, v.ipiDestacado, id});
}

void ExcluiItemNota(qint64 id)
{
    ExecutaSql(QStringLiteral("DELETE FROM ITEM_NFS WHERE ID_ITEM = ?"), {id});
}

Aliquotas AliquotasNota(qint64 idItem)
{
    return aliquotas(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_IND"), QStringLiteral("ID_ITEM"), idItem);
}

void GravaAliquotasNota(qint64 idItem, const Aliquotas& a)
{
    gravaAliquotas(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_IND"), QStringLiteral("ID_ITEM"), idItem, a);
}

void ExcluiAliquotasNota(qint64 idItem)
{
    ExecutaSql(QStringLiteral("DELETE FROM JUST_DIF_ALIQ_PROD_VRT_IND WHERE ID_ITEM = ?"), {idItem});
}

QList<QVariantMap> LinhasNota(qint64 idNfs)
{
    return mapas(QStringLiteral(
                     "SELECT I.ID_ITEM, I.NR_ITEM_NF_SAIDA, I.CD_INT_PROD, I.NM_INT_PROD, I.CD_NCM_PROD, "
                     "N.DESCR_NCM_PRODUTO, N.NM_UNID_MED_EST, I.NM_UNID_MED_PROD, P.QT_INT_UNID_NFS, "
                     "P.VL_INT_UNID_NFS, P.QT_INT_UNID_EST, P.VL_INT_UNID_EST, P.VL_IPI_DESTACADO, F.NR_NF_SAIDA, "
                     "F.NR_SERIE_NF_SAIDA, J.ALIQ_II_DIF_TEC, J.JUST_II_DIF_TEC, J.ALIQ_IPI_DIF_TIPI, "
                     "J.JUST_IPI_DIF_TIPI FROM ITEM_NFS I "
                     "JOIN NOTA_FISCAL_SAIDA F ON F.ID_NFS = I.ID_NFS "
                     "LEFT JOIN ITEM_NFS_PE P ON P.ID_ITEM = I.ID_ITEM "
                     "LEFT JOIN NCM_ITEM N ON N.CD_NCM_PRODUTO = I.CD_NCM_PROD "
                     "LEFT JOIN JUST_DIF_ALIQ_PROD_VRT_IND J ON J.ID_ITEM = I.ID_ITEM "
                     "WHERE I.ID_NFS = ? AND I.IND_MOD_INTERNACAO = '1' ORDER BY I.NR_ITEM_NF_SAIDA"),
                 {idNfs});
}

}  // namespace ItemProdutoEstrangeiro

