// The tab "PI sem PPB" of both editors: products with their destinations, the inputs of each product with their
// rates, the consolidated inputs of the page "Documentos de Origem" and the statistical total of an input.
#include "DocumentoTeste.h"
#include "ItensTeste.h"
#include "PISemPPBTeste.h"

#include "gui/widgets/ConsultGrid.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTabWidget>

using namespace ItensTeste;
using namespace PISemPPBTeste;

namespace {

const QString GradeProduto = QStringLiteral("grdConsultaProduto_fraPIsemPPB");
const QString GradeInsumo = QStringLiteral("grdConsultaInsumo_fraCCI");

// Two products sharing INS1, the first at two places, the second at one; INS2 only in the first.
void duasDestinacoes(Ambiente& a)
{
    incluiProduto(a, ProdutoMensal{QStringLiteral("P001"), Local1, QStringLiteral("10")});
    incluiProduto(a, ProdutoMensal{QStringLiteral("P001"), Local2, QStringLiteral("4")});
    incluiProduto(a, ProdutoMensal{QStringLiteral("P002"), Local1, QStringLiteral("3")});
    paginas(a)->setCurrentIndex(1);
    escolheProdutoDoInsumo(a, false, QStringLiteral("P001"));
    incluiInsumo(a, InsumoMensal{QStringLiteral("INS1"), QStringLiteral("0,5"), QStringLiteral("2")});
    incluiInsumo(a, InsumoMensal{QStringLiteral("INS2"), QStringLiteral("1")});
    escolheProdutoDoInsumo(a, false, QStringLiteral("P002"));
    incluiInsumo(a, InsumoMensal{QStringLiteral("INS1"), QStringLiteral("2"), QStringLiteral("2")});
}

// A DI of the chosen input at the chosen place: electronic, under the Decreto-Lei, with the input's value.
void diDoInsumo(Ambiente& a)
{
    a.clica(QStringLiteral("optDI_tabPIsemPPB"));
    a.digita(QStringLiteral("mskNumDI_PIsemPPBDI"), DocumentoTeste::numeroDI());
    a.digita(QStringLiteral("txtPIsemPPBDI(4)"), QStringLiteral("1"));
    a.digita(QStringLiteral("txtPIsemPPBDI(5)"), QStringLiteral("1"));
    a.digita(QStringLiteral("mskPIsemPPB(7)"), QStringLiteral("5"));
    a.sai(QStringLiteral("txtPIsemPPBDI(4)"));
    a.clica(QStringLiteral("chkDecretoLei28867_tabPIsemPPB_DI"));
    a.digita(QStringLiteral("txtMoedaDI_PIsemPPB(0)"), QStringLiteral("220"));
    a.digita(QStringLiteral("mskVlUnitMedidaDI_PIsemPPB(0)"), QStringLiteral("10"));
    a.sai(QStringLiteral("txtMoedaDI_PIsemPPB(0)"));
    a.clica(QStringLiteral("cmdIncluir_tabPIsemPPB"));
}

}  // namespace

class tst_abaPIsemPPB : public QObject {
    Q_OBJECT
private slots:
    void insumoDeDoisProdutosMesmaNcmUnidadeEAliquotaQuantidadesDiferentes()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        duasDestinacoes(a);
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("IND_MOD_INTERNACAO = '3'")), 2);
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN")), 3);
        QCOMPARE(conta(QStringLiteral("NCM_VRT"), QStringLiteral("CD_NCM_PRODUTO = ? AND IN_MOD_INTERNACAO = '3' AND "
                                                                 "QT_TOTAL_NCM = '0'"), {Ncm1}),
                 1);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN"), QStringLiteral("CD_INT_INSUMO = 'INS1'")), 2);
        QCOMPARE(conta(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), QStringLiteral("ALIQ_II_DIF_TEC = '2,00' AND "
                                                                                   "JUST_II_DIF_TEC = 'Lei 123'")),
                 2);
        QCOMPARE(a.campo<ConsultGrid>(GradeInsumo)->dataRowCount(), 1);
        QCOMPARE(linha(a, GradeInsumo, 0).mid(2, 4), (QStringList{QStringLiteral("INS1"), QStringLiteral("Insumo INS1"),
                                                                  QStringLiteral("2,00000"), QStringLiteral("3925.90.90")}));

        // The same input again under a product, and an input that does not look the same as elsewhere.
        digitaInsumo(a, InsumoMensal{QStringLiteral("INS1"), QStringLiteral("1"), QStringLiteral("2")});
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        digitaInsumo(a, InsumoMensal{QStringLiteral("INS2"), QStringLiteral("1"), {}, {}, QStringLiteral("UN"), Ncm1});
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        digitaInsumo(a, InsumoMensal{QStringLiteral("INS2"), QStringLiteral("1"), {}, {}, QStringLiteral("AMPOLA")});
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        digitaInsumo(a, InsumoMensal{QStringLiteral("INS2"), QStringLiteral("1"), QStringLiteral("3")});
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("Insumo já incluído."),
                              QStringLiteral("A NCM informada deve ser igual a 3925.90.90, que foi informada em "
                                             "outro(s) registro(s) deste insumo."),
                              QStringLiteral("A unidade de medida informada deve ser UN, que foi informada em "
                                             "outro(s) registro(s) deste insumo."),
                              QStringLiteral("Não foi informada Alíquota de II anteriormente.")}));
        a.msgs.limpa();
        // Changing the rate of an input that has another rate elsewhere is refused.
        escolheLinha(a, GradeInsumo, 0);
        a.digita(QStringLiteral("mskPIsemPPB(5)"), QStringLiteral("3"));
        a.sai(QStringLiteral("cmdAlterarInsumo"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterarInsumo"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("A alíquota do II deve ser 2,00%, que foi informada em "
                                                             "outro(s) registro(s) deste insumo.")});
        // Another quantity per product is allowed.
        a.digita(QStringLiteral("mskPIsemPPB(5)"), QStringLiteral("2"));
        a.digita(QStringLiteral("mskPIsemPPB(4)"), QStringLiteral("6"));
        a.sai(QStringLiteral("cmdAlterarInsumo"));
        a.clica(QStringLiteral("cmdAlterarInsumo"));
        QCOMPARE(a.msgs.caixas.size(), 1);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN"), QStringLiteral("QT_INSUMO_POR_PROD = '6,00000'")), 1);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 3);
    }

    void quantidadeZeroDoInsumoDaAMensagemDeZero()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        incluiProduto(a, ProdutoMensal{QStringLiteral("P001"), Local1, QStringLiteral("1")});
        paginas(a)->setCurrentIndex(1);
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        escolheProdutoDoInsumo(a, false, QStringLiteral("P001"));
        a.digita(QStringLiteral("mskNumNCMInsumo"), Ncm2);
        a.digita(QStringLiteral("txtCodInsPIsemPPB"), QStringLiteral("INS1"));
        a.escolhe(QStringLiteral("cboUnidadeInsumo"), QStringLiteral("UN"));
        a.digita(QStringLiteral("mskPIsemPPB(4)"), QString());
        a.sai(QStringLiteral("cmdIncluirInsumo"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskPIsemPPB(4)"))->text().left(1), QStringLiteral("0"));
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("O produto referente a este insumo deve ser previamente selecionado."),
                              QStringLiteral("O campo quantidade insumo por unidade de produto deve ser maior que zero.")}));
    }

    void excluirUmDeDoisDestinosGuardaInsumosEOUltimoPerguntaDeNovo()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        duasDestinacoes(a);
        paginas(a)->setCurrentIndex(0);
        // Rows by item and destination: P001 at place 1, P001 at place 2, P002 at place 1.
        escolheLinha(a, GradeProduto, 1);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tabPIsemPPB_CCI"));
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN")), 2);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 3);

        // A "Não" to the second question keeps everything, although the first was answered "Sim".
        escolheLinha(a, GradeProduto, 0);
        a.msgs.responde(Msg::Yes).responde(Msg::No);
        a.clica(QStringLiteral("cmdExcluir_tabPIsemPPB_CCI"));
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("Deseja realmente excluir?"), QStringLiteral("Deseja realmente excluir?"),
                                                QStringLiteral("Existem insumos cadastrados para este produto. Deseja "
                                                               "realmente excluir?")}));
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN")), 2);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 3);

        BancoTeste::executa(QStringLiteral("INSERT INTO ITEM_DI_INS_MEN (ID_VRT_MICRO, CD_INT_INSUMO, CD_LOCAL_DESTINO) "
                                           "SELECT ID_VRT_MICRO, CD_INT_INSUMO, '1' FROM TOT_INSUMO_CONSOLIDADO"));
        QCOMPARE(conta(QStringLiteral("ITEM_DI_INS_MEN")), 2);
        escolheLinha(a, GradeProduto, 0);
        a.msgs.responde(Msg::Yes).responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tabPIsemPPB_CCI"));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 1);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 1);
        // INS2 went with its only product; INS1 stays in P002 and keeps its document.
        QCOMPARE(conta(QStringLiteral("ITEM_DI_INS_MEN"), QStringLiteral("CD_INT_INSUMO = 'INS1'")), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_DI_INS_MEN")), 1);
        // The NCM still has P002.
        QCOMPARE(conta(QStringLiteral("NCM_VRT")), 1);
    }

    void documentosDeOrigemListamInsumosELocaisConsolidados()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        a.msgs.responde(Msg::OK);
        paginas(a)->setCurrentIndex(2);
        QCOMPARE(paginas(a)->currentIndex(), 0);
        duasDestinacoes(a);
        paginas(a)->setCurrentIndex(2);
        QCOMPARE(a.entradas(QStringLiteral("cboCCIInsumoPIsemPPB")), (QStringList{QStringLiteral("INS1"), QStringLiteral("INS2")}));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("optDI_tabPIsemPPB"));
        a.escolhe(QStringLiteral("cboCCIInsumoPIsemPPB"), QStringLiteral("INS1"));
        QCOMPARE(a.entradas(QStringLiteral("cboLocalDestinoInsumo")), (QStringList{Local1, Local2}));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("optDI_tabPIsemPPB"));
        a.escolhe(QStringLiteral("cboLocalDestinoInsumo"), Local1);
        // 10 x 0,5 of P001 and 3 x 2 of P002.
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtQuantidadeTotalInsumo"))->text(), QStringLiteral("11,00000"));
        a.escolhe(QStringLiteral("cboLocalDestinoInsumo"), Local2);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtQuantidadeTotalInsumo"))->text(), QStringLiteral("2,00000"));
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("Não existem insumos cadastrados"),
                                                QStringLiteral("Selecione um código de produto antes"),
                                                QStringLiteral("Selecione um local de destino antes")}));
        a.msgs.limpa();

        // The statistical total is written on leaving the field; zero is refused.
        modVRTPLN::AlteracaoPendente = false;
        a.digita(QStringLiteral("mskPIsemPPB(0)"), QStringLiteral("0"));
        a.msgs.responde(Msg::OK);
        a.sai(QStringLiteral("cboLocalDestinoInsumo"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Este campo não pode ser zero.")});
        a.digita(QStringLiteral("mskPIsemPPB(0)"), QStringLiteral("7,5"));
        a.sai(QStringLiteral("cboLocalDestinoInsumo"));
        a.digita(QStringLiteral("mskPIsemPPB(0)"), QStringLiteral("8,5"));
        a.sai(QStringLiteral("cboLocalDestinoInsumo"));
        QVERIFY(modVRTPLN::AlteracaoPendente);
        QCOMPARE(conta(QStringLiteral("INSUMO_VRT"), QStringLiteral("CD_INT_INSUMO = 'INS1' AND QT_TOT_INS_EST = '8,50000'")), 1);

        // The total stays while the input leaves every product, and comes back with it.
        paginas(a)->setCurrentIndex(1);
        for (const QString& p : {QStringLiteral("P001"), QStringLiteral("P002")}) {
            escolheProdutoDoInsumo(a, false, p);
            escolheLinha(a, GradeInsumo, 0);
            a.msgs.responde(Msg::Yes);
            a.clica(QStringLiteral("cmdExcluirInsumo"));
        }
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN"), QStringLiteral("CD_INT_INSUMO = 'INS1'")), 0);
        escolheProdutoDoInsumo(a, false, QStringLiteral("P002"));
        digitaInsumo(a, InsumoMensal{QStringLiteral("INS1"), QStringLiteral("1")});
        incluirInsumo(a);
        paginas(a)->setCurrentIndex(2);
        a.escolhe(QStringLiteral("cboCCIInsumoPIsemPPB"), QStringLiteral("INS1"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskPIsemPPB(0)"))->text(), QStringLiteral("8,50000"));
    }

    void diDoInsumoSobreviveAoPrimeiroProdutoESaiComOUltimo()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        duasDestinacoes(a);
        paginas(a)->setCurrentIndex(2);
        a.escolhe(QStringLiteral("cboCCIInsumoPIsemPPB"), QStringLiteral("INS1"));
        a.escolhe(QStringLiteral("cboLocalDestinoInsumo"), Local1);
        diDoInsumo(a);
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(conta(QStringLiteral("ITEM_DI_INS_MEN"), QStringLiteral("CD_INT_INSUMO = 'INS1' AND CD_LOCAL_DESTINO = '1' "
                                                                         "AND NR_DI = ? AND QT_INSUMO_UNID_INS = '5,00000' "
                                                                         "AND IND_DL_288_67 = 'S'"),
                       {DocumentoTeste::numeroDI()}),
                 1);
        QCOMPARE(conta(QStringLiteral("ITEM_IMPORT_288_INS_MEN"), QStringLiteral("CD_MOEDA_NEG = '220'")), 1);
        QCOMPARE(a.campo<ConsultGrid>(QStringLiteral("grdConsultaDI_tabPIsemPPB"))->dataRowCount(), 1);

        // Excluding the input from one of its two products leaves its documents; from the second removes them all.
        paginas(a)->setCurrentIndex(1);
        for (const QString& p : {QStringLiteral("P001"), QStringLiteral("P002")}) {
            escolheProdutoDoInsumo(a, false, p);
            escolheLinha(a, GradeInsumo, 0);
            a.msgs.responde(Msg::Yes);
            a.clica(QStringLiteral("cmdExcluirInsumo"));
            QCOMPARE(conta(QStringLiteral("ITEM_DI_INS_MEN")), p == QLatin1String("P001") ? 1 : 0);
        }
        QCOMPARE(conta(QStringLiteral("ITEM_IMPORT_288_INS_MEN")), 0);
    }

    void excluirInsumoSemProdutoOuSemCodigoRecusaAntesDaPergunta()
    {
        Ambiente a;
        naAba(a, false, 3);
        cadastraInsumos();
        duasDestinacoes(a);
        // The code typed away from the chosen row: the grid's double click is asked for, the focus on Excluir.
        escolheLinha(a, GradeInsumo, 0);
        a.campo<QLineEdit>(QStringLiteral("txtCodInsPIsemPPB"))->clear();
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdExcluirInsumo"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Para excluir de um duplo clique na linha do grid a ser excluída")});
        QCOMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("cmdExcluirInsumo")));
        a.msgs.limpa();
        // The product list emptied while a row stays chosen.
        escolheLinha(a, GradeInsumo, 0);
        a.campo<QComboBox>(QStringLiteral("cboDocProdutoPIsemPPB"))->setCurrentIndex(-1);
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdExcluirInsumo"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Selecione um produto")});
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 3);
        // With the product and the code, the question comes and the input goes.
        escolheProdutoDoInsumo(a, false, QStringLiteral("P002"));
        escolheLinha(a, GradeInsumo, 0);
        a.msgs.limpa();
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluirInsumo"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Deseja realmente excluir?")});
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_VRT_MEN")), 2);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void individualProdutoEInsumoComTotal()
    {
        Ambiente a;
        naAba(a, true, 3);
        cadastraInsumos();
        a.msgs.responde(Msg::OK);
        paginas(a)->setCurrentIndex(1);
        QCOMPARE(paginas(a)->currentIndex(), 0);
        incluiProduto(a, ProdutoIndividual{});
        QCOMPARE(conta(QStringLiteral("ITEM_NFS_PI_SEM_PPB"), QStringLiteral("QT_INT_UNID_NFS = '5,00000'")), 1);

        paginas(a)->setCurrentIndex(1);
        escolheProdutoDoInsumo(a, true, QStringLiteral("1"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtPIsemPPBNFS(1)"))->text(), QStringLiteral("P001"));
        digitaInsumo(a, InsumoIndividual{});
        a.campo<QCheckBox>(QStringLiteral("chk_AliquotaTEC_tabPIsemPPB"))->setChecked(true);
        a.msgs.responde(Msg::OK);
        incluirInsumo(a);
        a.campo<QCheckBox>(QStringLiteral("chk_AliquotaTEC_tabPIsemPPB"))->setChecked(false);
        incluirInsumo(a);
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("Não existem produtos cadastrados!"),
                                                QStringLiteral("Os campos alíquota II e justificativa legal devem ser preenchidos.")}));
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_NFS"), QStringLiteral("CD_INT_INSUMO = 'INS1' AND QT_INSUMO_POR_PROD = '2,00000'")), 1);
        a.msgs.limpa();

        escolheInsumoDosDocumentos(a, true);
        a.digita(QStringLiteral("mskPIsemPPB"), QStringLiteral("3"));
        a.sai(QStringLiteral("cmbCodigoControleInternoInsumo"));
        QCOMPARE(conta(QStringLiteral("INSUMO_VRT_IND"), QStringLiteral("CD_INT_INSUMO = 'INS1' AND QT_TOT_INS = '3,00000'")), 1);

        // Deleting the product warns that its inputs go with it, while the input grid shows them.
        paginas(a)->setCurrentIndex(1);
        a.escolhe(QStringLiteral("cboItem_PIsemPPB_Insumo"), QStringLiteral("1"));
        paginas(a)->setCurrentIndex(0);
        escolheLinha(a, QStringLiteral("grdConsultaProduto"), 0);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tabPIsemPPB_NFS"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Existem insumos para este produto, que serão excluídos "
                                                             "automaticamente. Confirma?")});
        QCOMPARE(conta(QStringLiteral("ITEM_NFS")), 0);
        QCOMPARE(conta(QStringLiteral("INSUMO_ITEM_NFS")), 0);
    }
};

QTEST_MAIN(tst_abaPIsemPPB)
#include "tst_abaPIsemPPB.moc"
