#pragma once
// The tab "PI sem PPB" of either editor as a user types it: a product with its destination (monthly) or its
// invoice item (individual), then an input of that product, then the input chosen on the page of documents.
#include "ItensTeste.h"

#include <QCheckBox>
#include <QTabWidget>

namespace PISemPPBTeste {

using namespace ItensTeste;

// An input is a registered product of its own; by default named after its code.
inline void cadastraInsumo(const QString& codigo, const QString& nome = QString())
{
    BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                        {codigo, nome.isEmpty() ? QStringLiteral("Insumo ") + codigo : nome});
}

inline void cadastraInsumos()
{
    cadastraInsumo(QStringLiteral("INS1"));
    cadastraInsumo(QStringLiteral("INS2"));
}

// The three pages of the tab: products, inputs, documents.
inline QTabWidget* paginas(Ambiente& a)
{
    return a.campo<QTabWidget>(QStringLiteral("tabPIsemPPB"));
}

struct ProdutoMensal {
    QString codigo = QStringLiteral("P001");
    QString local = Local1;
    QString quantidade = QStringLiteral("10");
    QString unidade = QStringLiteral("UN");
    QString ncm = Ncm1;
};

struct ProdutoIndividual {
    QString item = QStringLiteral("1");
    QString codigo = QStringLiteral("P001");
    QString quantidade = QStringLiteral("5");
    QString valorUnitario = QStringLiteral("12,5");
    QString unidade = QStringLiteral("UN");
    QString ncm = Ncm1;
};

inline void incluiProduto(Ambiente& a, const ProdutoMensal& p)
{
    a.digita(QStringLiteral("mskNumNCM_TabPIsemPPB"), p.ncm);
    a.digita(QStringLiteral("txtCodProdPIsemPPB"), p.codigo);
    a.escolhe(QStringLiteral("cboUnidadePIsemPPB"), p.unidade);
    a.escolhe(QStringLiteral("cboLocalPIsemPPB"), p.local);
    a.digita(QStringLiteral("mskPIsemPPB(3)"), p.quantidade);
    a.sai(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
    a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
}

inline void incluiProduto(Ambiente& a, const ProdutoIndividual& p)
{
    a.digita(QStringLiteral("txtPIsemPPBNFS(0)"), p.item);
    a.digita(QStringLiteral("mskPIsemPPBNFS(0)"), p.ncm);
    a.digita(QStringLiteral("txtCodProdPIsemPPB"), p.codigo);
    a.escolhe(QStringLiteral("cboUnidadePIsemPPB"), p.unidade);
    a.digita(QStringLiteral("mskPIsemPPBNFS(1)"), p.quantidade);
    a.digita(QStringLiteral("mskPIsemPPBNFS(2)"), p.valorUnitario);
    a.sai(QStringLiteral("cmdIncluir_tabPIsemPPB_NFS"));
    a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB_NFS"));
}

// An input of the product chosen on the inputs page. A differing rate ("" none) ticks its check and is typed
// with its grounds; an empty one leaves the check off.
struct InsumoMensal {
    QString codigo = QStringLiteral("INS1");
    QString quantidade = QStringLiteral("0,5");
    QString aliquotaII{};
    QString justificativaII = QStringLiteral("Lei 123");
    QString unidade = QStringLiteral("UN");
    QString ncm = Ncm2;
};

struct InsumoIndividual {
    QString codigo = QStringLiteral("INS1");
    QString quantidade = QStringLiteral("2");
    QString aliquotaIPI{};
    QString justificativaIPI = QStringLiteral("Decreto 9");
    QString unidade = QStringLiteral("UN");
    QString ncm = Ncm2;
};

// Fills the input's fields and leaves them for the Incluir button.
inline void digitaInsumo(Ambiente& a, const InsumoMensal& i)
{
    a.digita(QStringLiteral("mskNumNCMInsumo"), i.ncm);
    a.digita(QStringLiteral("txtCodInsPIsemPPB"), i.codigo);
    a.escolhe(QStringLiteral("cboUnidadeInsumo"), i.unidade);
    a.digita(QStringLiteral("mskPIsemPPB(4)"), i.quantidade);
    a.sai(QStringLiteral("cmdIncluirInsumo"));
    a.campo<QCheckBox>(QStringLiteral("chk_Aliquota_tabPIsemPPB"))->setChecked(!i.aliquotaII.isEmpty());
    if (i.aliquotaII.isEmpty())
        return;
    a.digita(QStringLiteral("mskPIsemPPB(5)"), i.aliquotaII);
    a.digita(QStringLiteral("txtJustifLegalAliqIIPIsemPPB"), i.justificativaII);
    a.sai(QStringLiteral("cmdIncluirInsumo"));
}

inline void digitaInsumo(Ambiente& a, const InsumoIndividual& i)
{
    a.digita(QStringLiteral("mskPIsemPPBNFS(5)"), i.ncm);
    a.digita(QStringLiteral("txtCodInsPIsemPPB"), i.codigo);
    a.escolhe(QStringLiteral("cboUnidadeInsumo"), i.unidade);
    a.digita(QStringLiteral("mskPIsemPPBNFS(6)"), i.quantidade);
    a.campo<QCheckBox>(QStringLiteral("chk_AliquotaTIPI_tabPIsemPPB"))->setChecked(!i.aliquotaIPI.isEmpty());
    if (!i.aliquotaIPI.isEmpty()) {
        a.digita(QStringLiteral("mskPIsemPPBNFS(8)"), i.aliquotaIPI);
        a.digita(QStringLiteral("txtPIsemPPBNFS(9)"), i.justificativaIPI);
    }
    a.sai(QStringLiteral("cmdIncluirInsumo"));
}

inline void incluirInsumo(Ambiente& a)
{
    a.clica(QStringLiteral("cmdIncluirInsumo"));
}

template <typename Insumo>
void incluiInsumo(Ambiente& a, const Insumo& i)
{
    digitaInsumo(a, i);
    incluirInsumo(a);
}

// The product (monthly, by its code) or the invoice item (individual) whose inputs the inputs page shows.
inline void escolheProdutoDoInsumo(Ambiente& a, bool individual, const QString& produto)
{
    a.escolhe(individual ? QStringLiteral("cboItem_PIsemPPB_Insumo") : QStringLiteral("cboDocProdutoPIsemPPB"),
              produto);
}

// A product P001 (item 1 in an individual declaration) with its input INS1, typed from the products page of a
// declaration already on the tab; left on the inputs page.
inline void produtoComInsumo(Ambiente& a, bool individual)
{
    if (individual)
        incluiProduto(a, ProdutoIndividual{});
    else
        incluiProduto(a, ProdutoMensal{});
    paginas(a)->setCurrentIndex(1);
    escolheProdutoDoInsumo(a, individual, individual ? QStringLiteral("1") : QStringLiteral("P001"));
    if (individual)
        incluiInsumo(a, InsumoIndividual{});
    else
        incluiInsumo(a, InsumoMensal{});
}

// The input (and, monthly, its place) chosen on the page of documents.
inline void escolheInsumoDosDocumentos(Ambiente& a, bool individual, const QString& insumo = QStringLiteral("INS1"),
                                       const QString& local = Local1)
{
    paginas(a)->setCurrentIndex(2);
    if (individual) {
        a.escolhe(QStringLiteral("cmdItem_TabPIsemPPB_Documento"), QStringLiteral("1"));
        a.escolhe(QStringLiteral("cmbCodigoControleInternoInsumo"), insumo);
    } else {
        a.escolhe(QStringLiteral("cboCCIInsumoPIsemPPB"), insumo);
        a.escolhe(QStringLiteral("cboLocalDestinoInsumo"), local);
    }
}

}  // namespace PISemPPBTeste
