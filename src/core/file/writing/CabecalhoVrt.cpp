#include "core/file/writing/CabecalhoVrt.h"

#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/SaidaVrt.h"
#include "core/file/layout/SlotsValores.h"
#include "core/rules/Formatadores.h"
#include "core/store/ComandoSqlite.h"

using namespace Funcoes;

namespace {

const QString Branco = QStringLiteral(" ");

QString valorDoSlot(const QVariant& valor)
{
    return ZeroEsquerda(TiraCaractere(valor.toString(), QStringLiteral(",")), SlotsValores::TamanhoValor);
}

// A code compared as a number, as the slots are found ("03" is 3); -1 when it is no number.
int codigo(const QVariant& valor)
{
    bool ok = false;
    const int n = valor.toString().trimmed().toInt(&ok);
    return ok ? n : -1;
}

}  // namespace

TipoDeclaracao CabecalhoVrt::tipo() const
{
    return cdTipoVrt == QLatin1String("2") ? TipoDeclaracao::Mensal : TipoDeclaracao::Individual;
}

bool CabecalhoVrt::carrega(const QString& id)
{
    // The declaration with its month, its individual row and the first of its exit invoices, in one query; the
    // key of each joined row tells whether there is one.
    enum { Id, Tipo, Cnpj, NrVrt, Processo, Mandado, Banco, Agencia, Conta, Inscricao, TemMensal, Mes,
           TemIndividual, SaidaAlc, Nfs, Serie, Numero, Emissao, Saida, Cfop, TipoDestinatario, Destinatario, Uf };
    ComandoSqlite rs(QStringLiteral(
        "SELECT v.ID_VRT_MICRO, v.CD_TIPO_VRT, v.NR_CNPJ_INTERNADOR, v.NR_VRT, v.NR_PROC_ADM_FISCAL, "
        "v.IND_MANDADO_JUDIC, v.NR_BANCO_ARREC, v.NR_AG_BCO_ARREC, v.NR_CC_AG_BCO_ARREC, v.NR_INSCRICAO_EST, "
        "m.ID_VRT_MICRO, m.DT_REFERENCIA_VRT, d.ID_VRT_MICRO, d.IN_SAIDA_ALC_AO, "
        "n.ID_NFS, n.NR_SERIE_NF_SAIDA, n.NR_NF_SAIDA, n.DT_EMISS_NF_SAIDA, n.DT_SAIDA_NF_SAIDA, n.CD_OP_FISCAL, "
        "n.CD_TIPO_DESTINAT, n.NR_DESTINAT, n.CD_UF_DESTINO FROM VRT v "
        "LEFT JOIN VRT_MENSAL m ON m.ID_VRT_MICRO = v.ID_VRT_MICRO "
        "LEFT JOIN VRT_INDIVIDUAL d ON d.ID_VRT_MICRO = v.ID_VRT_MICRO "
        "LEFT JOIN NOTA_FISCAL_SAIDA n ON n.ID_NFS = "
        "(SELECT MIN(x.ID_NFS) FROM NOTA_FISCAL_SAIDA x WHERE x.ID_VRT_MICRO = v.ID_VRT_MICRO) "
        "WHERE v.ID_VRT_MICRO = ?"));
    rs.abre({id});
    if (!rs.proxima())
        return false;
    idVrtMicro = rs.texto(Id);
    cdTipoVrt = rs.texto(Tipo);
    if (!rs.valor(Cnpj).isNull())
        cnpj = rs.texto(Cnpj);
    // One blank is the column's "no number"; anything else, an empty text included, is zero-filled.
    const QString vrt = rs.texto(NrVrt);
    nrVrt = (!rs.valor(NrVrt).isNull() && vrt == Branco) ? QStringLiteral("0000000000") : ZeroEsquerda(vrt, 10);
    const QString proc = rs.texto(Processo);
    nrProcAdmFiscal = (!rs.valor(Processo).isNull() && proc == Branco) ? QStringLiteral("00000000000000000")
                                                                       : ZeroEsquerda(proc, 17);
    indMandadoJudic = rs.texto(Mandado);
    banco = rs.texto(Banco);
    agencia = rs.texto(Agencia);
    conta = rs.texto(Conta);

    if (tipo() == TipoDeclaracao::Mensal) {
        if (!rs.valor(TemMensal).isNull()) {
            // Stored as mmyyyy, written as yyyymm.
            const QString mmaaaa = rs.texto(Mes);
            referencia = mmaaaa.mid(2, 4) + mmaaaa.mid(0, 2);
        }
    } else {
        if (!rs.valor(Inscricao).isNull())
            inscricaoEstadual = rs.texto(Inscricao);
        if (!rs.valor(TemIndividual).isNull())
            saidaAlcAo = BrancoDireita(rs.texto(SaidaAlc), 1);
        if (!rs.valor(Nfs).isNull()) {
            idNfs = rs.valor(Nfs);
            serieNf = rs.texto(Serie);
            numeroNf = rs.texto(Numero);
            dtEmissao = rs.texto(Emissao);
            dtSaida = rs.texto(Saida);
            cfopNulo = rs.valor(Cfop).isNull();
            cfop = rs.texto(Cfop);
            tipoDestinatario = rs.texto(TipoDestinatario);
            nrDestinatario = rs.texto(Destinatario);
            uf = rs.texto(Uf).left(2);
        }
        destino = codigoDestino(uf, saidaAlcAo);
    }
    rs.encerra();
    carregaValores();
    return true;
}

void CabecalhoVrt::carregaValores()
{
    indicadoresMandado = QVector<QString>(SlotsValores::QuantidadeMandado, QStringLiteral("N"));
    valoresMandado = QVector<QString>(SlotsValores::QuantidadeMandado, QString(SlotsValores::TamanhoValor, u'0'));
    valoresRetif = QVector<QString>(SlotsValores::QuantidadeRetif, QString(SlotsValores::TamanhoValor, u'0'));
    // The court order's values, then the rectification's, each in the order its rows were made.
    ComandoSqlite rs(QStringLiteral(
        "SELECT 1 AS QUAL, rowid AS ORDEM, CD_MOD_MANDADO, CD_TIPO_DIVER_MANDADO, VL_TOTAL_DIVER_MANDADO "
        "FROM VALORES_DIVER_MANDADO WHERE ID_VRT_MICRO = ?1 UNION ALL "
        "SELECT 2, rowid, CD_MOD_RETIF, CD_TIPO_DIVER_RETIF, VL_TOTAL_DIVER_RETIF "
        "FROM VALORES_DIVER_RETIF WHERE ID_VRT_MICRO = ?1 ORDER BY QUAL, ORDEM"));
    rs.abre({idVrtMicro});
    while (rs.proxima()) {
        // A pair without a slot is left out; a second row for one slot replaces the first.
        if (rs.inteiro(0) == 1) {
            const int k = SlotsValores::slotMandado(codigo(rs.valor(2)), codigo(rs.valor(3)));
            if (k == 0)
                continue;
            indicadoresMandado[k - 1] = QStringLiteral("S");
            valoresMandado[k - 1] = valorDoSlot(rs.valor(4));
        } else {
            const int k = SlotsValores::slotRetif(codigo(rs.valor(2)), codigo(rs.valor(3)));
            if (k != 0)
                valoresRetif[k - 1] = valorDoSlot(rs.valor(4));
        }
    }
}

QString CabecalhoVrt::codigoDestino(const QString& uf, const QString& saidaAlcAo)
{
    static const QStringList ufsDaAmazonia = {QStringLiteral("AC"), QStringLiteral("AM"), QStringLiteral("RO"),
                                              QStringLiteral("RR")};
    if (ufsDaAmazonia.contains(uf))
        return saidaAlcAo == QLatin1String("S") ? QStringLiteral("3") : QStringLiteral("1");
    return saidaAlcAo == QLatin1String("N") ? QStringLiteral("2") : QStringLiteral("4");
}

void CabecalhoVrt::escreve(SaidaVrt& saida, const QString& origem) const
{
    const TipoDeclaracao t = tipo();

    LinhaRegistro r00(LayoutRegistro::de(t, QStringLiteral("00")));
    r00.poeComoEsta(QStringLiteral("ORIGEM"), origem);
    r00.poe(QStringLiteral("CD_TIPO_VRT"), cdTipoVrt);
    r00.poe(QStringLiteral("DT_REFERENCIA_VRT"), referencia);
    r00.poe(QStringLiteral("NR_INSCRICAO_EST"), inscricaoEstadual);
    r00.poe(QStringLiteral("NR_SERIE_NF_SAIDA"), serieNf);
    r00.poe(QStringLiteral("NR_NF_SAIDA"), numeroNf);
    r00.poe(QStringLiteral("NR_CNPJ_INTERNADOR"), cnpj);
    saida.escreve(r00);

    LinhaRegistro r01(LayoutRegistro::de(t, QStringLiteral("01")));
    r01.poe(QStringLiteral("CD_TIPO_VRT"), cdTipoVrt);
    r01.poe(QStringLiteral("DT_REFERENCIA_VRT"), referencia);
    r01.poe(QStringLiteral("NR_CNPJ_INTERNADOR"), cnpj);
    r01.poe(QStringLiteral("NR_INSCRICAO_EST"), inscricaoEstadual);
    r01.poe(QStringLiteral("NR_SERIE_NF_SAIDA"), serieNf);
    r01.poe(QStringLiteral("NR_NF_SAIDA"), numeroNf);
    r01.poe(QStringLiteral("DT_EMISS_NF_SAIDA"), dtEmissao);
    r01.poe(QStringLiteral("DT_SAIDA_NF_SAIDA"), dtSaida);
    // A Null CFOP becomes one blank before the zero fill: "000" and a blank.
    if (cfopNulo)
        r01.poeComoEsta(QStringLiteral("CD_OP_FISCAL"), QStringLiteral("000 "));
    else
        r01.poe(QStringLiteral("CD_OP_FISCAL"), cfop);
    r01.poe(QStringLiteral("CD_TIPO_DESTINAT"), tipoDestinatario);
    r01.poe(QStringLiteral("NR_DESTINAT"), nrDestinatario);
    r01.poe(QStringLiteral("CD_UF_DESTINO"), uf);
    r01.poe(QStringLiteral("IN_SAIDA_ALC_AO"), saidaAlcAo);
    r01.poe(QStringLiteral("NR_BANCO_ARREC"), banco);
    r01.poe(QStringLiteral("NR_AG_BCO_ARREC"), agencia);
    r01.poe(QStringLiteral("NR_CC_AG_BCO_ARREC"), conta);
    saida.escreve(r01);

    LinhaRegistro r02(LayoutRegistro::de(t, QStringLiteral("02")));
    r02.poe(QStringLiteral("IND_MANDADO_JUDIC"), indMandadoJudic);
    for (int k = 0; k < SlotsValores::QuantidadeMandado; ++k) {
        r02.poe(SlotsValores::campoIndicadorMandado(k + 1), indicadoresMandado.at(k));
        r02.poe(SlotsValores::campoValorMandado(k + 1), valoresMandado.at(k));
    }
    saida.escreve(r02);

    LinhaRegistro r03(LayoutRegistro::de(t, QStringLiteral("03")));
    r03.poe(QStringLiteral("NR_VRT"), nrVrt);
    r03.poe(QStringLiteral("NR_PROC_ADM_FISCAL"), nrProcAdmFiscal);
    for (int k = 0; k < SlotsValores::QuantidadeRetif; ++k)
        r03.poe(SlotsValores::campoValorRetif(k + 1), valoresRetif.at(k));
    saida.escreve(r03);
}
