#include "cli/ManipuladorCli.h"

#include "core/session/MsgBox.h"

#include <cstdio>

int ManipuladorCli::operator()(const QString& texto, int estilo, const QString& titulo)
{
    QString linha = texto;
    linha.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    int resposta = RespostaPadrao(estilo);
    const int botoes = estilo & Msg::MascaraBotoes;
    if (botoes == Msg::YesNo || botoes == Msg::YesNoCancel) {
        // Questions that replace data already in the database are answered by --substituir.
        const bool substituicao = texto.contains(QStringLiteral("deseja substituí-la?"))
                                  || texto.contains(QStringLiteral("Confirma a exclusão de"))
                                  || texto.contains(QStringLiteral("Confirma a substituição?"));
        resposta = (!substituicao || m_substituir) ? Msg::Yes : Msg::No;
        linha += resposta == Msg::Yes ? QStringLiteral(" [Sim]") : QStringLiteral(" [Não]");
        if (resposta == Msg::No) {
            ++recusadas;
            if (substituicao)
                linha += QStringLiteral(" (use --substituir para substituir)");
        }
    }
    if ((estilo & Msg::MascaraIcone) == Msg::Critical)
        ++criticas;
    const QByteArray saida = (titulo + QStringLiteral(": ") + linha).toUtf8();
    std::fprintf(stderr, "%s\n", saida.constData());
    std::fflush(stderr);
    return resposta;
}
