// The page "Insumos" of the tab "PI sem PPB": the checks of an input in their order, and the rule that an input
// looks the same (NCM, unit, rates) under every product of the declaration or of the exit invoice.
#include "ItensTeste.h"

#include <QCheckBox>
#include <QTabWidget>

using namespace ItensTeste;

namespace {

const QString IncluirInsumo = QStringLiteral("cmdIncluirInsumo");

void cadastraInsumos()
{
    for (const char* c : {"INS1", "INS2"})
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                            {QString::fromLatin1(c), QStringLiteral("Insumo ") + QString::fromLatin1(c)});
}

void paginaInsumos(Ambiente& a)
{
    a.campo<QTabWidget>(QStringLiteral("tabPIsemPPB"))->setCurrentIndex(1);
}

void produtoMensal(Ambiente& a, const QString& produto)
{
    a.digita(QStringLiteral("mskNumNCM_TabPIsemPPB"), Ncm1);
    a.digita(QStringLiteral("txtCodProdPIsemPPB"), produto);
    a.escolhe(QStringLiteral("cboUnidadePIsemPPB"), QStringLiteral("UN"));
    a.escolhe(QStringLiteral("cboLocalPIsemPPB"), Local1);
    a.digita(QStringLiteral("mskPIsemPPB(3)"), QStringLiteral("10"));
    a.sai(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
    a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
}

struct Insumo {
    QString ncm = Ncm2;
    QString codigo = QStringLiteral("INS1");
    QString unidade = QStringLiteral("UN");
    QString quantidade = QStringLiteral("2");
    bool ipi = false;  // the IPI rate check, with a rate and its grounds
};

void insumoMensal(Ambiente& a, const Insumo& i)
{
    a.digita(QStringLiteral("mskNumNCMInsumo"), i.ncm);
    a.digita(QStringLiteral("txtCodInsPIsemPPB"), i.codigo);
    a.escolhe(QStringLiteral("cboUnidadeInsumo"), i.unidade);
    a.digita(QStringLiteral("mskPIsemPPB(4)"), i.quantidade);
    if (i.ipi) {
        a.clica(QStringLiteral("chk_Aliquota_tabPIsemPPBTIPI"));
        a.digita(QStringLiteral("mskPIsemPPB(6)"), QStringLiteral("3"));
        a.digita(QStringLiteral("txtJustifLegalAliqIPIPIsemPPB"), QStringLiteral("Lei 123"));
    }
    a.sai(IncluirInsumo);
}

// Two products, P001 and P002, on the monthly tab; INS1 under P001 with NCM 3925.90.90, unit UN and no rate.
void doisProdutosUmInsumo(Ambiente& a)
{
    naAba(a, false, 3);
    cadastraInsumos();
    produtoMensal(a, QStringLiteral("P001"));
    produtoMensal(a, QStringLiteral("P002"));
    paginaInsumos(a);
    a.escolhe(QStringLiteral("cboDocProdutoPIsemPPB"), QStringLiteral("P001"));
    insumoMensal(a, Insumo{});
    a.clica(IncluirInsumo);
    a.escolhe(QStringLiteral("cboDocProdutoPIsemPPB"), QStringLiteral("P002"));
}

// An item of the exit invoice on the individual tab, with the product's code.
void produtoIndividual(Ambiente& a, const QString& item, const QString& produto)
{
    a.digita(QStringLiteral("txtPIsemPPBNFS(0)"), item);
    a.digita(QStringLiteral("mskPIsemPPBNFS(0)"), Ncm1);
    a.digita(QStringLiteral("txtCodProdPIsemPPB"), produto);
    a.escolhe(QStringLiteral("cboUnidadePIsemPPB"), QStringLiteral("UN"));
    a.digita(QStringLiteral("mskPIsemPPBNFS(1)"), QStringLiteral("5"));
    a.digita(QStringLiteral("mskPIsemPPBNFS(2)"), QStringLiteral("12,5"));
    a.sai(QStringLiteral("cmdIncluir_tabPIsemPPB_NFS"));
    a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB_NFS"));
}

// INS1 under the chosen item; `ii` a differing II rate with its grounds ("" none).
void insumoIndividual(Ambiente& a, const QString& ii)
{
    a.digita(QStringLiteral("mskPIsemPPBNFS(5)"), Ncm2);
    a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("INS1"));
    a.escolhe(QStringLiteral("cboUnidadeInsumo"), QStringLiteral("UN"));
    a.digita(QStringLiteral("mskPIsemPPBNFS(6)"), QStringLiteral("2"));
    if (!ii.isEmpty()) {
        a.clica(QStringLiteral("chk_AliquotaTEC_tabPIsemPPB"));
        a.digita(QStringLiteral("mskPIsemPPBNFS(7)"), ii);
        a.digita(QStringLiteral("txtPIsemPPBNFS(8)"), QStringLiteral("Lei 1"));
    }
    a.sai(IncluirInsumo);
}

}  // namespace

class tst_insumosRegras : public QObject {
    Q_OBJECT
private slots:
    void validacaoDoInsumoMensalNaOrdem()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        produtoMensal(a, QStringLiteral("P001"));
        paginaInsumos(a);
        auto recusa = [&] {
            a.msgs.responde(Msg::OK);
            a.clica(IncluirInsumo);
        };
        recusa();
        a.escolhe(QStringLiteral("cboDocProdutoPIsemPPB"), QStringLiteral("P001"));
        recusa();
        a.digita(QStringLiteral("mskNumNCMInsumo"), QStringLiteral("3925909"));
        recusa();
        a.digita(QStringLiteral("mskNumNCMInsumo"), Ncm2);
        recusa();
        a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("XX"));
        recusa();
        a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("INS1"));
        recusa();
        a.escolhe(QStringLiteral("cboUnidadeInsumo"), QStringLiteral("UN"));
        recusa();
        a.digita(QStringLiteral("mskPIsemPPB(4)"), QStringLiteral("0"));
        recusa();
        a.digita(QStringLiteral("mskPIsemPPB(4)"), QStringLiteral("2"));
        a.clica(QStringLiteral("chk_Aliquota_tabPIsemPPB"));
        recusa();
        a.digita(QStringLiteral("mskPIsemPPB(5)"), QStringLiteral("4"));
        recusa();
        a.digita(QStringLiteral("txtJustifLegalAliqIIPIsemPPB"), QStringLiteral("Lei 1"));
        a.clica(QStringLiteral("chk_Aliquota_tabPIsemPPBTIPI"));
        recusa();
        a.digita(QStringLiteral("mskPIsemPPB(6)"), QStringLiteral("4"));
        recusa();
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("O produto referente a este insumo deve ser previamente selecionado."),
                              QStringLiteral("O campo número da NCM deve ser preenchido."),
                              QStringLiteral("O campo número da NCM não possui um código válido."),
                              QStringLiteral("O campo código do insumo deve ser selecionado."),
                              QStringLiteral("O campo código do insumo não possui um código válido."),
                              QStringLiteral("O campo unidade de medida comercial deve ser selecionado."),
                              QStringLiteral("O campo quantidade insumo por unidade de produto deve ser preenchido."),
                              QStringLiteral("O campo quantidade insumo por unidade de produto deve ser maior que zero."),
                              QStringLiteral("É obrigatório o preenchimento da alíquota de II."),
                              QStringLiteral("O campo fundamentação legal para a alíquota de II deve ser preenchido."),
                              QStringLiteral("É obrigatório o preenchimento da alíquota de IPI."),
                              QStringLiteral("O campo fundamentação legal para a alíquota de IPI deve ser preenchido.")}));
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 0);
    }

    void insumoDeOutroProdutoDiscorda_data()
    {
        QTest::addColumn<QString>("ncm");
        QTest::addColumn<QString>("unidade");
        QTest::addColumn<bool>("ipi");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("NCM") << Ncm1 << QStringLiteral("UN") << false
                             << QStringLiteral("A NCM informada deve ser igual a 3925.90.90, que foi informada em "
                                               "outro(s) registro(s) deste insumo.");
        QTest::newRow("unidade") << Ncm2 << QStringLiteral("KG") << false
                                 << QStringLiteral("A unidade de medida informada deve ser UN, que foi informada em "
                                                   "outro(s) registro(s) deste insumo.");
        QTest::newRow("IPI") << Ncm2 << QStringLiteral("UN") << true
                             << QStringLiteral("Não foi informada Alíquota de IPI anteriormente.");
    }
    void insumoDeOutroProdutoDiscorda()
    {
        QFETCH(QString, ncm);
        QFETCH(QString, unidade);
        QFETCH(bool, ipi);
        QFETCH(QString, mensagem);
        Ambiente a;
        doisProdutosUmInsumo(a);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 1);
        Insumo i;
        i.ncm = ncm;
        i.unidade = unidade;
        i.ipi = ipi;
        i.quantidade = QStringLiteral("7");
        insumoMensal(a, i);
        a.msgs.responde(Msg::OK);
        a.clica(IncluirInsumo);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 1);
    }

    void alterarInsumoSemLinhaEscolhida()
    {
        Ambiente a;
        doisProdutosUmInsumo(a);
        a.campo(QStringLiteral("cmdAlterarInsumo"))->setEnabled(true);
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterarInsumo"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Inclua um insumo ou selecione no grid")});
    }
    void validacaoDoInsumoIndividualNaOrdem()
    {
        Ambiente a;
        naAba(a, true, 3);
        cadastraInsumos();
        produtoIndividual(a, QStringLiteral("1"), QStringLiteral("P001"));
        paginaInsumos(a);
        auto recusa = [&] {
            a.msgs.responde(Msg::OK);
            a.clica(IncluirInsumo);
        };
        recusa();
        a.escolhe(QStringLiteral("cboItem_PIsemPPB_Insumo"), QStringLiteral("1"));
        recusa();
        a.digita(QStringLiteral("mskPIsemPPBNFS(5)"), Ncm2);
        recusa();
        a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("XX"));
        recusa();
        a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("INS1"));
        recusa();
        a.escolhe(QStringLiteral("cboUnidadeInsumo"), QStringLiteral("UN"));
        recusa();
        a.digita(QStringLiteral("mskPIsemPPBNFS(6)"), QStringLiteral("2"));
        a.clica(QStringLiteral("chk_AliquotaTIPI_tabPIsemPPB"));
        a.digita(QStringLiteral("mskPIsemPPBNFS(8)"), QStringLiteral("3"));
        recusa();
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("O produto deve ser selecionado."),
                              QStringLiteral("O campo número da NCM deve ser preenchido."),
                              QStringLiteral("O campo código do insumo deve ser selecionado."),
                              // The input's code is refused in the product's words.
                              QStringLiteral("O campo código do Produto não possui um código válido."),
                              QStringLiteral("A unidade de medida deve ser selecionada!"),
                              QStringLiteral("O campo quantidade deve ser preenchido."),
                              QStringLiteral("Os campos alíquota IPI e justificativa legal devem ser preenchidos.")}));
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_NFS")), 0);
    }

    // The first row of an input in the declaration has no rate: a later one may not bring one.
    void insumoIndividualSemAliquotaNoPrimeiro()
    {
        Ambiente a;
        naAba(a, true, 3);
        cadastraInsumos();
        produtoIndividual(a, QStringLiteral("1"), QStringLiteral("P001"));
        produtoIndividual(a, QStringLiteral("2"), QStringLiteral("P002"));
        paginaInsumos(a);
        a.escolhe(QStringLiteral("cboItem_PIsemPPB_Insumo"), QStringLiteral("1"));
        insumoIndividual(a, QString());
        a.clica(IncluirInsumo);
        QCOMPARE(a.msgs.textos(), QStringList());
        a.escolhe(QStringLiteral("cboItem_PIsemPPB_Insumo"), QStringLiteral("2"));
        insumoIndividual(a, QStringLiteral("4"));
        a.msgs.responde(Msg::OK);
        a.clica(IncluirInsumo);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Alíquota II não deve ser informada.")});
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_NFS")), 1);
        QCOMPARE(conta(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_IND")), 0);
    }
    void validacaoDoProdutoMensalNaOrdem()
    {
        Ambiente a;
        naAba(a, false, 3);
        auto recusa = [&] {
            a.msgs.responde(Msg::OK);
            a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB_CCI"));
        };
        a.digita(QStringLiteral("mskNumNCM_TabPIsemPPB"), Ncm1);
        a.digita(QStringLiteral("txtCodProdPIsemPPB"), QStringLiteral("P001"));
        recusa();
        a.escolhe(QStringLiteral("cboUnidadePIsemPPB"), QStringLiteral("UN"));
        recusa();
        a.escolhe(QStringLiteral("cboLocalPIsemPPB"), Local1);
        recusa();
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("O campo unidade de medida comercial deve ser selecionado."),
                              QStringLiteral("O campo local de destino deve ser selecionado."),
                              QStringLiteral("O campo quantidade por local deve ser preenchido.")}));
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskPIsemPPB(3)")));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    }

    void produtoMensalNaoMudaDeCodigo()
    {
        Ambiente a;
        naAba(a, false, 3);
        produtoMensal(a, QStringLiteral("P001"));
        escolheLinha(a, QStringLiteral("grdConsultaProduto_fraPIsemPPB"), 0);
        a.digita(QStringLiteral("txtCodProdPIsemPPB"), QStringLiteral("P002"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterar_tabPIsemPPB_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("O produto não pode ser alterado.")});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("CD_INT_PRODUTO = 'P001'")), 1);
    }

    // Alterar leaves the NCM rows alone: the old NCM keeps its row and the new one gets none.
    void alterarANcmDoProdutoNaoMexeNasNcmsDaDeclaracao()
    {
        Ambiente a;
        naAba(a, false, 3);
        produtoMensal(a, QStringLiteral("P001"));
        QCOMPARE(conta(QStringLiteral("NCM_VRT"), QStringLiteral("CD_NCM_PRODUTO = ? AND IN_MOD_INTERNACAO = '3'"), {Ncm1}), 1);
        escolheLinha(a, QStringLiteral("grdConsultaProduto_fraPIsemPPB"), 0);
        a.digita(QStringLiteral("mskNumNCM_TabPIsemPPB"), Ncm2);
        a.sai(QStringLiteral("cmdAlterar_tabPIsemPPB_CCI"));
        a.clica(QStringLiteral("cmdAlterar_tabPIsemPPB_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("CD_NCM_PRODUTO = ?"), {Ncm2}), 1);
        QCOMPARE(conta(QStringLiteral("NCM_VRT"), QStringLiteral("CD_NCM_PRODUTO = ?"), {Ncm1}), 1);
        QCOMPARE(conta(QStringLiteral("NCM_VRT"), QStringLiteral("CD_NCM_PRODUTO = ?"), {Ncm2}), 0);
    }
};

QTEST_MAIN(tst_insumosRegras)
#include "tst_insumosRegras.moc"
