#include "core/file/writing/DocumentosInsumoMensal.h"

#include "core/file/writing/EscritaRegistro.h"
#include "core/file/writing/MapaColunas.h"
#include "core/file/writing/SaidaVrt.h"
#include "core/store/ComandoSqlite.h"

using EscritaRegistro::valoresImportacao;

namespace {
const LayoutRegistro& layout(int tipo)
{
    return LayoutRegistro::de(TipoDeclaracao::Mensal, tipo);
}
}  // namespace

DocumentosInsumoMensal::DocumentosInsumoMensal(const QString& id)
{
    // Columns 0 and 1 are the input and the destination of the key, and fill the record's fields of those
    // names too. A document without an input or a destination is found by no lookup, as a comparison with
    // Null finds nothing.
    carrega(34,
            QStringLiteral("SELECT CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, "
                           "NR_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, "
                           "CASE WHEN IND_DL_288_67 = 'S' THEN 'S' ELSE 'N' END AS IND_DL_288_67, "
                           "QT_INSUMO_UNID_INS, VL_INSUMO_UNID_INS "
                           "FROM ITEM_NFA_INS_MEN WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO IS NOT NULL "
                           "AND CD_LOCAL_DESTINO IS NOT NULL ORDER BY ID_ITEM_NFA"),
            id, [](Grupo& g, const LinhaRegistro& r, const ComandoSqlite&) { g.nfa.append(r); });
    carrega(35,
            QStringLiteral("SELECT d.CD_INT_INSUMO, d.CD_LOCAL_DESTINO, d.NR_DI, d.NR_DI_ANTIGA, "
                           "CASE WHEN d.NR_DI_ANTIGA IS NULL OR d.NR_DI_ANTIGA = ' ' THEN 'S' ELSE 'N' END AS _SEM_ANTIGA, "
                           "d.NR_ADICAO_DI, d.NR_ITEM_ADICAO, "
                           "CASE WHEN d.IND_DL_288_67 = 'S' THEN 'S' ELSE 'N' END AS IND_DL_288_67, "
                           "d.QT_INSUMO_UNID_INS, ")
                + valoresImportacao(QStringLiteral("d.IND_DL_288_67 = 'S' OR d.IND_SUSP_PIS_COFINS = 'S'"),
                                    QStringLiteral("m"), QStringLiteral("VL_INSUMO_UNID_INS"), QStringLiteral("INT"))
                + QStringLiteral(", d.IND_SUSP_PIS_COFINS "
                                 "FROM ITEM_DI_INS_MEN d LEFT JOIN ITEM_IMPORT_288_INS_MEN m ON m.ID_ITEM_IMP_288 = "
                                 "(SELECT MIN(x.ID_ITEM_IMP_288) FROM ITEM_IMPORT_288_INS_MEN x WHERE x.ID_ITEM_DI = "
                                 "d.ID_ITEM_DI) WHERE d.ID_VRT_MICRO = ? AND d.CD_INT_INSUMO IS NOT NULL "
                                 "AND d.CD_LOCAL_DESTINO IS NOT NULL ORDER BY d.ID_ITEM_DI"),
            id, [](Grupo& g, const LinhaRegistro& r, const ComandoSqlite& c) {
                g.di.append({r, c.texto(4) == QLatin1String("S")});
            });
    carrega(36,
            QStringLiteral("SELECT CD_INT_INSUMO, CD_LOCAL_DESTINO, NULLIF(NR_DSI, ' ') AS NR_DSI, "
                           "NULLIF(NR_DSI_ANTIGA, ' ') AS NR_DSI_ANTIGA, NR_BEM, QT_INSUMO_UNID_INS, ")
                + valoresImportacao(QStringLiteral("IND_SUSP_PIS_COFINS = 'S'"), QStringLiteral("ITEM_DSI_INS_MEN"),
                                    QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"))
                + QStringLiteral(", IND_SUSP_PIS_COFINS FROM ITEM_DSI_INS_MEN WHERE ID_VRT_MICRO = ? "
                                 "AND CD_INT_INSUMO IS NOT NULL AND CD_LOCAL_DESTINO IS NOT NULL ORDER BY ID_ITEM_DSI"),
            id, [](Grupo& g, const LinhaRegistro& r, const ComandoSqlite&) { g.dsi.append(r); });
}

QString DocumentosInsumoMensal::chave(const QString& insumo, const QString& destino)
{
    return insumo + QChar(0x1F) + destino;
}

template <typename Poe>
void DocumentosInsumoMensal::carrega(int tipo, const QString& sql, const QString& id, Poe poe)
{
    ComandoSqlite rs(sql);
    const MapaColunas mapa(layout(tipo), rs);
    LinhaRegistro r(layout(tipo));
    rs.abre({id});
    while (rs.proxima()) {
        r.limpa();
        r.preenche(rs, mapa);
        poe(m_grupos[chave(rs.texto(0), rs.texto(1))], r, rs);
    }
}

void DocumentosInsumoMensal::escreve(SaidaVrt& saida, const QString& insumo, const QString& destino)
{
    const auto it = m_grupos.constFind(chave(insumo, destino));
    if (it == m_grupos.constEnd())
        return;
    for (const LinhaRegistro& r : it->nfa)
        saida.escreve(r);
    for (const Di& di : it->di) {
        if (!di.semAntiga) {
            m_diAntiga = di.linha.valor(QStringLiteral("NR_DI_ANTIGA"));
            saida.escreve(di.linha);
            continue;
        }
        // The old writer's fault, kept: a missing old number puts its 15 zeros into the DI number, which then
        // breaks the line, and the old number of the previous record 35 is written again.
        LinhaRegistro r = di.linha;
        r.poeComoEsta(QStringLiteral("NR_DI"), QString(15, u'0'));
        r.poeComoEsta(QStringLiteral("NR_DI_ANTIGA"), m_diAntiga);
        saida.escreve(r);
    }
    for (const LinhaRegistro& r : it->dsi)
        saida.escreve(r);
}
