// The page "Produto" of the foreign-product tab in both editors: the rows a product becomes, and the rules that
// keep the destinations of one product (monthly) or the items of one product (individual) in step.
#include "ProdutoTeste.h"

#include <QHeaderView>

using namespace ProdutoTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

QString valor(const char* sql, const QVariantList& v = {})
{
    return BancoTeste::valor(QString::fromUtf8(sql), v).toString();
}

const QString Grade = QStringLiteral("grdConsultaCodigoControleInterno");

// The titles of a grid's columns after the blank first one: the visible ones, then the hidden ones, which carry
// the name of the column they hold.
QStringList titulos(ConsultGrid* g, bool visiveis)
{
    QStringList r;
    for (int i = 1; i < g->columnCount(); ++i)
        if ((!g->isColumnHidden(i) && g->horizontalHeader()->sectionSize(i) > 0) == visiveis)
            r << g->titleText(i);
    return r;
}

// A row's cell by the title of its column.
QString celula(ConsultGrid* g, int linha, const QString& titulo)
{
    for (int i = 0; i < g->columnCount(); ++i)
        if (g->titleText(i) == titulo)
            return g->cellText(linha, i);
    return QStringLiteral("<sem coluna %1>").arg(titulo);
}

}  // namespace

class tst_produtoEstrangeiro : public QObject {
    Q_OBJECT
private slots:
    void produtoMensalViraItemDestinoEAliquotas()
    {
        Ambiente a;
        naAbaProduto(a, false);
        ProdutoMensal p;
        p.aliquotaII = t("5");
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valor("SELECT CD_INT_PRODUTO || '|' || NM_INT_PRODUTO || '|' || CD_NCM_PRODUTO || '|' || "
                       "NM_UNID_MED_PROD || '|' || IND_MOD_INTERNACAO || '|' || QT_PROD_UNID_EST FROM ITEM_VRT_MEN"),
                 t("PROD1|Produto um|84713012|UN|1|20,00000"));
        QCOMPARE(valor("SELECT CD_LOCAL_DESTINO || '|' || QT_PROD_LOC_DEST FROM DESTINO_ITEM_VRT_MEN"), t("1|12,00000"));
        QCOMPARE(valor("SELECT ALIQ_II_DIF_TEC || '|' || JUST_II_DIF_TEC || '|' || ALIQ_IPI_DIF_TIPI || '|' || "
                       "JUST_IPI_DIF_TIPI FROM JUST_DIF_ALIQ_PROD_VRT_MEN"),
                 t("5,00|Ex-tarifario||"));
        auto* g = a.campo<ConsultGrid>(Grade);
        QCOMPARE(g->dataRowCount(), 1);
        QCOMPARE(g->rowTexts(0).mid(1, 5),
                 (QStringList{t("PROD1"), t("Produto um"), Local1, t("12,00000"), t("8471.30.12")}));
        QVERIFY(AlteracaoPendente);
        // The fields are empty again.
        QCOMPARE(a.campo<QLineEdit>(t("txtCodProdPE"))->text(), QString());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void gradeMensalColunasEFormatos()
    {
        Ambiente a;
        naAbaProduto(a, false);
        ProdutoMensal p;
        p.quantidade = t("1234,5");
        p.aliquotaII = t("5");
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        auto* g = a.campo<ConsultGrid>(Grade);
        QCOMPARE(titulos(g, true),
                 (QStringList{t("Código do produto"), t("Descrição do produto"), t("Local"), t("Quantidade"), t("NCM")}));
        QCOMPARE(titulos(g, false),
                 (QStringList{t("ID_ITEM_VRT"), t("ID_DEST_PRODUTO"), t("CD_LOCAL_DESTINO"), t("NM_UNID_MED_PROD"),
                              t("QT_PROD_UNID_PROD"), t("QT_PROD_UNID_EST"), t("ALIQ_II_DIF_TEC"), t("JUST_II_DIF_TEC"),
                              t("ALIQ_IPI_DIF_TIPI"), t("JUST_IPI_DIF_TIPI"), t("NM_UNID_MED_EST"),
                              t("DESCR_NCM_PRODUTO")}));
        QCOMPARE(g->rowTexts(0).mid(1, 5),
                 (QStringList{t("PROD1"), t("Produto um"), Local1, t("1.234,50000"), t("8471.30.12")}));
        QCOMPARE(celula(g, 0, t("CD_LOCAL_DESTINO")), t("1"));
        QCOMPARE(celula(g, 0, t("ALIQ_II_DIF_TEC")), t("5,00"));
        QCOMPARE(celula(g, 0, t("JUST_II_DIF_TEC")), t("Ex-tarifario"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void gradeIndividualColunasEFormatos()
    {
        Ambiente a;
        naAbaProduto(a, true);
        ProdutoIndividual p;
        p.quantidade = t("1234,5");
        p.aliquotaIPI = t("2");
        incluiIndividual(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        auto* g = a.campo<ConsultGrid>(t("grdConsultaNotaFiscalSaida"));
        QCOMPARE(titulos(g, true), (QStringList{t("Item"), t("Código do Produto"), t("Quantidade"), t("NCM")}));
        // The row's own columns; the NCM's description and statistical unit after them fill the fields beside
        // the NCM when a row is chosen.
        QCOMPARE(titulos(g, false),
                 (QStringList{t("NM_UNID_MED_PROD"), t("VL_INT_UNID_NFS"), t("QT_INT_UNID_EST"), t("VL_INT_UNID_EST"),
                              t("ID_ITEM"), t("NM_INT_PROD"), t("NR_NF_SAIDA"), t("NR_SERIE_NF_SAIDA"),
                              t("ALIQ_II_DIF_TEC"), t("ALIQ_IPI_DIF_TIPI"), t("JUST_II_DIF_TEC"), t("JUST_IPI_DIF_TIPI"),
                              t("VL_IPI_DESTACADO"), t("DESCR_NCM_PRODUTO"), t("NM_UNID_MED_EST")}));
        QCOMPARE(g->rowTexts(0).mid(1, 4), (QStringList{t("001"), t("PROD1"), t("1.234,50000"), t("8471.30.12")}));
        QCOMPARE(celula(g, 0, t("NR_NF_SAIDA")), t("123"));
        QCOMPARE(celula(g, 0, t("NR_SERIE_NF_SAIDA")), t("A1"));
        QCOMPARE(celula(g, 0, t("ALIQ_IPI_DIF_TIPI")), t("2,00"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The DI grids show the number through its mask and the quantity with a comma and five decimals; adição and
    // item as they are stored, with their leading zeros.
    void gradesDaDIComNumeroEQuantidadeFormatados_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QStringList>("linha");
        const QString di = DocumentoTeste::numeroDI();
        const QString mascarado = di.left(2) + u'/' + di.mid(2, 7) + u'-' + di.right(1);
        QTest::newRow("mensal") << false
                                << QStringList{t("PROD1"), Local1, mascarado, QString(), t("001"), t("02"),
                                               t("1.234,50000")};
        QTest::newRow("individual") << true << QStringList{t("001"), t("PROD1"), mascarado, QString(), t("001"), t("02")};
    }
    void gradesDaDIComNumeroEQuantidadeFormatados()
    {
        QFETCH(bool, individual);
        QFETCH(QStringList, linha);
        Ambiente a;
        DocumentoTeste::Cenario c(a, individual);
        c.declaracaoComProduto();
        c.abre();
        c.preencheDI(DocumentoTeste::numeroDI(), t("1"), t("2"), t("1234,5"));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(c.quadro()->grade->rowTexts(0).mid(1, linha.size()), linha);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void validacaoMensalNaOrdem()
    {
        Ambiente a;
        naAbaProduto(a, false);
        const QStringList esperadas{t("O campo número da NCM deve ser preenchido."),
                                    t("O campo código do produto deve ser selecionado."),
                                    t("O campo unidade de medida comercial deve ser selecionado."),
                                    t("O campo quantidade total na unidade estatística deve ser preenchido."),
                                    t("O campo local de destino deve ser selecionado."),
                                    t("O campo quantidade por destino deve ser preenchido."),
                                    t("É obrigatório o preenchimento da alíquota de II."),
                                    t("O campo fundamentação legal para a alíquota de II deve ser preenchido.")};
        const QList<std::function<void()>> corrige{
            [&] { a.digita(t("mskNumNCMPE"), t("84713012")); },
            [&] { a.digita(t("txtCodProdPE"), t("PROD1")); },
            [&] { a.escolhe(t("cboUnidadePE"), t("UN")); },
            [&] { a.digita(t("mskPE(1)"), t("20")); },
            [&] { a.escolhe(t("cboLocalPE"), Local1); },
            [&] {
                a.digita(t("mskPE(2)"), t("3"));
                a.clica(t("chk_Aliquota_tabPE"));
            },
            [&] { a.digita(t("mskPE(3)"), t("2")); },
            [&] { a.digita(t("txtJustifLegalAliqIIPE"), t("Lei")); },
        };
        for (int i = 0; i < esperadas.size(); ++i) {
            a.msgs.limpa();
            a.msgs.responde(Msg::OK);
            a.clica(t("cmdIncluir_tabProdutoEstrangeiro_CCI"));
            QCOMPARE(a.msgs.textos(), QStringList{esperadas.at(i)});
            QCOMPARE(BancoTeste::conta(t("ITEM_VRT_MEN")), 0);
            corrige.at(i)();
        }
        a.msgs.limpa();
        a.clica(t("cmdIncluir_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void umDestinoMudaUnidadeEAliquotasLivremente()
    {
        Ambiente a;
        naAbaProduto(a, false);
        incluiMensal(a, ProdutoMensal());
        escolheLinha(a, Grade, 0);
        ProdutoMensal p;
        p.unidade = t("KG");
        p.aliquotaII = t("4");
        p.aliquotaIPI = t("7,5");
        p.quantidade = t("9");
        digitaMensal(a, p);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valor("SELECT NM_UNID_MED_PROD FROM ITEM_VRT_MEN"), t("KG"));
        QCOMPARE(valor("SELECT ALIQ_II_DIF_TEC || '|' || ALIQ_IPI_DIF_TIPI FROM JUST_DIF_ALIQ_PROD_VRT_MEN"),
                 t("4,00|7,50"));
        QCOMPARE(valor("SELECT QT_PROD_LOC_DEST FROM DESTINO_ITEM_VRT_MEN"), t("9,00000"));
        // Without any rate the row of rates goes.
        escolheLinha(a, Grade, 0);
        QVERIFY(a.campo<QCheckBox>(t("chk_Aliquota_tabPE"))->isChecked());
        a.clica(t("chk_Aliquota_tabPE"));
        a.clica(t("chk_Aliquota_tabP"));
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(BancoTeste::conta(t("JUST_DIF_ALIQ_PROD_VRT_MEN")), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void doisDestinosRecusamMudancaQueDiscorda_data()
    {
        QTest::addColumn<QString>("unidade");
        QTest::addColumn<QString>("aliquotaII");
        QTest::addColumn<QString>("aliquotaIPI");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("unidade") << t("KG") << t("5") << QString()
                                 << t("A unidade de medida informada deve ser UN, que foi informada em outro(s) "
                                      "registro(s) deste produto.");
        QTest::newRow("alíquota do II") << t("UN") << t("6") << QString()
                                        << t("A alíquota do II deve ser 5,00%, que foi informada em outro(s) "
                                             "registro(s) deste produto.");
        QTest::newRow("alíquota do IPI") << t("UN") << t("5") << t("1")
                                         << t("A alíquota do IPI deve ser %, que foi informada em outro(s) "
                                              "registro(s) deste produto.");
    }
    void doisDestinosRecusamMudancaQueDiscorda()
    {
        QFETCH(QString, unidade);
        QFETCH(QString, aliquotaII);
        QFETCH(QString, aliquotaIPI);
        QFETCH(QString, mensagem);
        Ambiente a;
        naAbaProduto(a, false);
        ProdutoMensal p;
        p.aliquotaII = t("5");
        incluiMensal(a, p);
        p.local = Local2;
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        escolheLinha(a, Grade, 0);
        ProdutoMensal mudado = p;
        mudado.local = Local1;
        mudado.unidade = unidade;
        mudado.aliquotaII = aliquotaII;
        mudado.aliquotaIPI = aliquotaIPI;
        digitaMensal(a, mudado);
        a.msgs.responde(Msg::OK);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(valor("SELECT NM_UNID_MED_PROD FROM ITEM_VRT_MEN"), t("UN"));
        QCOMPARE(valor("SELECT ALIQ_II_DIF_TEC || '|' || ALIQ_IPI_DIF_TIPI FROM JUST_DIF_ALIQ_PROD_VRT_MEN"), t("5,00|"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void destinoPosteriorRecusadoPelasAliquotas_data()
    {
        QTest::addColumn<QString>("primeira");
        QTest::addColumn<QString>("segunda");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("primeiro sem justificativa, segundo com alíquota")
            << QString() << t("5") << t("Alíquota diferente da informada anteriormente para este produto.");
        QTest::newRow("primeiro com justificativa, segundo sem alíquota")
            << t("5") << QString()
            << t("A alíquota do II deve ser 5,00%, que foi informada em outro(s) registro(s) deste produto.");
        QTest::newRow("alíquotas diferentes")
            << t("5") << t("3")
            << t("A alíquota do II deve ser 5,00%, que foi informada em outro(s) registro(s) deste produto.");
    }
    void destinoPosteriorRecusadoPelasAliquotas()
    {
        QFETCH(QString, primeira);
        QFETCH(QString, segunda);
        QFETCH(QString, mensagem);
        Ambiente a;
        naAbaProduto(a, false);
        ProdutoMensal p;
        p.aliquotaII = primeira;
        incluiMensal(a, p);
        p.local = Local2;
        p.aliquotaII = segunda;
        a.msgs.responde(Msg::OK);
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void destinoPosteriorRepeteUnidadeENcmEUsaOMesmoItem()
    {
        Ambiente a;
        naAbaProduto(a, false);
        incluiMensal(a, ProdutoMensal());
        ProdutoMensal p;
        p.local = Local2;
        p.unidade = t("KG");
        a.msgs.responde(Msg::OK);
        incluiMensal(a, p);
        p.unidade = t("UN");
        p.ncm = t("84713011");
        a.msgs.responde(Msg::OK);
        incluiMensal(a, p);
        p.ncm = t("84713012");
        p.local = Local1;
        a.msgs.responde(Msg::OK);
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(),
                 (QStringList{t("A unidade de medida informada deve ser UN, que foi informada em outro(s) registro(s) "
                                "deste produto."),
                              t("Este produto possui outro(s) registro(s) com NCM diferente!"),
                              t("Produto já incluído para este local de destino.")}));
        a.msgs.limpa();
        p.local = Local2;
        p.quantidadeEstatistica = t("99");
        incluiMensal(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(t("ITEM_VRT_MEN")), 1);
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 2);
        // The item keeps the total of its first destination.
        QCOMPARE(valor("SELECT QT_PROD_UNID_EST FROM ITEM_VRT_MEN"), t("20,00000"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void produtoDaLinhaNaoMuda()
    {
        Ambiente a;
        naAbaProduto(a, false);
        incluiMensal(a, ProdutoMensal());
        escolheLinha(a, Grade, 0);
        ProdutoMensal p;
        p.codigo = t("PROD2");
        digitaMensal(a, p);
        a.msgs.responde(Msg::OK);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList{t("O produto não pode ser alterado.")});
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void excluirUltimoDestinoExcluiOItem()
    {
        Ambiente a;
        naAbaProduto(a, false);
        incluiMensal(a, ProdutoMensal());
        ProdutoMensal p;
        p.local = Local2;
        incluiMensal(a, p);
        escolheLinha(a, Grade, 1);
        a.msgs.responde(Msg::Yes);
        a.clica(t("cmdExcluir_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Deseja realmente excluir?")});
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 1);
        QCOMPARE(BancoTeste::conta(t("ITEM_VRT_MEN")), 1);
        escolheLinha(a, Grade, 0);
        a.msgs.responde(Msg::Yes);
        a.clica(t("cmdExcluir_tabProdutoEstrangeiro_CCI"));
        QCOMPARE(BancoTeste::conta(t("DESTINO_ITEM_VRT_MEN")), 0);
        QCOMPARE(BancoTeste::conta(t("ITEM_VRT_MEN")), 0);
        QCOMPARE(a.campo<ConsultGrid>(Grade)->dataRowCount(), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void itemIndividualViraLinhasDaNota()
    {
        Ambiente a;
        naAbaProduto(a, true);
        ProdutoIndividual p;
        p.aliquotaIPI = t("2");
        incluiIndividual(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valor("SELECT NR_ITEM_NF_SAIDA || '|' || CD_INT_PROD || '|' || NM_INT_PROD || '|' || CD_NCM_PROD || "
                       "'|' || IND_MOD_INTERNACAO || '|' || NM_UNID_MED_PROD FROM ITEM_NFS"),
                 t("001|PROD1|Produto um|84713012|1|UN"));
        QCOMPARE(valor("SELECT QT_INT_UNID_NFS || '|' || VL_INT_UNID_NFS || '|' || QT_INT_UNID_EST || '|' || "
                       "VL_IPI_DESTACADO FROM ITEM_NFS_PE"),
                 t("10,00000|5,2500000|10,00000|3,50"));
        QCOMPARE(valor("SELECT ALIQ_II_DIF_TEC || '|' || ALIQ_IPI_DIF_TIPI || '|' || JUST_IPI_DIF_TIPI "
                       "FROM JUST_DIF_ALIQ_PROD_VRT_IND"),
                 t("|2,00|Lei 8387"));
        QCOMPARE(a.campo<ConsultGrid>(t("grdConsultaNotaFiscalSaida"))->rowTexts(0).mid(1, 4),
                 (QStringList{t("001"), t("PROD1"), t("10,00000"), t("8471.30.12")}));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void doisItensDaNotaNaoDividemNumero()
    {
        Ambiente a;
        naAbaProduto(a, true);
        incluiIndividual(a, ProdutoIndividual());
        ProdutoIndividual p;
        p.codigo = t("PROD2");
        a.msgs.responde(Msg::OK);
        incluiIndividual(a, p);
        // An item of another modality holds the number just as well.
        BancoTeste::executa(t("INSERT INTO ITEM_NFS (ID_NFS, NR_ITEM_NF_SAIDA, IND_MOD_INTERNACAO) VALUES (?, '002', '4')"),
                            {a.editor()->idNfs()});
        p.item = t("2");
        a.msgs.responde(Msg::OK);
        incluiIndividual(a, p);
        QCOMPARE(a.msgs.textos(), QStringList(2, t("O número de item informado já foi incluído anteriormente.")));
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS"), t("IND_MOD_INTERNACAO = '1'")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void itensDoMesmoProdutoDividemNcmUnidadeEAliquotas()
    {
        Ambiente a;
        naAbaProduto(a, true);
        ProdutoIndividual p;
        p.aliquotaII = t("5");
        incluiIndividual(a, p);
        p.item = t("2");
        p.ncm = t("84713011");
        a.msgs.responde(Msg::OK);
        incluiIndividual(a, p);
        p.ncm = t("84713012");
        p.unidade = t("KG");
        a.msgs.responde(Msg::OK);
        incluiIndividual(a, p);
        p.unidade = t("UN");
        p.aliquotaII = QString();
        a.msgs.responde(Msg::OK);
        incluiIndividual(a, p);
        QCOMPARE(a.msgs.textos(),
                 (QStringList{t("A NCM informada deve ser igual a 8471.30.12, que foi informada em outro(s) registro(s) "
                                "deste produto."),
                              t("A unidade de medida informada deve ser UN, que foi informada em outro(s) registro(s) "
                                "deste produto."),
                              t("A alíquota do II deve ser 5,00%, que foi informada em outro(s) registro(s) deste "
                                "produto.")}));
        // After the rate message its check is set again.
        QVERIFY(a.campo<QCheckBox>(t("chk_AliquotaTEC_tabPE"))->isChecked());
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void primeiroItemSemAliquotaDeixaOutroTerAliquota()
    {
        Ambiente a;
        naAbaProduto(a, true);
        incluiIndividual(a, ProdutoIndividual());
        ProdutoIndividual p;
        p.item = t("2");
        p.aliquotaII = t("5");
        incluiIndividual(a, p);
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS")), 2);
        QCOMPARE(BancoTeste::conta(t("JUST_DIF_ALIQ_PROD_VRT_IND")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void validacaoIndividualNaOrdem()
    {
        Ambiente a;
        naAbaProduto(a, true);
        const QStringList esperadas{t("O campo item deve ser preenchido."),
                                    t("O campo número da NCM deve ser preenchido."),
                                    t("O campo código do produto deve ser selecionado."),
                                    t("O campo unidade de medida comercial deve ser selecionado."),
                                    t("O campo quantidade deve ser preenchido."),
                                    t("O campo valor unitário deve ser preenchido."),
                                    t("O campo quantidade deve ser preenchido.")};
        const QList<std::function<void()>> corrige{
            [&] { a.digita(t("txtProdutoEstrangeiroNFS(0)"), t("1")); },
            [&] { a.digita(t("mskProdutoEstrangeiroNFS(0)"), t("84713012")); },
            [&] { a.digita(t("txtCodProdPE"), t("PROD1")); },
            [&] { a.escolhe(t("cboUnidadePE"), t("UN")); },
            [&] { a.digita(t("mskProdutoEstrangeiroNFS(1)"), t("1")); },
            [&] { a.digita(t("mskProdutoEstrangeiroNFS(2)"), t("1")); },
            [&] { a.digita(t("mskProdutoEstrangeiroNFS(3)"), t("1")); },
        };
        for (int i = 0; i < esperadas.size(); ++i) {
            a.msgs.limpa();
            a.msgs.responde(Msg::OK);
            a.clica(t("cmdIncluir_tabProdutoEstrangeiro"));
            QCOMPARE(a.msgs.textos(), QStringList{esperadas.at(i)});
            corrige.at(i)();
        }
        a.msgs.limpa();
        a.clica(t("cmdIncluir_tabProdutoEstrangeiro"));
        QCOMPARE(a.msgs.textos(), QStringList());
        // IPI destacado is not required.
        QCOMPARE(valor("SELECT VL_IPI_DESTACADO FROM ITEM_NFS_PE"), QString());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void itemIndividualAlteradoEExcluido()
    {
        Ambiente a;
        naAbaProduto(a, true);
        ProdutoIndividual p;
        p.aliquotaII = t("5");
        incluiIndividual(a, p);
        escolheLinha(a, t("grdConsultaNotaFiscalSaida"), 0);
        QVERIFY(a.campo<QCheckBox>(t("chk_AliquotaTEC_tabPE"))->isChecked());
        p.item = t("7");
        p.codigo = t("PROD2");
        p.aliquotaII = QString();
        digitaIndividual(a, p);
        a.clica(t("cmdAlterar_tabProdutoEstrangeiro"));
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valor("SELECT NR_ITEM_NF_SAIDA || CD_INT_PROD FROM ITEM_NFS"), t("007PROD2"));
        QCOMPARE(BancoTeste::conta(t("JUST_DIF_ALIQ_PROD_VRT_IND")), 0);
        escolheLinha(a, t("grdConsultaNotaFiscalSaida"), 0);
        a.msgs.responde(Msg::Yes);
        a.clica(t("cmdExcluir_tabProdutoEstrangeiro"));
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS")), 0);
        QCOMPARE(BancoTeste::conta(t("ITEM_NFS_PE")), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_produtoEstrangeiro)
#include "tst_produtoEstrangeiro.moc"
