#pragma once
// Foreign products typed into the page "Produto" of either editor, as a user types them.
#include "DocumentoTeste.h"
#include "ItensTeste.h"

#include "core/store/Cadastros.h"
#include "gui/widgets/ConsultGrid.h"

#include <QCheckBox>

namespace ProdutoTeste {

using namespace EditorTeste;

using ItensTeste::escolheLinha;
using ItensTeste::Local1;
using ItensTeste::Local2;

// The products the tests pick; to be stored before an editor opens.
inline void cadastraProdutos()
{
    Cadastros::IncluiProduto(QStringLiteral("PROD1"), QStringLiteral("Produto um"));
    Cadastros::IncluiProduto(QStringLiteral("PROD2"), QStringLiteral("Produto dois"));
}

// The two rate frames of either editor: a rate ticks its check and is typed with its grounds; an empty one
// leaves the check off.
inline void digitaTaxas(Ambiente& a, bool individual, const QString& ii, const QString& justII, const QString& ipi,
                        const QString& justIPI)
{
    const QStringList nomes = individual
        ? QStringList{"chk_AliquotaTEC_tabPE", "mskProdutoEstrangeiroNFS(6)", "txtProdutoEstrangeiroNFS(4)",
                      "chk_AliquotaTIPI_tabPE", "mskProdutoEstrangeiroNFS(7)", "txtProdutoEstrangeiroNFS(5)"}
        : QStringList{"chk_Aliquota_tabPE", "mskPE(3)", "txtJustifLegalAliqIIPE",
                      "chk_Aliquota_tabP", "mskPE(4)", "txtJustifLegalAliqIPIPE"};
    const QStringList valores{ii, justII, ipi, justIPI};
    for (int i = 0; i < 2; ++i) {
        const QString& taxa = valores.at(2 * i);
        if (a.campo<QCheckBox>(nomes.at(3 * i))->isChecked() != !taxa.isEmpty())
            a.clica(nomes.at(3 * i));
        if (taxa.isEmpty())
            continue;
        a.digita(nomes.at(3 * i + 1), taxa);
        a.digita(nomes.at(3 * i + 2), valores.at(2 * i + 1));
    }
}

// A new declaration of the kind, general data (or invoice) filled, on the foreign-product tab.
inline void naAbaProduto(Ambiente& a, bool individual)
{
    cadastraProdutos();
    a.novaPreenchida(individual);
    a.vaiParaAba(1);
}

struct ProdutoMensal {
    QString ncm = QStringLiteral("84713012");
    QString codigo = QStringLiteral("PROD1");
    QString unidade = QStringLiteral("UN");
    QString quantidadeEstatistica = QStringLiteral("20");
    QString local = Local1;
    QString quantidade = QStringLiteral("12");
    QString aliquotaII;        // empty: check left off
    QString justificativaII = QStringLiteral("Ex-tarifario");
    QString aliquotaIPI;
    QString justificativaIPI = QStringLiteral("Lei 8387");
};

inline void digitaMensal(Ambiente& a, const ProdutoMensal& p)
{
    a.digita(QStringLiteral("mskNumNCMPE"), p.ncm);
    a.digita(QStringLiteral("txtCodProdPE"), p.codigo);
    a.escolhe(QStringLiteral("cboUnidadePE"), p.unidade);
    a.digita(QStringLiteral("mskPE(1)"), p.quantidadeEstatistica);
    a.escolhe(QStringLiteral("cboLocalPE"), p.local);
    a.digita(QStringLiteral("mskPE(2)"), p.quantidade);
    digitaTaxas(a, false, p.aliquotaII, p.justificativaII, p.aliquotaIPI, p.justificativaIPI);
    a.sai(QStringLiteral("mskNumNCMPE"));
}

inline void incluiMensal(Ambiente& a, const ProdutoMensal& p)
{
    digitaMensal(a, p);
    a.clica(QStringLiteral("cmdIncluir_tabProdutoEstrangeiro_CCI"));
}

struct ProdutoIndividual {
    QString item = QStringLiteral("1");
    QString ncm = QStringLiteral("84713012");
    QString codigo = QStringLiteral("PROD1");
    QString unidade = QStringLiteral("UN");
    QString quantidade = QStringLiteral("10");
    QString valorUnitario = QStringLiteral("5,25");
    QString quantidadeEstatistica = QStringLiteral("10");
    QString ipi = QStringLiteral("3,5");
    QString aliquotaII;
    QString justificativaII = QStringLiteral("Ex-tarifario");
    QString aliquotaIPI;
    QString justificativaIPI = QStringLiteral("Lei 8387");
};

inline void digitaIndividual(Ambiente& a, const ProdutoIndividual& p)
{
    a.digita(QStringLiteral("txtProdutoEstrangeiroNFS(0)"), p.item);
    a.digita(QStringLiteral("mskProdutoEstrangeiroNFS(0)"), p.ncm);
    a.digita(QStringLiteral("txtCodProdPE"), p.codigo);
    a.escolhe(QStringLiteral("cboUnidadePE"), p.unidade);
    a.digita(QStringLiteral("mskProdutoEstrangeiroNFS(1)"), p.quantidade);
    a.digita(QStringLiteral("mskProdutoEstrangeiroNFS(2)"), p.valorUnitario);
    a.digita(QStringLiteral("mskProdutoEstrangeiroNFS(3)"), p.quantidadeEstatistica);
    a.digita(QStringLiteral("mskProdutoEstrangeiroNFS(5)"), p.ipi);
    digitaTaxas(a, true, p.aliquotaII, p.justificativaII, p.aliquotaIPI, p.justificativaIPI);
    a.sai(QStringLiteral("mskProdutoEstrangeiroNFS(0)"));
}

inline void incluiIndividual(Ambiente& a, const ProdutoIndividual& p)
{
    digitaIndividual(a, p);
    a.clica(QStringLiteral("cmdIncluir_tabProdutoEstrangeiro"));
}

}  // namespace ProdutoTeste
