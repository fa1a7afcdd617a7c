#include "gui/screens/Telas.h"

#include "core/session/modVRTPLN.h"
#include "gui/screens/TelaFilha.h"

#include <QHash>

namespace {

AnfitriaoTelas* anfitriao = nullptr;

QHash<int, FabricaTela>& fabricasTela()
{
    static QHash<int, FabricaTela> f;
    return f;
}

QHash<QString, FabricaDialogo>& fabricasDialogo()
{
    static QHash<QString, FabricaDialogo> f;
    return f;
}

}  // namespace

void InstalaAnfitriaoTelas(AnfitriaoTelas* novo)
{
    anfitriao = novo;
}

void AbreTela(int tela)
{
    if (anfitriao)
        anfitriao->abreTela(tela);
}

void FechaTela()
{
    if (anfitriao)
        anfitriao->fechaTela();
}

void ZeraTelaAtual()
{
    modVRTPLN::TelaAtual = modVRTPLN::Nenhuma;
}

void HabilitaMenus(bool telaAberta)
{
    if (anfitriao)
        anfitriao->habilitaMenus(telaAberta);
}

void AtualizaBarraStatus()
{
    if (anfitriao)
        anfitriao->atualizaBarraStatus();
}

void DefinePainelStatus(int painel, const QString& texto)
{
    if (anfitriao)
        anfitriao->definePainelStatus(painel, texto);
}

QString TextoPainelStatus(int painel)
{
    return anfitriao ? anfitriao->textoPainelStatus(painel) : QString();
}

TelaFilha* TelaAberta()
{
    return anfitriao ? anfitriao->telaAberta() : nullptr;
}

void AbreTelaComFuncao(int tela, int funcao)
{
    AbreTela(tela);
    if (TelaFilha* aberta = TelaAberta(); aberta && modVRTPLN::TelaAtual == tela)
        aberta->FuncaoForm(funcao);
}

void AbreTelaArquivo(const QString& importaTabela, const QString& titulo)
{
    if (anfitriao)
        anfitriao->abreTelaArquivo(importaTabela, titulo);
}

void RegistraTela(int tela, FabricaTela fabrica)
{
    fabricasTela().insert(tela, std::move(fabrica));
}

void RegistraDialogo(const QString& nome, FabricaDialogo fabrica)
{
    fabricasDialogo().insert(nome, std::move(fabrica));
}

bool TelaRegistrada(int tela)
{
    return fabricasTela().contains(tela);
}

FabricaTela FabricaDaTela(int tela)
{
    return fabricasTela().value(tela);
}

FabricaDialogo FabricaDoDialogo(const QString& nome)
{
    return fabricasDialogo().value(nome);
}
