#include "core/file/writing/modTrataVrtMensal.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/FilhosDoItem.h"
#include "core/store/ComandoSqlite.h"
#include "core/file/writing/DocumentosInsumoMensal.h"
#include "core/file/writing/EscritaRegistro.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/MapaColunas.h"
#include "core/file/writing/SaidaVrt.h"
#include "core/rules/FormatoNumero.h"

#include <QHash>
#include <memory>

namespace modTrataVrtMensal {

namespace {

using EscritaRegistro::RegistroComposto;

const LayoutRegistro& layout(int tipo)
{
    return LayoutRegistro::de(TipoDeclaracao::Mensal, tipo);
}

const EscritaRegistro::NomesProduto& nomesProduto()
{
    static const EscritaRegistro::NomesProduto nomes{QStringLiteral("QT_PROD_UNID_PROD"), false,
                                                     QStringLiteral("VL_PROD_UNID_PROD"),
                                                     QStringLiteral("VL_TOT_PROD_OBSOLE")};
    return nomes;
}

// Columns of the item query that the writer reads itself; the others fill the records by their names.
enum { ItId, ItModalidade, ItTipoCoef };
// Columns of the destination query (0 is the item, 1 the destination's key).
enum { DeItem, DeId, DeCodigo, DeQuantidade };

// The destinations of an item without basic process: its record 31 has a pair per destination, and its inputs
// write their records destination by destination.
struct Destino {
    QString codigo, quantidade;
};

QString chaveDestinoInsumo(const QString& destino, const QString& insumo)
{
    return destino + QChar(0x1F) + insumo;
}

class EscritaMensal {
public:
    EscritaMensal(const CabecalhoVrt& cabecalho, GravacaoVrt& run, SaidaVrt& saida);
    void escreveItens();

private:
    void produtoEstrangeiro(qint64 item);
    void produtoComPPB(qint64 item);
    void produtoSemPPB(qint64 item);
    void insumos(qint64 item, const QVector<Destino>& destinos);
    void produtoNacional();
    void preparaInsumos();

    const CabecalhoVrt& m_cab;
    SaidaVrt& m_saida;
    ComandoSqlite m_item;
    FilhosDoItem m_destinos;
    RegistroComposto m_r11, m_r21, m_r31, m_r41;
    EscritaRegistro::RegistrosPorDestino m_nfa, m_di, m_dsi;
    // Prepared with the first item without basic process.
    std::unique_ptr<FilhosDoItem> m_insumos;
    std::unique_ptr<RegistroComposto> m_r32, m_r33;
    std::unique_ptr<DocumentosInsumoMensal> m_docsInsumo;
    QHash<QString, QString> m_totalInsumo;        // INSUMO_VRT by input
    // TOT_INSUMO_CONSOLIDADO by destination and input; a Null destination or input has no row to be found.
    QHash<QString, QString> m_totalPorDestino;
};

// Every child query walks the items in the item query's order: modality, then the item's key.
QString sqlItem()
{
    return QStringLiteral(
        "SELECT i.ID_ITEM_VRT, i.IND_MOD_INTERNACAO, p.CD_TIPO_COEF_REDUCAO, i.CD_INT_PRODUTO, i.CD_NCM_PRODUTO, "
        "i.NM_INT_PRODUTO, i.NM_UNID_MED_PROD, i.QT_PROD_UNID_EST, i.QT_PROD_UNID_PROD, i.VL_PROD_UNID_PROD, "
        "j.JUST_II_DIF_TEC, j.ALIQ_II_DIF_TEC, j.JUST_IPI_DIF_TIPI, j.ALIQ_IPI_DIF_TIPI, "
        // The number of the reduction document goes to the DCR-E field or the DCR field by its type.
        "CASE p.CD_TIPO_COEF_REDUCAO WHEN '1' THEN p.NR_DCRE_DCR END AS NR_DCRE, "
        "CASE p.CD_TIPO_COEF_REDUCAO WHEN '2' THEN p.NR_DCRE_DCR END AS NR_DCR FROM ITEM_VRT_MEN i "
        "LEFT JOIN JUST_DIF_ALIQ_PROD_VRT_MEN j ON j.ID_ITEM_VRT = i.ID_ITEM_VRT "
        "LEFT JOIN ITEM_VRT_MEN_PI_COM_PPB p ON p.rowid = (SELECT MIN(q.rowid) FROM "
        "ITEM_VRT_MEN_PI_COM_PPB q WHERE q.ID_ITEM_VRT = i.ID_ITEM_VRT) "
        "WHERE i.ID_VRT_MICRO = ? ORDER BY i.IND_MOD_INTERNACAO, i.ID_ITEM_VRT");
}

// The destinations of each item in the order of the destination index (code, then key); FilhosDoItem puts each
// item's destinations in the order of their keys.
QString sqlDestinos()
{
    return QStringLiteral(
        "SELECT d.ID_ITEM_VRT, d.ID_DEST_PRODUTO, d.CD_LOCAL_DESTINO, d.QT_PROD_LOC_DEST, "
        "d.VL_II_UNIT_DOLAR, d.PC_COEF_REDUCAO_II, d.NM_UNID_MED_DEST, d.VL_PIS, d.VL_COFINS "
        "FROM DESTINO_ITEM_VRT_MEN d JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = d.ID_ITEM_VRT "
        "WHERE i.ID_VRT_MICRO = ? AND i.IND_MOD_INTERNACAO IN ('1', '2', '3') "
        "ORDER BY i.IND_MOD_INTERNACAO, i.ID_ITEM_VRT, d.CD_LOCAL_DESTINO, d.ID_DEST_PRODUTO");
}

// The documents of the foreign products' destinations: the item, the destination, the document's key, then
// `colunas`; in the order of the indexes, each destination's documents by their key (`ordem` breaks the ties of
// a join).
QString sqlDocumentoPE(const QString& colunas, const QString& tabelas, const QString& chave,
                       const QString& ordem = QString())
{
    return QStringLiteral("SELECT i.ID_ITEM_VRT, x.ID_DEST_PRODUTO, x.") + chave + QStringLiteral(", ") + colunas
           + QStringLiteral(" FROM ") + tabelas
           + QStringLiteral(" JOIN DESTINO_ITEM_VRT_MEN d ON d.ID_DEST_PRODUTO = x.ID_DEST_PRODUTO "
                            "JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = d.ID_ITEM_VRT WHERE i.ID_VRT_MICRO = ? "
                            "AND i.IND_MOD_INTERNACAO = '1' "
                            "ORDER BY i.ID_ITEM_VRT, d.CD_LOCAL_DESTINO, d.ID_DEST_PRODUTO, x.")
           + chave + ordem;
}

// ID_ITEM_DI and IND_OBSOLE_RESIDUO in the DI query.
enum { DiChave = 2, DiObsoleto = 8 };

QString sqlDi()
{
    // The import values under DL 288/67 of a line not obsolete, or under suspension of PIS/COFINS.
    const QString valores = EscritaRegistro::valoresImportacao(
        QStringLiteral("(x.IND_OBSOLE_RESIDUO = 'N' AND x.IND_DL_288_67 = 'S') OR x.IND_SUSP_PIS_COFINS = 'S'"),
        QStringLiteral("m"), QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"));
    return sqlDocumentoPE(
        QStringLiteral("x.NR_DI, x.NR_DI_ANTIGA, x.NR_ADICAO_DI, x.NR_ITEM_ADICAO, x.IND_DL_288_67, "
                       "x.IND_OBSOLE_RESIDUO, x.QT_PROD_UNID_PROD, ")
            + valores + QStringLiteral(", ")
            + EscritaRegistro::se(QStringLiteral("x.IND_OBSOLE_RESIDUO = 'S'"), QStringLiteral("m"),
                                  QStringLiteral("VL_TOT_PROD_OBSOLE"), QStringLiteral("VL_TOT_PROD_OBSOLE"))
            + QStringLiteral(", x.IND_SUSP_PIS_COFINS"),
        // Every import row of the DI comes, the lowest key first: the writer keeps that one (DiChave).
        QStringLiteral("ITEM_DI_PE_MEN x LEFT JOIN ITEM_IMPORT_288_PE_MEN m ON m.ID_ITEM_DI = x.ID_ITEM_DI"),
        QStringLiteral("ID_ITEM_DI"), QStringLiteral(", m.ID_ITEM_IMP_288"));
}

EscritaMensal::EscritaMensal(const CabecalhoVrt& cabecalho, GravacaoVrt& run, SaidaVrt& saida)
    : m_cab(cabecalho), m_saida(saida), m_item(sqlItem()),
      m_destinos(sqlDestinos(), QVariantList{cabecalho.idVrtMicro}),
      m_r11(layout(11), m_item, &m_destinos.consulta()), m_r21(layout(21), m_item, &m_destinos.consulta()),
      m_r31(layout(31), m_item), m_r41(layout(41), m_item),
      m_nfa(layout(12),
            sqlDocumentoPE(EscritaRegistro::colunas12(nomesProduto()), QStringLiteral("ITEM_NFA_PE_MEN x"),
                           QStringLiteral("ID_ITEM_NFA")),
            QVariantList{cabecalho.idVrtMicro}),
      m_di(layout(13), sqlDi(), QVariantList{cabecalho.idVrtMicro}, DiChave,
           [&run](LinhaRegistro&, const FilhosDoItem::Linha& x) {
               // The individual writer reads this working value later in the run.
               run.obsoleResiduoMensal = x.texto(DiObsoleto);
           }),
      m_dsi(layout(14),
            sqlDocumentoPE(EscritaRegistro::colunas14(nomesProduto()), QStringLiteral("ITEM_DSI_PE_MEN x"),
                           QStringLiteral("ID_ITEM_DSI")),
            QVariantList{cabecalho.idVrtMicro})
{
}
void EscritaMensal::escreveItens()
{
    m_item.abre({m_cab.idVrtMicro});
    while (m_item.proxima()) {
        const QString modalidade = m_item.texto(ItModalidade);
        const qint64 idItem = m_item.inteiro(ItId);
        if (modalidade == QLatin1String("1")) {
            produtoEstrangeiro(idItem);
        } else if (modalidade == QLatin1String("2")) {
            produtoComPPB(idItem);
        } else if (modalidade == QLatin1String("3")) {
            if (!m_insumos)
                preparaInsumos();
            produtoSemPPB(idItem);
        } else if (modalidade == QLatin1String("4")) {
            produtoNacional();
        }
    }
}

void EscritaMensal::produtoEstrangeiro(qint64 item)
{
    m_destinos.carrega(item);
    m_nfa.carrega(item);
    m_di.carrega(item);
    m_dsi.carrega(item);
    // A justification row fills both pairs of record 11; without one they stay blanks and zeros.
    for (int k = 0; k < m_destinos.quantas(); ++k) {
        m_saida.escreve(m_r11.compoe(m_item, m_destinos.linha(k)));
        const qint64 destino = m_destinos.chave(k);
        m_nfa.escreve(m_saida, destino);
        m_di.escreve(m_saida, destino);
        m_dsi.escreve(m_saida, destino);
    }
}

void EscritaMensal::produtoComPPB(qint64 item)
{
    static const int vlII = layout(21).indice(QStringLiteral("VL_II_UNIT_DOLAR"));
    static const int coeficiente = layout(21).indice(QStringLiteral("PC_COEF_REDUCAO_II"));
    // The destination's II value and reduction coefficient belong to a DCR only.
    const bool dcr = m_item.texto(ItTipoCoef) == QLatin1String("2");
    m_destinos.carrega(item);
    for (int k = 0; k < m_destinos.quantas(); ++k) {
        LinhaRegistro& r = m_r21.compoe(m_item, m_destinos.linha(k));
        if (!dcr) {
            r.poe(vlII, QString());
            r.poe(coeficiente, QString());
        }
        m_saida.escreve(r);
    }
}

void EscritaMensal::preparaInsumos()
{
    const QString& id = m_cab.idVrtMicro;
    // Each item's inputs in the order of the item's index (order number, then key); FilhosDoItem puts them in the
    // order of their keys. Record 33 takes each justification pair only where its aliquot is there and is not one
    // blank.
    m_insumos = std::make_unique<FilhosDoItem>(
        QStringLiteral("SELECT s.ID_ITEM_VRT, s.ID_INSUMO_ITEM, s.CD_INT_INSUMO, s.CD_NCM_INSUMO, s.NM_INT_INSUMO, "
                       "s.NM_UNID_MED_INSUMO, s.QT_INSUMO_POR_PROD, "
                       "CASE WHEN NULLIF(j.ALIQ_II_DIF_TEC, ' ') IS NOT NULL THEN j.JUST_II_DIF_TEC END "
                       "AS JUST_II_DIF_TEC, NULLIF(j.ALIQ_II_DIF_TEC, ' ') AS ALIQ_II_DIF_TEC, "
                       "CASE WHEN NULLIF(j.ALIQ_IPI_DIF_TIPI, ' ') IS NOT NULL THEN j.JUST_IPI_DIF_TIPI END "
                       "AS JUST_IPI_DIF_TIPI, NULLIF(j.ALIQ_IPI_DIF_TIPI, ' ') AS ALIQ_IPI_DIF_TIPI "
                       "FROM INSUMO_ITEM_VRT_MEN s JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = s.ID_ITEM_VRT "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_MEN j ON j.ID_INSUMO_ITEM = s.ID_INSUMO_ITEM "
                       "WHERE i.ID_VRT_MICRO = ? AND i.IND_MOD_INTERNACAO = '3' "
                       "ORDER BY i.ID_ITEM_VRT, s.NR_ORDEM, s.ID_INSUMO_ITEM"),
        QVariantList{id});
    m_r32 = std::make_unique<RegistroComposto>(layout(32), m_item, &m_insumos->consulta());
    m_r33 = std::make_unique<RegistroComposto>(layout(33), m_insumos->consulta());
    m_docsInsumo = std::make_unique<DocumentosInsumoMensal>(id);

    ComandoSqlite rs(QStringLiteral("SELECT CD_INT_INSUMO, QT_TOT_INS_EST FROM INSUMO_VRT WHERE ID_VRT_MICRO = ?"));
    rs.abre({id});
    while (rs.proxima())
        m_totalInsumo.insert(rs.texto(0), rs.texto(1));
    ComandoSqlite tot(QStringLiteral("SELECT CD_LOCAL_DESTINO, CD_INT_INSUMO, QT_TOT_INS_POR_LOC "
                                     "FROM TOT_INSUMO_CONSOLIDADO WHERE ID_VRT_MICRO = ? "
                                     "AND CD_LOCAL_DESTINO IS NOT NULL AND CD_INT_INSUMO IS NOT NULL"));
    tot.abre({id});
    while (tot.proxima())
        m_totalPorDestino.insert(chaveDestinoInsumo(tot.texto(0), tot.texto(1)), tot.texto(2));
}

void EscritaMensal::produtoSemPPB(qint64 item)
{
    static const QVector<int> pares = [] {
        QVector<int> v;
        for (int d = 1; d <= 4; ++d)
            v << layout(31).indice(QStringLiteral("QT_PROD_LOC_DEST_") + QString::number(d));
        return v;
    }();
    QVector<Destino> destinos;
    m_destinos.carrega(item);
    for (int k = 0; k < m_destinos.quantas(); ++k)
        destinos.append({m_destinos.linha(k).texto(DeCodigo), m_destinos.linha(k).texto(DeQuantidade)});
    LinhaRegistro& r = m_r31.compoe(m_item);
    // One pair per destination code; a code without a row keeps its zeros.
    for (const Destino& d : destinos) {
        if (d.codigo.size() == 1 && d.codigo >= QLatin1String("1") && d.codigo <= QLatin1String("4"))
            r.poe(pares.at(d.codigo.toInt() - 1), d.quantidade);
    }
    m_saida.escreve(r);
    insumos(item, destinos);
}

void EscritaMensal::insumos(qint64 item, const QVector<Destino>& destinos)
{
    enum { Codigo = 2 };
    static const int estoque = layout(33).indice(QStringLiteral("QT_TOT_INS_EST"));
    static const int local = layout(33).indice(QStringLiteral("CD_LOCAL_DESTINO"));
    static const int porLocal = layout(33).indice(QStringLiteral("QT_TOT_INS_POR_LOC"));
    m_insumos->carrega(item);
    for (int k = 0; k < m_insumos->quantas(); ++k) {
        const FilhosDoItem::Linha x = m_insumos->linha(k);
        const QString codigo = x.texto(Codigo);
        m_saida.escreve(m_r32->compoe(m_item, x));

        LinhaRegistro& base = m_r33->compoe(x);
        base.poe(estoque, m_totalInsumo.value(codigo));
        for (const Destino& d : destinos) {
            // Record 33 only where the consolidation has the input at this destination; its documents anyway.
            const auto total = m_totalPorDestino.constFind(chaveDestinoInsumo(d.codigo, codigo));
            if (total != m_totalPorDestino.constEnd()) {
                LinhaRegistro r33 = base;
                r33.poe(local, d.codigo);
                r33.poe(porLocal, Funcoes::FormataNumero(total.value(), QStringLiteral("0.00000")));
                m_saida.escreve(r33);
            }
            m_docsInsumo->escreve(m_saida, codigo, d.codigo);
        }
    }
}

void EscritaMensal::produtoNacional()
{
    m_saida.escreve(m_r41.compoe(m_item));
}

}  // namespace

void GravaVrtMensal(const CabecalhoVrt& cabecalho, GravacaoVrt& run)
{
    EscritaRegistro::gravaArquivo(
        cabecalho, run, [&](SaidaVrt& saida) { EscritaMensal(cabecalho, run, saida).escreveItens(); },
        [](const SaidaVrt::Erro& erro) {
            switch (erro.numero) {
            case 61: return QStringLiteral("Espaço insuficiente no disco!");
            case 70: return QStringLiteral("Disco protegido contra gravação!");
            case 55: return QStringLiteral("O arquivo a ser gravado encontra-se aberto por outro aplicativo!");
            default: return QString();  // the monthly writer knows no other error: the run reports success
            }
        });
}

}  // namespace modTrataVrtMensal
