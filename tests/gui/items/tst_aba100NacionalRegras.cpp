// The tab "100% Nacional" beyond the plain Incluir: where the focus goes after each refusal, which rows the grids
// show, what a selected row puts back in the fields, and the repeat checks of Alterar.
#include "ItensTeste.h"

using namespace ItensTeste;

namespace {

const QString GradeMensal = QStringLiteral("grdConsulta100NacionalMensal");
const QString GradeIndividual = QStringLiteral("grdConsultaNotaFiscalSaida_tab100NacionalIndividual");
const QString IncluirMensal = QStringLiteral("cmdIncluir_tab100Nacional_Mensal");
const QString AlterarMensal = QStringLiteral("cmdAlterar_tab100Nacional_Mensal");
const QString IncluirIndividual = QStringLiteral("cmdIncluir_tab100NacionalIndividual");
const QString AlterarIndividual = QStringLiteral("cmdAlterar_tab100NacionalIndividual");

}  // namespace

class tst_aba100NacionalRegras : public QObject {
    Q_OBJECT
private slots:
    void focoAposCadaRecusaMensal()
    {
        Ambiente a;
        naAba(a, false, 4);
        auto recusa = [&](const QString& foco) {
            a.msgs.responde(Msg::OK);
            a.clica(IncluirMensal);
            QTRY_COMPARE(QApplication::focusWidget(), a.campo(foco));
        };
        recusa(QStringLiteral("cmdAssistenteNCM_tab100Nacional_Mensal"));
        a.digita(QStringLiteral("mskNumNCM100"), Ncm1);
        recusa(QStringLiteral("cmdAssistenteCodigoControleInterno_tab100Nacional_Mensal"));
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("XX"));
        recusa(QStringLiteral("cmdAssistenteCodigoControleInterno_tab100Nacional_Mensal"));
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        recusa(QStringLiteral("msk100N(2)"));
        a.digita(QStringLiteral("msk100N(2)"), QStringLiteral("1"));
        recusa(QStringLiteral("cboUnidade100"));
        a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
        recusa(QStringLiteral("msk100N(0)"));
        a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("1"));
        recusa(QStringLiteral("msk100N(1)"));
        QCOMPARE(a.msgs.caixas.size(), 7);
    }

    void focoAposCadaRecusaIndividual()
    {
        Ambiente a;
        naAba(a, true, 4);
        auto recusa = [&](const QString& foco) {
            a.msgs.responde(Msg::OK);
            a.clica(IncluirIndividual);
            QTRY_COMPARE(QApplication::focusWidget(), a.campo(foco));
        };
        recusa(QStringLiteral("txt100NacionalIndividual(0)"));
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("1"));
        recusa(QStringLiteral("cmdAssistenteNCM_tab100Nacional_Individual"));
        a.digita(QStringLiteral("msk100NacionalIndividual(0)"), Ncm1);
        recusa(QStringLiteral("cmdAssistenteCodigoControleInterno_tab100Nacional_Individual"));
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        recusa(QStringLiteral("cboUnidade100"));
        a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
        recusa(QStringLiteral("msk100NacionalIndividual(1)"));
        a.digita(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("1"));
        recusa(QStringLiteral("msk100NacionalIndividual(2)"));
        a.digita(QStringLiteral("msk100NacionalIndividual(2)"), QStringLiteral("1"));
        recusa(QStringLiteral("msk100NacionalIndividual(3)"));
        QCOMPARE(a.msgs.caixas.size(), 7);
    }

    // The monthly grid joins the NCM table: an item whose NCM is not there stays in the declaration unseen.
    void gradeMensalNaoMostraItemComNcmForaDaTabela()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, false, 4);
        BancoTeste::executa(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                           "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_PROD, "
                                           "QT_PROD_UNID_EST, VL_PROD_UNID_PROD) "
                                           "VALUES (?, 'P002', 'Produto dois', '99999999', 'UN', '4', '1', '1', '1')"),
                            {e->idVrt()});
        incluiItem(a, NacionalMensal{});
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 2);
        const QList<QStringList> l = linhas(a, GradeMensal);
        QCOMPARE(l.size(), 1);
        QCOMPARE(l.first().value(2), QStringLiteral("P001"));
    }

    void linhaEscolhidaDevolveOsCamposMensal()
    {
        Ambiente a;
        naAba(a, false, 4);
        incluiItem(a, NacionalMensal{});
        escolheLinha(a, GradeMensal, 0);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskNumNCM100"))->text(), QStringLiteral("3925.20.00"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDescrProd100N"))->text(), QStringLiteral("Produto um"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100N(2)"))->text(), QStringLiteral("10,00000"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100N(0)"))->text(), QStringLiteral("2,50000"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtUnidMedEstatistica"))->text(), UnidadeEst);
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboUnidade100"))->currentText(), QStringLiteral("UN"));
        QVERIFY(a.campo(AlterarMensal)->isEnabled());
    }

    void linhaEscolhidaDevolveOsCamposIndividual()
    {
        Ambiente a;
        naAba(a, true, 4);
        incluiItem(a, NacionalIndividual{});
        escolheLinha(a, GradeIndividual, 0);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txt100NacionalIndividual(0)"))->text(), QStringLiteral("2"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtCodProd100N"))->text(), QStringLiteral("P002"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100NacionalIndividual(2)"))->text(), QStringLiteral("7,2500000"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100NacionalIndividual(3)"))->text(), QStringLiteral("1,50000"));
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboUnidade100"))->currentText(), QStringLiteral("KG"));
    }

    void alterarSemLinhaEscolhida_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("botao");
        QTest::newRow("mensal") << false << AlterarMensal;
        QTest::newRow("individual") << true << AlterarIndividual;
    }
    void alterarSemLinhaEscolhida()
    {
        QFETCH(bool, individual);
        QFETCH(QString, botao);
        Ambiente a;
        naAba(a, individual, 4);
        QWidget* b = a.campo(botao);
        b->setEnabled(true);
        a.msgs.responde(Msg::OK);
        a.clica(botao);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Inclua um produto ou selecione no grid")});
    }

    void alterarMensalParaProdutoJaIncluidoRecusado()
    {
        Ambiente a;
        naAba(a, false, 4);
        incluiItem(a, NacionalMensal{});
        incluiItem(a, NacionalMensal{QStringLiteral("P002")});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 2);
        escolheLinha(a, GradeMensal, 1);
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        a.msgs.responde(Msg::OK);
        a.clica(AlterarMensal);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Produto já incluído.")});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("CD_INT_PRODUTO = 'P002'")), 1);
    }

    void alterarIndividualGuardaONumeroOuRecusaUmUsado()
    {
        Ambiente a;
        naAba(a, true, 4);
        incluiItem(a, NacionalIndividual{QStringLiteral("1"), QStringLiteral("P001")});
        incluiItem(a, NacionalIndividual{});
        QCOMPARE(conta(QStringLiteral("ITEM_NFS")), 2);
        escolheLinha(a, GradeIndividual, 1);
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("1"));
        a.msgs.responde(Msg::OK);
        a.clica(AlterarIndividual);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("O número de item informado já foi incluído anteriormente.")});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("txt100NacionalIndividual(0)")));
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("2"));
        a.digita(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("8"));
        a.clica(AlterarIndividual);
        QCOMPARE(a.msgs.caixas.size(), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_NFS_100"), QStringLiteral("QT_INT_UNID_NFS = '8,00000'")), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_NFS"), QStringLiteral("NR_ITEM_NF_SAIDA = '2'")), 1);
    }

    void campoItemSoAceitaDigitos()
    {
        Ambiente a;
        naAba(a, true, 4);
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("1a2b3"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txt100NacionalIndividual(0)"))->text(), QStringLiteral("123"));
    }
};

QTEST_MAIN(tst_aba100NacionalRegras)
#include "tst_aba100NacionalRegras.moc"
