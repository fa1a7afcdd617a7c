#pragma once
// The four buttons of an entry block: Incluir (enabled from the start), Alterar, Excluir and Limpar (enabled
// once a row of the block's grid is chosen). Each button takes its control name from one pattern, "%1" standing
// for the button's word:
//     botoes = new QuatroBotoes(QStringLiteral("cmd%1Valores(0)"), this);   // cmdIncluirValores(0), ...
//     botoes = new QuatroBotoes(QStringLiteral("cmd%1_tab100Nacional_Mensal"), this);
#include <QWidget>

class QPushButton;

class QuatroBotoes : public QWidget {
    Q_OBJECT
public:
    QuatroBotoes(const QString& padraoNome, QWidget* parent = nullptr);

    // Alterar, Excluir and Limpar together: on when a row is chosen, off after a reload.
    void habilitaSelecao(bool ligado);

    QPushButton* cmdIncluir;
    QPushButton* cmdAlterar;
    QPushButton* cmdExcluir;
    QPushButton* cmdLimpar;
};
