#pragma once
// The sub-tabs of the difference values on tab "Dados Gerais": tab 0 " Mandado Judicial", tab 1
// "Retificação", each one entry block (see BlocosValores). The retification tab also shows, above its block,
// the number to rectify and the restitution process of the general data.
#include <QWidget>
#include <functional>

class ExecutorBloco;
class QTabWidget;

class AbaValores : public QWidget {
    Q_OBJECT
public:
    AbaValores(std::function<QVariant()> idVrt, std::function<bool()> temProcesso, QWidget* quadroRetificacao,
               QWidget* parent = nullptr);

    QTabWidget* tabValores = nullptr;
    ExecutorBloco* bloco(int indice) const { return m_blocos[indice]; }

    // As a fresh editor shows it: disabled, both tabs hidden, tab 0 current, entry of both blocks closed.
    void inicia();
    // CarregaGridValoresMandado / CarregaGridValoresRetificacao.
    void carrega(int indice);
    // LimpaCamposValoresMandado / LimpaCamposValoresRetificacao.
    void limpa(int indice);
    // A tab opened (its box ticked) or given up: the entry fields and Incluir go on or off with it.
    void abreEntrada(int indice, bool aberta);

private:
    ExecutorBloco* m_blocos[2] = {};
};
