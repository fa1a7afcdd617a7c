#include "core/file/writing/DocumentosInsumoMensal.h"

#include "core/store/ComandoSqlite.h"
#include "core/store/modBancoDados.h"

using namespace modBancoDados;

DocumentosInsumoMensal::DocumentosInsumoMensal(const QString& id)
{
    // Columns 0 and 1 are the input and the destination of the key; the rest follow the enums. A document
    // without an input or a destination is found by no lookup, as a comparison with Null finds nothing.
    carrega(&Grupo::nfa,
            QStringLiteral("SELECT CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, "
                           "NR_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, IND_DL_288_67, "
                           "QT_INSUMO_UNID_INS, VL_INSUMO_UNID_INS, CD_INT_INSUMO, CD_LOCAL_DESTINO "
                           "FROM ITEM_NFA_INS_MEN WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO IS NOT NULL "
                           "AND CD_LOCAL_DESTINO IS NOT NULL ORDER BY ID_ITEM_NFA"),
            id, NfaDestino + 1);
    carrega(&Grupo::di,
            QStringLiteral("SELECT d.CD_INT_INSUMO, d.CD_LOCAL_DESTINO, d.NR_DI, d.NR_DI_ANTIGA, "
                           "CASE WHEN d.NR_DI_ANTIGA IS NULL THEN 'S' ELSE 'N' END, d.NR_ADICAO_DI, "
                           "d.NR_ITEM_ADICAO, d.IND_DL_288_67, d.QT_INSUMO_UNID_INS, m.VL_INSUMO_UNID_INS, "
                           "m.CD_MOEDA_NEG, m.VL_FRETE_UNID_INT, m.CD_MOEDA_FRETE, m.VL_SEGURO_UNID_INT, "
                           "m.CD_MOEDA_SEGURO, d.CD_INT_INSUMO, d.CD_LOCAL_DESTINO, d.IND_SUSP_PIS_COFINS "
                           "FROM ITEM_DI_INS_MEN d LEFT JOIN ITEM_IMPORT_288_INS_MEN m ON m.ID_ITEM_IMP_288 = "
                           "(SELECT MIN(x.ID_ITEM_IMP_288) FROM ITEM_IMPORT_288_INS_MEN x WHERE x.ID_ITEM_DI = "
                           "d.ID_ITEM_DI) WHERE d.ID_VRT_MICRO = ? AND d.CD_INT_INSUMO IS NOT NULL "
                           "AND d.CD_LOCAL_DESTINO IS NOT NULL ORDER BY d.ID_ITEM_DI"),
            id, DiSuspensao + 1);
    carrega(&Grupo::dsi,
            QStringLiteral("SELECT CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_DSI, NR_DSI_ANTIGA, NR_BEM, "
                           "QT_INSUMO_UNID_INS, CD_INT_INSUMO, CD_LOCAL_DESTINO, VL_PROD_UNID_PROD, CD_MOEDA_NEG, "
                           "VL_FRETE_UNID_INT, CD_MOEDA_FRETE, VL_SEGURO_UNID_INT, CD_MOEDA_SEGURO, "
                           "IND_SUSP_PIS_COFINS FROM ITEM_DSI_INS_MEN WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO IS NOT NULL "
                           "AND CD_LOCAL_DESTINO IS NOT NULL ORDER BY ID_ITEM_DSI"),
            id, DsiSuspensao + 1);
}

QString DocumentosInsumoMensal::chave(const QString& insumo, const QString& destino)
{
    return insumo + QChar(0x1F) + destino;
}

void DocumentosInsumoMensal::carrega(Linhas Grupo::*tipo, const QString& sql, const QString& id, int colunas)
{
    ComandoSqlite rs(sql);
    rs.abre({id});
    while (rs.proxima()) {
        QStringList linha;
        linha.reserve(colunas);
        for (int c = 0; c < colunas; ++c)
            linha.append(rs.texto(c + 2));
        (m_grupos[chave(rs.texto(0), rs.texto(1))].*tipo).append(linha);
    }
}

const DocumentosInsumoMensal::Grupo& DocumentosInsumoMensal::de(const QString& insumo, const QString& destino) const
{
    const auto it = m_grupos.constFind(chave(insumo, destino));
    return it == m_grupos.constEnd() ? m_vazio : it.value();
}
