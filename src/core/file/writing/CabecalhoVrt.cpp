#include "core/file/writing/CabecalhoVrt.h"

#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/SaidaVrt.h"
#include "core/file/layout/SlotsValores.h"
#include "core/rules/Formatadores.h"
#include "core/store/modBancoDados.h"

#include <QSqlQuery>

using namespace Funcoes;
using namespace modBancoDados;

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
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs,
                 QStringLiteral("SELECT ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, NR_VRT, NR_PROC_ADM_FISCAL, "
                                "IND_MANDADO_JUDIC, NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, "
                                "NR_INSCRICAO_EST FROM VRT WHERE ID_VRT_MICRO = ?"),
                 {id});
    if (!rs.next())
        return false;
    idVrtMicro = rs.value(0).toString();
    cdTipoVrt = rs.value(1).toString();
    if (!rs.value(2).isNull())
        cnpj = rs.value(2).toString();
    // One blank is the column's "no number"; anything else, an empty text included, is zero-filled.
    const QString vrt = rs.value(3).toString();
    nrVrt = (!rs.value(3).isNull() && vrt == Branco) ? QStringLiteral("0000000000") : ZeroEsquerda(vrt, 10);
    const QString proc = rs.value(4).toString();
    nrProcAdmFiscal =
        (!rs.value(4).isNull() && proc == Branco) ? QStringLiteral("00000000000000000") : ZeroEsquerda(proc, 17);
    indMandadoJudic = rs.value(5).toString();
    banco = rs.value(6).toString();
    agencia = rs.value(7).toString();
    conta = rs.value(8).toString();
    const QVariant inscricao = rs.value(9);
    rs.finish();

    carregaValoresMandado();
    carregaValoresRetif();
    if (tipo() == TipoDeclaracao::Mensal) {
        carregaMensal();
    } else {
        if (!inscricao.isNull())
            inscricaoEstadual = inscricao.toString();
        carregaIndividual();
    }
    return true;
}

void CabecalhoVrt::carregaValoresMandado()
{
    indicadoresMandado = QVector<QString>(35, QStringLiteral("N"));
    valoresMandado = QVector<QString>(35, QString(SlotsValores::TamanhoValor, u'0'));
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs,
                 QStringLiteral("SELECT CD_MOD_MANDADO, CD_TIPO_DIVER_MANDADO, VL_TOTAL_DIVER_MANDADO "
                                "FROM VALORES_DIVER_MANDADO WHERE ID_VRT_MICRO = ? ORDER BY rowid"),
                 {idVrtMicro});
    while (rs.next()) {
        // A pair without a slot is left out; a second row for one slot replaces the first.
        const int k = SlotsValores::slotMandado(codigo(rs.value(0)), codigo(rs.value(1)));
        if (k == 0)
            continue;
        indicadoresMandado[k - 1] = QStringLiteral("S");
        valoresMandado[k - 1] = valorDoSlot(rs.value(2));
    }
}

void CabecalhoVrt::carregaValoresRetif()
{
    valoresRetif = QVector<QString>(33, QString(SlotsValores::TamanhoValor, u'0'));
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs,
                 QStringLiteral("SELECT CD_MOD_RETIF, CD_TIPO_DIVER_RETIF, VL_TOTAL_DIVER_RETIF "
                                "FROM VALORES_DIVER_RETIF WHERE ID_VRT_MICRO = ? ORDER BY rowid"),
                 {idVrtMicro});
    while (rs.next()) {
        const int k = SlotsValores::slotRetif(codigo(rs.value(0)), codigo(rs.value(1)));
        if (k != 0)
            valoresRetif[k - 1] = valorDoSlot(rs.value(2));
    }
}

void CabecalhoVrt::carregaMensal()
{
    const QVariant mes = ValorUnico(
        QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?"), {idVrtMicro});
    if (mes.isValid()) {
        // Stored as mmyyyy, written as yyyymm.
        const QString mmaaaa = mes.toString();
        referencia = mmaaaa.mid(2, 4) + mmaaaa.mid(0, 2);
    }
}

void CabecalhoVrt::carregaIndividual()
{
    const QVariant alc = ValorUnico(
        QStringLiteral("SELECT IN_SAIDA_ALC_AO FROM VRT_INDIVIDUAL WHERE ID_VRT_MICRO = ?"), {idVrtMicro});
    if (alc.isValid())
        saidaAlcAo = BrancoDireita(alc.toString(), 1);

    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs,
                 QStringLiteral("SELECT ID_NFS, NR_SERIE_NF_SAIDA, NR_NF_SAIDA, DT_EMISS_NF_SAIDA, DT_SAIDA_NF_SAIDA, "
                                "CD_OP_FISCAL, CD_TIPO_DESTINAT, NR_DESTINAT, CD_UF_DESTINO "
                                "FROM NOTA_FISCAL_SAIDA WHERE ID_VRT_MICRO = ? ORDER BY ID_NFS"),
                 {idVrtMicro});
    if (rs.next()) {
        idNfs = rs.value(0);
        serieNf = rs.value(1).toString();
        numeroNf = rs.value(2).toString();
        dtEmissao = rs.value(3).toString();
        dtSaida = rs.value(4).toString();
        cfopNulo = rs.value(5).isNull();
        cfop = rs.value(5).toString();
        tipoDestinatario = rs.value(6).toString();
        nrDestinatario = rs.value(7).toString();
        uf = rs.value(8).toString().left(2);
    }
    destino = codigoDestino(uf, saidaAlcAo);
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
    for (int k = 0; k < 35; ++k) {
        const QString n = QStringLiteral("%1").arg(k + 1, 2, 10, QLatin1Char('0'));
        r02.poe(QStringLiteral("IND_MANDADO_") + n, indicadoresMandado.at(k));
        r02.poe(QStringLiteral("VL_MANDADO_") + n, valoresMandado.at(k));
    }
    saida.escreve(r02);

    LinhaRegistro r03(LayoutRegistro::de(t, QStringLiteral("03")));
    r03.poe(QStringLiteral("NR_VRT"), nrVrt);
    r03.poe(QStringLiteral("NR_PROC_ADM_FISCAL"), nrProcAdmFiscal);
    for (int k = 0; k < 33; ++k)
        r03.poe(QStringLiteral("VL_RETIF_%1").arg(k + 1, 2, 10, QLatin1Char('0')), valoresRetif.at(k));
    saida.escreve(r03);
}
