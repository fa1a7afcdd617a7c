#include "core/file/reading/EstadoLeitura.h"

#include "core/session/MsgBox.h"

static_assert(Msg::Critical == 16, "MensagemLeitura's default style is the critical icon");

bool EstadoLeitura::falha(const QString& tipo, const QString& texto, int estilo, const QString& titulo)
{
    mensagens.append({ContaLinhas, tipo, texto, estilo, titulo});
    return false;
}

bool EstadoLeitura::erroRegistro(const QString& tipo, const QString& motivo)
{
    return falha(tipo, QStringLiteral("Erro no ") + QString::number(ContaLinhas) + QStringLiteral("º registro (registro ") +
                           tipo + QStringLiteral(") - ") + motivo + QStringLiteral("!"));
}

bool EstadoLeitura::novaChave(QVariant& chave, const QVariant& ultima, const QString& tipo, const QString& mensagem)
{
    chave = ultima;
    if (chave.isValid() && !chave.isNull())
        return true;
    return falha(tipo, mensagem);
}

bool EstadoLeitura::confereTamanho(const LayoutRegistro& layout, QString& linha)
{
    if (layout.tamanhoExato ? linha.size() != layout.tamanho : linha.size() > layout.tamanho)
        return erroRegistro(layout.tipo, QStringLiteral("Tamanho inválido"));
    if (linha.size() < layout.tamanho)
        linha = linha.leftJustified(layout.tamanho, QLatin1Char(' '));
    return true;
}
