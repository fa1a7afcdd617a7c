#pragma once
// The page "Produto" of the foreign-product tab in the individual editor: one item of the exit invoice per
// product line, with its values and its differing rates. Items of one product across the declaration's
// invoices share NCM, unit and, where the first one has them, rates.
#include <QWidget>
#include <functional>

class AliquotaDiferente;
class CabecalhoProduto;
class ConsultGrid;
class DecimalField;
class DigitField;
class QuatroBotoes;

class PaginaProdutoIndividual : public QWidget {
    Q_OBJECT
public:
    PaginaProdutoIndividual(std::function<QString()> idVrt, std::function<qint64()> idNfs, QWidget* parent = nullptr);

    bool ValidaDadosPE();
    void CarregaGridPE();
    void LimpaCamposPENFS();
    void incluir();
    void alterar();
    void excluir();

    DigitField* txtItem = nullptr;                         // txtProdutoEstrangeiroNFS(0)
    CabecalhoProduto* cabecalho = nullptr;
    DecimalField* mskProdutoEstrangeiroNFS[6] = {};        // (1) quantity, (2) unit value, (3) statistical, (5) IPI
    AliquotaDiferente* aliquotaII = nullptr;
    AliquotaDiferente* aliquotaIPI = nullptr;
    ConsultGrid* grdConsultaNotaFiscalSaida = nullptr;
    QuatroBotoes* botoes = nullptr;

signals:
    void mostraPagina();
    // Items were added, changed or removed: the item picker of the other page follows.
    void itensMudaram();

private:
    void escolheLinha(int linha);
    bool recusa(const QString& texto, QWidget* foco);
    bool confereProduto(qint64 excetoId);
    QString celula(const QString& coluna) const;

    std::function<QString()> m_idVrt;
    std::function<qint64()> m_idNfs;
    int m_linha = -1;
};
