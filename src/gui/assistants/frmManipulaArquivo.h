#pragma once
// The file and folder chooser every file command shares. Its caption, set by the command and copied to the
// first status panel, says what cmdOk does:
//   "Gravar para Transmissão", "Gravar Backup"        folder mode: writes the declarations picked in the chooser
//   "Importar VRT", "Restaurar Backup"                reads a declaration file
//   "Importar Moeda", "Importar NCM", "Importar Produto", "Importar UF",
//   "Importar Unidade de Medida Comercial"           imports a reference table file
//   "Importar Banco de Dados da Versão 1.0"          the old version's database
#include "gui/screens/TelaFilha.h"

#include <QString>
#include <QStringList>
#include <functional>

class QComboBox;
class FolderTreeModel;
class QFileSystemModel;
class QGroupBox;
class QLabel;
class QListView;
class QProgressBar;
class QPushButton;
class QTreeView;

class frmManipulaArquivo : public TelaFilha {
    Q_OBJECT
public:
    // The working state of a file operation, from the chooser's pick or the click in the list to its end.
    // The identification picked in the declaration chooser; not empty puts the screen in folder mode.
    static inline QString IdVrtEscolhida;
    // The rows picked in the chooser, in picking order; when there are any they are written instead of
    // IdVrtEscolhida.
    static inline QStringList VrtsSelecionadas;
    static inline QString PastaDestino;
    static inline QString NomeArquivo;
    static inline QString PastaArquivo;

    // Replaces the old version's import (BancoAnterior::ImportaBancoAnterior) when set: tests watch the name check
    // alone through it. It answers true on success.
    static inline std::function<bool(const QString& pasta, const QString& nome)> ImportaBancoAnterior;

    explicit frmManipulaArquivo(QWidget* pai = nullptr);

    // Mode 0 sets the caption "Importar".
    void FuncaoForm(int funcao) override;

    // The folder the tree shows, and the file list's folder.
    QString pastaAtual() const;
    // Opens the tree down to `pasta`, within the place chosen in Drive1, and makes it the current folder.
    void selecionaPasta(const QString& pasta);

    // The places Drive1 lists: the user's home, mounted media, and the root of the file system.
    struct Lugar {
        QString raiz;
        QString nome;
    };
    static QList<Lugar> Lugares();

    QGroupBox* fraPasta;
    QGroupBox* fraArquivo;
    QLabel* Label1;
    QLabel* Label2;
    QComboBox* Drive1;
    QTreeView* Dir1;
    QListView* File1;
    QProgressBar* ProgBarCopia;
    QLabel* lblCopiaAnd;
    QPushButton* cmdOk;
    QPushButton* cmdCancela;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void montaTela();
    void carregaUnidades();
    void Drive1_Change(int indice);
    void Dir1_Change(const QString& pasta);
    void File1_Click(const QString& nome);
    void cmdOk_Click();
    void cmdCancela_Click();
    void gravaDeclaracoes();
    void atualizaLista();
    void emAndamento(bool sim);
    void avanca(int percentual);

    static bool dentroDe(const QString& pasta, const QString& raiz);

    FolderTreeModel* m_pastas = nullptr;
    QFileSystemModel* m_arquivos = nullptr;
    bool m_modoPasta = false;
    int m_unidadeAnterior = -1;
};
