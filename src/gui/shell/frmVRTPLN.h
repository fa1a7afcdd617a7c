#pragma once
// The main window: an MDI frame with the declaration, tools and help menus, the toolbar and the three-panel
// status bar. It holds no logic of its own: each command opens a child screen or hands an action to one.
#include "gui/screens/Telas.h"

#include <QHash>
#include <QMainWindow>

class QAction;
class QDialog;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QToolBar;
class TelaFilha;

class frmVRTPLN : public QMainWindow, public AnfitriaoTelas {
    Q_OBJECT
public:
    explicit frmVRTPLN(QWidget* parent = nullptr);
    ~frmVRTPLN() override;

    // The one main window of the run, or null before it exists and after it is gone.
    static frmVRTPLN* instancia();

    // The load step: compacts and connects the database, sets the menus and the version panel.
    // Returns false when the database cannot be used; the window must then not be shown.
    bool carrega();

    // Menu items and toolbar buttons by their control names ("mnuDeclaracaoAbrir", ...).
    QAction* acao(const QString& nome) const;
    QMdiArea* mdiArea() const { return m_mdi; }
    QLabel* painel(int numero) const;  // 1 to 3

    // Child screens, and the screen routines the screens call through Telas.h.
    void abreTela(int tela) override;
    void fechaTela() override;
    TelaFilha* telaAberta() const override;
    void abreTelaArquivo(const QString& importaTabela, const QString& titulo) override;
    void habilitaMenus(bool telaAberta) override;
    void atualizaBarraStatus() override;
    void definePainelStatus(int painel, const QString& texto) override;
    QString textoPainelStatus(int painel) const override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void criaMenus();
    void criaBarraFerramentas();
    void criaBarraStatus();
    QAction* novaAcao(const QString& nome, const QString& texto);
    void salvar();
    void abreEscolha(int funcao);
    void novaDeclaracao(int tela, int funcao);
    void mostraManutencao(const QString& nome, bool& peloMenu);
    void topicos();
    void calculadora();

    QMdiArea* m_mdi = nullptr;
    QToolBar* m_barra = nullptr;
    QLabel* m_paineis[3] = {nullptr, nullptr, nullptr};
    QHash<QString, QAction*> m_acoes;
    QHash<int, QMdiSubWindow*> m_telas;
};

// Centres a child screen in the main window's MDI area.
void CentralizaForm(QWidget* principal, QWidget* form);
