#include "core/store/ItensPIsemPPB.h"

#include "core/store/ItensDeclaracao.h"
#include "core/store/modBancoDados.h"

using modBancoDados::ExecutaSql;
using modBancoDados::ValorUnico;

namespace ItensPIsemPPB {

namespace {

const QString ChaveItem = QStringLiteral("ID_ITEM_VRT");
const QString ChaveInsumo = QStringLiteral("ID_INSUMO_ITEM");

QString texto(const QVariant& v)
{
    return v.isValid() && !v.isNull() ? v.toString() : QString();
}

QVariantMap colunasInsumo(const Insumo& i)
{
    return {{QStringLiteral("CD_INT_INSUMO"), i.codigo},
            {QStringLiteral("NM_INT_INSUMO"), i.nome},
            {QStringLiteral("CD_NCM_INSUMO"), i.ncm},
            {QStringLiteral("QT_INSUMO_POR_PROD"), i.quantidade},
            {QStringLiteral("NM_UNID_MED_INSUMO"), i.unidade}};
}

QVariantMap colunasAliquotas(const Aliquotas& a)
{
    return {{QStringLiteral("ALIQ_II_DIF_TEC"), a.aliqII},
            {QStringLiteral("JUST_II_DIF_TEC"), a.justII},
            {QStringLiteral("ALIQ_IPI_DIF_TIPI"), a.aliqIPI},
            {QStringLiteral("JUST_IPI_DIF_TIPI"), a.justIPI}};
}

// The rates row of an input: rewritten or inserted when a rate is given, removed when none is.
void gravaAliquotas(const QString& tabela, const QString& chave, qint64 id, const Aliquotas& a)
{
    const bool existe =
        ValorUnico(QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?").arg(tabela, chave), {id}).isValid();
    if (!a.existe) {
        if (existe)
            ItensDeclaracao::Exclui(tabela, chave, id);
        return;
    }
    if (existe) {
        ItensDeclaracao::Altera(tabela, chave, id, colunasAliquotas(a));
        return;
    }
    QVariantMap v = colunasAliquotas(a);
    v.insert(chave, id);
    ItensDeclaracao::Insere(tabela, {}, v);
}

// The first row of a query giving NCM, unit, whether a rates row exists, and the two rates.
std::optional<RegistroInsumo> registro(const QString& sql, const QVariantList& valores)
{
    const QList<QStringList> linhas = ItensDeclaracao::Linhas(sql, valores);
    if (linhas.isEmpty())
        return std::nullopt;
    const QStringList& l = linhas.first();
    RegistroInsumo r;
    r.ncm = l.value(0);
    r.unidade = l.value(1);
    r.aliquotas.existe = !l.value(2).isEmpty();
    r.aliquotas.aliqII = l.value(3);
    r.aliquotas.aliqIPI = l.value(4);
    return r;
}

}  // namespace

std::optional<ItemMensal> ProdutoMensal(const QString& idVrt, const QString& codigo)
{
    const QList<QStringList> l = ItensDeclaracao::Linhas(
        QStringLiteral("SELECT ID_ITEM_VRT, NM_UNID_MED_PROD FROM ITEM_VRT_MEN WHERE ID_VRT_MICRO = ? AND "
                       "CD_INT_PRODUTO = ? AND IND_MOD_INTERNACAO = '3' LIMIT 1"),
        {idVrt, codigo});
    if (l.isEmpty())
        return std::nullopt;
    return ItemMensal{l.first().value(0).toLongLong(), l.first().value(1)};
}

bool ExisteNcmVrt(const QString& idVrt, const QString& ncm)
{
    return ValorUnico(QStringLiteral("SELECT 1 FROM NCM_VRT WHERE ID_VRT_MICRO = ? AND CD_NCM_PRODUTO = ? AND "
                                     "IN_MOD_INTERNACAO = '3'"),
                      {idVrt, ncm})
        .isValid();
}

qint64 IncluiProdutoMensal(const QString& idVrt, qint64 idItem, const QString& codigo, const QString& nome,
                           const QString& ncm, const QString& unidade, const QString& local,
                           const QString& quantidade)
{
    if (!idItem) {
        idItem = ItensDeclaracao::Insere(QStringLiteral("ITEM_VRT_MEN"), ChaveItem,
                                         {{QStringLiteral("ID_VRT_MICRO"), idVrt},
                                          {QStringLiteral("CD_INT_PRODUTO"), codigo},
                                          {QStringLiteral("NM_INT_PRODUTO"), nome},
                                          {QStringLiteral("CD_NCM_PRODUTO"), ncm},
                                          {QStringLiteral("NM_UNID_MED_PROD"), unidade},
                                          {QStringLiteral("IND_MOD_INTERNACAO"), Modalidade}});
        if (!ExisteNcmVrt(idVrt, ncm))
            ItensDeclaracao::Insere(QStringLiteral("NCM_VRT"), {},
                                    {{QStringLiteral("ID_VRT_MICRO"), idVrt},
                                     {QStringLiteral("CD_NCM_PRODUTO"), ncm},
                                     {QStringLiteral("IN_MOD_INTERNACAO"), Modalidade},
                                     {QStringLiteral("QT_TOTAL_NCM"), QStringLiteral("0")}});
    }
    ItensDeclaracao::Insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_DEST_PRODUTO"),
                            {{ChaveItem, idItem},
                             {QStringLiteral("CD_LOCAL_DESTINO"), local},
                             {QStringLiteral("QT_PROD_LOC_DEST"), quantidade}});
    return idItem;
}

void AlteraProdutoMensal(qint64 idItem, qint64 idDestino, const QString& codigo, const QString& nome,
                         const QString& ncm, const QString& unidade, const QString& local,
                         const QString& quantidade)
{
    ItensDeclaracao::Altera(QStringLiteral("ITEM_VRT_MEN"), ChaveItem, idItem,
                            {{QStringLiteral("CD_INT_PRODUTO"), codigo},
                             {QStringLiteral("NM_INT_PRODUTO"), nome},
                             {QStringLiteral("CD_NCM_PRODUTO"), ncm},
                             {QStringLiteral("NM_UNID_MED_PROD"), unidade}});
    ItensDeclaracao::Altera(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_DEST_PRODUTO"), idDestino,
                            {{QStringLiteral("CD_LOCAL_DESTINO"), local},
                             {QStringLiteral("QT_PROD_LOC_DEST"), quantidade}});
}

int DestinosDoItem(qint64 idItem)
{
    return ValorUnico(QStringLiteral("SELECT count(*) FROM DESTINO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = ?"), {idItem})
        .toInt();
}

int InsumosDoItem(qint64 idItem)
{
    return ValorUnico(QStringLiteral("SELECT count(*) FROM INSUMO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = ?"), {idItem})
        .toInt();
}

void ExcluiProdutoMensal(const QString& idVrt, qint64 idItem, qint64 idDestino)
{
    if (DestinosDoItem(idItem) >= 2) {
        ItensDeclaracao::Exclui(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_DEST_PRODUTO"), idDestino);
        return;
    }
    for (const QStringList& l : LinhasInsumosMensal(idItem))
        ExcluiInsumoMensal(idVrt, l.value(0).toLongLong());
    const QString ncm = texto(ValorUnico(
        QStringLiteral("SELECT CD_NCM_PRODUTO FROM ITEM_VRT_MEN WHERE ID_ITEM_VRT = ?"), {idItem}));
    if (!ItensDeclaracao::ExcluiDestino(idDestino, idItem))
        return;
    const bool outro = ValorUnico(QStringLiteral("SELECT 1 FROM ITEM_VRT_MEN WHERE ID_VRT_MICRO = ? AND "
                                                 "CD_NCM_PRODUTO = ? AND IND_MOD_INTERNACAO = '3' LIMIT 1"),
                                  {idVrt, ncm})
                           .isValid();
    if (!outro)
        ExecutaSql(QStringLiteral("DELETE FROM NCM_VRT WHERE ID_VRT_MICRO = ? AND CD_NCM_PRODUTO = ? AND "
                                  "IN_MOD_INTERNACAO = '3'"),
                   {idVrt, ncm});
}

QList<QStringList> LinhasProdutosMensal(const QString& idVrt)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT I.ID_ITEM_VRT, D.ID_DEST_PRODUTO, I.CD_INT_PRODUTO, I.NM_INT_PRODUTO, "
                       "L.NM_LOCAL_DESTINO, D.QT_PROD_LOC_DEST, I.CD_NCM_PRODUTO, I.NM_UNID_MED_PROD, "
                       "D.CD_LOCAL_DESTINO FROM ITEM_VRT_MEN I "
                       "INNER JOIN DESTINO_ITEM_VRT_MEN D ON D.ID_ITEM_VRT = I.ID_ITEM_VRT "
                       "LEFT JOIN LOCAL_DESTINO L ON L.CD_LOCAL_DESTINO = D.CD_LOCAL_DESTINO "
                       "WHERE I.ID_VRT_MICRO = ? AND I.IND_MOD_INTERNACAO = '3' "
                       "ORDER BY I.ID_ITEM_VRT, D.ID_DEST_PRODUTO"),
        {idVrt});
}

QList<QStringList> ProdutosDaDeclaracao(const QString& idVrt)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT ID_ITEM_VRT, CD_INT_PRODUTO FROM ITEM_VRT_MEN WHERE ID_VRT_MICRO = ? AND "
                       "IND_MOD_INTERNACAO = '3' ORDER BY ID_ITEM_VRT"),
        {idVrt});
}

bool InsumoNoItem(qint64 idItem, const QString& codigo)
{
    return ValorUnico(QStringLiteral("SELECT 1 FROM INSUMO_ITEM_VRT_MEN WHERE ID_ITEM_VRT = ? AND "
                                     "CD_INT_INSUMO = ? LIMIT 1"),
                      {idItem, codigo})
        .isValid();
}

std::optional<RegistroInsumo> RegistroInsumoMensal(const QString& idVrt, const QString& codigo, qint64 excetoId)
{
    return registro(
        QStringLiteral("SELECT N.CD_NCM_INSUMO, N.NM_UNID_MED_INSUMO, J.ID_INSUMO_ITEM, J.ALIQ_II_DIF_TEC, "
                       "J.ALIQ_IPI_DIF_TIPI FROM ITEM_VRT_MEN I "
                       "INNER JOIN INSUMO_ITEM_VRT_MEN N ON N.ID_ITEM_VRT = I.ID_ITEM_VRT "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_MEN J ON J.ID_INSUMO_ITEM = N.ID_INSUMO_ITEM "
                       "WHERE I.ID_VRT_MICRO = ? AND N.CD_INT_INSUMO = ? AND N.ID_INSUMO_ITEM <> ? "
                       "ORDER BY N.ID_INSUMO_ITEM LIMIT 1"),
        {idVrt, codigo, excetoId});
}

qint64 IncluiInsumoMensal(qint64 idItem, const Insumo& insumo, const Aliquotas& a)
{
    QVariantMap v = colunasInsumo(insumo);
    v.insert(ChaveItem, idItem);
    const qint64 id = ItensDeclaracao::Insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"), ChaveInsumo, v);
    gravaAliquotas(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), ChaveInsumo, id, a);
    return id;
}

void AlteraInsumoMensal(qint64 idItem, qint64 idInsumo, const QString& codigoAntigo, const Insumo& insumo,
                        const Aliquotas& a)
{
    const Insumo& i = insumo;
    ExecutaSql(QStringLiteral("UPDATE INSUMO_ITEM_VRT_MEN SET CD_INT_INSUMO = ?, NM_INT_INSUMO = ?, CD_NCM_INSUMO = ?, "
                              "QT_INSUMO_POR_PROD = ?, NM_UNID_MED_INSUMO = ? WHERE CD_INT_INSUMO = ? AND "
                              "ID_ITEM_VRT = ?"),
               {i.codigo, i.nome, i.ncm, i.quantidade, i.unidade, codigoAntigo, idItem});
    gravaAliquotas(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), ChaveInsumo, idInsumo, a);
}

void ExcluiInsumoMensal(const QString& idVrt, qint64 idInsumo)
{
    const QString codigo = texto(ValorUnico(
        QStringLiteral("SELECT CD_INT_INSUMO FROM INSUMO_ITEM_VRT_MEN WHERE ID_INSUMO_ITEM = ?"), {idInsumo}));
    ItensDeclaracao::Exclui(QStringLiteral("INSUMO_ITEM_VRT_MEN"), ChaveInsumo, idInsumo);
    TestaDocOrigemInsumo(idVrt, codigo);
}

QList<QStringList> LinhasInsumosMensal(qint64 idItem)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT N.ID_INSUMO_ITEM, N.CD_INT_INSUMO, N.NM_INT_INSUMO, N.QT_INSUMO_POR_PROD, "
                       "N.CD_NCM_INSUMO, N.NR_ORDEM, N.NM_UNID_MED_INSUMO, "
                       "CASE WHEN coalesce(J.ALIQ_II_DIF_TEC, '') <> '' THEN '1' ELSE '' END, J.ALIQ_II_DIF_TEC, "
                       "J.JUST_II_DIF_TEC, "
                       "CASE WHEN coalesce(J.ALIQ_IPI_DIF_TIPI, '') <> '' THEN '1' ELSE '' END, J.ALIQ_IPI_DIF_TIPI, "
                       "J.JUST_IPI_DIF_TIPI FROM INSUMO_ITEM_VRT_MEN N "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_MEN J ON J.ID_INSUMO_ITEM = N.ID_INSUMO_ITEM "
                       "WHERE N.ID_ITEM_VRT = ? ORDER BY N.ID_INSUMO_ITEM"),
        {idItem});
}

void TestaDocOrigemInsumo(const QString& idVrt, const QString& codigo)
{
    if (ValorUnico(QStringLiteral("SELECT 1 FROM TOT_INSUMO_CONSOLIDADO WHERE ID_VRT_MICRO = ? AND "
                                  "CD_INT_INSUMO = ? LIMIT 1"),
                   {idVrt, codigo})
            .isValid())
        return;
    for (const char* tabela : {"ITEM_DI_INS_MEN", "ITEM_DSI_INS_MEN", "ITEM_NFA_INS_MEN"})
        ExecutaSql(QStringLiteral("DELETE FROM %1 WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO = ?")
                       .arg(QLatin1String(tabela)),
                   {idVrt, codigo});
}

QStringList InsumosConsolidados(const QString& idVrt)
{
    QStringList r;
    const QList<QStringList> l = ItensDeclaracao::Linhas(
        QStringLiteral("SELECT DISTINCT CD_INT_INSUMO FROM TOT_INSUMO_CONSOLIDADO WHERE ID_VRT_MICRO = ? "
                       "ORDER BY CD_INT_INSUMO"),
        {idVrt});
    for (const QStringList& linha : l)
        r << linha.value(0);
    return r;
}

QList<QStringList> LocaisDoInsumo(const QString& idVrt, const QString& codigo)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT T.CD_LOCAL_DESTINO, L.NM_LOCAL_DESTINO, T.QT_TOT_INS_POR_LOC "
                       "FROM TOT_INSUMO_CONSOLIDADO T "
                       "INNER JOIN LOCAL_DESTINO L ON L.CD_LOCAL_DESTINO = T.CD_LOCAL_DESTINO "
                       "WHERE T.ID_VRT_MICRO = ? AND T.CD_INT_INSUMO = ? ORDER BY T.CD_LOCAL_DESTINO"),
        {idVrt, codigo});
}

QString UnidadeDoInsumo(const QString& idVrt, const QString& codigo)
{
    const auto r = RegistroInsumoMensal(idVrt, codigo);
    return r ? r->unidade : QString();
}

QString NomeDoInsumo(const QString& idVrt, const QString& codigo)
{
    return ValorUnico(QStringLiteral("SELECT N.NM_INT_INSUMO FROM ITEM_VRT_MEN I "
                                     "INNER JOIN INSUMO_ITEM_VRT_MEN N ON N.ID_ITEM_VRT = I.ID_ITEM_VRT "
                                     "WHERE I.ID_VRT_MICRO = ? AND N.CD_INT_INSUMO = ? ORDER BY N.ID_INSUMO_ITEM LIMIT 1"),
                      {idVrt, codigo})
        .toString();
}

std::optional<QString> TotalInsumo(const QString& idVrt, const QString& codigo, bool individual)
{
    const QVariant v = ValorUnico(individual ? QStringLiteral("SELECT coalesce(QT_TOT_INS, '') FROM INSUMO_VRT_IND "
                                                              "WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO = ?")
                                             : QStringLiteral("SELECT coalesce(QT_TOT_INS_EST, '') FROM INSUMO_VRT "
                                                              "WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO = ?"),
                                  {idVrt, codigo});
    if (!v.isValid())
        return std::nullopt;
    return v.toString();
}

void GravaTotalInsumo(const QString& idVrt, const QString& codigo, const QString& valor, bool existe, bool individual)
{
    const QString tabela = individual ? QStringLiteral("INSUMO_VRT_IND") : QStringLiteral("INSUMO_VRT");
    const QString coluna = individual ? QStringLiteral("QT_TOT_INS") : QStringLiteral("QT_TOT_INS_EST");
    if (existe)
        ExecutaSql(QStringLiteral("UPDATE %1 SET %2 = ? WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO = ?").arg(tabela, coluna),
                   {valor, idVrt, codigo});
    else
        ExecutaSql(QStringLiteral("INSERT INTO %1 (ID_VRT_MICRO, CD_INT_INSUMO, %2) VALUES (?, ?, ?)").arg(tabela, coluna),
                   {idVrt, codigo, valor});
}

std::optional<RegistroInsumo> ProdutoNaDeclaracao(const QString& idVrt, const QString& codigo, qint64 excetoId)
{
    return registro(QStringLiteral("SELECT I.CD_NCM_PROD, I.NM_UNID_MED_PROD, '', '', '' FROM ITEM_NFS I "
                                   "INNER JOIN NOTA_FISCAL_SAIDA S ON S.ID_NFS = I.ID_NFS "
                                   "WHERE S.ID_VRT_MICRO = ? AND I.CD_INT_PROD = ? AND I.IND_MOD_INTERNACAO = '3' "
                                   "AND I.ID_ITEM <> ? ORDER BY I.ID_ITEM LIMIT 1"),
                    {idVrt, codigo, excetoId});
}

qint64 IncluiProdutoNota(qint64 idNfs, const QString& numero, const QString& codigo, const QString& nome,
                         const QString& ncm, const QString& unidade, const QString& quantidade,
                         const QString& valorUnitario)
{
    const qint64 id = ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"),
                                              {{QStringLiteral("ID_NFS"), idNfs},
                                               {QStringLiteral("NR_ITEM_NF_SAIDA"), numero},
                                               {QStringLiteral("CD_INT_PROD"), codigo},
                                               {QStringLiteral("NM_INT_PROD"), nome},
                                               {QStringLiteral("CD_NCM_PROD"), ncm},
                                               {QStringLiteral("NM_UNID_MED_PROD"), unidade},
                                               {QStringLiteral("IND_MOD_INTERNACAO"), Modalidade}});
    ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS_PI_SEM_PPB"), {},
                            {{QStringLiteral("ID_ITEM"), id},
                             {QStringLiteral("QT_INT_UNID_NFS"), quantidade},
                             {QStringLiteral("VL_INT_UNID_NFS"), valorUnitario}});
    return id;
}

void AlteraProdutoNota(qint64 idItem, const QString& numero, const QString& codigo, const QString& nome,
                       const QString& ncm, const QString& unidade, const QString& quantidade,
                       const QString& valorUnitario)
{
    ItensDeclaracao::Altera(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"), idItem,
                            {{QStringLiteral("NR_ITEM_NF_SAIDA"), numero},
                             {QStringLiteral("CD_INT_PROD"), codigo},
                             {QStringLiteral("NM_INT_PROD"), nome},
                             {QStringLiteral("CD_NCM_PROD"), ncm},
                             {QStringLiteral("NM_UNID_MED_PROD"), unidade}});
    ItensDeclaracao::Altera(QStringLiteral("ITEM_NFS_PI_SEM_PPB"), QStringLiteral("ID_ITEM"), idItem,
                            {{QStringLiteral("QT_INT_UNID_NFS"), quantidade},
                             {QStringLiteral("VL_INT_UNID_NFS"), valorUnitario}});
}

QList<QStringList> LinhasProdutosNota(qint64 idNfs)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT I.ID_ITEM, I.NR_ITEM_NF_SAIDA, I.CD_INT_PROD, I.NM_INT_PROD, I.CD_NCM_PROD, "
                       "I.NM_UNID_MED_PROD, P.QT_INT_UNID_NFS, P.VL_INT_UNID_NFS FROM ITEM_NFS I "
                       "INNER JOIN ITEM_NFS_PI_SEM_PPB P ON P.ID_ITEM = I.ID_ITEM "
                       "WHERE I.ID_NFS = ? AND I.IND_MOD_INTERNACAO = '3' ORDER BY I.NR_ITEM_NF_SAIDA"),
        {idNfs});
}

std::optional<RegistroInsumo> RegistroInsumoNota(const QString& idVrt, const QString& codigo, qint64 excetoId)
{
    return registro(
        QStringLiteral("SELECT N.CD_NCM_INSUMO, N.NM_UNID_MED_INSUMO, J.ID_INSUMO, J.ALIQ_II_DIF_TEC, "
                       "J.ALIQ_IPI_DIF_TIPI FROM INSUMO_ITEM_NFS N "
                       "INNER JOIN ITEM_NFS I ON I.ID_ITEM = N.ID_ITEM "
                       "INNER JOIN NOTA_FISCAL_SAIDA S ON S.ID_NFS = I.ID_NFS "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_IND J ON J.ID_INSUMO = N.ID_INSUMO "
                       "WHERE S.ID_VRT_MICRO = ? AND N.CD_INT_INSUMO = ? AND N.ID_INSUMO <> ? "
                       "ORDER BY N.ID_INSUMO LIMIT 1"),
        {idVrt, codigo, excetoId});
}

qint64 IncluiInsumoNota(qint64 idItem, const Insumo& insumo, const Aliquotas& a)
{
    QVariantMap v = colunasInsumo(insumo);
    v.insert(QStringLiteral("ID_ITEM"), idItem);
    const qint64 id = ItensDeclaracao::Insere(QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("ID_INSUMO"), v);
    gravaAliquotas(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"), QStringLiteral("ID_INSUMO"), id, a);
    return id;
}

void AlteraInsumoNota(qint64 idInsumo, const Insumo& insumo, const Aliquotas& a)
{
    ItensDeclaracao::Altera(QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("ID_INSUMO"), idInsumo,
                            colunasInsumo(insumo));
    gravaAliquotas(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND"), QStringLiteral("ID_INSUMO"), idInsumo, a);
}

QList<QStringList> LinhasInsumosNota(qint64 idItem)
{
    return ItensDeclaracao::Linhas(
        QStringLiteral("SELECT N.ID_INSUMO, N.CD_INT_INSUMO, N.NM_INT_INSUMO, N.QT_INSUMO_POR_PROD, "
                       "N.CD_NCM_INSUMO, N.NR_ORDEM, N.NM_UNID_MED_INSUMO, "
                       "CASE WHEN coalesce(J.ALIQ_II_DIF_TEC, '') <> '' THEN '1' ELSE '' END, J.ALIQ_II_DIF_TEC, "
                       "J.JUST_II_DIF_TEC, "
                       "CASE WHEN coalesce(J.ALIQ_IPI_DIF_TIPI, '') <> '' THEN '1' ELSE '' END, J.ALIQ_IPI_DIF_TIPI, "
                       "J.JUST_IPI_DIF_TIPI FROM INSUMO_ITEM_NFS N "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_IND J ON J.ID_INSUMO = N.ID_INSUMO "
                       "WHERE N.ID_ITEM = ? ORDER BY N.ID_INSUMO"),
        {idItem});
}

}  // namespace ItensPIsemPPB
