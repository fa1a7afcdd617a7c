#pragma once
// The one implementation of the editors' entry blocks. A block is described as data (DescricaoBloco): the store
// side (BlocoEntrada: table, parent, key, columns, order) and the screen side (its fields with their names,
// kinds and empty-field messages in the order they are checked, its grid's titles, columns and widths, the
// name pattern of its four buttons, its two messages). ExecutorBloco builds the widgets from it and runs the
// block: fills the grid, loads a chosen row into the fields, validates, inserts, updates, deletes, empties.
// What one block does beyond that is a named hook of its description.
//
// Item blocks (gui/items) use the richer parts: NCM and product code fields with a picker button beside them
// (Ncm, Produto, `botao`), read-only fields, fields on several rows (`linha`), an ordered list of checks
// (`regras`: emptiness, lookups, duplicates and cross-row tests, each with its message and focus target), and
// hooks that read the grid (`linhas`), write (`grava`) and delete (`apaga`) through the core's item routines
// when a block's rows span several tables (an item and its destinations, an item and its modality's row).
//
// Every write sets AlteracaoPendente; nothing here commits: all of it works in the editor's open transaction.
#include "core/store/BlocoEntrada.h"
#include "core/store/ComandoSqlite.h"
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

class QPushButton;
class QWidget;

struct CampoBloco {
    // Ncm: an NcmField whose `alvos` are its description and statistical unit fields; Produto: a
    // ProductCodeField whose `alvos` name its description field. Marca: a check box, "1" when set and "" when
    // not; loading a row sets it when its column is neither empty nor "0".
    enum Tipo { Lista, Decimal, Digitos, Mascara, Texto, Ncm, Produto, Marca };
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
    int linha = 0;         // the row of the block's fields it stands on
    bool somenteLeitura = false;  // shown, never typed into (a description filled by a lookup)
    QString msgZero{};       // a decimal or digit field: the message for a value of zero when it is left
    QString botao{};         // objectName of a picker button beside the field ("" none); see DescricaoBloco::escolhe
    QString chamador{};      // the caller key the picker button leaves (ChamadorProduto, ChamadorNCM)
    QStringList alvos{};     // Ncm: description and statistical unit fields; Produto: description field
    // The field's own setup beyond its kind, run once every field exists (a coefficient's extra check).
    std::function<void(QWidget* campo, ExecutorBloco& bloco)> ajusta = nullptr;
};

// Incluir, Alterar or Excluir, for the checks and the writing hooks.
enum class Operacao { Incluir, Alterar, Excluir };

// One check of a block, in the order of the description: `teste` gives the message of a refusal, or "" to go
// on. `foco` is the objectName of the control that gets the focus (a field, a picker button, a button);
// "" is the button that was clicked.
struct RegraBloco {
    std::function<QString(const ExecutorBloco& bloco, Operacao op)> teste;
    QString foco;
};

struct ColunaGrade {
    QString titulo;
    QString coluna;        // column or expression of the block's table
    int largura = 0;       // pixels; 0 hides the column
    QString formato;       // a number format ("#,##0.00") or a character mask ("@@@@.@@.@@") for the text shown
    // The text shown, when it depends on the value (a number shown by one of two masks by its length).
    std::function<QString(const QString& valor)> exibe = nullptr;
    QString maisLarga = QString();  // the widest value the column shows, so that none is cut (a list's longest entry)
};

struct DescricaoBloco {
    BlocoEntrada dados;
    QList<CampoBloco> campos;
    QString nomeGrade;
    QString tituloGrade;   // the caption of the frame around the grid
    QList<ColunaGrade> colunasGrade;
    QString padraoBotoes;  // see QuatroBotoes
    QString msgSemSelecao; // Alterar or Excluir with no row chosen; empty: the button does nothing then
    QString msgDuplicado;  // the key already stands under the parent

    QString tituloCampos;  // with a text, the fields stand in a frame of that caption

    // Hooks. The entries of a list field, asked each time the list is rebuilt.
    std::function<QList<OpcaoLista>(const QString& campo, const ExecutorBloco& bloco)> opcoes;
    // With checks listed, they replace the empty-field messages of the fields and the duplicate test.
    QList<RegraBloco> regras;
    // Checks of Excluir, after the test of a chosen row and before the question.
    QList<RegraBloco> regrasExcluir;
    // The grid's rows, each in the order of colunasGrade, when they do not come from the one table.
    std::function<QList<QStringList>(const QVariant& pai)> linhas;
    // Writes the fields for Incluir or Alterar (AlteracaoPendente is already set), instead of the one row.
    std::function<void(const ExecutorBloco& bloco, const QVariant& pai, Operacao op)> grava;
    // The question Excluir asks before deleting, instead of "Deseja realmente excluir?".
    std::function<QString(const ExecutorBloco& bloco)> perguntaExcluir;
    // Deletes the chosen row's rows after the confirmation, instead of the one row.
    std::function<void(const ExecutorBloco& bloco, const QVariant& pai)> apaga;
    // A picker button was clicked: shows the picker for the field (the focus then goes back to the button).
    std::function<void(const CampoBloco& campo, ExecutorBloco& bloco)> escolhe;
    // After a successful Incluir or Alterar has reloaded and emptied the block.
    std::function<void(ExecutorBloco& bloco, Operacao op)> depois;
    // After a chosen row has filled the fields: what the screen shows beside them (valorEscolhido reads the row).
    std::function<void(ExecutorBloco& bloco)> aoEscolher;
    // After the fields were emptied: what the screen keeps beside them is emptied too.
    std::function<void(ExecutorBloco& bloco)> aoLimpar;
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
    // Before constroi: a field the screen made and placed itself (an item number shared by two blocks of one
    // tab) serves as the field of that name, which is then neither made nor laid out here.
    void adotaCampo(const QString& nome, QWidget* campo) { m_campos.insert(nome, campo); }
    // Before constroi: four buttons shared by several blocks of one tab. The screen places them and sends their
    // clicks to the block that is in use; this block only enables and disables them.
    void adotaBotoes(QuatroBotoes* botoes) { m_botoes = botoes; }
    // Before constroi: a frame of the screen's own (rates with a check) laid out below the fields, in their frame.
    void adotaQuadro(QWidget* quadro) { m_quadrosAdotados.append(quadro); }

    const DescricaoBloco& descricao() const { return m_d; }
    QWidget* campo(const QString& nome) const { return m_campos.value(nome); }
    // A field, a picker button or one of the four buttons, by its objectName.
    QWidget* controle(const QString& nome) const;
    // The text of a field as the store takes it, by the field's objectName.
    QString valor(const QString& nomeCampo) const;
    // The chosen row's value of a grid column (by column name), "" when no row is chosen.
    QString valorEscolhido(const QString& coluna) const;
    // The parent key of the rows, as the editor gives it now.
    QVariant pai() const { return m_pai(); }
    // The fields' values by column, as Incluir writes them.
    QVariantMap valoresDosCampos() const;
    ConsultGrid* grade() const { return m_grade; }
    QGroupBox* quadroGrade() const { return m_quadro; }
    QuatroBotoes* botoes() const { return m_botoes; }
    // The key of the chosen row, in the order of the key columns; empty when none is chosen.
    QVariantList chaveSelecionada() const { return m_chave; }

    // Carrega...: fills the grid and disables Alterar, Excluir and Limpar. The rows are read when the grid is
    // shown or asked for its rows (a hidden tab's grid costs nothing until then), and not read again when
    // nothing was written and the parent is the same since they were read: the grid then only comes back to its
    // first row, as a fill leaves it.
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

signals:
    // A check or the selection refused the operation (its message was shown): the block's page comes forward.
    void recusou();

private:
    QWidget* criaCampo(const CampoBloco& c, QWidget* pai);
    void escolheLinha(int linha);
    // The rows as the store gives them, and one of them as the grid shows it (formatted, the blank first cell).
    QList<QStringList> linhasDoBanco() const;
    QStringList linhaDaGrade(const QStringList& doBanco) const;
    void preencheGrade();
    bool gradeEmDia() const;
    void atualizaGrade();
    void semEscolha();
    void preencheCampo(const CampoBloco& c, const QString& valor, const QString& texto);
    bool validaCampos();
    QVariantList chaveDosCampos() const;
    QStringList colunasConsulta() const;
    bool passaRegras(const QList<RegraBloco>& regras, Operacao op, QWidget* botao);
    void ligaAlvos();
    int colunaDaGrade(const QString& coluna) const;
    void recusa(const QString& texto, QWidget* foco);
    void escolhida(const QString& nomeLista);

    DescricaoBloco m_d;
    std::function<QVariant()> m_pai;
    QHash<QString, QWidget*> m_campos;
    QHash<QString, QPushButton*> m_botoesEscolha;
    int m_linha = -1;
    ConsultGrid* m_grade = nullptr;
    QGroupBox* m_quadro = nullptr;
    QuatroBotoes* m_botoes = nullptr;
    QList<QWidget*> m_quadrosAdotados;
    QVariantList m_chave;
    // The rows the grid shows, as read, with the write mark and the parent they were read at.
    QList<QStringList> m_lidas;
    MarcaEscrita m_marca;
    QVariant m_paiLido;
};
