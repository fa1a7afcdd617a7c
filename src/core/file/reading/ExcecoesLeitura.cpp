#include "core/file/reading/ExcecoesLeitura.h"

#include "core/file/reading/InsercaoRegistro.h"
#include "core/file/layout/RegistroLido.h"

namespace ExcecoesLeitura {

namespace {
void vazioSem(bool condicao, int posicao, QVariantList& valores)
{
    if (!condicao)
        valores[posicao] = QString(QLatin1String(""));
}
}  // namespace

void aliquotaSoComJustificativa(const RegistroLido& r, const InsercaoRegistro& insercao, QVariantList& valores)
{
    vazioSem(!r.brancos(QStringLiteral("JUST_II_DIF_TEC")), insercao.posicao(QStringLiteral("ALIQ_II_DIF_TEC")),
             valores);
    vazioSem(!r.brancos(QStringLiteral("JUST_IPI_DIF_TIPI")), insercao.posicao(QStringLiteral("ALIQ_IPI_DIF_TIPI")),
             valores);
}

void valorInsumoSoComDl288(const RegistroLido& r, const InsercaoRegistro& insercao, QVariantList& valores)
{
    vazioSem(r.texto(QStringLiteral("IND_DL_288_67")) == QStringLiteral("S"),
             insercao.posicao(QStringLiteral("VL_INSUMO_UNID_INS")), valores);
}

NumeroPpb numeroPpb(const RegistroLido& r)
{
    if (!r.zeros(QStringLiteral("NR_DCR")))
        return {QStringLiteral("2"), r.lido(QStringLiteral("NR_DCR"))};
    if (!r.zeros(QStringLiteral("NR_DCRE")))
        return {QStringLiteral("1"), r.lido(QStringLiteral("NR_DCRE"))};
    return {QString(QLatin1String("")), QString(QLatin1String(""))};
}

bool temJustificativaIndividual(const RegistroLido& r)
{
    const QString& linha = r.linha();
    return !RegistroLido::soBrancos(linha.mid(109, 253)) || !RegistroLido::soBrancos(linha.mid(367, 253));
}

QString indicadorRestituicao()
{
    return QStringLiteral("N");
}

QString indicadorRetificacao(const RegistroLido& r03)
{
    return r03.zeros(QStringLiteral("NR_VRT")) ? QStringLiteral("N") : QStringLiteral("S");
}

QString valorMandado(const RegistroLido& r02, const QString& campo)
{
    return r02.zeros(campo) ? QStringLiteral("0,00") : r02.lido(campo);
}

bool temValorRetif(const RegistroLido& r03, const QString& campo)
{
    return !r03.zeros(campo);
}

}  // namespace ExcecoesLeitura
