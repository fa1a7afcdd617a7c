#pragma once
// The product part of an item page: NCM with its description and statistical unit, product code with its
// description, the commercial unit, the NCM and product pickers under the page's caller key, and the first
// five checks of the product validation.
#include <QString>
#include <QWidget>

class NcmField;
class ProductCodeField;
class QComboBox;
class QLineEdit;
class QPushButton;

struct NomesCabecalho {
    QString ncm, descricaoNcm, unidadeEstatistica, codigo, descricao, unidade;
    QString chave;            // the pickers' caller key ("produtoPEMensal", "produtoPE")
    QString rotuloUnidade;    // "Unidade comercial", "Unidade de medida comercial"
    QString botaoNcm, botaoProduto;  // the picker buttons
};

class CabecalhoProduto : public QWidget {
    Q_OBJECT
public:
    CabecalhoProduto(const NomesCabecalho& nomes, QWidget* parent = nullptr);

    // The list of units, asked again when the page is shown.
    void carregaUnidades();
    // Checks 1 to 5 of the product validation, with their messages and focus.
    bool valida();
    void limpa();
    // Shows a stored product: NCM (eight digits), code, name, unit.
    void mostra(const QString& ncm, const QString& codigo, const QString& nome, const QString& unidade);

    QString ncm() const;        // eight digits
    QString codigo() const;
    QString descricao() const;
    QString unidade() const;

    NcmField* campoNcm = nullptr;
    QLineEdit* campoDescricaoNcm = nullptr;
    QLineEdit* campoUnidadeEstatistica = nullptr;
    ProductCodeField* campoCodigo = nullptr;
    QLineEdit* campoDescricao = nullptr;
    QComboBox* cboUnidade = nullptr;
    QPushButton* cmdNcm = nullptr;
    QPushButton* cmdProduto = nullptr;
};
