#pragma once
// The page "Produto" of the foreign-product tab in the monthly editor: a product is one item of the declaration
// spread over destinations, with one row of differing rates for all of them. A later destination must repeat
// the unit, the NCM and the rates of the first; a change of a row with other destinations must agree with them.
#include <QWidget>
#include <functional>

class AliquotaDiferente;
class CabecalhoProduto;
class ConsultGrid;
class DecimalField;
class QComboBox;
class QuatroBotoes;

class PaginaProdutoMensal : public QWidget {
    Q_OBJECT
public:
    PaginaProdutoMensal(std::function<QString()> idVrt, QWidget* parent = nullptr);

    bool ValidaDadosPE();
    void CarregaGridPE();
    void LimpaCamposPE();
    void incluir();
    void alterar();
    void excluir();

    CabecalhoProduto* cabecalho = nullptr;
    DecimalField* mskPE[3] = {};          // (1) total statistical quantity, (2) quantity of the destination
    QComboBox* cboLocalPE = nullptr;
    AliquotaDiferente* aliquotaII = nullptr;
    AliquotaDiferente* aliquotaIPI = nullptr;
    ConsultGrid* grdConsultaCodigoControleInterno = nullptr;
    QuatroBotoes* botoes = nullptr;

signals:
    // A validation failed: the tab and this page must be in front.
    void mostraPagina();

private:
    void escolheLinha(int linha);
    bool recusa(const QString& texto, QWidget* foco);
    bool confereAliquota(AliquotaDiferente* a, const QString& guardada, QWidget* focoSemCampo, bool exigeJustificativa);
    QString celula(const QString& coluna) const;

    std::function<QString()> m_idVrt;
    int m_linha = -1;
};
