#include "core/session/MsgBox.h"

#include <cstdio>

namespace {
ManipuladorMsg& manipuladorAtual()
{
    static ManipuladorMsg m = ManipuladorConsole;
    return m;
}
}  // namespace

int MsgBox(const QString& texto, int estilo, const QString& titulo)
{
    return manipuladorAtual()(texto, estilo, titulo.isEmpty() ? TituloPadrao : titulo);
}

ManipuladorMsg InstalaManipuladorMsg(ManipuladorMsg manipulador)
{
    ManipuladorMsg anterior = manipuladorAtual();
    manipuladorAtual() = std::move(manipulador);
    return anterior;
}

int RespostaPadrao(int estilo)
{
    const int botoes = estilo & Msg::MascaraBotoes;
    const int padrao = (estilo & Msg::MascaraPadrao) / Msg::DefaultButton2;  // 0, 1 or 2
    switch (botoes) {
    case Msg::OKCancel: return padrao == 0 ? Msg::OK : Msg::Cancel;
    case Msg::YesNoCancel: return padrao == 0 ? Msg::Yes : (padrao == 1 ? Msg::No : Msg::Cancel);
    case Msg::YesNo: return padrao == 0 ? Msg::Yes : Msg::No;
    default: return Msg::OK;
    }
}

int ManipuladorConsole(const QString& texto, int estilo, const QString& titulo)
{
    const QByteArray linha = (titulo + QStringLiteral(": ") + texto).toUtf8();
    std::fprintf(stderr, "%s\n", linha.constData());
    return RespostaPadrao(estilo);
}
