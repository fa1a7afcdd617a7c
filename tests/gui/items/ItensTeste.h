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

// The two places of destination, as their lists show them.
inline const QString Local1 = QStringLiteral("Estados AC, AM, RO e RR");
inline const QString Local2 = QString::fromUtf8("Demais Unidades da Federação");

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

// Every row of a grid, all columns.
inline QList<QStringList> linhas(Ambiente& a, const QString& grade)
{
    auto* g = a.campo<ConsultGrid>(grade);
    QList<QStringList> l;
    for (int i = 0; i < g->dataRowCount(); ++i)
        l << g->rowTexts(i);
    return l;
}

// Chooses grid row `i` as a click does.
inline void escolheLinha(Ambiente& a, const QString& grade, int i)
{
    auto* g = a.campo<ConsultGrid>(grade);
    g->setFocus();
    g->setCurrentCell(i, 1);
    emit g->rowChosen(i);
}

// The items of "100% Nacional" and "PI com PPB" as a user types them: digitaItem fills the fields and leaves
// them for the Incluir button, incluiItem also clicks it. Each kind names its editor's Incluir button.
struct NacionalMensal {
    QString produto = QStringLiteral("P001");
    QString quantidade = QStringLiteral("10");
    QString ncm = Ncm1;
    QString unidade = QStringLiteral("UN");
    QString estatistica = QStringLiteral("2,5");
    QString valor = QStringLiteral("1234,56");
    inline static const QString Incluir = QStringLiteral("cmdIncluir_tab100Nacional_Mensal");
};

inline void digitaItem(Ambiente& a, const NacionalMensal& n)
{
    a.digita(QStringLiteral("mskNumNCM100"), n.ncm);
    a.digita(QStringLiteral("txtCodProd100N"), n.produto);
    a.digita(QStringLiteral("msk100N(2)"), n.quantidade);
    a.escolhe(QStringLiteral("cboUnidade100"), n.unidade);
    a.digita(QStringLiteral("msk100N(0)"), n.estatistica);
    a.digita(QStringLiteral("msk100N(1)"), n.valor);
    a.sai(n.Incluir);
}

struct NacionalIndividual {
    QString item = QStringLiteral("2");
    QString produto = QStringLiteral("P002");
    QString ncm = Ncm2;
    QString unidade = QStringLiteral("KG");
    QString quantidade = QStringLiteral("3");
    QString valorUnitario = QStringLiteral("7,25");
    QString estatistica = QStringLiteral("1,5");
    inline static const QString Incluir = QStringLiteral("cmdIncluir_tab100NacionalIndividual");
};

inline void digitaItem(Ambiente& a, const NacionalIndividual& n)
{
    a.digita(QStringLiteral("txt100NacionalIndividual(0)"), n.item);
    a.digita(QStringLiteral("msk100NacionalIndividual(0)"), n.ncm);
    a.digita(QStringLiteral("txtCodProd100N"), n.produto);
    a.escolhe(QStringLiteral("cboUnidade100"), n.unidade);
    a.digita(QStringLiteral("msk100NacionalIndividual(1)"), n.quantidade);
    a.digita(QStringLiteral("msk100NacionalIndividual(2)"), n.valorUnitario);
    a.digita(QStringLiteral("msk100NacionalIndividual(3)"), n.estatistica);
    a.sai(n.Incluir);
}

// `opcao`: click the DCR or DCR-E option first (a click fills the grid afresh).
struct DcrMensal {
    QString numero = QStringLiteral("00012/1999");
    QString produto = QStringLiteral("P002");
    QString local = Local1;
    QString valorII = QStringLiteral("2,5");
    QString coeficiente = QStringLiteral("40");
    QString quantidade = QStringLiteral("6");
    QString unidade = QStringLiteral("UN");
    bool opcao = true;
    inline static const QString Incluir = QStringLiteral("cmdIncluir_tabPIcomPPB");
};

inline void digitaItem(Ambiente& a, const DcrMensal& d)
{
    if (d.opcao)
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Mensal"));
    a.digita(QStringLiteral("mskDCRPIcomPPB"), d.numero);
    a.digita(QStringLiteral("txtCodProdDCRPIcomPPB"), d.produto);
    a.escolhe(QStringLiteral("cboLocalDCR"), d.local);
    a.digita(QStringLiteral("mskPIcomPPB(1)"), d.valorII);
    a.digita(QStringLiteral("mskPIcomPPB(2)"), d.coeficiente);
    a.digita(QStringLiteral("mskPIcomPPB(3)"), d.quantidade);
    a.escolhe(QStringLiteral("cboUnidadeDCR"), d.unidade);
    a.sai(d.Incluir);
}

struct DcreMensal {
    QString numero = QStringLiteral("2005/00001");
    QString produto = QStringLiteral("Q9");
    QString local = Local2;
    QString quantidade = QStringLiteral("4");
    bool opcao = true;
    inline static const QString Incluir = QStringLiteral("cmdIncluir_tabPIcomPPB");
};

inline void digitaItem(Ambiente& a, const DcreMensal& d)
{
    if (d.opcao)
        a.clica(QStringLiteral("optDCRE_tabPIcomPPB_Mensal"));
    a.digita(QStringLiteral("mskDCREPIcomPPB"), d.numero);
    a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), d.produto);
    a.escolhe(QStringLiteral("cboLocalDCRE"), d.local);
    a.digita(QStringLiteral("mskPIcomPPB(0)"), d.quantidade);
    a.sai(d.Incluir);
}

struct DcrIndividual {
    QString item = QStringLiteral("1");
    QString numero = QStringLiteral("00012/1999");
    QString produto = QStringLiteral("P001");
    QString quantidade = QStringLiteral("6");
    QString valorII = QStringLiteral("2,5");
    QString coeficiente = QStringLiteral("40");
    QString unidade = QStringLiteral("UN");
    bool opcao = true;
    inline static const QString Incluir = QStringLiteral("cmdIncluir_tabPIcomPPB_Individual");
};

inline void digitaItem(Ambiente& a, const DcrIndividual& d)
{
    if (d.opcao)
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Individual"));
    a.digita(QStringLiteral("txtPIcomPPBIndividual(0)"), d.item);
    a.digita(QStringLiteral("mskPIcomPPBIndividual(2)"), d.numero);
    a.digita(QStringLiteral("txtCodProdDCRPIcomPPB"), d.produto);
    a.digita(QStringLiteral("mskPIcomPPBIndividual(3)"), d.quantidade);
    a.digita(QStringLiteral("mskPIcomPPBIndividual(4)"), d.valorII);
    a.digita(QStringLiteral("mskPIcomPPBIndividual(5)"), d.coeficiente);
    a.escolhe(QStringLiteral("cboUnidadeDCR"), d.unidade);
    a.sai(d.Incluir);
}

template <class Item>
void incluiItem(Ambiente& a, const Item& item)
{
    digitaItem(a, item);
    a.clica(Item::Incluir);
}

}  // namespace ItensTeste
