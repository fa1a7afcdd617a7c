// The tab "PI com PPB" of the monthly editor: the checks of a DCR and of a DCR-E line in their order, the number
// checks, and what Alterar refuses.
#include "ItensTeste.h"

using namespace ItensTeste;

namespace {

const QString Incluir = QStringLiteral("cmdIncluir_tabPIcomPPB");
const QString Alterar = QStringLiteral("cmdAlterar_tabPIcomPPB");
const QString GradeDcre = QStringLiteral("grdConsultaDCRE_fraPIcomPPBMensal");
const QString GradeDcr = QStringLiteral("grdConsultaDCR_fraPIcomPPBMensal");

void recusa(Ambiente& a, const QString& botao)
{
    a.msgs.responde(Msg::OK);
    a.clica(botao);
}

}  // namespace

class tst_abaPIcomPPBRegras : public QObject {
    Q_OBJECT
private slots:
    void validacaoDcrMensalNaOrdem()
    {
        Ambiente a;
        naAba(a, false, 2);
        a.clica(QStringLiteral("optDCR_tabPIcomPPB_Mensal"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("mskDCRPIcomPPB"), QStringLiteral("00012/1999"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("txtCodProdDCRPIcomPPB"), QStringLiteral("XX"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("txtCodProdDCRPIcomPPB"), QStringLiteral("P001"));
        recusa(a, Incluir);
        a.escolhe(QStringLiteral("cboLocalDCR"), Local1);
        recusa(a, Incluir);
        a.digita(QStringLiteral("mskPIcomPPB(1)"), QStringLiteral("2,5"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("mskPIcomPPB(2)"), QStringLiteral("40"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("mskPIcomPPB(3)"), QStringLiteral("6"));
        recusa(a, Incluir);
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("O campo número DCR deve ser preenchido."),
                              QStringLiteral("O campo código do produto deve ser selecionado."),
                              QStringLiteral("O campo código do Produto não possui um código válido."),
                              QStringLiteral("O campo local de destino deve ser selecionado"),
                              QStringLiteral("O campo II unitário sem redução em US$ deve ser preenchido."),
                              QStringLiteral("O coeficiente de redução deve ser um valor entre 0 e 100%"),
                              QStringLiteral("O campo quantidade para o destino deve ser preenchido."),
                              QStringLiteral("O campo unidade medida DCR deve ser selecionado")}));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    }

    // The DCR-E's place message ends in a blank, the DCR's does not.
    void validacaoDcreMensalNaOrdem()
    {
        Ambiente a;
        naAba(a, false, 2);
        a.clica(QStringLiteral("optDCRE_tabPIcomPPB_Mensal"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("mskDCREPIcomPPB"), QStringLiteral("2005/00001"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), QStringLiteral("XX"));
        recusa(a, Incluir);
        a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), QStringLiteral("P001"));
        recusa(a, Incluir);
        a.escolhe(QStringLiteral("cboLocalDCRE"), Local1);
        recusa(a, Incluir);
        QCOMPARE(a.msgs.textos(),
                 (QStringList{QStringLiteral("O campo número DCR-E deve ser preenchido."),
                              QStringLiteral("O campo código do produto deve ser selecionado."),
                              QStringLiteral("O campo código do Produto não possui um código válido."),
                              QStringLiteral("O campo local de destino deve ser selecionado "),
                              QStringLiteral("O campo quantidade comercial na unid. DCR-E deve ser preenchido.")}));
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskPIcomPPB(0)")));
    }

    void numerosMalFormadosRecusadosAoIncluir_data()
    {
        QTest::addColumn<bool>("dcr");
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("DCR curto") << true << QStringLiteral("12345") << QStringLiteral("Número DCR inválido !");
        QTest::newRow("DCR de sequência zero") << true << QStringLiteral("00000/1999") << QStringLiteral("Número DCR inválido !");
        QTest::newRow("DCR-E curto") << false << QStringLiteral("2005/000") << QStringLiteral("Número DCR-E inválido !");
        QTest::newRow("DCR-E de sequência zero") << false << QStringLiteral("2005/00000")
                                                 << QStringLiteral("Número DCR-E inválido !");
    }
    void numerosMalFormadosRecusadosAoIncluir()
    {
        QFETCH(bool, dcr);
        QFETCH(QString, numero);
        QFETCH(QString, mensagem);
        Ambiente a;
        naAba(a, false, 2);
        if (dcr)
            digitaItem(a, DcrMensal{numero});
        else
            digitaItem(a, DcreMensal{numero});
        recusa(a, Incluir);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    }

    void alterarSemLinhaEscolhida_data()
    {
        QTest::addColumn<QString>("opcao");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("DCR") << QStringLiteral("optDCR_tabPIcomPPB_Mensal")
                             << QStringLiteral("Inclua uma DCR ou selecione no grid");
        QTest::newRow("DCR-E") << QStringLiteral("optDCRE_tabPIcomPPB_Mensal")
                               << QStringLiteral("Inclua uma DCR-E ou selecione no grid");
    }
    void alterarSemLinhaEscolhida()
    {
        QFETCH(QString, opcao);
        QFETCH(QString, mensagem);
        Ambiente a;
        naAba(a, false, 2);
        a.clica(opcao);
        a.campo(Alterar)->setEnabled(true);
        recusa(a, Alterar);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
    }

    void alterarParaNumeroDeOutroItemRecusado()
    {
        Ambiente a;
        naAba(a, false, 2);
        incluiItem(a, DcreMensal{QStringLiteral("2005/00001"), QStringLiteral("P001"), Local1});
        incluiItem(a, DcreMensal{QStringLiteral("2005/00002"), QStringLiteral("P002"), Local1, QStringLiteral("4"), false});
        QCOMPARE(a.msgs.caixas.size(), 0);
        escolheLinha(a, GradeDcre, 1);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtCodProdDCREPIcomPPB"))->text(), QStringLiteral("P002"));
        a.digita(QStringLiteral("mskDCREPIcomPPB"), QStringLiteral("2005/00001"));
        recusa(a, Alterar);
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("DCR-E já incluído.")});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"), QStringLiteral("NR_DCRE_DCR = '200500002'")), 1);
    }

    void alterarParaLocalJaDoItemRecusado()
    {
        Ambiente a;
        naAba(a, false, 2);
        incluiItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local1});
        incluiItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local2});
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN")), 2);
        escolheLinha(a, GradeDcr, 0);
        a.escolhe(QStringLiteral("cboLocalDCR"), a.campo<QComboBox>(QStringLiteral("cboLocalDCR"))->currentText() == Local1
                                                     ? Local2
                                                     : Local1);
        recusa(a, Alterar);
        QCOMPARE(a.msgs.textos(),
                 QStringList{QStringLiteral("Local de destino já informado anteriormente para este produto.")});
    }

    void alterarGravaODestinoEscolhido()
    {
        Ambiente a;
        naAba(a, false, 2);
        incluiItem(a, DcrMensal{QStringLiteral("00012/1999"), QStringLiteral("P001"), Local1});
        escolheLinha(a, GradeDcr, 0);
        a.digita(QStringLiteral("mskPIcomPPB(3)"), QStringLiteral("9"));
        a.digita(QStringLiteral("mskPIcomPPB(2)"), QStringLiteral("55"));
        a.sai(Alterar);
        a.clica(Alterar);
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(conta(QStringLiteral("DESTINO_ITEM_VRT_MEN"),
                       QStringLiteral("QT_PROD_LOC_DEST = '9,00000' AND PC_COEF_REDUCAO_II = '55,00'")),
                 1);
        QVERIFY(!a.campo(Alterar)->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cmdExcluir_tabPIcomPPB"))->isEnabled());
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDCRPIcomPPB")));
    }
};

QTEST_MAIN(tst_abaPIcomPPBRegras)
#include "tst_abaPIcomPPBRegras.moc"
