// The tab "PI com PPB" of both editors: DCR and DCR-E lines with their destinations, the number rules, the
// coefficient, and the tests across documents and declarations.
#include "ItensTeste.h"

#include <QRadioButton>

using namespace ItensTeste;

namespace {

// DCR and DCR-E lines share the tab's Incluir.
void incluir(Ambiente& a)
{
    a.clica(DcrMensal::Incluir);
}

}  // namespace

class tst_abaPIcomPPB : public QObject {
    Q_OBJECT
private slots:
    void segundoDestinoSoAcrescentaDestinoELocalRepetidoRecusado()
    {
        Ambiente a;
        naAba(a, false, 2);
        digitaItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P001"), Local1});
        incluir(a);
        digitaItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P001"), Local2});
        incluir(a);
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"), QStringLiteral("NR_DCRE_DCR = '200500001' AND "
                                                                              "CD_TIPO_COEF_REDUCAO = '1'")),
                 1);
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("VL_PIS = '0,0000000' AND VL_COFINS = '0,0000000'")), 2);
        QCOMPARE(a.campo<ConsultGrid>(QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal"))->dataRowCount(), 2);
        QCOMPARE(linha(a, QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal"), 0).mid(2, 5),
                 (QStringList{QStringLiteral("2005/00001"), QStringLiteral("P001"), QStringLiteral("Produto um"), Local1,
                              QStringLiteral("4,00000")}));
        digitaItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P001"), Local2});
        a.msgs.responde(Msg::OK);
        incluir(a);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Produto já incluído para este local de destino.")});
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN")), 2);
    }

    void excluirUltimoDestinoLevaOItem()
    {
        Ambiente a;
        naAba(a, false, 2);
        digitaItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local1});
        incluir(a);
        digitaItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local2});
        incluir(a);
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("VL_II_UNIT_DOLAR = '2,5000000' AND "
                                                                           "PC_COEF_REDUCAO_II = '40,00' AND NM_UNID_MED_DEST = 'UN'")),
                 2);
        for (int i = 0; i < 2; ++i) {
            escolheLinha(a, QStringLiteral("grdConsultaDCR_fraPIcomPPBMensal"), 0);
            a.msgs.responde(Msg::Yes);
            a.clica(QStringLiteral("cmdExcluir_tabPIcomPPB"));
            QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 1 - i);
        }
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB")), 0);
    }

    void anosDeDcrEDcreRecusados_data()
    {
        QTest::addColumn<bool>("dcr");
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QString>("mensagem");
        const QString dcr = QStringLiteral("Ano deve ser menor ou igual a 2001 e maior ou igual a 1990.");
        QTest::newRow("DCR 1989") << true << QStringLiteral("000121989") << dcr;
        QTest::newRow("DCR 2002") << true << QStringLiteral("000122002") << dcr;
        QTest::newRow("DCR-E 2000") << false << QStringLiteral("200000001") << QStringLiteral("Ano deve ser maior ou igual a 2001.");
    }
    void anosDeDcrEDcreRecusados()
    {
        QFETCH(bool, dcr);
        QFETCH(QString, numero);
        QFETCH(QString, mensagem);
        Ambiente a;
        naAba(a, false, 2);
        if (dcr)
            digitaItem(a, DcrMensal{numero, QStringLiteral("P001"), Local1});
        else
            digitaItem(a, DcreMensal{numero, QStringLiteral("P001"), Local1});
        a.msgs.responde(Msg::OK);
        incluir(a);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    }

    void produtoDeUmDocumentoNaoEntraNoOutro()
    {
        Ambiente a;
        naAba(a, false, 2);
        digitaItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local1});
        incluir(a);
        digitaItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P001"), Local1});
        a.msgs.responde(Msg::OK);
        incluir(a);
        digitaItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P002"), Local1});
        incluir(a);
        digitaItem(a, DcrMensal{QStringLiteral("00013/1999"), QStringLiteral("P002"), Local1});
        a.msgs.responde(Msg::OK);
        incluir(a);
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("o produto P001 já foi relacionado no DCR 00012/1999."),
                                               QStringLiteral("o produto P002 já foi relacionado no DCR-E 2005/00001.")}));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 2);
    }

    void numeroDeDcrServeUmSoProduto()
    {
        Ambiente a;
        naAba(a, false, 2);
        digitaItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local1});
        incluir(a);
        digitaItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P002"), Local1});
        a.msgs.responde(Msg::OK);
        incluir(a);
        digitaItem(a, DcrMensal{QStringLiteral("00014/1999"), QStringLiteral("P001"), Local2});
        a.msgs.responde(Msg::OK);
        incluir(a);
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("Este número do DCR já foi utilizado para o código do produto: P001"),
                                               QStringLiteral("O produto P001já foi relacionado no DCR 00012/1999")}));
    }

    void coeficiente100RecusadoAoSairEVazioNaValidacao()
    {
        Ambiente a;
        naAba(a, false, 2);
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Mensal"));
        a.digita(QStringLiteral("mskPIcomPPB(2)"), QStringLiteral("100"));
        a.msgs.responde(Msg::OK);
        a.sai(QStringLiteral("mskPIcomPPB(3)"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("o coeficiente de redução deve ser um valor entre 0 e 100%.")});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskPIcomPPB(2)")));
        a.digita(QStringLiteral("mskPIcomPPB(2)"), QStringLiteral("99,99"));
        a.sai(QStringLiteral("mskPIcomPPB(3)"));
        QCOMPARE(a.msgs.caixas.size(), 1);
        digitaItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local1});
        a.campo<QLineEdit>(QStringLiteral("mskPIcomPPB(2)"))->clear();
        a.msgs.limpa();
        a.msgs.responde(Msg::OK);
        incluir(a);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("O coeficiente de redução deve ser um valor entre 0 e 100%")});
    }

    void alterarRecusaOutroProduto()
    {
        Ambiente a;
        naAba(a, false, 2);
        digitaItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P001"), Local1});
        incluir(a);
        escolheLinha(a, QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal"), 0);
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboLocalDCRE"))->currentText(), Local1);
        a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), QStringLiteral("P002"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterar_tabPIcomPPB"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("O produto não pode ser alterado.")});
        a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), QStringLiteral("P001"));
        a.escolhe(QStringLiteral("cboLocalDCRE"), Local2);
        a.clica(QStringLiteral("cmdAlterar_tabPIcomPPB"));
        QCOMPARE(a.msgs.caixas.size(), 1);
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("CD_LOCAL_DESTINO = '2'")), 1);
    }

    void individualEscolheDcreAoEntrarNaAba()
    {
        Ambiente a;
        naAba(a, true, 2);
        auto* dcre = a.campo<QRadioButton>(QStringLiteral("optDCRE_tabPIcomPPB_Individual"));
        QVERIFY(dcre->isChecked());
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Individual"));
        QVERIFY(!dcre->isChecked());
        a.vaiParaAba(4);
        a.vaiParaAba(2);
        QVERIFY(dcre->isChecked());
        QCOMPARE(a.campo<QLabel>(QStringLiteral("lblNumero_tabPIcomPPB_Individual"))->text(), QStringLiteral("123"));
    }

    void dcrIndividualDeOutraDeclaracaoParaOutroProdutoRecusado()
    {
        Ambiente a;
        naAba(a, true, 2);
        digitaItem(a, DcrIndividual{QStringLiteral("1"), QStringLiteral("00012/1999"), QStringLiteral("P001")});
        a.clica(DcrIndividual::Incluir);
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(conta(QStringLiteral("DCR"), QStringLiteral("NR_DCR = '000121999' AND QT_PRODUTO = '6,00000'")), 1);
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QVERIFY(!a.editor());
        a.novaIndividual();
        preencheNota(a, QStringLiteral("777"));
        a.vaiParaAba(2);
        digitaItem(a, DcrIndividual{QStringLiteral("1"), QStringLiteral("00012/1999"), QStringLiteral("P002")});
        a.msgs.responde(Msg::OK);
        a.clica(DcrIndividual::Incluir);
        QCOMPARE(a.msgs.textos().last(), QStringLiteral("DCR já incluído para o produto P001"));
        digitaItem(a, DcrIndividual{QStringLiteral("1"), QStringLiteral("00012/1999"), QStringLiteral("P001")});
        a.clica(DcrIndividual::Incluir);
        QCOMPARE(conta(QStringLiteral("DCR")), 2);
    }

    void individualDcreNumeroTomaFormaAoSair()
    {
        Ambiente a;
        naAba(a, true, 2);
        a.digita(QStringLiteral("mskPIcomPPBIndividual(0)"), QStringLiteral("2005000011"));
        a.sai(QStringLiteral("txtCodProdDCREPIcomPPB"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskPIcomPPBIndividual(0)"))->text(), QStringLiteral("2005/00001-1"));
        a.digita(QStringLiteral("mskPIcomPPBIndividual(0)"), QStringLiteral("200000001"));
        a.msgs.responde(Msg::OK);
        a.sai(QStringLiteral("txtCodProdDCREPIcomPPB"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Ano deve ser maior ou igual a 2001.")});
    }
};

QTEST_MAIN(tst_abaPIcomPPB)
#include "tst_abaPIcomPPB.moc"
