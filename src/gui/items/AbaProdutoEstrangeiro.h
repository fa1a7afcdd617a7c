#pragma once
// The tab "Produto Estrangeiro" of both editors: the page "Produto" (monthly or individual) and the page
// "Documento de Origem".
#include <QWidget>
#include <functional>

class PaginaDocumentoOrigem;
class PaginaProdutoIndividual;
class PaginaProdutoMensal;
class QTabWidget;

class AbaProdutoEstrangeiro : public QWidget {
    Q_OBJECT
public:
    AbaProdutoEstrangeiro(bool individual, std::function<QString()> idVrt, std::function<qint64()> idNfs,
                          QWidget* parent = nullptr);

    // The editor shows the tab: the page "Produto" reads its grid again.
    void entra();

    QTabWidget* tabProdutoEstrangeiro = nullptr;
    PaginaProdutoMensal* produtoMensal = nullptr;        // the monthly editor
    PaginaProdutoIndividual* produtoIndividual = nullptr; // the individual editor
    PaginaDocumentoOrigem* documentoOrigem = nullptr;

signals:
    // A check failed on the page "Produto": the editor brings this tab to the front.
    void mostraAba();

private:
    void trocaPagina(int indice);
    void mostraProduto();
    bool m_voltando = false;
};
