#include "core/file/writing/ModTrataVrtIndividual.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/CursorFilhos.h"
#include "core/store/ComandoSqlite.h"
#include "core/file/writing/EscritaRegistro.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/SaidaVrt.h"
#include "core/store/modBancoDados.h"

#include <QHash>
#include <QSqlQuery>
#include <memory>

using namespace modBancoDados;
using EscritaRegistro::Colunas;
using EscritaRegistro::poe;
using EscritaRegistro::valoresImportacao;

namespace ModTrataVrtIndividual {

namespace {

const QString S = QStringLiteral("S");
const QString N = QStringLiteral("N");
const QString Branco = QStringLiteral(" ");

const LayoutRegistro& layout(int tipo)
{
    return LayoutRegistro::de(TipoDeclaracao::Individual, tipo);
}

const EscritaRegistro::NomesProduto& nomesProduto()
{
    static const EscritaRegistro::NomesProduto nomes{QStringLiteral("QT_PROD_UNID_NFS"), true,
                                                     QStringLiteral("VL_INS_PROD_UNID_NFS"),
                                                     QStringLiteral("VL_TOT_PROD_INT")};
    return nomes;
}

// A column taken only where it differs from one blank (a Null is not taken either).
void poeSeNaoBranco(LinhaRegistro& r, const char* campo, const QVariant& valor)
{
    if (!valor.isNull() && valor.toString() != Branco)
        r.poe(QString::fromLatin1(campo), valor.toString());
}

// Columns of the item query: the item, then the row of each modality table (its key is Null without one).
enum { ItId, ItModalidade, ItNrItem, ItCodigo, ItNome, ItUnidade, ItNcm,
       PeId, PeQtNfs, PeQtEst, PeVlNfs, PeIpi, JuII, JuAliqII, JuIPI, JuAliqIPI,
       CpId, CpTipo, CpPis, CpCofins, DcreNumero, DcreQuantidade, DcrNumero, DcrCoef, DcrQuantidade, DcrVlII,
       SpId, SpQtNfs, SpVlNfs, NaId, NaQtNfs, NaQtEst, NaVlNfs };

class EscritaIndividual {
public:
    EscritaIndividual(const CabecalhoVrt& cabecalho, GravacaoVrt& run, SaidaVrt& saida)
        : m_cab(cabecalho), m_run(run), m_saida(saida)
    {
    }
    void escreveItens();

private:
    LinhaRegistro comItem(int tipo, const ComandoSqlite& item) const;
    void produtoEstrangeiro(const ComandoSqlite& item);
    void registro12(qint64 item);
    void registro13(qint64 item);
    void registro14(qint64 item);
    void produtoComPPB(const ComandoSqlite& item);
    void produtoSemPPB(const ComandoSqlite& item);
    void registro34(qint64 insumo);
    void registro35(qint64 insumo);
    void registro36(qint64 insumo);
    void produtoNacional(const ComandoSqlite& item);

    const CabecalhoVrt& m_cab;
    GravacaoVrt& m_run;
    SaidaVrt& m_saida;
    std::unique_ptr<CursorFilhos> m_nfa, m_di, m_dsi, m_insumos, m_nfaIns, m_diIns, m_dsiIns;
    QHash<QString, QString> m_totalInsumo;  // INSUMO_VRT_IND by input
};

void EscritaIndividual::escreveItens()
{
    if (m_cab.idNfs.isNull())
        return;
    const QVariantList nfs{m_cab.idNfs};
    // Child queries walk the items in the item query's order (the item's key), restricted to the items that
    // write them: those of their modality that have the modality's row.
    const QString dePE = QStringLiteral(
        " JOIN ITEM_NFS t ON t.ID_ITEM = x.ID_ITEM JOIN ITEM_NFS_PE p ON p.ID_ITEM = t.ID_ITEM "
        "WHERE t.ID_NFS = ? AND t.IND_MOD_INTERNACAO = '1' ORDER BY t.ID_ITEM, ");
    m_nfa = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_ITEM, x.NR_CNPJ_FORNECEDOR, x.NR_SERIE_NF_AQUIS, x.NR_NF_AQUIS, "
                       "x.NR_ITEM_NF_AQUIS, x.DT_EMISS_NF_AQUIS, x.CD_CFOP_NF_AQUIS, x.IND_DL_288_67, "
                       "x.IND_OBSOLE_RESIDUO, x.QT_PROD_UNID_NFS, x.VL_INS_PROD_UNID_NFS, x.VL_TOT_PROD_INT "
                       "FROM ITEM_NFA_PE_IND x")
            + dePE + QStringLiteral("x.ID_ITEM_NFA"),
        nfs);
    m_di = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_ITEM, x.NR_DI, x.NR_DI_ANTIGA, x.NR_ADICAO_DI, x.NR_ITEM_ADICAO, "
                       "x.IND_DL_288_67, x.IND_OBSOLE_RESIDUO, x.QT_PROD_UNID_NFS, m.VL_INS_PROD_UNID_NFS, "
                       "m.CD_MOEDA_NEG, m.VL_FRETE_UNID_NFS, m.CD_MOEDA_FRETE, m.VL_SEGURO_UNID_NFS, "
                       "m.CD_MOEDA_SEGURO, m.VL_TOT_PROD_INT, x.IND_SUSP_PIS_COFINS FROM ITEM_DI_PE_IND x "
                       "LEFT JOIN ITEM_IMPORT_288_PE m ON m.ID_ITEM_IMP_288 = (SELECT MIN(y.ID_ITEM_IMP_288) "
                       "FROM ITEM_IMPORT_288_PE y WHERE y.ID_ITEM_DI = x.ID_ITEM_DI)")
            + dePE + QStringLiteral("x.ID_ITEM_DI"),
        nfs);
    m_dsi = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_ITEM, x.NR_DSI, x.NR_DSI_ANTIGA, x.NR_BEM, x.QT_PROD_UNID_NFS, "
                       "x.VL_PROD_UNID_PROD, x.CD_MOEDA_NEG, x.VL_FRETE_UNID_INT, x.CD_MOEDA_FRETE, "
                       "x.VL_SEGURO_UNID_INT, x.CD_MOEDA_SEGURO, x.IND_SUSP_PIS_COFINS FROM ITEM_DSI_PE_IND x")
            + dePE + QStringLiteral("x.ID_ITEM_DSI"),
        nfs);
    const QString deSemPPB = QStringLiteral(
        " JOIN ITEM_NFS t ON t.ID_ITEM = s.ID_ITEM JOIN ITEM_NFS_PI_SEM_PPB p ON p.ID_ITEM = t.ID_ITEM "
        "WHERE t.ID_NFS = ? AND t.IND_MOD_INTERNACAO = '3' ORDER BY t.ID_ITEM, s.ID_INSUMO");
    m_insumos = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT s.ID_ITEM, s.ID_INSUMO, s.CD_INT_INSUMO, s.CD_NCM_INSUMO, s.NM_INT_INSUMO, "
                       "s.NM_UNID_MED_INSUMO, s.QT_INSUMO_POR_PROD, j.JUST_II_DIF_TEC, j.ALIQ_II_DIF_TEC, "
                       "j.JUST_IPI_DIF_TIPI, j.ALIQ_IPI_DIF_TIPI FROM INSUMO_ITEM_NFS s "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_IND j ON j.ID_INSUMO = s.ID_INSUMO")
            + deSemPPB,
        nfs);
    m_nfaIns = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_INSUMO, x.NR_CNPJ_FORNECEDOR, x.NR_SERIE_NF_AQUIS, x.NR_NF_AQUIS, "
                       "x.NR_ITEM_NF_AQUIS, x.DT_EMISS_NF_AQUIS, x.CD_CFOP_NF_AQUIS, x.IND_DL_288_67, "
                       "x.QT_INSUMO_UNID_NFS, x.VL_INS_PROD_UNID_NFS FROM ITEM_NFA_INS_IND x "
                       "JOIN INSUMO_ITEM_NFS s ON s.ID_INSUMO = x.ID_INSUMO")
            + deSemPPB + QStringLiteral(", x.ID_ITEM_NFA"),
        nfs);
    m_diIns = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_INSUMO, x.NR_DI, x.NR_DI_ANTIGA, x.NR_ADICAO_DI, x.NR_ITEM_ADICAO, "
                       "x.IND_DL_288_67, x.QT_INSUMO_UNID_NFS, m.VL_INS_PROD_UNID_NFS, m.CD_MOEDA_NEG, "
                       "m.VL_FRETE_UNID_NFS, m.CD_MOEDA_FRETE, m.VL_SEGURO_UNID_NFS, m.CD_MOEDA_SEGURO, "
                       "x.IND_SUSP_PIS_COFINS FROM ITEM_DI_INS_IND x "
                       "JOIN INSUMO_ITEM_NFS s ON s.ID_INSUMO = x.ID_INSUMO "
                       "LEFT JOIN ITEM_IMPORT_288_INS m ON m.ID_ITEM_IMP_288 = (SELECT MIN(y.ID_ITEM_IMP_288) "
                       "FROM ITEM_IMPORT_288_INS y WHERE y.ID_ITEM_DI = x.ID_ITEM_DI)")
            + deSemPPB + QStringLiteral(", x.ID_ITEM_DI"),
        nfs);
    m_dsiIns = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_INSUMO, x.NR_DSI, x.NR_DSI_ANTIGA, x.NR_BEM, x.QT_INSUMO_UNID_NFS, "
                       "x.VL_INS_UNID_PROD, x.CD_MOEDA_NEG, x.VL_FRETE_UNID_INT, x.CD_MOEDA_FRETE, "
                       "x.VL_SEGURO_UNID_INT, x.CD_MOEDA_SEGURO, x.IND_SUSP_PIS_COFINS FROM ITEM_DSI_INS_IND x "
                       "JOIN INSUMO_ITEM_NFS s ON s.ID_INSUMO = x.ID_INSUMO")
            + deSemPPB + QStringLiteral(", x.ID_ITEM_DSI"),
        nfs);
    {
        QSqlQuery rs(ConexaoBanco());
        rs.setForwardOnly(true);
        AbreConsulta(rs, QStringLiteral("SELECT CD_INT_INSUMO, QT_TOT_INS FROM INSUMO_VRT_IND WHERE ID_VRT_MICRO = ?"),
                     {m_cab.idVrtMicro});
        while (rs.next())
            m_totalInsumo.insert(rs.value(0).toString(), rs.value(1).toString());
    }

    ComandoSqlite item(
                 QStringLiteral("SELECT t.ID_ITEM, t.IND_MOD_INTERNACAO, t.NR_ITEM_NF_SAIDA, t.CD_INT_PROD, "
                                "t.NM_INT_PROD, t.NM_UNID_MED_PROD, t.CD_NCM_PROD, "
                                "pe.ID_ITEM, pe.QT_INT_UNID_NFS, pe.QT_INT_UNID_EST, pe.VL_INT_UNID_NFS, "
                                "pe.VL_IPI_DESTACADO, j.JUST_II_DIF_TEC, j.ALIQ_II_DIF_TEC, j.JUST_IPI_DIF_TIPI, "
                                "j.ALIQ_IPI_DIF_TIPI, cp.ID_ITEM, cp.CD_TIPO_COEF_REDUCAO, cp.VL_PIS, cp.VL_COFINS, "
                                "e.NR_DCRE, e.QT_PRODUTO, r.NR_DCR, r.PC_COEF_REDUCAO_II, r.QT_PRODUTO, "
                                "r.VL_II_UNIT_DOLAR, sp.ID_ITEM, sp.QT_INT_UNID_NFS, sp.VL_INT_UNID_NFS, "
                                "na.ID_ITEM, na.QT_INT_UNID_NFS, na.QT_INT_UNID_EST, na.VL_INT_UNID_NFS "
                                "FROM ITEM_NFS t "
                                "LEFT JOIN ITEM_NFS_PE pe ON pe.ID_ITEM = t.ID_ITEM "
                                "LEFT JOIN JUST_DIF_ALIQ_PROD_VRT_IND j ON j.ID_ITEM = t.ID_ITEM "
                                "LEFT JOIN ITEM_NFS_PI_COM_PPB cp ON cp.ID_ITEM = t.ID_ITEM "
                                "LEFT JOIN DCRE e ON e.ID_DCRE = (SELECT MIN(ID_DCRE) FROM DCRE WHERE ID_ITEM = t.ID_ITEM) "
                                "LEFT JOIN DCR r ON r.ID_DCR = (SELECT MIN(ID_DCR) FROM DCR WHERE ID_ITEM = t.ID_ITEM) "
                                "LEFT JOIN ITEM_NFS_PI_SEM_PPB sp ON sp.ID_ITEM = t.ID_ITEM "
                                "LEFT JOIN ITEM_NFS_100 na ON na.ID_ITEM = t.ID_ITEM "
                                "WHERE t.ID_NFS = ? ORDER BY t.ID_ITEM"));
    item.abre({nfs});
    while (item.proxima()) {
        // An item without the row of its modality's table writes nothing.
        const QString modalidade = item.texto(ItModalidade);
        if (modalidade == QLatin1String("1") && !item.valor(PeId).isNull())
            produtoEstrangeiro(item);
        else if (modalidade == QLatin1String("2") && !item.valor(CpId).isNull())
            produtoComPPB(item);
        else if (modalidade == QLatin1String("3") && !item.valor(SpId).isNull())
            produtoSemPPB(item);
        else if (modalidade == QLatin1String("4") && !item.valor(NaId).isNull())
            produtoNacional(item);
    }
}

LinhaRegistro EscritaIndividual::comItem(int tipo, const ComandoSqlite& item) const
{
    LinhaRegistro r(layout(tipo));
    r.poe(QStringLiteral("NR_ITEM_NF_SAIDA"), item.texto(ItNrItem));
    return r;
}

void EscritaIndividual::produtoEstrangeiro(const ComandoSqlite& item)
{
    LinhaRegistro r = comItem(11, item);
    r.poe(QStringLiteral("CD_NCM_PROD"), item.texto(ItNcm));
    r.poe(QStringLiteral("CD_INT_PROD"), item.texto(ItCodigo));
    r.poe(QStringLiteral("CD_LOCAL_DESTINO"), m_cab.destino);
    r.poe(QStringLiteral("NM_INT_PROD"), item.texto(ItNome));
    poeSeNaoBranco(r, "JUST_II_DIF_TEC", item.valor(JuII));
    poeSeNaoBranco(r, "ALIQ_II_DIF_TEC", item.valor(JuAliqII));
    poeSeNaoBranco(r, "JUST_IPI_DIF_TIPI", item.valor(JuIPI));
    poeSeNaoBranco(r, "ALIQ_IPI_DIF_TIPI", item.valor(JuAliqIPI));
    r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
    r.poe(QStringLiteral("QT_INT_UNID_NFS"), item.texto(PeQtNfs));
    r.poe(QStringLiteral("QT_INT_UNID_EST"), item.texto(PeQtEst));
    r.poe(QStringLiteral("VL_INT_UNID_NFS"), item.texto(PeVlNfs));
    r.poe(QStringLiteral("VL_IPI_DESTACADO"), item.texto(PeIpi));
    m_saida.escreve(r);
    const qint64 id = item.inteiro(ItId);
    registro12(id);
    registro13(id);
    registro14(id);
}

void EscritaIndividual::registro12(qint64 item)
{
    EscritaRegistro::escreveRegistros12(m_saida, layout(12), *m_nfa, item, nomesProduto());
}

void EscritaIndividual::registro13(qint64 item)
{
    enum { Numero = 1, Antiga, Adicao, ItemAdicao, Dl288, Obsoleto, Quantidade, Valor, Moeda, Frete, MoedaFrete,
           Seguro, MoedaSeguro, ValorTotal, Suspensao };
    static const Colunas campos{{"NR_DI", Numero, true}, {"NR_DI_ANTIGA", Antiga, true},
                                {"NR_ADICAO_DI", Adicao}, {"NR_ITEM_ADICAO", ItemAdicao},
                                {"IND_DL_288_67", Dl288}, {"IND_OBSOLE_RESIDUO", Obsoleto},
                                {"QT_PROD_UNID_NFS", Quantidade}};
    static const Colunas valores =
        valoresImportacao(QStringLiteral("VL_INS_PROD_UNID_NFS"), QStringLiteral("NFS"), Valor);
    for (; m_di->de(item); m_di->avanca()) {
        const CursorFilhos& x = *m_di;
        LinhaRegistro r(layout(13));
        poe(r, x, campos);
        // The suspension of PIS/COFINS does not count here, unlike the monthly record 13.
        if (x.texto(Dl288) == S && x.texto(Obsoleto) == N)
            poe(r, x, valores);
        // Kept as the system has it: the test reads the monthly writer's working value, which only a monthly
        // file written earlier in the run can have set.
        if (m_run.obsoleResiduoMensal == S)
            r.poe(QStringLiteral("VL_TOT_PROD_INT"), x.texto(ValorTotal));
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.texto(Suspensao));
        m_saida.escreve(r);
    }
}

void EscritaIndividual::registro14(qint64 item)
{
    EscritaRegistro::escreveRegistros14(m_saida, layout(14), *m_dsi, item, nomesProduto());
}

void EscritaIndividual::produtoComPPB(const ComandoSqlite& item)
{
    const QString tipo = item.texto(CpTipo);
    LinhaRegistro r = comItem(21, item);
    r.poe(QStringLiteral("CD_LOCAL_DESTINO"), m_cab.destino);
    r.poe(QStringLiteral("CD_INT_PROD"), item.texto(ItCodigo));
    r.poe(QStringLiteral("NM_INT_PROD"), item.texto(ItNome));
    if (tipo == QLatin1String("1")) {
        r.poe(QStringLiteral("NR_DCRE"), item.texto(DcreNumero));
        r.poe(QStringLiteral("QT_PRODUTO"), item.texto(DcreQuantidade));
    } else if (tipo == QLatin1String("2")) {
        r.poe(QStringLiteral("NR_DCR"), item.texto(DcrNumero));
        r.poe(QStringLiteral("VL_II_UNIT_DOLAR"), item.texto(DcrVlII));
        r.poe(QStringLiteral("PC_COEF_REDUCAO_II"), item.texto(DcrCoef));
        r.poe(QStringLiteral("QT_PRODUTO"), item.texto(DcrQuantidade));
        // Only a DCR item carries its unit; a DCR-E item leaves the field blank.
        r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
    }
    r.poe(QStringLiteral("VL_PIS"), item.texto(CpPis));
    r.poe(QStringLiteral("VL_COFINS"), item.texto(CpCofins));
    m_saida.escreve(r);
}

void EscritaIndividual::produtoSemPPB(const ComandoSqlite& item)
{
    LinhaRegistro r = comItem(31, item);
    r.poe(QStringLiteral("CD_INT_PROD"), item.texto(ItCodigo));
    r.poe(QStringLiteral("NM_INT_PROD"), item.texto(ItNome));
    r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
    r.poe(QStringLiteral("CD_NCM_PROD"), item.texto(ItNcm));
    r.poe(QStringLiteral("QT_INT_UNID_NFS"), item.texto(SpQtNfs));
    r.poe(QStringLiteral("VL_INT_UNID_NFS"), item.texto(SpVlNfs));
    // Only the invoice's destination is marked; the quantities stay zero.
    for (int d = 1; d <= 4; ++d) {
        const QString codigo = QString::number(d);
        r.poe(QStringLiteral("CD_LOCAL_DESTINO_") + codigo, m_cab.destino == codigo ? codigo : QStringLiteral("0"));
    }
    m_saida.escreve(r);

    enum { Id = 1, Codigo, Ncm, Nome, Unidade, Quantidade, JustII, AliqII, JustIPI, AliqIPI };
    static const Colunas campos32{{"CD_INT_INSUMO", Codigo}, {"CD_NCM_INSUMO", Ncm}, {"NM_INT_INSUMO", Nome},
                                  {"NM_UNID_MED_INSUMO", Unidade}, {"QT_INSUMO_POR_PROD", Quantidade}};
    static const Colunas justificativas33{{"JUST_II_DIF_TEC", JustII}, {"ALIQ_II_DIF_TEC", AliqII},
                                          {"JUST_IPI_DIF_TIPI", JustIPI}, {"ALIQ_IPI_DIF_TIPI", AliqIPI}};
    const qint64 idItem = item.inteiro(ItId);
    for (; m_insumos->de(idItem); m_insumos->avanca()) {
        const CursorFilhos& x = *m_insumos;
        LinhaRegistro r32 = comItem(32, item);
        r32.poe(QStringLiteral("CD_INT_PROD"), item.texto(ItCodigo));
        poe(r32, x, campos32);
        m_saida.escreve(r32);

        LinhaRegistro r33 = comItem(33, item);
        r33.poe(QStringLiteral("CD_INT_INSUMO"), x.texto(Codigo));
        r33.poe(QStringLiteral("QT_TOT_INS"), m_totalInsumo.value(x.texto(Codigo)));
        r33.poe(QStringLiteral("CD_LOCAL_DESTINO"), m_cab.destino);
        poe(r33, x, justificativas33);
        m_saida.escreve(r33);

        const qint64 insumo = x.valor(Id).toLongLong();
        registro34(insumo);
        registro35(insumo);
        registro36(insumo);
    }
}

void EscritaIndividual::registro34(qint64 insumo)
{
    enum { Cnpj = 1, Serie, Numero, ItemNf, Data, Cfop, Dl288, Quantidade, Valor };
    static const Colunas campos{{"NR_CNPJ_FORNECEDOR", Cnpj}, {"NR_SERIE_NF_AQUIS", Serie},
                                {"NR_NF_AQUIS", Numero}, {"NR_ITEM_NF_AQUIS", ItemNf},
                                {"DT_EMISS_NF_AQUIS", Data}, {"CD_CFOP_NF_AQUIS", Cfop},
                                {"IND_DL_288_67", Dl288}, {"QT_INSUMO_UNID_NFS", Quantidade},
                                {"VL_INS_PROD_UNID_NFS", Valor}};
    for (; m_nfaIns->de(insumo); m_nfaIns->avanca()) {
        const CursorFilhos& x = *m_nfaIns;
        LinhaRegistro r(layout(34));
        poe(r, x, campos);
        m_saida.escreve(r);
    }
}

void EscritaIndividual::registro35(qint64 insumo)
{
    enum { Numero = 1, Antiga, Adicao, ItemAdicao, Dl288, Quantidade, Valor, Moeda, Frete, MoedaFrete, Seguro,
           MoedaSeguro, Suspensao };
    static const Colunas campos{{"NR_DI", Numero, true}, {"NR_DI_ANTIGA", Antiga, true},
                                {"NR_ADICAO_DI", Adicao}, {"NR_ITEM_ADICAO", ItemAdicao},
                                {"IND_DL_288_67", Dl288}, {"QT_INSUMO_UNID_NFS", Quantidade}};
    static const Colunas valores =
        valoresImportacao(QStringLiteral("VL_INS_PROD_UNID_NFS"), QStringLiteral("NFS"), Valor);
    for (; m_diIns->de(insumo); m_diIns->avanca()) {
        const CursorFilhos& x = *m_diIns;
        LinhaRegistro r(layout(35));
        poe(r, x, campos);
        if (x.texto(Dl288) == S)
            poe(r, x, valores);
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.texto(Suspensao));
        m_saida.escreve(r);
    }
}

void EscritaIndividual::registro36(qint64 insumo)
{
    enum { Numero = 1, Antiga, Bem, Quantidade, Valor, Moeda, Frete, MoedaFrete, Seguro, MoedaSeguro, Suspensao };
    static const Colunas campos{{"NR_DSI", Numero, true}, {"NR_DSI_ANTIGA", Antiga, true}, {"NR_BEM", Bem},
                                {"QT_INSUMO_UNID_NFS", Quantidade}};
    static const Colunas valores =
        valoresImportacao(QStringLiteral("VL_INS_UNID_PROD"), QStringLiteral("INT"), Valor);
    for (; m_dsiIns->de(insumo); m_dsiIns->avanca()) {
        const CursorFilhos& x = *m_dsiIns;
        LinhaRegistro r(layout(36));
        poe(r, x, campos);
        // Written whatever the suspension indicator holds, unlike the monthly records 14 and 36.
        poe(r, x, valores);
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.texto(Suspensao));
        m_saida.escreve(r);
    }
}

void EscritaIndividual::produtoNacional(const ComandoSqlite& item)
{
    LinhaRegistro r = comItem(41, item);
    r.poe(QStringLiteral("CD_NCM_PROD"), item.texto(ItNcm));
    r.poe(QStringLiteral("CD_INT_PROD"), item.texto(ItCodigo));
    r.poe(QStringLiteral("NM_INT_PROD"), item.texto(ItNome));
    r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
    r.poe(QStringLiteral("QT_INT_UNID_NFS"), item.texto(NaQtNfs));
    r.poe(QStringLiteral("QT_INT_UNID_EST"), item.texto(NaQtEst));
    r.poe(QStringLiteral("VL_INT_UNID_NFS"), item.texto(NaVlNfs));
    m_saida.escreve(r);
}

}  // namespace

void GravaVrtIndividual(const CabecalhoVrt& cabecalho, GravacaoVrt& run)
{
    EscritaRegistro::gravaArquivo(
        cabecalho, run, [&](SaidaVrt& saida) { EscritaIndividual(cabecalho, run, saida).escreveItens(); },
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
