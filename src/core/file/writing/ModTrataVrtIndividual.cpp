#include "core/file/writing/ModTrataVrtIndividual.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/CursorFilhos.h"
#include "core/store/ComandoSqlite.h"
#include "core/file/writing/EscritaRegistro.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/MapaColunas.h"
#include "core/file/writing/SaidaVrt.h"

#include <QHash>

namespace ModTrataVrtIndividual {

namespace {

using EscritaRegistro::RegistroComposto;

using EscritaRegistro::RegistrosFilhos;
using EscritaRegistro::valoresImportacao;

const LayoutRegistro& layout(int tipo)
{
    return LayoutRegistro::de(TipoDeclaracao::Individual, tipo);
}

int campo(int tipo, const QString& nome)
{
    return layout(tipo).indice(nome);
}

const EscritaRegistro::NomesProduto& nomesProduto()
{
    static const EscritaRegistro::NomesProduto nomes{QStringLiteral("QT_PROD_UNID_NFS"), true,
                                                     QStringLiteral("VL_INS_PROD_UNID_NFS"),
                                                     QStringLiteral("VL_TOT_PROD_INT")};
    return nomes;
}

// Columns of the item query that the writer reads itself; the others fill the records by their names. The key
// of each modality table is Null where the item has no row there.
enum { ItId, ItModalidade, PeId, CpId, SpId, NaId };

// The item, then the row of its modality's table. Where two modality tables have a column of one name, the
// item's modality chooses; the unit goes to record 21 only for a DCR item (a DCR-E item leaves it blank); the
// product's justifications are taken only where they differ from one blank.
QString sqlItem()
{
    return QStringLiteral(
        "SELECT t.ID_ITEM, t.IND_MOD_INTERNACAO, pe.ID_ITEM, cp.ID_ITEM, sp.ID_ITEM, na.ID_ITEM, "
        "t.NR_ITEM_NF_SAIDA, t.CD_INT_PROD, t.NM_INT_PROD, t.CD_NCM_PROD, "
        "CASE WHEN t.IND_MOD_INTERNACAO = '2' AND cp.CD_TIPO_COEF_REDUCAO IS NOT '2' THEN NULL "
        "ELSE t.NM_UNID_MED_PROD END AS NM_UNID_MED_PROD, "
        "NULLIF(j.JUST_II_DIF_TEC, ' ') AS JUST_II_DIF_TEC, NULLIF(j.ALIQ_II_DIF_TEC, ' ') AS ALIQ_II_DIF_TEC, "
        "NULLIF(j.JUST_IPI_DIF_TIPI, ' ') AS JUST_IPI_DIF_TIPI, "
        "NULLIF(j.ALIQ_IPI_DIF_TIPI, ' ') AS ALIQ_IPI_DIF_TIPI, "
        "CASE t.IND_MOD_INTERNACAO WHEN '1' THEN pe.QT_INT_UNID_NFS WHEN '3' THEN sp.QT_INT_UNID_NFS "
        "WHEN '4' THEN na.QT_INT_UNID_NFS END AS QT_INT_UNID_NFS, "
        "CASE t.IND_MOD_INTERNACAO WHEN '1' THEN pe.QT_INT_UNID_EST WHEN '4' THEN na.QT_INT_UNID_EST END "
        "AS QT_INT_UNID_EST, "
        "CASE t.IND_MOD_INTERNACAO WHEN '1' THEN pe.VL_INT_UNID_NFS WHEN '3' THEN sp.VL_INT_UNID_NFS "
        "WHEN '4' THEN na.VL_INT_UNID_NFS END AS VL_INT_UNID_NFS, pe.VL_IPI_DESTACADO, "
        "CASE cp.CD_TIPO_COEF_REDUCAO WHEN '1' THEN e.NR_DCRE END AS NR_DCRE, "
        "CASE cp.CD_TIPO_COEF_REDUCAO WHEN '1' THEN e.QT_PRODUTO WHEN '2' THEN r.QT_PRODUTO END AS QT_PRODUTO, "
        "CASE cp.CD_TIPO_COEF_REDUCAO WHEN '2' THEN r.NR_DCR END AS NR_DCR, "
        "CASE cp.CD_TIPO_COEF_REDUCAO WHEN '2' THEN r.VL_II_UNIT_DOLAR END AS VL_II_UNIT_DOLAR, "
        "CASE cp.CD_TIPO_COEF_REDUCAO WHEN '2' THEN r.PC_COEF_REDUCAO_II END AS PC_COEF_REDUCAO_II, "
        "cp.VL_PIS, cp.VL_COFINS "
        "FROM ITEM_NFS t "
        "LEFT JOIN ITEM_NFS_PE pe ON pe.ID_ITEM = t.ID_ITEM "
        "LEFT JOIN JUST_DIF_ALIQ_PROD_VRT_IND j ON j.ID_ITEM = t.ID_ITEM "
        "LEFT JOIN ITEM_NFS_PI_COM_PPB cp ON cp.ID_ITEM = t.ID_ITEM "
        "LEFT JOIN DCRE e ON e.ID_DCRE = (SELECT MIN(ID_DCRE) FROM DCRE WHERE ID_ITEM = t.ID_ITEM) "
        "LEFT JOIN DCR r ON r.ID_DCR = (SELECT MIN(ID_DCR) FROM DCR WHERE ID_ITEM = t.ID_ITEM) "
        "LEFT JOIN ITEM_NFS_PI_SEM_PPB sp ON sp.ID_ITEM = t.ID_ITEM "
        "LEFT JOIN ITEM_NFS_100 na ON na.ID_ITEM = t.ID_ITEM "
        "WHERE t.ID_NFS = ? ORDER BY t.ID_ITEM");
}

// Child queries walk the items in the item query's order (the item's key), restricted to the items that write
// them: those of their modality that have the modality's row.
QString sqlDoProduto(const QString& colunas, const QString& tabelas, const QString& chave)
{
    return QStringLiteral("SELECT x.ID_ITEM, ") + colunas + QStringLiteral(" FROM ") + tabelas
           + QStringLiteral(" JOIN ITEM_NFS t ON t.ID_ITEM = x.ID_ITEM JOIN ITEM_NFS_PE p ON p.ID_ITEM = t.ID_ITEM "
                            "WHERE t.ID_NFS = ? AND t.IND_MOD_INTERNACAO = '1' ORDER BY t.ID_ITEM, x.")
           + chave;
}

const QString& deSemPPB()
{
    static const QString texto = QStringLiteral(
        " JOIN ITEM_NFS t ON t.ID_ITEM = s.ID_ITEM JOIN ITEM_NFS_PI_SEM_PPB p ON p.ID_ITEM = t.ID_ITEM "
        "WHERE t.ID_NFS = ? AND t.IND_MOD_INTERNACAO = '3' ORDER BY t.ID_ITEM, s.ID_INSUMO");
    return texto;
}

QString sqlDoInsumo(const QString& colunas, const QString& tabelas, const QString& chave)
{
    return QStringLiteral("SELECT x.ID_INSUMO, ") + colunas + QStringLiteral(" FROM ") + tabelas
           + QStringLiteral(" JOIN INSUMO_ITEM_NFS s ON s.ID_INSUMO = x.ID_INSUMO") + deSemPPB()
           + QStringLiteral(", x.") + chave;
}

// ITEM_IMPORT_288_* as `m`: the first import row of the DI line `x`.
QString comImportacao(const QString& tabela, const QString& tabelaImportacao)
{
    return tabela + QStringLiteral(" x LEFT JOIN ") + tabelaImportacao
           + QStringLiteral(" m ON m.ID_ITEM_IMP_288 = (SELECT MIN(y.ID_ITEM_IMP_288) FROM ") + tabelaImportacao
           + QStringLiteral(" y WHERE y.ID_ITEM_DI = x.ID_ITEM_DI)");
}

// VL_TOT_PROD_INT of the DI query, under a name of no field: the writer decides whether it is written.
constexpr int DiTotal = 14;

class EscritaIndividual {
public:
    EscritaIndividual(const CabecalhoVrt& cabecalho, GravacaoVrt& run, SaidaVrt& saida);
    void escreveItens();

private:
    void produtoEstrangeiro();
    void produtoComPPB();
    void produtoSemPPB();
    void produtoNacional();

    const CabecalhoVrt& m_cab;
    SaidaVrt& m_saida;
    const QVariantList m_nfs;
    ComandoSqlite m_item;
    RegistroComposto m_r11, m_r21, m_r31, m_r41;
    RegistrosFilhos m_nfa, m_di, m_dsi;
    CursorFilhos m_insumos;
    RegistroComposto m_r32, m_r33;
    RegistrosFilhos m_nfaIns, m_diIns, m_dsiIns;
    QHash<QString, QString> m_totalInsumo;  // INSUMO_VRT_IND by input
};

EscritaIndividual::EscritaIndividual(const CabecalhoVrt& cabecalho, GravacaoVrt& run, SaidaVrt& saida)
    : m_cab(cabecalho), m_saida(saida), m_nfs{cabecalho.idNfs}, m_item(sqlItem()), m_r11(layout(11), m_item),
      m_r21(layout(21), m_item), m_r31(layout(31), m_item), m_r41(layout(41), m_item),
      m_nfa(layout(12),
            sqlDoProduto(EscritaRegistro::colunas12(nomesProduto()), QStringLiteral("ITEM_NFA_PE_IND x"),
                         QStringLiteral("ID_ITEM_NFA")),
            m_nfs),
      m_di(layout(13),
           sqlDoProduto(
               QStringLiteral("NULLIF(x.NR_DI, ' ') AS NR_DI, NULLIF(x.NR_DI_ANTIGA, ' ') AS NR_DI_ANTIGA, "
                              "x.NR_ADICAO_DI, x.NR_ITEM_ADICAO, x.IND_DL_288_67, x.IND_OBSOLE_RESIDUO, "
                              "x.QT_PROD_UNID_NFS, ")
                   // The suspension of PIS/COFINS does not count here, unlike the monthly record 13.
                   + valoresImportacao(QStringLiteral("x.IND_DL_288_67 = 'S' AND x.IND_OBSOLE_RESIDUO = 'N'"),
                                       QStringLiteral("m"), QStringLiteral("VL_INS_PROD_UNID_NFS"),
                                       QStringLiteral("NFS"))
                   + QStringLiteral(", m.VL_TOT_PROD_INT AS _TOTAL_INT, x.IND_SUSP_PIS_COFINS"),
               comImportacao(QStringLiteral("ITEM_DI_PE_IND"), QStringLiteral("ITEM_IMPORT_288_PE")),
               QStringLiteral("ID_ITEM_DI")),
           m_nfs,
           [&run](LinhaRegistro& r, const ComandoSqlite& x) {
               static const int total = campo(13, QStringLiteral("VL_TOT_PROD_INT"));
               // Kept as the system has it: the test reads the monthly writer's working value, which only a
               // monthly file written earlier in the run can have set.
               if (run.obsoleResiduoMensal == QLatin1String("S"))
                   r.poe(total, x.texto(DiTotal));
           }),
      m_dsi(layout(14),
            sqlDoProduto(EscritaRegistro::colunas14(nomesProduto()), QStringLiteral("ITEM_DSI_PE_IND x"),
                         QStringLiteral("ID_ITEM_DSI")),
            m_nfs),
      m_insumos(QStringLiteral("SELECT s.ID_ITEM, s.ID_INSUMO, s.CD_INT_INSUMO, s.CD_NCM_INSUMO, s.NM_INT_INSUMO, "
                               "s.NM_UNID_MED_INSUMO, s.QT_INSUMO_POR_PROD, j.JUST_II_DIF_TEC, j.ALIQ_II_DIF_TEC, "
                               "j.JUST_IPI_DIF_TIPI, j.ALIQ_IPI_DIF_TIPI FROM INSUMO_ITEM_NFS s "
                               "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_IND j ON j.ID_INSUMO = s.ID_INSUMO")
                    + deSemPPB(),
                m_nfs),
      m_r32(layout(32), m_item, &m_insumos.linha()), m_r33(layout(33), m_item, &m_insumos.linha()),
      m_nfaIns(layout(34),
               sqlDoInsumo(QStringLiteral("x.NR_CNPJ_FORNECEDOR, x.NR_SERIE_NF_AQUIS, x.NR_NF_AQUIS, "
                                          "x.NR_ITEM_NF_AQUIS, x.DT_EMISS_NF_AQUIS, x.CD_CFOP_NF_AQUIS, "
                                          "x.IND_DL_288_67, x.QT_INSUMO_UNID_NFS, x.VL_INS_PROD_UNID_NFS"),
                           QStringLiteral("ITEM_NFA_INS_IND x"), QStringLiteral("ID_ITEM_NFA")),
               m_nfs),
      m_diIns(layout(35),
              sqlDoInsumo(QStringLiteral("NULLIF(x.NR_DI, ' ') AS NR_DI, NULLIF(x.NR_DI_ANTIGA, ' ') AS NR_DI_ANTIGA, "
                                         "x.NR_ADICAO_DI, x.NR_ITEM_ADICAO, x.IND_DL_288_67, x.QT_INSUMO_UNID_NFS, ")
                              + valoresImportacao(QStringLiteral("x.IND_DL_288_67 = 'S'"), QStringLiteral("m"),
                                                  QStringLiteral("VL_INS_PROD_UNID_NFS"), QStringLiteral("NFS"))
                              + QStringLiteral(", x.IND_SUSP_PIS_COFINS"),
                          comImportacao(QStringLiteral("ITEM_DI_INS_IND"), QStringLiteral("ITEM_IMPORT_288_INS")),
                          QStringLiteral("ID_ITEM_DI")),
              m_nfs),
      m_dsiIns(layout(36),
               sqlDoInsumo(QStringLiteral("NULLIF(x.NR_DSI, ' ') AS NR_DSI, "
                                          "NULLIF(x.NR_DSI_ANTIGA, ' ') AS NR_DSI_ANTIGA, x.NR_BEM, "
                                          "x.QT_INSUMO_UNID_NFS, ")
                               // Written whatever the suspension indicator holds, unlike the monthly records
                               // 14 and 36.
                               + valoresImportacao(QString(), QStringLiteral("x"), QStringLiteral("VL_INS_UNID_PROD"),
                                                   QStringLiteral("INT"))
                               + QStringLiteral(", x.IND_SUSP_PIS_COFINS"),
                           QStringLiteral("ITEM_DSI_INS_IND x"), QStringLiteral("ID_ITEM_DSI")),
               m_nfs)
{
    ComandoSqlite rs(QStringLiteral("SELECT CD_INT_INSUMO, QT_TOT_INS FROM INSUMO_VRT_IND WHERE ID_VRT_MICRO = ?"));
    rs.abre({m_cab.idVrtMicro});
    while (rs.proxima())
        m_totalInsumo.insert(rs.texto(0), rs.texto(1));
}

void EscritaIndividual::escreveItens()
{
    m_item.abre(m_nfs);
    while (m_item.proxima()) {
        // An item without the row of its modality's table writes nothing.
        const QString modalidade = m_item.texto(ItModalidade);
        if (modalidade == QLatin1String("1") && !m_item.valor(PeId).isNull())
            produtoEstrangeiro();
        else if (modalidade == QLatin1String("2") && !m_item.valor(CpId).isNull())
            produtoComPPB();
        else if (modalidade == QLatin1String("3") && !m_item.valor(SpId).isNull())
            produtoSemPPB();
        else if (modalidade == QLatin1String("4") && !m_item.valor(NaId).isNull())
            produtoNacional();
    }
}

void EscritaIndividual::produtoEstrangeiro()
{
    static const int local = campo(11, QStringLiteral("CD_LOCAL_DESTINO"));
    LinhaRegistro& r = m_r11.compoe(m_item);
    r.poe(local, m_cab.destino);
    m_saida.escreve(r);
    const qint64 id = m_item.inteiro(ItId);
    m_nfa.escreve(m_saida, id);
    m_di.escreve(m_saida, id);
    m_dsi.escreve(m_saida, id);
}

void EscritaIndividual::produtoComPPB()
{
    static const int local = campo(21, QStringLiteral("CD_LOCAL_DESTINO"));
    LinhaRegistro& r = m_r21.compoe(m_item);
    r.poe(local, m_cab.destino);
    m_saida.escreve(r);
}

void EscritaIndividual::produtoSemPPB()
{
    static const QVector<int> locais = [] {
        QVector<int> v;
        for (int d = 1; d <= 4; ++d)
            v << campo(31, QStringLiteral("CD_LOCAL_DESTINO_") + QString::number(d));
        return v;
    }();
    static const int total = campo(33, QStringLiteral("QT_TOT_INS"));
    static const int local = campo(33, QStringLiteral("CD_LOCAL_DESTINO"));
    enum { Codigo = 2 };

    LinhaRegistro& r = m_r31.compoe(m_item);
    // Only the invoice's destination is marked; the quantities stay zero.
    for (int d = 1; d <= 4; ++d) {
        const QString codigo = QString::number(d);
        r.poe(locais.at(d - 1), m_cab.destino == codigo ? codigo : QStringLiteral("0"));
    }
    m_saida.escreve(r);

    const qint64 idItem = m_item.inteiro(ItId);
    for (; m_insumos.de(idItem); m_insumos.avanca()) {
        const ComandoSqlite& x = m_insumos.linha();
        m_saida.escreve(m_r32.compoe(m_item, x));
        LinhaRegistro& r33 = m_r33.compoe(m_item, x);
        r33.poe(total, m_totalInsumo.value(x.texto(Codigo)));
        r33.poe(local, m_cab.destino);
        m_saida.escreve(r33);

        const qint64 insumo = x.inteiro(1);
        m_nfaIns.escreve(m_saida, insumo);
        m_diIns.escreve(m_saida, insumo);
        m_dsiIns.escreve(m_saida, insumo);
    }
}

void EscritaIndividual::produtoNacional()
{
    m_saida.escreve(m_r41.compoe(m_item));
}

}  // namespace

void GravaVrtIndividual(const CabecalhoVrt& cabecalho, GravacaoVrt& run)
{
    EscritaRegistro::gravaArquivo(
        cabecalho, run,
        [&](SaidaVrt& saida) {
            // A declaration without an exit invoice has no items.
            if (!cabecalho.idNfs.isNull())
                EscritaIndividual(cabecalho, run, saida).escreveItens();
        },
        [](const SaidaVrt::Erro& erro) {
            switch (erro.numero) {
            case 61: return QStringLiteral("Espaço insuficiente no disco!");
            case 70: return QStringLiteral("Disco protegido contra gravação!");
            // No text of its own for a file in use (55): it falls with every other error.
            default:
                return QString(QStringLiteral("Ocorreu um erro na aplicação!") + QLatin1Char('\r') + erro.descricao);
            }
        });
}

}  // namespace ModTrataVrtIndividual
