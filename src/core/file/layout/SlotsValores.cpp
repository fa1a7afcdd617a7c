#include "core/file/layout/SlotsValores.h"

#include <iterator>

namespace {

struct Linha {
    int mod;
    int tipo;
    const char16_t* nmTipo;
};

QString nomeModalidade(int mod)
{
    switch (mod) {
    case 1: return QStringLiteral("VRT - PE");
    case 2: return QStringLiteral("VRT - PI com PPB");
    case 3: return QStringLiteral("VRT - PI sem PPB");
    default: return QStringLiteral("VRT");
    }
}

// The names as the reader stores them, odd forms included: slot 1 "Imposto Importaçao" and the "de II" forms of
// modalities 1 and 3 in the judicial order.
const Linha linhasMandado[] = {
    {1, 3, u"Imposto Importaçao"},
    {1, 5, u"Multa de Mora de II"},
    {1, 4, u"Juros de Mora de II"},
    {1, 6, u"Imposto sobre Prod. Industrializados"},
    {1, 8, u"Multa de Mora IPI"},
    {1, 7, u"Juros de Mora IPI"},
    {1, 9, u"PIS/PASEP"},
    {1, 11, u"Multa de Mora PIS/PASEP"},
    {1, 10, u"Juros de Mora PIS/PASEP"},
    {1, 12, u"COFINS"},
    {1, 14, u"Multa de Mora COFINS"},
    {1, 13, u"Juros de Mora COFINS"},
    {2, 3, u"Imposto de Importação"},
    {2, 5, u"Multa de Mora II"},
    {2, 4, u"Juros de Mora II"},
    {2, 9, u"PIS/PASEP"},
    {2, 11, u"Multa de Mora PIS/PASEP"},
    {2, 10, u"Juros de Mora PIS/PASEP"},
    {2, 12, u"COFINS"},
    {2, 14, u"Multa de Mora COFINS"},
    {2, 13, u"Juros de Mora COFINS"},
    {3, 3, u"Imposto de Importação"},
    {3, 5, u"Multa de Mora de II"},
    {3, 4, u"Juros de Mora de II"},
    {3, 6, u"Imposto sobre Prod. Industrializados"},
    {3, 8, u"Multa de Mora IPI"},
    {3, 7, u"Juros de Mora IPI"},
    {3, 9, u"PIS/PASEP"},
    {3, 11, u"Multa de Mora PIS/PASEP"},
    {3, 10, u"Juros de Mora PIS/PASEP"},
    {3, 12, u"COFINS"},
    {3, 14, u"Multa de Mora COFINS"},
    {3, 13, u"Juros de Mora COFINS"},
    {9, 2, u"Multa por Atraso"},
    {9, 1, u"Taxa de Utilização"},
};

const Linha linhasRetif[] = {
    {1, 2, u"Imposto de Importação"},
    {1, 3, u"Multa de Mora II"},
    {1, 4, u"Juros de Mora II"},
    {1, 5, u"Imposto sobre Prod. Industrializados"},
    {1, 6, u"Multa de Mora IPI"},
    {1, 7, u"Juros de Mora IPI"},
    {1, 8, u"PIS/PASEP"},
    {1, 9, u"Multa de Mora PIS/PASEP"},
    {1, 10, u"Juros de Mora PIS/PASEP"},
    {1, 11, u"COFINS"},
    {1, 12, u"Multa de Mora COFINS"},
    {1, 13, u"Juros de Mora COFINS"},
    {2, 2, u"Imposto de Importação"},
    {2, 3, u"Multa de Mora II"},
    {2, 4, u"Juros de Mora II"},
    {2, 8, u"PIS/PASEP"},
    {2, 9, u"Multa de Mora PIS/PASEP"},
    {2, 10, u"Juros de Mora PIS/PASEP"},
    {2, 11, u"COFINS"},
    {2, 12, u"Multa de Mora COFINS"},
    {2, 13, u"Juros de Mora COFINS"},
    {3, 2, u"Imposto de Importação"},
    {3, 3, u"Multa de Mora II"},
    {3, 4, u"Juros de Mora II"},
    {3, 5, u"Imposto sobre Prod. Industrializados"},
    {3, 6, u"Multa de Mora IPI"},
    {3, 7, u"Juros de Mora IPI"},
    {3, 8, u"PIS/PASEP"},
    {3, 9, u"Multa de Mora PIS/PASEP"},
    {3, 10, u"Juros de Mora PIS/PASEP"},
    {3, 11, u"COFINS"},
    {3, 12, u"Multa de Mora COFINS"},
    {3, 13, u"Juros de Mora COFINS"},
};

static_assert(std::size(linhasMandado) == SlotsValores::QuantidadeMandado);
static_assert(std::size(linhasRetif) == SlotsValores::QuantidadeRetif);

QVector<SlotValor> montaMandado()
{
    QVector<SlotValor> v;
    int k = 0;
    for (const Linha& l : linhasMandado) {
        ++k;
        SlotValor s;
        s.slot = k;
        s.posicaoIndicador = SlotsValores::posicaoIndicadorMandado(k);
        s.posicaoValor = SlotsValores::posicaoValorMandado(k);
        s.cdMod = l.mod;
        s.cdTipo = l.tipo;
        s.nmMod = nomeModalidade(l.mod);
        s.nmTipo = QString::fromUtf16(l.nmTipo);
        s.campoIndicador = SlotsValores::campoIndicadorMandado(k);
        s.campoValor = SlotsValores::campoValorMandado(k);
        v.append(s);
    }
    return v;
}

QVector<SlotValor> montaRetif()
{
    QVector<SlotValor> v;
    int k = 0;
    for (const Linha& l : linhasRetif) {
        ++k;
        SlotValor s;
        s.slot = k;
        s.posicaoValor = SlotsValores::posicaoValorRetif(k);
        s.cdMod = l.mod;
        s.cdTipo = l.tipo;
        s.nmMod = nomeModalidade(l.mod);
        s.nmTipo = QString::fromUtf16(l.nmTipo);
        s.campoValor = SlotsValores::campoValorRetif(k);
        v.append(s);
    }
    return v;
}

QString numeroSlot(int k)
{
    return QStringLiteral("%1").arg(k, 2, 10, QLatin1Char('0'));
}

int procuraSlot(const QVector<SlotValor>& lista, int cdMod, int cdTipo)
{
    for (const SlotValor& s : lista) {
        if (s.cdMod == cdMod && s.cdTipo == cdTipo)
            return s.slot;
    }
    return 0;
}

}  // namespace

QString SlotsValores::campoIndicadorMandado(int k)
{
    return QStringLiteral("IND_MANDADO_") + numeroSlot(k);
}

QString SlotsValores::campoValorMandado(int k)
{
    return QStringLiteral("VL_MANDADO_") + numeroSlot(k);
}

QString SlotsValores::campoValorRetif(int k)
{
    return QStringLiteral("VL_RETIF_") + numeroSlot(k);
}

const ColunasSlot& SlotsValores::colunasMandado()
{
    static const ColunasSlot c{QStringLiteral("CD_MOD_MANDADO"), QStringLiteral("CD_TIPO_DIVER_MANDADO"),
                               QStringLiteral("NM_MOD_INT_MANDADO"), QStringLiteral("NM_TIPO_DIVER_MANDADO")};
    return c;
}

const ColunasSlot& SlotsValores::colunasRetif()
{
    static const ColunasSlot c{QStringLiteral("CD_MOD_RETIF"), QStringLiteral("CD_TIPO_DIVER_RETIF"),
                               QStringLiteral("NM_MOD_INT_RETIF"), QStringLiteral("NM_TIPO_DIVER_RETIF")};
    return c;
}

const QVector<SlotValor>& SlotsValores::mandado()
{
    static const QVector<SlotValor> lista = montaMandado();
    return lista;
}

const QVector<SlotValor>& SlotsValores::retif()
{
    static const QVector<SlotValor> lista = montaRetif();
    return lista;
}

int SlotsValores::slotMandado(int cdMod, int cdTipo)
{
    return procuraSlot(mandado(), cdMod, cdTipo);
}

int SlotsValores::slotRetif(int cdMod, int cdTipo)
{
    return procuraSlot(retif(), cdMod, cdTipo);
}
