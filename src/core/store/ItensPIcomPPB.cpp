#include "core/store/ItensPIcomPPB.h"

#include "core/store/ItensDeclaracao.h"
#include "core/store/modBancoDados.h"

using modBancoDados::ValorUnico;

namespace ItensPIcomPPB {

namespace {

const QString DCR = QStringLiteral("2");

QString texto(const QVariant& v)
{
    return v.isValid() ? v.toString() : QString();
}

}  // namespace

namespace {

QString sqlMensal(const QString& tipo)
{
    const QString dcr = tipo == DCR ? QStringLiteral("D.VL_II_UNIT_DOLAR, D.PC_COEF_REDUCAO_II, D.NM_UNID_MED_DEST, ")
                                    : QString();
    return QStringLiteral("SELECT I.ID_ITEM_VRT, P.NR_DCRE_DCR, I.CD_INT_PRODUTO, I.NM_INT_PRODUTO, L.NM_LOCAL_DESTINO, "
                          "D.QT_PROD_LOC_DEST, D.ID_DEST_PRODUTO, D.CD_LOCAL_DESTINO, %1D.VL_PIS, D.VL_COFINS "
                          "FROM ITEM_VRT_MEN I INNER JOIN ITEM_VRT_MEN_PI_COM_PPB P ON P.ID_ITEM_VRT = I.ID_ITEM_VRT "
                          "INNER JOIN DESTINO_ITEM_VRT_MEN D ON D.ID_ITEM_VRT = I.ID_ITEM_VRT "
                          "INNER JOIN LOCAL_DESTINO L ON L.CD_LOCAL_DESTINO = D.CD_LOCAL_DESTINO "
                          "WHERE I.ID_VRT_MICRO = ? AND I.IND_MOD_INTERNACAO = '2' AND P.CD_TIPO_COEF_REDUCAO = ? "
                          "ORDER BY P.NR_DCRE_DCR, D.ID_DEST_PRODUTO")
        .arg(dcr);
}

QString sqlIndividual(const QString& tipo)
{
    return tipo == DCR
               ? QStringLiteral("SELECT I.ID_ITEM, I.NR_ITEM_NF_SAIDA, D.NR_DCR, I.CD_INT_PROD, I.NM_INT_PROD, "
                                "D.QT_PRODUTO, D.VL_II_UNIT_DOLAR, D.PC_COEF_REDUCAO_II, I.NM_UNID_MED_PROD, P.VL_PIS, "
                                "P.VL_COFINS FROM ITEM_NFS I INNER JOIN ITEM_NFS_PI_COM_PPB P ON P.ID_ITEM = I.ID_ITEM "
                                "INNER JOIN DCR D ON D.ID_ITEM = I.ID_ITEM WHERE I.ID_NFS = ? AND "
                                "P.CD_TIPO_COEF_REDUCAO = ? ORDER BY I.ID_ITEM")
               : QStringLiteral("SELECT I.ID_ITEM, I.NR_ITEM_NF_SAIDA, D.NR_DCRE, I.CD_INT_PROD, I.NM_INT_PROD, "
                                "D.QT_PRODUTO, P.VL_PIS, P.VL_COFINS "
                                "FROM ITEM_NFS I INNER JOIN ITEM_NFS_PI_COM_PPB P ON P.ID_ITEM = I.ID_ITEM "
                                "INNER JOIN DCRE D ON D.ID_ITEM = I.ID_ITEM WHERE I.ID_NFS = ? AND "
                                "P.CD_TIPO_COEF_REDUCAO = ? ORDER BY I.ID_ITEM");
}

bool temLinha(const QString& sql, const QVariantList& valores)
{
    return ValorUnico(QStringLiteral("SELECT 1 WHERE EXISTS (") + sql + QStringLiteral(")"), valores).isValid();
}

}  // namespace

QList<QStringList> LinhasMensal(const QString& idVrt, const QString& tipo)
{
    return ItensDeclaracao::Linhas(sqlMensal(tipo), {idVrt, tipo});
}

QList<QStringList> LinhasIndividual(qint64 idNfs, const QString& tipo)
{
    return ItensDeclaracao::Linhas(sqlIndividual(tipo), {idNfs, tipo});
}

bool TemLinhasMensal(const QString& idVrt, const QString& tipo)
{
    return temLinha(sqlMensal(tipo), {idVrt, tipo});
}

bool TemLinhasIndividual(qint64 idNfs, const QString& tipo)
{
    return temLinha(sqlIndividual(tipo), {idNfs, tipo});
}

QString NumeroDoProduto(const QString& idVrt, const QString& produto, const QString& tipo, const QString& exceto)
{
    return texto(ValorUnico(
        QStringLiteral("SELECT P.NR_DCRE_DCR FROM ITEM_VRT_MEN I INNER JOIN ITEM_VRT_MEN_PI_COM_PPB P ON "
                       "P.ID_ITEM_VRT = I.ID_ITEM_VRT WHERE I.ID_VRT_MICRO = ? AND I.CD_INT_PRODUTO = ? AND "
                       "I.IND_MOD_INTERNACAO = '2' AND P.CD_TIPO_COEF_REDUCAO = ? AND P.NR_DCRE_DCR <> ? LIMIT 1"),
        {idVrt, produto, tipo, exceto.isNull() ? QStringLiteral("") : exceto}));
}

QString ProdutoDoNumero(const QString& idVrt, const QString& numero, const QString& tipo, const QString& exceto)
{
    return texto(ValorUnico(
        QStringLiteral("SELECT I.CD_INT_PRODUTO FROM ITEM_VRT_MEN I INNER JOIN ITEM_VRT_MEN_PI_COM_PPB P ON "
                       "P.ID_ITEM_VRT = I.ID_ITEM_VRT WHERE I.ID_VRT_MICRO = ? AND P.NR_DCRE_DCR = ? AND "
                       "I.IND_MOD_INTERNACAO = '2' AND P.CD_TIPO_COEF_REDUCAO = ? AND I.CD_INT_PRODUTO <> ? LIMIT 1"),
        {idVrt, numero, tipo, exceto}));
}

qint64 ItemDoDocumento(const QString& idVrt, const QString& produto, const QString& numero, const QString& tipo)
{
    return ValorUnico(QStringLiteral("SELECT I.ID_ITEM_VRT FROM ITEM_VRT_MEN I INNER JOIN ITEM_VRT_MEN_PI_COM_PPB P ON "
                                     "P.ID_ITEM_VRT = I.ID_ITEM_VRT WHERE I.ID_VRT_MICRO = ? AND I.CD_INT_PRODUTO = ? "
                                     "AND I.IND_MOD_INTERNACAO = '2' AND P.NR_DCRE_DCR = ? AND "
                                     "P.CD_TIPO_COEF_REDUCAO = ? LIMIT 1"),
                      {idVrt, produto, numero, tipo})
        .toLongLong();
}

bool NumeroEmOutroItem(const QString& idVrt, const QString& numero, const QString& tipo, qint64 exceto)
{
    return ValorUnico(QStringLiteral("SELECT 1 FROM ITEM_VRT_MEN I INNER JOIN ITEM_VRT_MEN_PI_COM_PPB P ON "
                                     "P.ID_ITEM_VRT = I.ID_ITEM_VRT WHERE I.ID_VRT_MICRO = ? AND "
                                     "I.IND_MOD_INTERNACAO = '2' AND P.NR_DCRE_DCR = ? AND P.CD_TIPO_COEF_REDUCAO = ? "
                                     "AND I.ID_ITEM_VRT <> ? LIMIT 1"),
                      {idVrt, numero, tipo, exceto})
        .isValid();
}

QString NumeroNaNota(qint64 idNfs, const QString& produto, const QString& tipo)
{
    const QString tabela = tipo == DCR ? QStringLiteral("DCR D ON D.ID_ITEM = I.ID_ITEM") : QStringLiteral("DCRE D ON D.ID_ITEM = I.ID_ITEM");
    const QString coluna = tipo == DCR ? QStringLiteral("D.NR_DCR") : QStringLiteral("D.NR_DCRE");
    return texto(ValorUnico(QStringLiteral("SELECT %1 FROM ITEM_NFS I INNER JOIN ITEM_NFS_PI_COM_PPB P ON "
                                           "P.ID_ITEM = I.ID_ITEM INNER JOIN %2 WHERE I.CD_INT_PROD = ? AND "
                                           "I.ID_NFS = ? AND P.CD_TIPO_COEF_REDUCAO = ? LIMIT 1")
                                .arg(coluna, tabela),
                            {produto, idNfs, tipo}));
}

QString ProdutoDoDcr(const QString& numero, const QString& exceto)
{
    return texto(ValorUnico(QStringLiteral("SELECT I.CD_INT_PROD FROM DCR D INNER JOIN ITEM_NFS I ON I.ID_ITEM = "
                                           "D.ID_ITEM WHERE D.NR_DCR = ? AND I.CD_INT_PROD <> ? LIMIT 1"),
                            {numero, exceto}));
}

}  // namespace ItensPIcomPPB
