#pragma once
// Foreign products typed into the page "Produto" of either editor, as a user types them.
#include "DocumentoTeste.h"

#include "core/store/Cadastros.h"
#include "gui/widgets/ConsultGrid.h"

#include <QCheckBox>

namespace ProdutoTeste {

using namespace EditorTeste;

inline const QString Local1 = QStringLiteral("Estados AC, AM, RO e RR");
inline const QString Local2 = QString::fromUtf8("Demais Unidades da Federação");

// The products the tests pick; to be stored before an editor opens.
inline void cadastraProdutos()
{
    Cadastros::IncluiProduto(QStringLiteral("PROD1"), QStringLiteral("Produto um"));
    Cadastros::IncluiProduto(QStringLiteral("PROD2"), QStringLiteral("Produto dois"));
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
    const auto taxa = [&](const char* check, const char* campo, const char* just, const QString& v, const QString& j) {
        auto* c = a.campo<QCheckBox>(QString::fromUtf8(check));
        if (c->isChecked() != !v.isEmpty())
            a.clica(QString::fromUtf8(check));
        if (!v.isEmpty()) {
            a.digita(QString::fromUtf8(campo), v);
            a.digita(QString::fromUtf8(just), j);
        }
    };
    taxa("chk_Aliquota_tabPE", "mskPE(3)", "txtJustifLegalAliqIIPE", p.aliquotaII, p.justificativaII);
    taxa("chk_Aliquota_tabP", "mskPE(4)", "txtJustifLegalAliqIPIPE", p.aliquotaIPI, p.justificativaIPI);
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
    const auto taxa = [&](const char* check, const char* campo, const char* just, const QString& v, const QString& j) {
        auto* c = a.campo<QCheckBox>(QString::fromUtf8(check));
        if (c->isChecked() != !v.isEmpty())
            a.clica(QString::fromUtf8(check));
        if (!v.isEmpty()) {
            a.digita(QString::fromUtf8(campo), v);
            a.digita(QString::fromUtf8(just), j);
        }
    };
    taxa("chk_AliquotaTEC_tabPE", "mskProdutoEstrangeiroNFS(6)", "txtProdutoEstrangeiroNFS(4)", p.aliquotaII,
         p.justificativaII);
    taxa("chk_AliquotaTIPI_tabPE", "mskProdutoEstrangeiroNFS(7)", "txtProdutoEstrangeiroNFS(5)", p.aliquotaIPI,
         p.justificativaIPI);
    a.sai(QStringLiteral("mskProdutoEstrangeiroNFS(0)"));
}

inline void incluiIndividual(Ambiente& a, const ProdutoIndividual& p)
{
    digitaIndividual(a, p);
    a.clica(QStringLiteral("cmdIncluir_tabProdutoEstrangeiro"));
}

// A row of the page's grid chosen as a click chooses it.
inline void escolheLinha(Ambiente& a, const QString& grade, int linha)
{
    auto* g = a.campo<ConsultGrid>(grade);
    g->setCurrentCell(linha, 1);
    emit g->rowChosen(linha);
}

}  // namespace ProdutoTeste
