#pragma once
// The screen routines every child screen calls, and the registry of the screens that the main window's commands
// open. The main window implements the routines (AnfitriaoTelas) and installs itself while it lives: the screens
// call them without knowing the main window, and the main window opens screens it does not know, by number.
#include <QString>
#include <functional>

class QDialog;
class QWidget;
class TelaFilha;

// The actions the commands hand to each screen through FuncaoForm.
namespace FuncaoEscolha {
enum : int { Abrir = 0, Eliminar = 1, Copiar = 2, GravarTransmissao = 3, GravarBackup = 4 };
}
namespace FuncaoEditor {
enum : int { NovaMensal = 0, NovaIndividual = 1, AbrirMensal = 2, AbrirIndividual = 3 };
}
namespace FuncaoArquivo {
enum : int { Importar = 0 };
}

class AnfitriaoTelas {
public:
    virtual ~AnfitriaoTelas() = default;
    virtual void abreTela(int tela) = 0;
    virtual void fechaTela() = 0;
    virtual TelaFilha* telaAberta() const = 0;
    virtual void abreTelaArquivo(const QString& importaTabela, const QString& titulo) = 0;
    virtual void habilitaMenus(bool telaAberta) = 0;
    virtual void atualizaBarraStatus() = 0;
    virtual void definePainelStatus(int painel, const QString& texto) = 0;
    virtual QString textoPainelStatus(int painel) const = 0;
};

// The main window installs itself as it is built and removes itself (null) as it goes.
void InstalaAnfitriaoTelas(AnfitriaoTelas* anfitriao);

// Without a main window (headless tests of a single screen) each routine does nothing.
void AbreTela(int tela);
void FechaTela();
void ZeraTelaAtual();
void HabilitaMenus(bool telaAberta);
void AtualizaBarraStatus();
void DefinePainelStatus(int painel, const QString& texto);
QString TextoPainelStatus(int painel);
// The screen now open, or null.
TelaFilha* TelaAberta();
// Opens screen `tela` and, when it is the one open afterwards, hands it `funcao`.
void AbreTelaComFuncao(int tela, int funcao);
// Opens the file chooser for a table import ("SIM") or not ("NAO"), under the given title.
void AbreTelaArquivo(const QString& importaTabela, const QString& titulo);

using FabricaTela = std::function<TelaFilha*()>;
using FabricaDialogo = std::function<QDialog*(QWidget* pai)>;
void RegistraTela(int tela, FabricaTela fabrica);
void RegistraDialogo(const QString& nome, FabricaDialogo fabrica);
bool TelaRegistrada(int tela);
FabricaTela FabricaDaTela(int tela);
FabricaDialogo FabricaDoDialogo(const QString& nome);
