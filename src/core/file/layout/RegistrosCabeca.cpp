#include "core/file/layout/RegistrosCabeca.h"

namespace RegistrosCabeca {

QString tipo(int numero)
{
    return QStringLiteral("0") + QString::number(numero - 1);
}

const LayoutRegistro& layout(int numero)
{
    return LayoutRegistro::de(TipoDeclaracao::Mensal, numero - 1);
}

QString textoAusente(int numero)
{
    return QStringLiteral("Erro no arquivo - Não foi localizado o registro ") + tipo(numero) + QStringLiteral("!");
}

QString textoTamanho(int numero)
{
    return QStringLiteral("Erro no registro ") + tipo(numero) + QStringLiteral(" - Tamanho inválido!");
}

QString textoTipo(int numero)
{
    return QStringLiteral("Erro no ") + QString::number(numero) + QStringLiteral("º registro - Tipo de registro não é ") +
           tipo(numero) + QStringLiteral("!");
}

QString confere(int numero, const QString& linha)
{
    if (linha.size() != layout(numero).tamanho)
        return textoTamanho(numero);
    if (linha.left(2) != tipo(numero))
        return textoTipo(numero);
    return QString();
}

}  // namespace RegistrosCabeca
