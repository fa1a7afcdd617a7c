#include "core/file/reading/EstadoLeitura.h"

#include "core/session/MsgBox.h"

bool EstadoLeitura::erroRegistro(const QString& tipo, const QString& motivo) const
{
    MsgBox(QStringLiteral("Erro no ") + QString::number(ContaLinhas) + QStringLiteral("º registro (registro ") + tipo +
               QStringLiteral(") - ") + motivo + QStringLiteral("!"),
           Msg::Critical);
    return false;
}

bool EstadoLeitura::confereTamanho(const LayoutRegistro& layout, QString& linha) const
{
    if (layout.tamanhoExato ? linha.size() != layout.tamanho : linha.size() > layout.tamanho)
        return erroRegistro(layout.tipo, QStringLiteral("Tamanho inválido"));
    if (linha.size() < layout.tamanho)
        linha = linha.leftJustified(layout.tamanho, QLatin1Char(' '));
    return true;
}
