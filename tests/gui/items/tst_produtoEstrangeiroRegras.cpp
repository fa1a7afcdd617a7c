// The page "Produto" of the foreign-product tab: the rate checks and what they enable, the item number's form,
// and the place test of a monthly Alterar.
#include "ProdutoTeste.h"

using namespace ProdutoTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QString Grade = QStringLiteral("grdConsultaCodigoControleInterno");

}  // namespace

class tst_produtoEstrangeiroRegras : public QObject {
    Q_OBJECT
private slots:
    void caixaDeAliquotaLigaEEsvazia_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("caixa");
        QTest::addColumn<QString>("taxa");
        QTest::addColumn<QString>("justificativa");
        QTest::newRow("mensal II") << false << t("chk_Aliquota_tabPE") << t("mskPE(3)") << t("txtJustifLegalAliqIIPE");
        QTest::newRow("mensal IPI") << false << t("chk_Aliquota_tabP") << t("mskPE(4)") << t("txtJustifLegalAliqIPIPE");
        QTest::newRow("individual II") << true << t("chk_AliquotaTEC_tabPE") << t("mskProdutoEstrangeiroNFS(6)")
                                       << t("txtProdutoEstrangeiroNFS(4)");
        QTest::newRow("individual IPI") << true << t("chk_AliquotaTIPI_tabPE") << t("mskProdutoEstrangeiroNFS(7)")
                                        << t("txtProdutoEstrangeiroNFS(5)");
    }
    void caixaDeAliquotaLigaEEsvazia()
    {
        QFETCH(bool, individual);
        QFETCH(QString, caixa);
        QFETCH(QString, taxa);
        QFETCH(QString, justificativa);
        Ambiente a;
        naAbaProduto(a, individual);
        QVERIFY(!a.campo(taxa)->isEnabled());
        QVERIFY(!a.campo(justificativa)->isEnabled());
        a.clica(caixa);
        QVERIFY(a.campo(taxa)->isEnabled());
        QVERIFY(a.campo(justificativa)->isEnabled());
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(taxa));
        a.digita(taxa, t("5"));
        // The grounds are typed into a statement as they stand: the apostrophe never gets in.
        a.digita(justificativa, t("Lei d'agua"));
        QCOMPARE(a.campo<QLineEdit>(justificativa)->text(), t("Lei dagua"));
        a.clica(caixa);
        QVERIFY(a.campo<QLineEdit>(taxa)->text().isEmpty());
        QVERIFY(a.campo<QLineEdit>(justificativa)->text().isEmpty());
        QVERIFY(!a.campo(taxa)->isEnabled());
        QVERIFY(!a.campo(justificativa)->isEnabled());
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    void itemIndividualGanhaTresDigitosAoSair()
    {
        Ambiente a;
        naAbaProduto(a, true);
        a.digita(t("txtProdutoEstrangeiroNFS(0)"), t("7x"));
        a.sai(t("txtCodProdPE"));
        QCOMPARE(a.campo<QLineEdit>(t("txtProdutoEstrangeiroNFS(0)"))->text(), t("007"));
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    void alterarParaLocalDeOutroDestinoRecusado()
    {
        Ambiente a;
        naAbaProduto(a, false);
        ProdutoMensal p;
        incluiMensal(a, p);
        p.local = Local2;
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        escolheLinha(a, Grade, 0);
        const QString atual = a.campo<QComboBox>(t("cboLocalPE"))->currentText();
        a.escolhe(t("cboLocalPE"), atual == Local1 ? Local2 : Local1);
        a.msgs.responde(Msg::OK);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Local de destino já informado anteriormente para este produto.")});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(t("cmdAlterar_tabProdutoEstrangeiro_CCI")));
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 2);
    }

    void alterarSemLinhaEscolhidaMensal()
    {
        Ambiente a;
        naAbaProduto(a, false);
        a.campo(t("cmdAlterar_tabProdutoEstrangeiro_CCI"))->setEnabled(true);
        a.msgs.responde(Msg::OK);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Inclua um produto ou selecione no grid")});
    }
    // A second destination that disagrees on the NCM sends the focus to the unit, not to the NCM; a repeated
    // place sends it to Incluir.
    void focoDasRecusasDoSegundoDestino()
    {
        Ambiente a;
        naAbaProduto(a, false);
        ProdutoMensal p;
        incluiMensal(a, p);
        ProdutoMensal outraNcm = p;
        outraNcm.ncm = QStringLiteral("39252000");
        outraNcm.local = Local2;
        digitaMensal(a, outraNcm);
        a.msgs.responde(Msg::OK);
        a.clica(t("cmdIncluir_tabProdutoEstrangeiro_CCI"));
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(t("cboUnidadePE")));
        digitaMensal(a, p);
        a.msgs.responde(Msg::OK);
        a.clica(t("cmdIncluir_tabProdutoEstrangeiro_CCI"));
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(t("cmdIncluir_tabProdutoEstrangeiro_CCI")));
        QCOMPARE(a.msgs.textos(), (QStringList{t("Este produto possui outro(s) registro(s) com NCM diferente!"),
                                               t("Produto já incluído para este local de destino.")}));
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 1);
    }

    void alterarMensalVoltaAoBotaoDoProduto()
    {
        Ambiente a;
        naAbaProduto(a, false);
        incluiMensal(a, ProdutoMensal());
        escolheLinha(a, Grade, 0);
        QVERIFY(a.campo(t("cmdExcluir_tabProdutoEstrangeiro_CCI"))->isEnabled());
        a.digita(t("mskPE(2)"), t("15"));
        a.sai(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::valor(t("SELECT QT_PROD_LOC_DEST FROM DESTINO_ITEM_VRT_MEN")).toString(), t("15,00000"));
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(t("cmdAssistenteCCI_tabProdutoEstrangeiro_Mensal")));
        QVERIFY(!a.campo(t("cmdAlterar_tabProdutoEstrangeiro_CCI"))->isEnabled());
        QVERIFY(!a.campo(t("cmdExcluir_tabProdutoEstrangeiro_CCI"))->isEnabled());
    }

    // The individual editor's Alterar and Excluir act on a chosen item only and says nothing without one.
    void alterarEExcluirIndividualSemLinhaNadaFazem()
    {
        Ambiente a;
        naAbaProduto(a, true);
        incluiIndividual(a, ProdutoIndividual());
        digitaIndividual(a, ProdutoIndividual());
        a.campo(t("cmdAlterar_tabProdutoEstrangeiro"))->setEnabled(true);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro"));
        a.campo(t("cmdExcluir_tabProdutoEstrangeiro"))->setEnabled(true);
        a.clica(t("cmdExcluir_tabProdutoEstrangeiro"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS")), 1);
    }
};

QTEST_MAIN(tst_produtoEstrangeiroRegras)
#include "tst_produtoEstrangeiroRegras.moc"
