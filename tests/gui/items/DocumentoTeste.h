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

// One row per member of the foreign product's document family, named "DI mensal", "NFA individual", ...
inline void linhasMembros()
{
    QTest::addColumn<int>("tipo");
    QTest::addColumn<bool>("individual");
    for (const MembroDocumento& m : MembrosDocumento())
        if (m.origem == Origem::Produto)
            QTest::addRow("%s %s", nomeTipo(m.tipo), m.individual ? "individual" : "mensal")
                << int(m.tipo) << m.individual;
}

inline AbaProdutoEstrangeiro* abaPE(Ambiente& a)
{
    return qobject_cast<AbaProdutoEstrangeiro*>(a.editor()->abaItens(1));
}

struct Cenario {
    Ambiente& a;
    bool individual;
    TipoDocumento tipo = TipoDocumento::DI;
    qint64 item = 0;
    qint64 destinos[2] = {};

    Cenario(Ambiente& ambiente, bool ind) : a(ambiente), individual(ind) {}

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

    // The page "Documento de Origem" with the product, its first destination (or the item) and the kind chosen.
    void abre(TipoDocumento escolhido = TipoDocumento::DI, int destino = 0)
    {
        tipo = escolhido;
        abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(1);
        if (individual) {
            a.escolhe(QStringLiteral("cboItem"), QStringLiteral("001"));
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
        digita(Papel::Numero, numero);
        digita(Papel::Adicao, adicao);
        digita(Papel::ItemAdicao, itemAdicao);
        digita(Papel::Quantidade, quantidade);
        a.sai(nome(Papel::Adicao));
    }

    // An old DI (year 95, body 1234567, sequence 654321), adição 2, item 3.
    void preencheDIAntiga(const QString& quantidade = QStringLiteral("1"))
    {
        clica(Papel::Nao);
        digita(Papel::Ano, QStringLiteral("95"));
        digita(Papel::Orgao, QStringLiteral("1234567"));
        digita(Papel::Sequencial, QStringLiteral("654321"));
        digita(Papel::Adicao, QStringLiteral("2"));
        digita(Papel::ItemAdicao, QStringLiteral("3"));
        digita(Papel::Quantidade, quantidade);
        a.sai(nome(Papel::Ano));
    }

    // An electronic DI under the Decreto-Lei 288/67 with its product value (currency 220) and freight (978).
    void incluiDIComDecreto()
    {
        preencheDI();
        clica(Papel::DecretoLei);
        digita(Papel::Moeda0, QStringLiteral("220"));
        digita(Papel::Valor0, QStringLiteral("10"));
        digita(Papel::Moeda1, QStringLiteral("978"));
        digita(Papel::Valor1, QStringLiteral("2"));
        incluir();
    }

    // A complete line of the member in force, without the checks; `n` makes another line of the same kind.
    void preencheValida(int n = 1)
    {
        const QString v = QString::number(n);
        if (tipo == TipoDocumento::DI) {
            preencheDI(numeroDI(), QStringLiteral("1"), v);
            return;
        }
        if (tipo == TipoDocumento::DSI) {
            digita(Papel::Numero, numeroDSI());
            digita(Papel::NumeroBem, v);
            digita(Papel::Quantidade, QStringLiteral("4"));
            a.sai(nome(Papel::NumeroBem));
            return;
        }
        digita(Papel::NumeroNF, QStringLiteral("1234"));
        digita(Papel::Serie, QStringLiteral("A1"));
        digita(Papel::ItemNF, v);
        digita(Papel::Data, QStringLiteral("15012008"));
        digita(Papel::CFOP, QStringLiteral("5102"));
        digita(Papel::CNPJ, CnpjFornecedor);
        digita(Papel::Quantidade, QStringLiteral("4"));
        a.sai(nome(Papel::ItemNF));
    }

    // The part that tells two lines of the member apart in preencheValida.
    Papel parteDaLinha() const
    {
        return tipo == TipoDocumento::DI ? Papel::ItemAdicao : tipo == TipoDocumento::DSI ? Papel::NumeroBem : Papel::ItemNF;
    }

    // The table of the member and its child row, as the store holds them.
    QString tabela() const { return quadro()->membro().dados.tabela; }
    QString tabelaValores() const { return quadro()->membro().dados.tabelaValores; }
};

}  // namespace DocumentoTeste
