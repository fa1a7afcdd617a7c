#pragma once
// A declaration of either type with one foreign product, made in a real editor and left open on the page
// "Documento de Origem" with a document kind chosen, and the ways a test fills a document frame.
#include "../editor/EditorTeste.h"

#include "core/store/ItemProdutoEstrangeiro.h"
#include "gui/items/AbaProdutoEstrangeiro.h"
#include "gui/items/PaginaDocumentoOrigem.h"
#include "gui/items/QuadroDocumento.h"
#include "gui/widgets/MaskedField.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include <functional>

#include "core/rules/FormatoNumero.h"
#include "gui/blocks/QuatroBotoes.h"

namespace DocumentoTeste {

using namespace EditorTeste;

// A DI number with a good check digit, from its first nine digits.
inline QString numeroDI(const QString& nove = QStringLiteral("091234567"))
{
    for (int d = 0; d <= 9; ++d)
        if (Funcoes::ValidaDigito(nove + QString::number(d), QStringLiteral("DI")))
            return nove + QString::number(d);
    return QString();
}

// A DSI number with a good check digit.
inline QString numeroDSI(const QString& nove = QStringLiteral("091234567"))
{
    for (int d = 0; d <= 9; ++d)
        if (Funcoes::ValidaDigito(nove + QString::number(d), QStringLiteral("DSI")))
            return nove + QString::number(d);
    return QString();
}

// A CNPJ with good check digits.
inline const QString CnpjFornecedor = QStringLiteral("11222333000181");

inline const char* nomeTipo(TipoDocumento t)
{
    return t == TipoDocumento::DI ? "DI" : t == TipoDocumento::DSI ? "DSI" : "NFA";
}

// One row per member of the foreign product's document family, named "DI mensal", "NFA individual", ... With a
// column, one row per member named in `valores`, with its value in that column.
template <class T = QString>
inline void linhasMembros(const char* coluna = nullptr, const QMap<QString, T>& valores = {})
{
    QTest::addColumn<int>("tipo");
    QTest::addColumn<bool>("individual");
    if (coluna)
        QTest::addColumn<T>(coluna);
    for (const MembroDocumento& m : MembrosDocumento()) {
        const QString nome = QString::fromLatin1(nomeTipo(m.tipo)) + (m.individual ? QStringLiteral(" individual")
                                                                                    : QStringLiteral(" mensal"));
        if (m.origem != Origem::Produto || (coluna && !valores.contains(nome)))
            continue;
        QTestData& linha = QTest::newRow(qPrintable(nome)) << int(m.tipo) << m.individual;
        if (coluna)
            linha << valores.value(nome);
    }
}

// One row per editor, named "mensal" and "individual".
inline void editores()
{
    QTest::addColumn<bool>("individual");
    QTest::newRow("mensal") << false;
    QTest::newRow("individual") << true;
}

// One row per editor with a value of its own in a column.
template <class T>
inline void editoresCom(const char* coluna, const T& mensal, const T& individual)
{
    QTest::addColumn<bool>("individual");
    QTest::addColumn<T>(coluna);
    QTest::newRow("mensal") << false << mensal;
    QTest::newRow("individual") << true << individual;
}

// One row per document kind, named "DI", "DSI" and "NFA".
inline void tipos()
{
    QTest::addColumn<int>("tipo");
    for (TipoDocumento t : {TipoDocumento::DI, TipoDocumento::DSI, TipoDocumento::NFA})
        QTest::newRow(nomeTipo(t)) << int(t);
}

// A query's expression over the columns of a table that holds one row.
inline QString valorDe(const QString& tabela, const QString& expressao)
{
    return BancoTeste::valor(QStringLiteral("SELECT ") + expressao + QStringLiteral(" FROM ") + tabela).toString();
}

// The kind and the editor of the running row of a table made by linhasMembros (or tipos, editores).
inline TipoDocumento tipoDaLinha()
{
    QFETCH(int, tipo);
    return static_cast<TipoDocumento>(tipo);
}

inline bool individualDaLinha()
{
    QFETCH(bool, individual);
    return individual;
}

inline AbaProdutoEstrangeiro* abaPE(Ambiente& a)
{
    return qobject_cast<AbaProdutoEstrangeiro*>(a.editor()->abaItens(1));
}

// Lines of each kind as a user types them. An empty number makes an old (not electronic) DI or DSI from its
// year, body and sequence; the value blocks (currency and value of the product, freight, insurance) are typed
// where a text is given, after the boxes are set.
struct ValoresBlocos {
    QString moedas[3];
    QString valores[3];
};

struct LinhaDI {
    QString numero = numeroDI();
    QString ano, orgao, sequencial;
    QString adicao = QStringLiteral("1");
    QString item = QStringLiteral("1");
    QString quantidade = QStringLiteral("4");
    bool decreto = false, obsolescencia = false, suspensao = false;
    ValoresBlocos blocos;
};

struct LinhaDSI {
    QString numero = numeroDSI();
    QString ano, orgao, sequencial;
    QString bem = QStringLiteral("1");
    QString quantidade = QStringLiteral("4");
    bool suspensao = false;
    ValoresBlocos blocos;
};

struct LinhaNFA {
    QString numero = QStringLiteral("1234");
    QString serie = QStringLiteral("A1");
    QString item = QStringLiteral("1");
    QString data = QStringLiteral("15012008");
    QString cfop = QStringLiteral("5102");
    QString cnpj = CnpjFornecedor;
    QString quantidade = QStringLiteral("4");
    bool decreto = false, obsolescencia = false;
    QString valorUnitario, valorTotal;
};

struct Cenario {
    Ambiente& a;
    bool individual;
    TipoDocumento tipo = TipoDocumento::DI;
    qint64 item = 0;
    qint64 destinos[2] = {};

    Cenario(Ambiente& ambiente, bool ind) : a(ambiente), individual(ind) {}
    // The page of the kind open on a new declaration with its product.
    Cenario(Ambiente& ambiente, bool ind, TipoDocumento escolhido) : a(ambiente), individual(ind)
    {
        declaracaoComProduto();
        abre(escolhido);
    }

    PaginaDocumentoOrigem* pagina() const { return abaPE(a)->documentoOrigem; }
    QuadroDocumento* quadro() const { return pagina()->quadro(tipo); }

    // The declaration with its product, stored through the store's routines of the modality.
    void declaracaoComProduto()
    {
        using namespace ItemProdutoEstrangeiro;
        const Item produto{0, QStringLiteral("PROD1"), QStringLiteral("Produto um"), QStringLiteral("84713012"),
                           QStringLiteral("UN"), QStringLiteral("20,00000")};
        if (individual) {
            a.novaIndividual();
            a.preencheIndividual();
            a.vaiParaAba(1);
            item = InsereItemNota(a.editor()->idNfs(), QStringLiteral("001"), produto,
                                  {QStringLiteral("10,00000"), QStringLiteral("5,0000000"), QStringLiteral("10,00000"),
                                   QString()});
            return;
        }
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(1);
        item = InsereItemMensal(a.editor()->idVrt(), produto);
        destinos[0] = InsereDestino(item, QStringLiteral("1"), QStringLiteral("12,00000"));
        destinos[1] = InsereDestino(item, QStringLiteral("2"), QStringLiteral("8,00000"));
    }

    // The page "Documento de Origem" with the kind chosen for the product at a destination, or for an item of the
    // invoice: the first, or the one after it.
    void abre(TipoDocumento escolhido = TipoDocumento::DI, int destino = 0)
    {
        tipo = escolhido;
        abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(1);
        if (individual) {
            a.escolhe(QStringLiteral("cboItem"), QStringLiteral("%1").arg(destino + 1, 3, 10, QLatin1Char('0')));
        } else {
            a.escolhe(QStringLiteral("cboDocProdutoPE"), QStringLiteral("PROD1"));
            a.escolhe(QStringLiteral("cboLocalDestinoProduto"),
                      destino == 0 ? QStringLiteral("Estados AC, AM, RO e RR")
                                   : QString::fromUtf8("Demais Unidades da Federação"));
        }
        a.clica(pagina()->opcoes[static_cast<int>(tipo)]->objectName());
    }

    QString nome(Papel p) const { return quadro()->membro().nomes.value(p); }
    void digita(Papel p, const QString& texto) { a.digita(nome(p), texto); }
    void clica(Papel p) { a.clica(nome(p)); }
    bool marcado(Papel p) const { return qobject_cast<QCheckBox*>(quadro()->campo(p))->isChecked(); }
    bool ativo(Papel p) const { return quadro()->campo(p)->isEnabled(); }
    QString texto(Papel p) const { return qobject_cast<QLineEdit*>(quadro()->campo(p))->text(); }
    // Types a value into a field and leaves it for `saida`, answering OK to the box `mensagem` when one is
    // expected; fails the test unless the boxes shown are exactly that one (or none).
    void digitaESai(Papel p, const QString& valor, const QString& mensagem, Papel saida = Papel::Quantidade)
    {
        if (!mensagem.isEmpty())
            a.msgs.responde(Msg::OK);
        digita(p, valor);
        a.sai(nome(saida));
        QCOMPARE(a.msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
    }
    void incluir() { a.clica(individual ? QStringLiteral("cmdIncluir_TabPE") : QStringLiteral("cmdIncluir_tabProdutoEstrangeiro")); }
    void alterar() { a.clica(individual ? QStringLiteral("cmdAlterar_TabPE") : QStringLiteral("cmdAlterar_tabProdutoEstrangeiro")); }
    void excluir() { a.clica(individual ? QStringLiteral("cmdExcluir_TabPE") : QStringLiteral("cmdExcluir_tabProdutoEstrangeiro")); }
    void escolheLinha(int linha)
    {
        ConsultGrid* g = quadro()->grade;
        g->setCurrentCell(linha, 1);
        emit g->rowChosen(linha);
    }

    // An electronic DI line complete but for its checks and values.
    void preencheDI(const QString& numero = numeroDI(), const QString& adicao = QStringLiteral("1"),
                    const QString& itemAdicao = QStringLiteral("1"), const QString& quantidade = QStringLiteral("4"))
    {
        LinhaDI l;
        l.numero = numero;
        l.adicao = adicao;
        l.item = itemAdicao;
        l.quantidade = quantidade;
        digitaLinha(l);
    }

    // An old DI (year 95, body 1234567, sequence 654321), adição 2, item 3.
    void preencheDIAntiga(const QString& quantidade = QStringLiteral("1"))
    {
        LinhaDI l;
        l.numero.clear();
        l.ano = QStringLiteral("95");
        l.orgao = QStringLiteral("1234567");
        l.sequencial = QStringLiteral("654321");
        l.adicao = QStringLiteral("2");
        l.item = QStringLiteral("3");
        l.quantidade = quantidade;
        digitaLinha(l);
    }

    // An electronic DI under the Decreto-Lei 288/67 with its product value (currency 220) and freight (978).
    void incluiDIComDecreto()
    {
        LinhaDI l;
        l.decreto = true;
        l.blocos = {{QStringLiteral("220"), QStringLiteral("978"), QString()}, {QStringLiteral("10"), QStringLiteral("2"), QString()}};
        inclui(l);
    }

    // A complete line of the member in force, without the checks; `n` makes another line of the same kind.
    void preencheValida(int n = 1)
    {
        const QString v = QString::number(n);
        if (tipo == TipoDocumento::DI) {
            LinhaDI l;
            l.item = v;
            digitaLinha(l);
        } else if (tipo == TipoDocumento::DSI) {
            LinhaDSI l;
            l.bem = v;
            digitaLinha(l);
        } else {
            LinhaNFA l;
            l.item = v;
            digitaLinha(l);
        }
    }

    // The electronic number, or "Não" and the old number's parts.
    void digitaNumero(const QString& numero, const QString& ano, const QString& orgao, const QString& sequencial)
    {
        if (numero.isEmpty()) {
            clica(Papel::Nao);
            digita(Papel::Ano, ano);
            digita(Papel::Orgao, orgao);
            digita(Papel::Sequencial, sequencial);
        } else {
            digita(Papel::Numero, numero);
        }
    }

    void digitaBlocos(const ValoresBlocos& b)
    {
        const Papel moedas[3] = {Papel::Moeda0, Papel::Moeda1, Papel::Moeda2};
        const Papel valores[3] = {Papel::Valor0, Papel::Valor1, Papel::Valor2};
        for (int i = 0; i < 3; ++i) {
            if (!b.moedas[i].isEmpty())
                digita(moedas[i], b.moedas[i]);
            if (!b.valores[i].isEmpty())
                digita(valores[i], b.valores[i]);
        }
    }

    void digitaLinha(const LinhaDI& l)
    {
        digitaNumero(l.numero, l.ano, l.orgao, l.sequencial);
        digita(Papel::Adicao, l.adicao);
        digita(Papel::ItemAdicao, l.item);
        digita(Papel::Quantidade, l.quantidade);
        a.sai(nome(Papel::Adicao));
        for (const auto& [caixa, ligada] : {std::pair{Papel::DecretoLei, l.decreto},
                                            std::pair{Papel::Obsolescencia, l.obsolescencia},
                                            std::pair{Papel::Suspensao, l.suspensao}})
            if (ligada)
                clica(caixa);
        digitaBlocos(l.blocos);
    }

    void digitaLinha(const LinhaDSI& l)
    {
        digitaNumero(l.numero, l.ano, l.orgao, l.sequencial);
        digita(Papel::NumeroBem, l.bem);
        digita(Papel::Quantidade, l.quantidade);
        a.sai(nome(Papel::NumeroBem));
        if (l.suspensao)
            clica(Papel::Suspensao);
        digitaBlocos(l.blocos);
    }

    void digitaLinha(const LinhaNFA& l)
    {
        digita(Papel::NumeroNF, l.numero);
        digita(Papel::Serie, l.serie);
        digita(Papel::ItemNF, l.item);
        digita(Papel::Data, l.data);
        digita(Papel::CFOP, l.cfop);
        digita(Papel::CNPJ, l.cnpj);
        digita(Papel::Quantidade, l.quantidade);
        a.sai(nome(Papel::ItemNF));
        if (l.decreto)
            clica(Papel::DecretoLei);
        if (l.obsolescencia)
            clica(Papel::Obsolescencia);
        if (!l.valorUnitario.isEmpty())
            digita(Papel::ValorUnitario, l.valorUnitario);
        if (!l.valorTotal.isEmpty())
            digita(Papel::ValorTotal, l.valorTotal);
    }

    // The line typed and included.
    template <class Linha>
    void inclui(const Linha& l)
    {
        digitaLinha(l);
        incluir();
    }

    // The part that tells two lines of the member apart in preencheValida.
    Papel parteDaLinha() const
    {
        return tipo == TipoDocumento::DI ? Papel::ItemAdicao : tipo == TipoDocumento::DSI ? Papel::NumeroBem : Papel::ItemNF;
    }

    // Incluir refused by each validation step in turn: step i shows the boxes of `passos[i]`, each answered, writes
    // nothing, and is then mended by `corrige[i]`; after the last one Incluir writes the line.
    void validaNaOrdem(const QList<QStringList>& passos, const QList<std::function<void()>>& corrige)
    {
        for (int i = 0; i < passos.size(); ++i) {
            a.msgs.limpa();
            for (int n = 0; n < passos.at(i).size(); ++n)
                a.msgs.responde(Msg::OK);
            incluir();
            QCOMPARE(a.msgs.textos(), passos.at(i));
            QCOMPARE(BancoTeste::conta(tabela()), 0);
            corrige.at(i)();
        }
        a.msgs.limpa();
        incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(tabela()), 1);
    }

    // The rows of the frame's grid, in its visible columns.
    QList<QStringList> linhasVisiveis() const
    {
        ConsultGrid* g = quadro()->grade;
        QList<QStringList> linhas;
        for (int l = 0; l < g->dataRowCount(); ++l) {
            QStringList celulas;
            for (int i = 0; i < g->columnCount(); ++i)
                if (!g->isColumnHidden(i) && g->columnWidth(i) > 0 && !g->titleText(i).isEmpty())
                    celulas << g->cellText(l, i).trimmed();
            linhas << celulas;
        }
        return linhas;
    }

    // The table of the member and its child row, as the store holds them.
    QString tabela() const { return quadro()->membro().dados.tabela; }
    QString tabelaValores() const { return quadro()->membro().dados.tabelaValores; }
};

}  // namespace DocumentoTeste
