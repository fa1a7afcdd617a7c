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

inline AbaProdutoEstrangeiro* abaPE(Ambiente& a)
{
    return qobject_cast<AbaProdutoEstrangeiro*>(a.editor()->abaItens(1));
}

struct Cenario {
    Ambiente& a;
    bool individual;
    qint64 item = 0;
    qint64 destinos[2] = {};

    Cenario(Ambiente& ambiente, bool ind) : a(ambiente), individual(ind) {}

    PaginaDocumentoOrigem* pagina() const { return abaPE(a)->documentoOrigem; }
    QuadroDocumento* quadro(TipoDocumento t = TipoDocumento::DI) const { return pagina()->quadro(t); }

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
    void abre(TipoDocumento tipo = TipoDocumento::DI, int destino = 0)
    {
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

    // The table of the member and its child row, as the store holds them.
    QString tabela() const { return quadro()->membro().dados.tabela; }
    QString tabelaValores() const { return quadro()->membro().dados.tabelaValores; }
};

}  // namespace DocumentoTeste
