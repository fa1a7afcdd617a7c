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

// _SEM_ANTIGA in the DI query below.
constexpr int DiSemAntiga = 4;
}  // namespace

DocumentosInsumoMensal::DocumentosInsumoMensal(const QString& id) : m_nfa(34), m_di(35), m_dsi(36)
{
    // Columns 0 and 1 are the input and the destination of the key, and fill the record's fields of those
    // names too. A document without an input or a destination is found by no lookup, as a comparison with
    // Null finds nothing. The rows come in the order of the tables' index (declaration, input, destination), so
    // that the engine sorts nothing: a group's documents by their key.
    carrega(m_nfa, &Grupo::nfa,
            QStringLiteral("SELECT CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_CNPJ_FORNECEDOR, NR_SERIE_NF_AQUIS, "
                           "NR_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, "
                           "CASE WHEN IND_DL_288_67 = 'S' THEN 'S' ELSE 'N' END AS IND_DL_288_67, "
                           "QT_INSUMO_UNID_INS, VL_INSUMO_UNID_INS "
                           "FROM ITEM_NFA_INS_MEN WHERE ID_VRT_MICRO = ? AND CD_INT_INSUMO IS NOT NULL "
                           "AND CD_LOCAL_DESTINO IS NOT NULL ORDER BY CD_INT_INSUMO, CD_LOCAL_DESTINO, ID_ITEM_NFA"),
            id);
    carrega(m_di, &Grupo::di,
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
                                 "AND d.CD_LOCAL_DESTINO IS NOT NULL ORDER BY d.CD_INT_INSUMO, d.CD_LOCAL_DESTINO, d.ID_ITEM_DI"),
            id);
    carrega(m_dsi, &Grupo::dsi,
            QStringLiteral("SELECT CD_INT_INSUMO, CD_LOCAL_DESTINO, NULLIF(NR_DSI, ' ') AS NR_DSI, "
                           "NULLIF(NR_DSI_ANTIGA, ' ') AS NR_DSI_ANTIGA, NR_BEM, QT_INSUMO_UNID_INS, ")
                + valoresImportacao(QStringLiteral("IND_SUSP_PIS_COFINS = 'S'"), QStringLiteral("ITEM_DSI_INS_MEN"),
                                    QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"))
                + QStringLiteral(", IND_SUSP_PIS_COFINS FROM ITEM_DSI_INS_MEN WHERE ID_VRT_MICRO = ? "
                                 "AND CD_INT_INSUMO IS NOT NULL AND CD_LOCAL_DESTINO IS NOT NULL ORDER BY CD_INT_INSUMO, CD_LOCAL_DESTINO, ID_ITEM_DSI"),
            id);
}

DocumentosInsumoMensal::Tipo::Tipo(int tipo) : registro(layout(tipo))
{
}

LinhaRegistro& DocumentosInsumoMensal::Tipo::compoe(int linha)
{
    registro.limpa();
    registro.preenche(linhas.linha(linha), mapa);
    return registro;
}

void DocumentosInsumoMensal::carrega(Tipo& tipo, Faixa Grupo::*faixa, const QString& sql, const QString& id)
{
    ComandoSqlite rs(sql);
    tipo.mapa = MapaColunas(tipo.registro.layout(), rs);
    rs.abre({id});
    // The query's order puts the rows of one input at one destination together.
    QPair<QString, QString> anterior;
    Faixa* atual = nullptr;
    while (rs.proxima()) {
        const int k = tipo.linhas.guarda(rs);
        const LinhasGuardadas::Linha linha = tipo.linhas.linha(k);
        QPair<QString, QString> chave{linha.texto(0), linha.texto(1)};
        if (!atual || chave != anterior) {
            atual = &(m_grupos[chave].*faixa);
            Q_ASSERT(atual->fim == 0);  // each group's rows come together
            atual->inicio = k;
            anterior = std::move(chave);
        }
        atual->fim = k + 1;
    }
}

void DocumentosInsumoMensal::escreve(SaidaVrt& saida, const QString& insumo, const QString& destino)
{
    const auto it = m_grupos.constFind({insumo, destino});
    if (it == m_grupos.constEnd())
        return;
    for (const int k : it->nfa)
        saida.escreve(m_nfa.compoe(k));
    for (const int k : it->di) {
        LinhaRegistro& r = m_di.compoe(k);
        if (m_di.linhas.linha(k).texto(DiSemAntiga) != QLatin1String("S")) {
            m_diAntiga = r.valor(QStringLiteral("NR_DI_ANTIGA"));
            saida.escreve(r);
            continue;
        }
        // The old writer's fault, kept: a missing old number puts its 15 zeros into the DI number, which then
        // breaks the line, and the old number of the previous record 35 is written again.
        r.poeComoEsta(QStringLiteral("NR_DI"), QString(15, u'0'));
        r.poeComoEsta(QStringLiteral("NR_DI_ANTIGA"), m_diAntiga);
        saida.escreve(r);
    }
    for (const int k : it->dsi)
        saida.escreve(m_dsi.compoe(k));
}
