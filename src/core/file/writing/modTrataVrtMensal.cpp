#include "core/file/writing/modTrataVrtMensal.h"

#include "core/file/writing/CabecalhoVrt.h"
#include "core/file/writing/CursorFilhos.h"
#include "core/store/ComandoSqlite.h"
#include "core/file/writing/DocumentosInsumoMensal.h"
#include "core/file/writing/EscritaRegistro.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/SaidaVrt.h"
#include "core/rules/FormatoNumero.h"
#include "core/store/modBancoDados.h"

#include <QHash>
#include <QSqlQuery>
#include <memory>

using namespace modBancoDados;
using EscritaRegistro::Colunas;
using EscritaRegistro::poe;
using EscritaRegistro::valoresImportacao;

namespace modTrataVrtMensal {

namespace {

const QString S = QStringLiteral("S");
const QString N = QStringLiteral("N");
const QString Branco = QStringLiteral(" ");

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

// Columns of the item query.
enum { ItId, ItModalidade, ItNcm, ItCodigo, ItNome, ItUnidade, ItQtEst, ItQtProd, ItVlProd, ItJustII, ItAliqII,
       ItJustIPI, ItAliqIPI, ItNrDcreDcr, ItTipoCoef };
// Columns of the destination query (0 is the item).
enum { DeItem, DeId, DeCodigo, DeQuantidade, DeVlII, DePcCoef, DeUnidade, DePis, DeCofins };

struct Destino {
    qint64 id = 0;
    QString codigo, quantidade, vlII, pcCoef, unidade, pis, cofins;
};

class EscritaMensal {
public:
    EscritaMensal(const CabecalhoVrt& cabecalho, GravacaoVrt& run, SaidaVrt& saida)
        : m_cab(cabecalho), m_run(run), m_saida(saida)
    {
    }
    void escreveItens();

private:
    QVector<Destino> destinosDoItem(qint64 item);
    void produtoEstrangeiro(const ComandoSqlite& item, const QVector<Destino>& destinos);
    void registro12(qint64 destino);
    void registro13(qint64 destino);
    void registro14(qint64 destino);
    void produtoComPPB(const ComandoSqlite& item, const QVector<Destino>& destinos);
    void produtoSemPPB(const ComandoSqlite& item, const QVector<Destino>& destinos);
    void insumo(const ComandoSqlite& item, const QVector<Destino>& destinos);
    void registro33(const QString& insumo, const QString& destino);
    void documentosDoInsumo(const QString& insumo, const QString& destino);
    void produtoNacional(const ComandoSqlite& item);
    void preparaInsumos();

    const CabecalhoVrt& m_cab;
    GravacaoVrt& m_run;
    SaidaVrt& m_saida;
    std::unique_ptr<CursorFilhos> m_destinos, m_nfa, m_di, m_dsi, m_insumos;
    std::unique_ptr<DocumentosInsumoMensal> m_docsInsumo;
    QHash<QString, QString> m_totalInsumo;        // INSUMO_VRT by input
    // TOT_INSUMO_CONSOLIDADO by destination and input; a Null destination or input has no row to be found.
    QHash<QString, QString> m_totalPorDestino;
    // The old DI number of the last record 35 that had one: record 35 keeps it when its own is missing.
    QString m_diAntigaInsumo;
};

QString chaveDestinoInsumo(const QString& destino, const QString& insumo)
{
    return destino + QChar(0x1F) + insumo;
}

void EscritaMensal::escreveItens()
{
    const QString& id = m_cab.idVrtMicro;
    // Every child query walks the items in the item query's order: modality, then the item's key.
    m_destinos = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT d.ID_ITEM_VRT, d.ID_DEST_PRODUTO, d.CD_LOCAL_DESTINO, d.QT_PROD_LOC_DEST, "
                       "d.VL_II_UNIT_DOLAR, d.PC_COEF_REDUCAO_II, d.NM_UNID_MED_DEST, d.VL_PIS, d.VL_COFINS "
                       "FROM DESTINO_ITEM_VRT_MEN d JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = d.ID_ITEM_VRT "
                       "WHERE i.ID_VRT_MICRO = ? AND i.IND_MOD_INTERNACAO IN ('1', '2', '3') "
                       "ORDER BY i.IND_MOD_INTERNACAO, i.ID_ITEM_VRT, d.ID_DEST_PRODUTO"),
        QVariantList{id});
    const QString dePE = QStringLiteral(
        " JOIN DESTINO_ITEM_VRT_MEN d ON d.ID_DEST_PRODUTO = x.ID_DEST_PRODUTO "
        "JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = d.ID_ITEM_VRT WHERE i.ID_VRT_MICRO = ? AND i.IND_MOD_INTERNACAO = '1' "
        "ORDER BY i.ID_ITEM_VRT, d.ID_DEST_PRODUTO, ");
    m_nfa = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_DEST_PRODUTO, x.NR_CNPJ_FORNECEDOR, x.NR_SERIE_NF_AQUIS, x.NR_NF_AQUIS, "
                       "x.NR_ITEM_NF_AQUIS, x.DT_EMISS_NF_AQUIS, x.CD_CFOP_NF_AQUIS, x.IND_DL_288_67, "
                       "x.IND_OBSOLE_RESIDUO, x.QT_PROD_UNID_PROD, x.VL_PROD_UNID_PROD, x.VL_TOT_PROD_OBSOLE "
                       "FROM ITEM_NFA_PE_MEN x")
            + dePE + QStringLiteral("x.ID_ITEM_NFA"),
        QVariantList{id});
    m_di = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_DEST_PRODUTO, x.NR_DI, x.NR_DI_ANTIGA, x.NR_ADICAO_DI, x.NR_ITEM_ADICAO, "
                       "x.IND_DL_288_67, x.IND_OBSOLE_RESIDUO, x.QT_PROD_UNID_PROD, m.VL_PROD_UNID_PROD, "
                       "m.CD_MOEDA_NEG, m.VL_FRETE_UNID_INT, m.CD_MOEDA_FRETE, m.VL_SEGURO_UNID_INT, "
                       "m.CD_MOEDA_SEGURO, m.VL_TOT_PROD_OBSOLE, x.IND_SUSP_PIS_COFINS FROM ITEM_DI_PE_MEN x "
                       "LEFT JOIN ITEM_IMPORT_288_PE_MEN m ON m.ID_ITEM_IMP_288 = (SELECT MIN(y.ID_ITEM_IMP_288) "
                       "FROM ITEM_IMPORT_288_PE_MEN y WHERE y.ID_ITEM_DI = x.ID_ITEM_DI)")
            + dePE + QStringLiteral("x.ID_ITEM_DI"),
        QVariantList{id});
    m_dsi = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT x.ID_DEST_PRODUTO, x.NR_DSI, x.NR_DSI_ANTIGA, x.NR_BEM, x.QT_PROD_UNID_PROD, "
                       "x.VL_PROD_UNID_PROD, x.CD_MOEDA_NEG, x.VL_FRETE_UNID_INT, x.CD_MOEDA_FRETE, "
                       "x.VL_SEGURO_UNID_INT, x.CD_MOEDA_SEGURO, x.IND_SUSP_PIS_COFINS FROM ITEM_DSI_PE_MEN x")
            + dePE + QStringLiteral("x.ID_ITEM_DSI"),
        QVariantList{id});

    ComandoSqlite item(
                 QStringLiteral("SELECT i.ID_ITEM_VRT, i.IND_MOD_INTERNACAO, i.CD_NCM_PRODUTO, i.CD_INT_PRODUTO, "
                                "i.NM_INT_PRODUTO, i.NM_UNID_MED_PROD, i.QT_PROD_UNID_EST, i.QT_PROD_UNID_PROD, "
                                "i.VL_PROD_UNID_PROD, j.JUST_II_DIF_TEC, j.ALIQ_II_DIF_TEC, j.JUST_IPI_DIF_TIPI, "
                                "j.ALIQ_IPI_DIF_TIPI, p.NR_DCRE_DCR, p.CD_TIPO_COEF_REDUCAO FROM ITEM_VRT_MEN i "
                                "LEFT JOIN JUST_DIF_ALIQ_PROD_VRT_MEN j ON j.ID_ITEM_VRT = i.ID_ITEM_VRT "
                                "LEFT JOIN ITEM_VRT_MEN_PI_COM_PPB p ON p.rowid = (SELECT MIN(q.rowid) FROM "
                                "ITEM_VRT_MEN_PI_COM_PPB q WHERE q.ID_ITEM_VRT = i.ID_ITEM_VRT) "
                                "WHERE i.ID_VRT_MICRO = ? ORDER BY i.IND_MOD_INTERNACAO, i.ID_ITEM_VRT"));
    item.abre({id});
    while (item.proxima()) {
        const QString modalidade = item.texto(ItModalidade);
        const qint64 idItem = item.inteiro(ItId);
        if (modalidade == QLatin1String("1")) {
            produtoEstrangeiro(item, destinosDoItem(idItem));
        } else if (modalidade == QLatin1String("2")) {
            produtoComPPB(item, destinosDoItem(idItem));
        } else if (modalidade == QLatin1String("3")) {
            if (!m_insumos)
                preparaInsumos();
            produtoSemPPB(item, destinosDoItem(idItem));
        } else if (modalidade == QLatin1String("4")) {
            produtoNacional(item);
        }
    }
}

QVector<Destino> EscritaMensal::destinosDoItem(qint64 item)
{
    QVector<Destino> v;
    for (; m_destinos->de(item); m_destinos->avanca()) {
        Destino d;
        d.id = m_destinos->valor(DeId).toLongLong();
        d.codigo = m_destinos->texto(DeCodigo);
        d.quantidade = m_destinos->texto(DeQuantidade);
        d.vlII = m_destinos->texto(DeVlII);
        d.pcCoef = m_destinos->texto(DePcCoef);
        d.unidade = m_destinos->texto(DeUnidade);
        d.pis = m_destinos->texto(DePis);
        d.cofins = m_destinos->texto(DeCofins);
        v.append(d);
    }
    return v;
}

void EscritaMensal::produtoEstrangeiro(const ComandoSqlite& item, const QVector<Destino>& destinos)
{
    for (const Destino& d : destinos) {
        LinhaRegistro r(layout(11));
        r.poe(QStringLiteral("CD_NCM_PRODUTO"), item.texto(ItNcm));
        r.poe(QStringLiteral("CD_INT_PRODUTO"), item.texto(ItCodigo));
        r.poe(QStringLiteral("CD_LOCAL_DESTINO"), d.codigo);
        r.poe(QStringLiteral("NM_INT_PRODUTO"), item.texto(ItNome));
        // A justification row fills both pairs; without one they stay blanks and zeros.
        r.poe(QStringLiteral("JUST_II_DIF_TEC"), item.texto(ItJustII));
        r.poe(QStringLiteral("ALIQ_II_DIF_TEC"), item.texto(ItAliqII));
        r.poe(QStringLiteral("JUST_IPI_DIF_TIPI"), item.texto(ItJustIPI));
        r.poe(QStringLiteral("ALIQ_IPI_DIF_TIPI"), item.texto(ItAliqIPI));
        r.poe(QStringLiteral("QT_PROD_UNID_EST"), item.texto(ItQtEst));
        r.poe(QStringLiteral("QT_PROD_LOC_DEST"), d.quantidade);
        r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
        m_saida.escreve(r);
        registro12(d.id);
        registro13(d.id);
        registro14(d.id);
    }
}

void EscritaMensal::registro12(qint64 destino)
{
    EscritaRegistro::escreveRegistros12(m_saida, layout(12), *m_nfa, destino, nomesProduto());
}

void EscritaMensal::registro13(qint64 destino)
{
    enum { Numero = 1, Antiga, Adicao, ItemAdicao, Dl288, Obsoleto, Quantidade, Valor, Moeda, Frete, MoedaFrete,
           Seguro, MoedaSeguro, ValorObsoleto, Suspensao };
    static const Colunas campos{{"NR_DI", Numero}, {"NR_DI_ANTIGA", Antiga}, {"NR_ADICAO_DI", Adicao},
                                {"NR_ITEM_ADICAO", ItemAdicao}, {"IND_DL_288_67", Dl288},
                                {"IND_OBSOLE_RESIDUO", Obsoleto}, {"QT_PROD_UNID_PROD", Quantidade}};
    static const Colunas valores =
        valoresImportacao(QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"), Valor);
    for (; m_di->de(destino); m_di->avanca()) {
        const CursorFilhos& x = *m_di;
        const QString obsoleto = x.texto(Obsoleto);
        // The individual writer reads this working value later in the run.
        m_run.obsoleResiduoMensal = obsoleto;
        LinhaRegistro r(layout(13));
        poe(r, x, campos);
        if ((obsoleto == N && x.texto(Dl288) == S) || x.texto(Suspensao) == S)
            poe(r, x, valores);
        if (obsoleto == S)
            r.poe(QStringLiteral("VL_TOT_PROD_OBSOLE"), x.texto(ValorObsoleto));
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.texto(Suspensao));
        m_saida.escreve(r);
    }
}

void EscritaMensal::registro14(qint64 destino)
{
    EscritaRegistro::escreveRegistros14(m_saida, layout(14), *m_dsi, destino, nomesProduto());
}

void EscritaMensal::produtoComPPB(const ComandoSqlite& item, const QVector<Destino>& destinos)
{
    const QString tipo = item.texto(ItTipoCoef);
    const QString numero = item.texto(ItNrDcreDcr);
    for (const Destino& d : destinos) {
        LinhaRegistro r(layout(21));
        r.poe(QStringLiteral("CD_LOCAL_DESTINO"), d.codigo);
        if (tipo == QLatin1String("1"))
            r.poe(QStringLiteral("NR_DCRE"), numero);
        r.poe(QStringLiteral("CD_INT_PRODUTO"), item.texto(ItCodigo));
        if (tipo == QLatin1String("2")) {
            r.poe(QStringLiteral("NR_DCR"), numero);
            r.poe(QStringLiteral("VL_II_UNIT_DOLAR"), d.vlII);
            r.poe(QStringLiteral("PC_COEF_REDUCAO_II"), d.pcCoef);
        }
        r.poe(QStringLiteral("NM_INT_PRODUTO"), item.texto(ItNome));
        r.poe(QStringLiteral("QT_PROD_LOC_DEST"), d.quantidade);
        r.poe(QStringLiteral("NM_UNID_MED_DEST"), d.unidade);
        r.poe(QStringLiteral("VL_PIS"), d.pis);
        r.poe(QStringLiteral("VL_COFINS"), d.cofins);
        m_saida.escreve(r);
    }
}

void EscritaMensal::preparaInsumos()
{
    const QString& id = m_cab.idVrtMicro;
    m_insumos = std::make_unique<CursorFilhos>(
        QStringLiteral("SELECT s.ID_ITEM_VRT, s.ID_INSUMO_ITEM, s.CD_INT_INSUMO, s.CD_NCM_INSUMO, s.NM_INT_INSUMO, "
                       "s.NM_UNID_MED_INSUMO, s.QT_INSUMO_POR_PROD, j.JUST_II_DIF_TEC, j.ALIQ_II_DIF_TEC, "
                       "j.JUST_IPI_DIF_TIPI, j.ALIQ_IPI_DIF_TIPI FROM INSUMO_ITEM_VRT_MEN s "
                       "JOIN ITEM_VRT_MEN i ON i.ID_ITEM_VRT = s.ID_ITEM_VRT "
                       "LEFT JOIN JUST_DIF_ALIQ_INS_VRT_MEN j ON j.ID_INSUMO_ITEM = s.ID_INSUMO_ITEM "
                       "WHERE i.ID_VRT_MICRO = ? AND i.IND_MOD_INTERNACAO = '3' "
                       "ORDER BY i.ID_ITEM_VRT, s.ID_INSUMO_ITEM"),
        QVariantList{id});
    m_docsInsumo = std::make_unique<DocumentosInsumoMensal>(id);

    QSqlQuery rs(ConexaoBanco());
    rs.setForwardOnly(true);
    AbreConsulta(rs, QStringLiteral("SELECT CD_INT_INSUMO, QT_TOT_INS_EST FROM INSUMO_VRT WHERE ID_VRT_MICRO = ?"),
                 {id});
    while (rs.next())
        m_totalInsumo.insert(rs.value(0).toString(), rs.value(1).toString());
    rs.finish();
    QSqlQuery tot(ConexaoBanco());
    tot.setForwardOnly(true);
    AbreConsulta(tot,
                 QStringLiteral("SELECT CD_LOCAL_DESTINO, CD_INT_INSUMO, QT_TOT_INS_POR_LOC "
                                "FROM TOT_INSUMO_CONSOLIDADO WHERE ID_VRT_MICRO = ? "
                                "AND CD_LOCAL_DESTINO IS NOT NULL AND CD_INT_INSUMO IS NOT NULL"),
                 {id});
    while (tot.next())
        m_totalPorDestino.insert(chaveDestinoInsumo(tot.value(0).toString(), tot.value(1).toString()),
                                 tot.value(2).toString());
}

void EscritaMensal::produtoSemPPB(const ComandoSqlite& item, const QVector<Destino>& destinos)
{
    LinhaRegistro r(layout(31));
    r.poe(QStringLiteral("CD_INT_PRODUTO"), item.texto(ItCodigo));
    r.poe(QStringLiteral("NM_INT_PRODUTO"), item.texto(ItNome));
    r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
    r.poe(QStringLiteral("CD_NCM_PRODUTO"), item.texto(ItNcm));
    // One pair per destination code; a code without a row keeps its zeros.
    for (const Destino& d : destinos) {
        if (d.codigo.size() == 1 && d.codigo >= QLatin1String("1") && d.codigo <= QLatin1String("4"))
            r.poe(QStringLiteral("QT_PROD_LOC_DEST_") + d.codigo, d.quantidade);
    }
    m_saida.escreve(r);
    insumo(item, destinos);
}

void EscritaMensal::insumo(const ComandoSqlite& item, const QVector<Destino>& destinos)
{
    enum { Id = 1, Codigo, Ncm, Nome, Unidade, Quantidade, JustII, AliqII, JustIPI, AliqIPI };
    static const Colunas campos32{{"CD_INT_INSUMO", Codigo}, {"CD_NCM_INSUMO", Ncm}, {"NM_INT_INSUMO", Nome},
                                  {"NM_UNID_MED_INSUMO", Unidade}, {"QT_INSUMO_POR_PROD", Quantidade}};
    const qint64 idItem = item.inteiro(ItId);
    for (; m_insumos->de(idItem); m_insumos->avanca()) {
        const CursorFilhos& x = *m_insumos;
        const QString codigo = x.texto(Codigo);
        LinhaRegistro r(layout(32));
        r.poe(QStringLiteral("CD_INT_PRODUTO"), item.texto(ItCodigo));
        poe(r, x, campos32);
        m_saida.escreve(r);

        LinhaRegistro base(layout(33));
        base.poe(QStringLiteral("CD_INT_INSUMO"), codigo);
        base.poe(QStringLiteral("QT_TOT_INS_EST"), m_totalInsumo.value(codigo));
        // Each pair is taken only where its aliquot is there and is not one blank.
        const QVariant aliqII = x.valor(AliqII);
        if (!aliqII.isNull() && aliqII.toString() != Branco) {
            base.poe(QStringLiteral("JUST_II_DIF_TEC"), x.texto(JustII));
            base.poe(QStringLiteral("ALIQ_II_DIF_TEC"), aliqII.toString());
        }
        const QVariant aliqIPI = x.valor(AliqIPI);
        if (!aliqIPI.isNull() && aliqIPI.toString() != Branco) {
            base.poe(QStringLiteral("JUST_IPI_DIF_TIPI"), x.texto(JustIPI));
            base.poe(QStringLiteral("ALIQ_IPI_DIF_TIPI"), aliqIPI.toString());
        }
        for (const Destino& d : destinos) {
            // Record 33 only where the consolidation has the input at this destination; its documents anyway.
            const auto total = m_totalPorDestino.constFind(chaveDestinoInsumo(d.codigo, codigo));
            if (total != m_totalPorDestino.constEnd()) {
                LinhaRegistro r33 = base;
                r33.poe(QStringLiteral("CD_LOCAL_DESTINO"), d.codigo);
                r33.poe(QStringLiteral("QT_TOT_INS_POR_LOC"),
                        Funcoes::FormataNumero(total.value(), QStringLiteral("0.00000")));
                m_saida.escreve(r33);
            }
            documentosDoInsumo(codigo, d.codigo);
        }
    }
}

void EscritaMensal::documentosDoInsumo(const QString& insumo, const QString& destino)
{
    using D = DocumentosInsumoMensal;
    const D::Grupo& documentos = m_docsInsumo->de(insumo, destino);
    static const Colunas campos34{{"NR_CNPJ_FORNECEDOR", D::NfaCnpj}, {"NR_SERIE_NF_AQUIS", D::NfaSerie},
                                  {"NR_NF_AQUIS", D::NfaNumero}, {"NR_ITEM_NF_AQUIS", D::NfaItem},
                                  {"DT_EMISS_NF_AQUIS", D::NfaData}, {"CD_CFOP_NF_AQUIS", D::NfaCfop}};
    static const Colunas fim34{{"QT_INSUMO_UNID_INS", D::NfaQuantidade}, {"VL_INSUMO_UNID_INS", D::NfaValor},
                               {"CD_INT_INSUMO", D::NfaInsumo}, {"CD_LOCAL_DESTINO", D::NfaDestino}};
    for (const QStringList& x : documentos.nfa) {
        LinhaRegistro r(layout(34));
        poe(r, x, campos34);
        r.poe(QStringLiteral("IND_DL_288_67"), x.at(D::NfaDl288) == S ? S : N);
        poe(r, x, fim34);
        m_saida.escreve(r);
    }
    static const Colunas valores35 =
        valoresImportacao(QStringLiteral("VL_INSUMO_UNID_INS"), QStringLiteral("INT"), D::DiValor);
    for (const QStringList& x : documentos.di) {
        LinhaRegistro r(layout(35));
        QString nrDi = x.at(D::DiNumero) == Branco ? QStringLiteral("0000000000")
                                                   : LinhaRegistro::formata(r.layout().campo(QStringLiteral("NR_DI")),
                                                                            x.at(D::DiNumero));
        // The old writer's fault, kept: a missing old number puts its 15 zeros into the DI number, which then
        // breaks the line, and the old number of the previous record 35 is written again.
        if (x.at(D::DiAntigaNula) == S || x.at(D::DiAntiga) == Branco)
            nrDi = QString(15, u'0');
        else
            m_diAntigaInsumo = LinhaRegistro::formata(r.layout().campo(QStringLiteral("NR_DI_ANTIGA")),
                                                      x.at(D::DiAntiga));
        r.poeComoEsta(QStringLiteral("NR_DI"), nrDi);
        r.poeComoEsta(QStringLiteral("NR_DI_ANTIGA"), m_diAntigaInsumo);
        r.poe(QStringLiteral("NR_ADICAO_DI"), x.at(D::DiAdicao));
        r.poe(QStringLiteral("NR_ITEM_ADICAO"), x.at(D::DiItemAdicao));
        const QString dl = x.at(D::DiDl288) == S ? S : N;
        r.poe(QStringLiteral("IND_DL_288_67"), dl);
        r.poe(QStringLiteral("QT_INSUMO_UNID_INS"), x.at(D::DiQuantidade));
        if (dl == S || x.at(D::DiSuspensao) == S)
            poe(r, x, valores35);
        r.poe(QStringLiteral("CD_INT_INSUMO"), x.at(D::DiInsumo));
        r.poe(QStringLiteral("CD_LOCAL_DESTINO"), x.at(D::DiDestino));
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.at(D::DiSuspensao));
        m_saida.escreve(r);
    }
    static const Colunas campos36{{"NR_DSI", D::DsiNumero, true}, {"NR_DSI_ANTIGA", D::DsiAntiga, true},
                                  {"NR_BEM", D::DsiBem}, {"QT_INSUMO_UNID_INS", D::DsiQuantidade},
                                  {"CD_INT_INSUMO", D::DsiInsumo}, {"CD_LOCAL_DESTINO", D::DsiDestino}};
    static const Colunas valores36 =
        valoresImportacao(QStringLiteral("VL_PROD_UNID_PROD"), QStringLiteral("INT"), D::DsiValor);
    for (const QStringList& x : documentos.dsi) {
        LinhaRegistro r(layout(36));
        poe(r, x, campos36);
        if (x.at(D::DsiSuspensao) == S)
            poe(r, x, valores36);
        r.poe(QStringLiteral("IND_SUSP_PIS_COFINS"), x.at(D::DsiSuspensao));
        m_saida.escreve(r);
    }
}

void EscritaMensal::produtoNacional(const ComandoSqlite& item)
{
    LinhaRegistro r(layout(41));
    r.poe(QStringLiteral("CD_NCM_PRODUTO"), item.texto(ItNcm));
    r.poe(QStringLiteral("CD_INT_PRODUTO"), item.texto(ItCodigo));
    r.poe(QStringLiteral("NM_INT_PRODUTO"), item.texto(ItNome));
    r.poe(QStringLiteral("NM_UNID_MED_PROD"), item.texto(ItUnidade));
    r.poe(QStringLiteral("VL_PROD_UNID_PROD"), item.texto(ItVlProd));
    r.poe(QStringLiteral("QT_PROD_UNID_PROD"), item.texto(ItQtProd));
    r.poe(QStringLiteral("QT_PROD_UNID_EST"), item.texto(ItQtEst));
    m_saida.escreve(r);
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
