#pragma once
// The one implementation of the editors' entry blocks. A block is described as data (DescricaoBloco): the store
// side (BlocoEntrada: table, parent, key, columns, order) and the screen side (its fields with their names,
// kinds and empty-field messages in the order they are checked, its grid's titles, columns and widths, the
// name pattern of its four buttons, its two messages). ExecutorBloco builds the widgets from it and runs the
// block: fills the grid, loads a chosen row into the fields, validates, inserts, updates, deletes, empties.
// What one block does beyond that is a named hook of its description.
//
// Every write sets AlteracaoPendente; nothing here commits: all of it works in the editor's open transaction.
#include "core/store/BlocoEntrada.h"
#include "gui/widgets/DecimalField.h"

#include <QComboBox>
#include <QHash>
#include <QObject>
#include <functional>

class ConsultGrid;
class QuatroBotoes;
class QGroupBox;
class ExecutorBloco;

// An entry of a list field: the text shown and its item data.
struct OpcaoLista {
    QString texto;
    QVariant dado;
};

struct CampoBloco {
    enum Tipo { Lista, Decimal, Digitos, Mascara, Texto };
    QString nome;          // objectName, and member name in the tab
    QString rotulo;        // the label above it
    Tipo tipo = Texto;
    QString coluna;        // the column of its value; a list's item data
    QString colunaTexto;   // a list only: the column that keeps the text shown
    int largura = 0;       // most characters typed (digit and text fields)
    DecimalField::Family familia = DecimalField::TotalValue;
    QString formato;       // a decimal field's display format; a masked field's mask
    QString msgVazio;      // refused when empty (a list: nothing chosen; a decimal: empty or zero)
    QString dependeDe;     // a list rebuilt (and left unchosen) when this other list is chosen
    int larguraTela = 0;   // minimum width in pixels, 0 for the kind's own
};

struct ColunaGrade {
    QString titulo;
    QString coluna;        // column or expression of the block's table
    int largura = 0;       // pixels; 0 hides the column
    QString formato;       // a number format for the text shown ("#,##0.00"), or none
    QString maisLarga = QString();  // the widest value the column shows, so that none is cut (a list's longest entry)
};

struct DescricaoBloco {
    BlocoEntrada dados;
    QList<CampoBloco> campos;
    QString nomeGrade;
    QString tituloGrade;   // the caption of the frame around the grid
    QList<ColunaGrade> colunasGrade;
    QString padraoBotoes;  // see QuatroBotoes
    QString msgSemSelecao; // Alterar or Excluir with no row chosen
    QString msgDuplicado;  // the key already stands under the parent

    // Hooks. The entries of a list field, asked each time the list is rebuilt.
    std::function<QList<OpcaoLista>(const QString& campo, const ExecutorBloco& bloco)> opcoes;
};

// A list field that rebuilds itself when it is dropped down or gets the focus, where its description says so.
class ListaBloco : public QComboBox {
    Q_OBJECT
public:
    explicit ListaBloco(const QString& nome, QWidget* parent = nullptr);
    void showPopup() override;

signals:
    void abrindo();

protected:
    void focusInEvent(QFocusEvent* event) override;
};

class ExecutorBloco : public QObject {
    Q_OBJECT
public:
    // `pai` gives the parent key of the rows (the declaration's identification) when a statement runs.
    ExecutorBloco(DescricaoBloco descricao, std::function<QVariant()> pai, QObject* dono = nullptr);

    // Builds the block's widgets into `area`: the fields in a row with their labels, the four buttons, the grid
    // in its frame. Called once.
    void constroi(QWidget* area);

    const DescricaoBloco& descricao() const { return m_d; }
    QWidget* campo(const QString& nome) const { return m_campos.value(nome); }
    ConsultGrid* grade() const { return m_grade; }
    QGroupBox* quadroGrade() const { return m_quadro; }
    QuatroBotoes* botoes() const { return m_botoes; }
    // The key of the chosen row, in the order of the key columns; empty when none is chosen.
    QVariantList chaveSelecionada() const { return m_chave; }

    // Carrega...: fills the grid and disables Alterar, Excluir and Limpar.
    void carrega();
    // The chosen row is forgotten: no key and no row highlighted. Fields and buttons stay as they are.
    void esqueceEscolha();
    // LimpaCampos...: lists unchosen, other fields emptied.
    void limpa();
    // Rebuilds a list field's entries, keeping its choice when the entry is still offered.
    void recarregaLista(const QString& nome);
    // Fields on or off together (the buttons are left alone).
    void habilitaCampos(bool ligado);
    bool temLinhas() const;
    // Removes every row of the parent, with AlteracaoPendente set when there were rows; the grid is reloaded.
    void excluiTodos();

    // The four buttons.
    void incluir();
    void alterar();
    void excluir();
    void limpar();

    // The value a field gives to the store, and for a list its text.
    QVariant valorCampo(const CampoBloco& c) const;

private:
    QWidget* criaCampo(const CampoBloco& c, QWidget* pai);
    void escolheLinha(int linha);
    void preencheCampo(const CampoBloco& c, const QString& valor, const QString& texto);
    bool validaCampos();
    QVariantList chaveDosCampos() const;
    QVariantMap valoresDosCampos() const;
    QStringList colunasConsulta() const;
    int colunaDaGrade(const QString& coluna) const;
    void recusa(const QString& texto, QWidget* foco);
    void escolhida(const QString& nomeLista);

    DescricaoBloco m_d;
    std::function<QVariant()> m_pai;
    QHash<QString, QWidget*> m_campos;
    ConsultGrid* m_grade = nullptr;
    QGroupBox* m_quadro = nullptr;
    QuatroBotoes* m_botoes = nullptr;
    QVariantList m_chave;
};
