#include "core/file/reading/LeitorItens.h"

#include "core/file/reading/EstadoLeitura.h"
#include "core/file/layout/RegistroLido.h"

LeitorItens::LeitorItens(TipoDeclaracao declaracao, EstadoLeitura& estado, ComandosPreparados& comandos,
                                 CadastrosLeitura& cadastros)
    : m_estado(estado), m_comandos(comandos), m_cadastros(cadastros), m_declaracao(declaracao)
{
}

bool LeitorItens::leRegistro(const QString& tipo, QString& linha)
{
    const LayoutRegistro& layout = LayoutRegistro::de(m_declaracao, tipo);
    if (!m_estado.confereTamanho(layout, linha))
        return false;
    const RegistroLido r(linha, layout);
    switch (tipo.toInt()) {
    case 11: return registro11(r);
    case 12: return registro12(r);
    case 13: return registro13(r);
    case 14: return registro14(r);
    case 21: return registro21(r);
    case 31: return registro31(r);
    case 32: return registro32(r);
    case 33: return registro33(r);
    case 34: return registro34(r);
    case 35: return registro35(r);
    case 36: return registro36(r);
    case 41: return registro41(r);
    default: return false;
    }
}
