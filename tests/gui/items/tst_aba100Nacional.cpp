// The tab "100% Nacional" of both editors, driven through its fields and buttons: what Incluir, Alterar and
// Excluir write, the checks in their order, and the edge cases of the value fields and of the duplicate tests.
#include "ItensTeste.h"

#include "gui/widgets/DecimalField.h"

using namespace ItensTeste;

namespace {

const QString Titulo = QStringLiteral("VRT - Vistoria de Remessa Tributada");

}  // namespace

class tst_aba100Nacional : public QObject {
    Q_OBJECT
private slots:
    void incluirMensalGravaOItemEMostraNaGrade()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, false, 4);
        digitaItem(a, NacionalMensal{});
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDescrProd100N"))->text(), QStringLiteral("Produto um"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtUnidMedEstatistica"))->text(), UnidadeEst);
        a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"),
                       QStringLiteral("ID_VRT_MICRO = ? AND CD_INT_PRODUTO = 'P001' AND NM_INT_PRODUTO = 'Produto um' "
                                      "AND CD_NCM_PRODUTO = ? AND NM_UNID_MED_PROD = 'UN' AND IND_MOD_INTERNACAO = '4' "
                                      "AND QT_PROD_UNID_PROD = '10,00000' AND QT_PROD_UNID_EST = '2,50000' "
                                      "AND VL_PROD_UNID_PROD = '1234,56'"),
                       {e->idVrt(), Ncm1}),
                 1);
        QVERIFY(modVRTPLN::AlteracaoPendente);
        const QStringList l = linha(a, QStringLiteral("grdConsulta100NacionalMensal"), 0);
        QCOMPARE(l.mid(2), (QStringList{QStringLiteral("P001"), QStringLiteral("Produto um"), QStringLiteral("10,00000"),
                                        QStringLiteral("3925.20.00"), QStringLiteral("UN"), QStringLiteral("2,50000"),
                                        QStringLiteral("1234,56"), UnidadeEst}));
        QVERIFY(a.campo<QLineEdit>(QStringLiteral("txtCodProd100N"))->text().isEmpty());
        QVERIFY(!a.campo(QStringLiteral("cmdAlterar_tab100Nacional_Mensal"))->isEnabled());
    }

    void validacaoMensalNaOrdem()
    {
        Ambiente a;
        naAba(a, false, 4);
        const QStringList esperadas{
            QStringLiteral("O campo número da NCM deve ser preenchido."),
            QStringLiteral("O campo código do produto deve ser selecionado."),
            QStringLiteral("O campo código do Produto não possui um código válido."),
            QStringLiteral("O campo quantidade total comercial não pode ser nulo"),
            QStringLiteral("O campo unidade de medida comercial deve ser selecionado."),
            QStringLiteral("O campo quantidade total estatística não pode ser nulo"),
            QStringLiteral("O campo valor total internado não pode ser nulo")};
        auto incluir = [&] {
            a.msgs.responde(Msg::OK);
            a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        };
        incluir();
        a.digita(QStringLiteral("mskNumNCM100"), Ncm1);
        incluir();
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("XX"));
        incluir();
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        incluir();
        a.digita(QStringLiteral("msk100N(2)"), QStringLiteral("1"));
        incluir();
        a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
        incluir();
        a.digita(QStringLiteral("msk100N(0)"), QStringLiteral("1"));
        incluir();
        QCOMPARE(a.msgs.textos(), esperadas);
        QCOMPARE(a.msgs.caixas.first().titulo, Titulo);
        QCOMPARE(a.msgs.caixas.first().icone(), int(Msg::Critical));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    }

    void validacaoIndividualNaOrdem()
    {
        Ambiente a;
        naAba(a, true, 4);
        auto incluir = [&] {
            a.msgs.responde(Msg::OK);
            a.clica(QStringLiteral("cmdIncluir_tab100NacionalIndividual"));
        };
        incluir();
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("1"));
        a.digita(QStringLiteral("msk100NacionalIndividual(0)"), Ncm1);
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        a.escolhe(QStringLiteral("cboUnidade100"), QStringLiteral("UN"));
        incluir();
        a.digita(QStringLiteral("msk100NacionalIndividual(1)"), QStringLiteral("1"));
        incluir();
        a.digita(QStringLiteral("msk100NacionalIndividual(2)"), QStringLiteral("1"));
        incluir();
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("O campo item deve ser preenchido."),
                                               QStringLiteral("O campo quant. comercial deve ser preenchido."),
                                               QStringLiteral("O campo valor unit. na unid. med. comercial deve ser preenchido."),
                                               QStringLiteral("O campo quant. estatística deve ser preenchido.")}));
        QCOMPARE(conta(QStringLiteral("ITEM_NFS")), 0);
    }

    void quinzeDigitosNoValorTotal()
    {
        Ambiente a;
        naAba(a, false, 4);
        a.digita(QStringLiteral("msk100N(1)"), QStringLiteral("1234567890123456"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100N(1)"))->text(), QStringLiteral("1234567890123,45"));
    }

    void zeroNaQuantidade_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("mensal") << false << QStringLiteral("msk100N(2)") << QStringLiteral("Este campo não pode ser igual a zero.");
        QTest::newRow("individual") << true << QStringLiteral("msk100NacionalIndividual(1)")
                                    << QStringLiteral("Campo deve ser maior que zero.");
    }
    void zeroNaQuantidade()
    {
        QFETCH(bool, individual);
        QFETCH(QString, campo);
        QFETCH(QString, mensagem);
        Ambiente a;
        naAba(a, individual, 4);
        a.digita(campo, QStringLiteral("0"));
        a.msgs.responde(Msg::OK);
        a.sai(QStringLiteral("txtCodProd100N"));
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(campo));
    }

    void itemZeroRecusadoAoSair()
    {
        Ambiente a;
        naAba(a, true, 4);
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("0"));
        a.msgs.responde(Msg::OK);
        a.sai(QStringLiteral("txtCodProd100N"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Campo deve ser maior que zero.")});
    }

    void produtoRepetidoRecusadoNaModalidade4EAceitoEmOutra()
    {
        Ambiente a;
        naAba(a, false, 4);
        digitaItem(a, NacionalMensal{});
        a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        digitaItem(a, NacionalMensal{QStringLiteral("P001"), QStringLiteral("10"), Ncm2});
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Produto já incluído.")});
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 1);
        // The same product under a DCR-E on "PI com PPB".
        a.vaiParaAba(2);
        a.digita(QStringLiteral("mskDCREPIcomPPB"), QStringLiteral("200500001"));
        a.digita(QStringLiteral("txtCodProdDCREPIcomPPB"), QStringLiteral("P001"));
        a.escolhe(QStringLiteral("cboLocalDCRE"), QStringLiteral("Estados AC, AM, RO e RR"));
        a.digita(QStringLiteral("mskPIcomPPB(0)"), QStringLiteral("4"));
        a.sai(QStringLiteral("cmdIncluir_tabPIcomPPB"));
        a.clica(QStringLiteral("cmdIncluir_tabPIcomPPB"));
        QCOMPARE(a.msgs.caixas.size(), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("CD_INT_PRODUTO = 'P001'")), 2);
    }

    void numeroDeItemDeOutraAbaRecusado()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, true, 4);
        BancoTeste::executa(QStringLiteral("INSERT INTO ITEM_NFS (ID_NFS, NR_ITEM_NF_SAIDA, CD_INT_PROD, IND_MOD_INTERNACAO) "
                                           "VALUES (?, '1', 'Q9', '1')"),
                            {e->idNfs()});
        digitaItem(a, NacionalIndividual{QStringLiteral("1"), QStringLiteral("P001")});
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdIncluir_tab100NacionalIndividual"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("O número de item informado já foi incluído anteriormente.")});
        QCOMPARE(conta(QStringLiteral("ITEM_NFS_100")), 0);
        a.digita(QStringLiteral("txt100NacionalIndividual(0)"), QStringLiteral("2"));
        a.clica(QStringLiteral("cmdIncluir_tab100NacionalIndividual"));
        QCOMPARE(a.msgs.caixas.size(), 1);
        QCOMPARE(conta(QStringLiteral("ITEM_NFS_100"), QStringLiteral("QT_INT_UNID_NFS = '3,00000' AND VL_INT_UNID_NFS = "
                                                                        "'7,2500000' AND QT_INT_UNID_EST = '1,50000'")),
                 1);
        QCOMPARE(linha(a, QStringLiteral("grdConsultaNotaFiscalSaida_tab100NacionalIndividual"), 0).mid(1, 4),
                 (QStringList{QStringLiteral("2"), QStringLiteral("P001"), QStringLiteral("3,00000"),
                              QStringLiteral("3925.90.90")}));
    }

    void ncmCurtaSemDescricaoEIncluirParaNoSegundoTeste()
    {
        Ambiente a;
        naAba(a, false, 4);
        a.digita(QStringLiteral("mskNumNCM100"), QStringLiteral("3925200"));
        QVERIFY(a.campo<QLineEdit>(QStringLiteral("txtDescrNCM100"))->text().isEmpty());
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P001"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("O campo número da NCM não possui um código válido.")});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("cmdAssistenteNCM_tab100Nacional_Mensal")));
    }

    void alterarTrocaProdutoMasGuardaONomeAntigo()
    {
        Ambiente a;
        naAba(a, false, 4);
        digitaItem(a, NacionalMensal{});
        a.clica(QStringLiteral("cmdIncluir_tab100Nacional_Mensal"));
        escolheLinha(a, QStringLiteral("grdConsulta100NacionalMensal"), 0);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtCodProd100N"))->text(), QStringLiteral("P001"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100N(1)"))->text(), QStringLiteral("1.234,56"));
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P002"));
        a.clica(QStringLiteral("cmdAlterar_tab100Nacional_Mensal"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT CD_INT_PRODUTO || '|' || NM_INT_PRODUTO FROM ITEM_VRT_MEN")).toString(),
                 QStringLiteral("P002|Produto um"));
        QVERIFY(!a.campo(QStringLiteral("cmdExcluir_tab100Nacional_Mensal"))->isEnabled());
    }

    void excluirPedeConfirmacao()
    {
        Ambiente a;
        naAba(a, true, 4);
        digitaItem(a, NacionalIndividual{QStringLiteral("1"), QStringLiteral("P001")});
        a.clica(QStringLiteral("cmdIncluir_tab100NacionalIndividual"));
        escolheLinha(a, QStringLiteral("grdConsultaNotaFiscalSaida_tab100NacionalIndividual"), 0);
        a.msgs.responde(Msg::No);
        a.clica(QStringLiteral("cmdExcluir_tab100NacionalIndividual"));
        QCOMPARE(conta(QStringLiteral("ITEM_NFS")), 1);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluir_tab100NacionalIndividual"));
        QCOMPARE(a.msgs.textos(), (QStringList{QStringLiteral("Deseja realmente excluir?"), QStringLiteral("Deseja realmente excluir?")}));
        QCOMPARE(conta(QStringLiteral("ITEM_NFS")), 0);
        QCOMPARE(conta(QStringLiteral("ITEM_NFS_100")), 0);
    }
};

QTEST_MAIN(tst_aba100Nacional)
#include "tst_aba100Nacional.moc"
