#pragma once
// The editors on their item tabs: products registered before the editor opens its transaction, the general
// data (and the individual invoice) filled so that the item tab can be reached, and the ways to type an item.
#include "../editor/EditorTeste.h"

#include "gui/assistants/frmAssistNCM.h"
#include "gui/assistants/frmAssistenteCCI.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>

namespace ItensTeste {

using namespace EditorTeste;

// Two codes of the delivered NCM table and their statistical unit.
inline const QString Ncm1 = QStringLiteral("39252000");
inline const QString Ncm2 = QStringLiteral("39259090");
inline const QString UnidadeEst = QStringLiteral("QUILOGRAMA LIQUIDO");

// Products of the tests; "P00" is the start of two of them.
inline void cadastraProdutos()
{
    const char* produtos[][2] = {{"P001", "Produto um"}, {"P002", "Produto dois"}, {"Q9", "Outro produto"}};
    for (const auto& p : produtos)
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                            {QString::fromUtf8(p[0]), QString::fromUtf8(p[1])});
}

// The invoice of an individual declaration, set into its fields.
inline void preencheNota(Ambiente& a, const QString& numero = QStringLiteral("123"))
{
    auto poe = [&](const char* nome, const QString& texto) {
        a.campo<QLineEdit>(QString::fromUtf8(nome))->setText(texto);
    };
    poe("mskDadosGerais(1)", Cnpj);
    poe("mskDadosGerais(2)", QStringLiteral("12345678"));
    poe("mskDadosGeraisIndividual(3)", numero);
    poe("txtDadosGeraisIndividual(1)", QStringLiteral("A1"));
    poe("mskDadosGeraisIndividual(0)", QStringLiteral("10052009"));
    poe("mskDadosGeraisIndividual(1)", QStringLiteral("11052009"));
    poe("txtDadosGeraisIndividual(2)", QStringLiteral("5102"));
    poe("mskDadosGeraisIndividual(2)", QStringLiteral("33000167000101"));
    auto* uf = a.campo<QComboBox>(QStringLiteral("cboUF"));
    uf->setCurrentIndex(uf->findText(QStringLiteral("AM")));
}

// A new declaration of the kind, its general data written by leaving tab 0 for `aba`.
inline EditorDeclaracao* naAba(Ambiente& a, bool individual, int aba)
{
    cadastraProdutos();
    EditorDeclaracao* e = individual ? a.novaIndividual() : a.novaMensal();
    if (individual)
        preencheNota(a);
    else
        a.preencheMensal();
    a.vaiParaAba(aba);
    return e;
}

// Rows of the editor's open transaction (the session's connection is the editor's).
inline int conta(const QString& tabela, const QString& onde = QString(), const QVariantList& v = {})
{
    return BancoTeste::conta(tabela, onde, v);
}

// The visible and hidden cells of a grid row, column 0 included.
inline QStringList linha(Ambiente& a, const QString& grade, int i)
{
    return a.campo<ConsultGrid>(grade)->rowTexts(i);
}

// Chooses grid row `i` as a click does.
inline void escolheLinha(Ambiente& a, const QString& grade, int i)
{
    auto* g = a.campo<ConsultGrid>(grade);
    g->setFocus();
    g->setCurrentCell(i, 1);
    emit g->rowChosen(i);
}

}  // namespace ItensTeste
