#include "core/file/reading/CabecalhoLido.h"

#include "core/file/layout/RegistrosCabeca.h"
#include "core/file/layout/SlotsValores.h"
#include "core/file/reading/ExcecoesLeitura.h"
#include "core/file/reading/InsercaoRegistro.h"
#include "core/store/ComandosPreparados.h"

namespace {
QString c(const char* t)
{
    return QString::fromLatin1(t);
}

QVector<const LayoutRegistro*> layoutsDaCabeca()
{
    QVector<const LayoutRegistro*> v;
    for (int numero = 1; numero <= 4; ++numero)
        v << &RegistrosCabeca::layout(numero);
    return v;
}

// A slot's row: the declaration, the slot's codes and names, then its value, whose column the layout names.
QString insercaoSlot(const LayoutRegistro& layout, const ColunasSlot& colunas, const QString& campoValor)
{
    const CampoLayout& valor = layout.campo(campoValor);
    return InsercaoRegistro::monta(valor.tabelaDe(layout.tabela), {c("ID_VRT_MICRO"), colunas.cdMod, colunas.cdTipo,
                                                                    colunas.nmMod, colunas.nmTipo, valor.coluna});
}
}  // namespace

struct CabecalhoLido::Insercoes {
    const QVector<const LayoutRegistro*> layouts = layoutsDaCabeca();
    const InsercaoRegistro vrt{layouts, c("VRT"), {c("ID_VRT_MICRO"), c("IND_RESTITUICAO"), c("IND_RETIFICACAO")}};
    const InsercaoRegistro mensal{layouts, c("VRT_MENSAL"), {c("ID_VRT_MICRO")}};
    const InsercaoRegistro individual{layouts, c("VRT_INDIVIDUAL"), {c("ID_VRT_MICRO")}};
    const InsercaoRegistro notaFiscal{layouts, c("NOTA_FISCAL_SAIDA"), {c("ID_VRT_MICRO")}};
    const QString mandado = insercaoSlot(*layouts.at(2), SlotsValores::colunasMandado(),
                                         SlotsValores::mandado().first().campoValor);
    const QString retif = insercaoSlot(*layouts.at(3), SlotsValores::colunasRetif(),
                                       SlotsValores::retif().first().campoValor);
};

CabecalhoLido::CabecalhoLido() : m_insercoes(std::make_unique<Insercoes>()) {}

CabecalhoLido::~CabecalhoLido() = default;

void CabecalhoLido::defineLinha(int numero, const QString& linha)
{
    m_linhas.at(size_t(numero - 1)) = linha;
}

RegistroLido CabecalhoLido::registro(int numero) const
{
    return RegistroLido(m_linhas.at(size_t(numero - 1)), RegistrosCabeca::layout(numero));
}

QVariantList CabecalhoLido::valores(const InsercaoRegistro& insercao, const QVariantList& antes) const
{
    const RegistroLido r00 = registro(1), r01 = registro(2), r02 = registro(3), r03 = registro(4);
    return insercao.valores(QVector<const RegistroLido*>{&r00, &r01, &r02, &r03}, antes);
}

void CabecalhoLido::grava(ComandosPreparados& comandos, TipoDeclaracao declaracao, const QString& id) const
{
    const Insercoes& ins = *m_insercoes;
    const RegistroLido r03 = registro(4);
    comandos.executa(ins.vrt.sql(), valores(ins.vrt, {id, ExcecoesLeitura::indicadorRestituicao(),
                                                      ExcecoesLeitura::indicadorRetificacao(r03)}));
    const InsercaoRegistro& tipo = declaracao == TipoDeclaracao::Individual ? ins.individual : ins.mensal;
    comandos.executa(tipo.sql(), valores(tipo, {id}));
    gravaValoresMandado(comandos, id);
    if (ExcecoesLeitura::indicadorRetificacao(r03) == c("S"))
        gravaValoresRetif(comandos, id);
}

void CabecalhoLido::gravaNotaFiscal(ComandosPreparados& comandos, const QString& id) const
{
    comandos.executa(m_insercoes->notaFiscal.sql(), valores(m_insercoes->notaFiscal, {id}));
}

void CabecalhoLido::gravaValoresMandado(ComandosPreparados& comandos, const QString& id) const
{
    const RegistroLido r = registro(3);
    for (const SlotValor& slot : SlotsValores::mandado()) {
        if (r.texto(slot.campoIndicador) != c("S"))
            continue;
        comandos.executa(m_insercoes->mandado, {id, QString::number(slot.cdMod), QString::number(slot.cdTipo),
                                                slot.nmMod, slot.nmTipo,
                                                ExcecoesLeitura::valorMandado(r, slot.campoValor)});
    }
}

void CabecalhoLido::gravaValoresRetif(ComandosPreparados& comandos, const QString& id) const
{
    const RegistroLido r = registro(4);
    for (const SlotValor& slot : SlotsValores::retif()) {
        if (!ExcecoesLeitura::temValorRetif(r, slot.campoValor))
            continue;
        comandos.executa(m_insercoes->retif, {id, QString::number(slot.cdMod), QString::number(slot.cdTipo),
                                              slot.nmMod, slot.nmTipo, r.lido(slot.campoValor)});
    }
}
