#pragma once
// What the four reference table assistants share: a list of one table in a consult grid, an optional code
// filter, the picker face (Ok writes the chosen row into the calling editor through its caller key) and the
// maintenance face (Incluir, Alterar, Excluir in a transaction of its own, with the closing question).
// frmAssistenteCCI, frmAssistenteMED, frmAssistNCM and frmAssistMoeda are this class configured.
#include <QDialog>
#include <QList>
#include <QString>

#include "gui/widgets/ConsultGrid.h"

class DestinosEscolha;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

class AssistenteTabela : public QDialog {
    Q_OBJECT
public:
    struct Configuracao {
        QString nome;        // objectName of the screen
        QString titulo;      // caption
        QString nomeGrade;   // objectName of the grid
        QString tabela;
        QString colunaCodigo;
        QString colunaNome;
        QString colunaComplemento;  // a third column (the NCM's statistical unit), or empty
        // Titles of the shown code, name and complement.
        QStringList titulos = {QStringLiteral("Código"), QStringLiteral("Descrição")};
        QString formatoCodigo;      // display mask of the code ("@@@@.@@.@@"), or empty
        bool codigoSemCaixa = false;  // searches compare codes without regard to case, as the old engine did
        bool filtro = true;
        int tamanhoFiltro = 15;
        bool filtroSoDigitos = false;
        QString textoNaoEncontrado;  // "Código de ... não encontrado!"
        // Picker: where the choice goes. Null for a screen that never picks (units).
        DestinosEscolha* destinos = nullptr;
        const QString* chamador = nullptr;
        // Maintenance: the session flag that tells the menu face; null for a picker only.
        bool* peloMenu = nullptr;
        QString sufixoBotoes;  // "Produto": cmdIncluir_Produto ...
        QString nomeCampoCodigo, nomeCampoDescricao, nomeRotuloCodigo, nomeRotuloDescricao;
        QString rotuloCodigo = QStringLiteral("&Código:");
        QString rotuloDescricao = QStringLiteral("&Descrição:");
        int tamanhoCodigo = 15;
        int tamanhoDescricao = 45;
        QString textoCodigoVazio, textoDescricaoVazia, textoDuplicado;
    };

    // Grid columns: the code as stored (hidden), the code as shown, the name, the complement.
    enum Coluna { ColunaChave = 0, ColunaCodigoMostrado = 1, ColunaNome = 2, ColunaComplemento = 3 };

    AssistenteTabela(const Configuracao& configuracao, QWidget* pai = nullptr);
    ~AssistenteTabela() override;

    // The value the list starts from: the calling field's text. Set before the screen is shown.
    void defineFiltro(const QString& filtro);
    bool peloMenu() const { return m_menu; }
    ConsultGrid* grade() const { return m_grade; }

public slots:
    void reject() override;

protected:
    void showEvent(QShowEvent* evento) override;

    // The controls, by the names each screen gives them (its subclass exposes them under those names).
    QGroupBox* m_fraFiltro = nullptr;
    QLabel* m_lblFiltro = nullptr;
    QLineEdit* m_txtCodigo = nullptr;
    QPushButton* m_cmdFiltro = nullptr;
    ConsultGrid* m_grade = nullptr;
    QLabel* m_lblCodigo = nullptr;
    QLabel* m_lblDescricao = nullptr;
    QLineEdit* m_txtCodigoCadastro = nullptr;
    QLineEdit* m_txtDescricaoCadastro = nullptr;
    QPushButton* m_cmdIncluir = nullptr;
    QPushButton* m_cmdAlterar = nullptr;
    QPushButton* m_cmdExcluir = nullptr;
    QPushButton* m_cmdOk = nullptr;
    QPushButton* m_cmdCancela = nullptr;

private:
    void montaTela();
    void aoAtivar();
    void carregaGrade();
    void selecionaLinha(int linha);
    void limpaCampos();
    void cmdFiltro_Click();
    void cmdOk_Click();
    void cmdIncluir_Click();
    void cmdAlterar_Click();
    void cmdExcluir_Click();
    bool validaCampos();
    bool codigoJaIncluido(const QString& codigo) const;
    // The closing step of the menu face: the question, then commit or roll back; false keeps the screen open.
    bool passoFechamento();

    Configuracao m_cfg;
    bool m_menu = false;
    bool m_ativado = false;
    bool m_fechando = false;
    QString m_chaveAntiga;
};
