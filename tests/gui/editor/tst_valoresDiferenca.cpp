// The difference values of both sub-tabs, driven in the monthly editor: the lists by modality, the four buttons,
// the grid's order and selection, and the deletions when a box is given up or "Restituição" ticked.
#include "EditorTeste.h"

#include "gui/editor/BlocosValores.h"
#include "gui/widgets/MaskedField.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>

using namespace EditorTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// A monthly declaration with its general data written and the box of `indice` ticked.
void abreValores(Ambiente& a, int indice)
{
    a.novaMensal();
    a.preencheMensal();
    a.clica(QStringLiteral("ChkMand_Retif(%1)").arg(indice));
}

QStringList coluna(ConsultGrid* g, int c)
{
    QStringList v;
    for (int i = 0; i < g->dataRowCount(); ++i)
        v << g->cellText(i, c);
    return v;
}

void clicaLinha(ConsultGrid* g, int linha)
{
    QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(linha, 2)).center());
}

const QStringList SemIpi = {t("Imposto de Importação"), t("Juros de Mora II"), t("Multa de Mora II"), t("PIS/PASEP"),
                            t("Juros de Mora PIS/PASEP"), t("Multa de Mora PIS/PASEP"), t("COFINS"),
                            t("Juros de Mora COFINS"), t("Multa de Mora COFINS")};

}  // namespace

class tst_valoresDiferenca : public QObject {
    Q_OBJECT
private slots:
    void mandadoAbreASubAbaEGravaACabecaAntes()
    {
        Ambiente a;
        abreValores(a, 0);
        QVERIFY(a.abasValores()->isEnabled());
        QVERIFY(a.abasValores()->isTabVisible(0));
        QCOMPARE(a.abasValores()->currentIndex(), 0);
        QVERIFY(!a.editor()->idVrt().isEmpty());
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT IND_MANDADO_JUDIC FROM VRT")).toString(), QStringLiteral("S"));
        QVERIFY(a.campo(QStringLiteral("cmdIncluirValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cmdExcluirValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cmdLimparValores(0)"))->isEnabled());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void caixaMarcadaComDadosGeraisInvalidosVoltaADesmarcar()
    {
        Ambiente a;
        a.novaMensal();
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        QCOMPARE(a.msgs.textos(), QStringList{t("O campo CNPJ do internador deve ser preenchido.")});
        QVERIFY(!a.campo<QCheckBox>(QStringLiteral("ChkMand_Retif(0)"))->isChecked());
        QVERIFY(!a.abasValores()->isEnabled());
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
    }

    void listasDeModalidadePorSubAba()
    {
        Ambiente a;
        abreValores(a, 0);
        a.clica(QStringLiteral("ChkMand_Retif(1)"));
        a.escolhe(QStringLiteral("cboModalidade(0)"), QStringLiteral("VRT"));
        QCOMPARE(a.entradas(QStringLiteral("cboModalidade(0)")),
                 (QStringList{"VRT", "VRT - PE", "VRT - PI com PPB", "VRT - PI sem PPB"}));
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboModalidade(0)"))->currentData().toString(), QStringLiteral("9"));
        // The retification offers "VRT" only with a process number.
        a.campo(QStringLiteral("cboModalidade(1)"))->setFocus(Qt::TabFocusReason);
        QCOMPARE(a.entradas(QStringLiteral("cboModalidade(1)")),
                 (QStringList{"VRT - PE", "VRT - PI com PPB", "VRT - PI sem PPB"}));
        // With a process number (a stored declaration may hold one) "VRT" and its "Taxa de Utilização" are there.
        QStringList comProcesso;
        for (const OpcaoLista& o : BlocosValores::Modalidades(1, true))
            comProcesso << o.texto;
        QCOMPARE(comProcesso, (QStringList{"VRT", "VRT - PE", "VRT - PI com PPB", "VRT - PI sem PPB"}));
        const QList<OpcaoLista> vrt = BlocosValores::Descricoes(1, QStringLiteral("9"), true);
        QCOMPARE(vrt.size(), 1);
        QCOMPARE(vrt.first().texto, t("Taxa de Utilização"));
        QCOMPARE(vrt.first().dado.toString(), QStringLiteral("1"));
        QVERIFY(BlocosValores::Descricoes(1, QStringLiteral("9"), false).isEmpty());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void descricoesPorModalidade_data()
    {
        QTest::addColumn<int>("indice");
        QTest::addColumn<QString>("modalidade");
        QTest::addColumn<QStringList>("descricoes");
        QStringList comIpi = SemIpi;
        comIpi.insert(3, t("Imposto sobre Prod. Industrializados"));
        comIpi.insert(4, t("Juros de Mora IPI"));
        comIpi.insert(5, t("Multa de Mora IPI"));
        QTest::newRow("mandado VRT: multa por atraso antes da taxa") << 0 << "VRT"
                                                                   << QStringList{"Multa por Atraso", t("Taxa de Utilização")};
        QTest::newRow("PI com PPB sem IPI, nove") << 0 << "VRT - PI com PPB" << SemIpi;
        QTest::newRow("PE doze") << 0 << "VRT - PE" << comIpi;
        QTest::newRow("PI sem PPB doze") << 0 << "VRT - PI sem PPB" << comIpi;
        QTest::newRow("retificação PI com PPB") << 1 << "VRT - PI com PPB" << SemIpi;
    }
    void descricoesPorModalidade()
    {
        QFETCH(int, indice);
        QFETCH(QString, modalidade);
        QFETCH(QStringList, descricoes);
        Ambiente a;
        abreValores(a, indice);
        a.escolhe(QStringLiteral("cboModalidade(%1)").arg(indice), modalidade);
        QCOMPARE(a.entradas(QStringLiteral("cboDescricao(%1)").arg(indice)), descricoes);
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboDescricao(%1)").arg(indice))->currentIndex(), -1);
    }

    void incluirRecusaNaOrdemDosCampos()
    {
        Ambiente a;
        abreValores(a, 0);
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdIncluirValores(0)"));
        a.escolhe(QStringLiteral("cboModalidade(0)"), QStringLiteral("VRT - PE"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdIncluirValores(0)"));
        a.escolhe(QStringLiteral("cboDescricao(0)"), QStringLiteral("COFINS"));
        a.digita(QStringLiteral("mskValor(0)"), QStringLiteral("0"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdIncluirValores(0)"));
        QCOMPARE(a.msgs.textos(), (QStringList{t("O campo modalidade deve ser selecionado."),
                                               t("O campo descrição deve ser selecionado."),
                                               t("O campo valor deve ser preenchido.")}));
        for (const CaixaMsg& c : a.msgs.caixas)
            QCOMPARE(c.estilo, Msg::OKOnly | Msg::Critical);
        // Refused fields keep what was typed.
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboDescricao(0)"))->currentText(), QStringLiteral("COFINS"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void mesmaModalidadeEDescricaoDuasVezesRecusada()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.msgs.responde(Msg::OK);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("20"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Modalidade já incluída.")});
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 1);
    }

    void incluirGravaNomesCodigosEValorEEsvaziaOsCampos()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("Multa de Mora II"), QStringLiteral("1234,5"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT ID_VRT_MICRO || '|' || CD_MOD_MANDADO || '|' || "
                                                  "CD_TIPO_DIVER_MANDADO || '|' || NM_MOD_INT_MANDADO || '|' || "
                                                  "NM_TIPO_DIVER_MANDADO || '|' || VL_TOTAL_DIVER_MANDADO "
                                                  "FROM VALORES_DIVER_MANDADO")).toString(),
                 a.editor()->idVrt() + t("|1|5|VRT - PE|Multa de Mora II|1234,50"));
        QVERIFY(AlteracaoPendente);
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboModalidade(0)"))->currentIndex(), -1);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QString());
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QCOMPARE(g->rowTexts(0).mid(2, 3), (QStringList{"VRT - PE", "Multa de Mora II", "1.234,50"}));
    }

    void mesmoTributoTemCodigosDiferentesNasDuasTabelas()
    {
        Ambiente a;
        abreValores(a, 0);
        a.clica(QStringLiteral("ChkMand_Retif(1)"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("Multa de Mora II"), QStringLiteral("1"));
        a.incluiValor(1, QStringLiteral("VRT - PE"), QStringLiteral("Multa de Mora II"), QStringLiteral("1"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT CD_TIPO_DIVER_MANDADO FROM VALORES_DIVER_MANDADO")).toString(),
                 QStringLiteral("5"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT CD_TIPO_DIVER_RETIF FROM VALORES_DIVER_RETIF")).toString(),
                 QStringLiteral("3"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void gradeEmOrdemNumericaDeModalidadeETipo()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PI sem PPB"), QStringLiteral("COFINS"), QStringLiteral("1"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), t("Juros de Mora PIS/PASEP"), QStringLiteral("2"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("PIS/PASEP"), QStringLiteral("3"));
        a.incluiValor(0, QStringLiteral("VRT"), QStringLiteral("Multa por Atraso"), QStringLiteral("4"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), t("Imposto de Importação"), QStringLiteral("5"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        // Hidden codes: modality in column 5, type in column 6; type 10 after type 9.
        QCOMPARE(coluna(g, 5), (QStringList{"1", "1", "1", "3", "9"}));
        QCOMPARE(coluna(g, 6), (QStringList{"3", "9", "10", "12", "2"}));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void escolherLinhaCarregaOsCamposEAlterarRegrava()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.incluiValor(0, QStringLiteral("VRT - PI com PPB"), QStringLiteral("PIS/PASEP"), QStringLiteral("20"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        clicaLinha(g, 1);
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboModalidade(0)"))->currentText(), QStringLiteral("VRT - PI com PPB"));
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboDescricao(0)"))->currentText(), QStringLiteral("PIS/PASEP"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QStringLiteral("20,00"));
        QVERIFY(a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        QVERIFY(a.campo(QStringLiteral("cmdExcluirValores(0)"))->isEnabled());
        QVERIFY(a.campo(QStringLiteral("cmdLimparValores(0)"))->isEnabled());
        a.escolhe(QStringLiteral("cboDescricao(0)"), QStringLiteral("COFINS"));
        a.digita(QStringLiteral("mskValor(0)"), QStringLiteral("25"));
        a.clica(QStringLiteral("cmdAlterarValores(0)"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT VL_TOTAL_DIVER_MANDADO FROM VALORES_DIVER_MANDADO "
                                                  "WHERE CD_MOD_MANDADO = '2' AND CD_TIPO_DIVER_MANDADO = '12'"))
                     .toString(),
                 QStringLiteral("25,00"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 2);
        QVERIFY(!a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        // Onto a key another row holds: refused.
        clicaLinha(g, 1);
        a.escolhe(QStringLiteral("cboModalidade(0)"), QStringLiteral("VRT - PE"));
        a.escolhe(QStringLiteral("cboDescricao(0)"), QStringLiteral("COFINS"));
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterarValores(0)"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Modalidade já incluída.")});
    }

    void alterarEExcluirSemLinhaEscolhidaPedemUmaLinha()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        clicaLinha(g, 0);
        a.clica(QStringLiteral("cmdLimparValores(0)"));
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboModalidade(0)"))->currentIndex(), -1);
        QVERIFY(!a.campo(QStringLiteral("cmdExcluirValores(0)"))->isEnabled());
        // Enabled by hand, as the old screen could leave them: they still want a row.
        a.campo(QStringLiteral("cmdAlterarValores(0)"))->setEnabled(true);
        a.campo(QStringLiteral("cmdExcluirValores(0)"))->setEnabled(true);
        a.msgs.responde(Msg::OK).responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterarValores(0)"));
        a.clica(QStringLiteral("cmdExcluirValores(0)"));
        QCOMPARE(a.msgs.textos(), (QStringList{t("Inclua uma modalidade ou selecione no grid"),
                                               t("Inclua uma modalidade ou selecione no grid")}));
    }

    void excluirPerguntaEApagaSoComSim()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        // The only row is current since the load and answers no click: Enter chooses it.
        QTest::keyClick(g, Qt::Key_Return);
        a.msgs.responde(Msg::No);
        a.clica(QStringLiteral("cmdExcluirValores(0)"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 1);
        a.msgs.responde(Msg::Yes);
        a.clica(QStringLiteral("cmdExcluirValores(0)"));
        QCOMPARE(a.msgs.textos(), (QStringList{t("Deseja realmente excluir?"), t("Deseja realmente excluir?")}));
        QCOMPARE(a.msgs.caixas.first().estilo, Msg::YesNo | Msg::Information);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 0);
        QCOMPARE(g->dataRowCount(), 0);
        QVERIFY(!a.campo(QStringLiteral("cmdExcluirValores(0)"))->isEnabled());
    }

    void teclasDeCursorCarregamCadaLinhaEBotoesFicamLigados()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("PIS/PASEP"), QStringLiteral("20"));
        a.incluiValor(0, QStringLiteral("VRT - PI sem PPB"), QStringLiteral("COFINS"), QStringLiteral("30"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        // In the grid's order: PIS/PASEP (type 9), COFINS (type 12), then the other modality. The first row answers
        // a click only once the current row has moved.
        clicaLinha(g, 1);
        clicaLinha(g, 0);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QStringLiteral("20,00"));
        const QStringList esperados = {"20,00", "10,00", "30,00"};
        for (int i = 1; i < 3; ++i) {
            QTest::keyClick(g, Qt::Key_Down);
            QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), esperados.at(i));
            QVERIFY(a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
            QVERIFY(a.campo(QStringLiteral("cmdExcluirValores(0)"))->isEnabled());
        }
        QTest::keyClick(g, Qt::Key_Up);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QStringLiteral("10,00"));
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboDescricao(0)"))->currentText(), QStringLiteral("COFINS"));
    }

    void cliqueNoTituloDeGradeVaziaDeixaOsBotoes()
    {
        Ambiente a;
        abreValores(a, 0);
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QHeaderView* h = g->horizontalHeader();
        QTest::mouseClick(h->viewport(), Qt::LeftButton, {}, QPoint(h->sectionViewportPosition(2) + 5, h->height() / 2));
        QVERIFY(a.campo(QStringLiteral("cmdIncluirValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    void desmarcarMandadoApagaAsLinhasSemPerguntar()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.salvar();
        QVERIFY(!AlteracaoPendente);
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 0);
        QVERIFY(AlteracaoPendente);
        QVERIFY(!a.abasValores()->isTabVisible(0));
        QVERIFY(!a.campo(QStringLiteral("cmdIncluirValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cboModalidade(0)"))->isEnabled());
    }

    void restituicaoApagaAsLinhasDaRetificacaoEFechaAEntrada()
    {
        Ambiente a;
        abreValores(a, 1);
        a.incluiValor(1, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.clica(QStringLiteral("chkSimRest"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_RETIF")), 0);
        QVERIFY(!a.campo(QStringLiteral("cmdIncluirValores(1)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("mskValor(1)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("grdValoresRetificacao"))->isEnabled());
        QVERIFY(a.campo(QStringLiteral("mskDadosGerais(3)"))->isEnabled());
        QCOMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDadosGerais(3)")));
        a.clica(QStringLiteral("chkSimRest"));
        QVERIFY(a.campo(QStringLiteral("mskValor(1)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("mskDadosGerais(3)"))->isEnabled());
    }

    void desmarcarRetificacaoLimpaRestituicaoEApagaLinhas()
    {
        Ambiente a;
        abreValores(a, 1);
        a.incluiValor(1, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.digita(QStringLiteral("mskDadosGerais(0)"), numeroVrt());
        a.clica(QStringLiteral("ChkMand_Retif(1)"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_RETIF")), 0);
        QVERIFY(a.campo<MaskedField>(QStringLiteral("mskDadosGerais(0)"))->isBlank());
        QVERIFY(!a.campo<QCheckBox>(QStringLiteral("chkSimRest"))->isChecked());
        QVERIFY(!a.abasValores()->isTabVisible(1));
    }

    void processoRestituicaoObrigatorioQuandoMarcado()
    {
        Ambiente a;
        abreValores(a, 1);
        a.digita(QStringLiteral("mskDadosGerais(0)"), numeroVrt());
        a.clica(QStringLiteral("chkSimRest"));
        a.msgs.responde(Msg::OK);
        a.vaiParaAba(1);
        QCOMPARE(a.msgs.textos(), QStringList{t("O indicador de restituição encontra-se marcado, portanto o número do "
                                                "processo o número do processo deve ser informado!")});
        QCOMPARE(a.abas()->currentIndex(), 0);
    }
    // The number to rectify: the monthly editor names the number, the individual one the check digit, a zero
    // number, and a number left with fewer than ten digits.
    void numeroARetificarComOTextoDeCadaEditor()
    {
        QString ruim = numeroVrt();
        ruim.back() = QChar(u'0' + (ruim.back().digitValue() + 1) % 10);
        {
            Ambiente a;
            abreValores(a, 1);
            a.msgs.responde(Msg::OK);
            a.digita(QStringLiteral("mskDadosGerais(0)"), ruim);
            QCOMPARE(a.msgs.textos(), QStringList{t("Número da VRT inválido.")});
        }
        Ambiente a;
        a.novaIndividual();
        a.preencheIndividual();
        a.clica(QStringLiteral("ChkMand_Retif(1)"));
        QCOMPARE(a.msgs.textos(), QStringList{});
        a.msgs.responde(Msg::OK);
        a.digita(QStringLiteral("mskDadosGerais(0)"), ruim);
        QCOMPARE(a.msgs.textos(), QStringList{t("Dígito verificador inválido.")});
        a.msgs.limpa();
        a.msgs.responde(Msg::OK);
        a.digita(QStringLiteral("mskDadosGerais(0)"), QStringLiteral("0000000000"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Número da VRT não pode ser zerado.")});
        a.msgs.limpa();
        a.digita(QStringLiteral("mskDadosGerais(0)"), QStringLiteral("09123"));
        a.msgs.responde(Msg::OK);
        a.sai(QStringLiteral("chkSimRest"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Número deve ter 10 dígitos.")});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDadosGerais(0)")));
    }

    // The monthly editor tests the process as soon as all its digits stand, with an exclamation mark; the
    // individual one only when the field is left, and its text has none.
    void processoZeradoRecusadoComOTextoDeCadaEditor()
    {
        const QString zeros(17, QLatin1Char('0'));
        {
            Ambiente a;
            abreValores(a, 1);
            a.digita(QStringLiteral("mskDadosGerais(0)"), numeroVrt());
            a.clica(QStringLiteral("chkSimRest"));
            a.msgs.responde(Msg::OK);
            a.digita(QStringLiteral("mskDadosGerais(3)"), zeros);
            QCOMPARE(a.msgs.textos(), QStringList{t("O número de processo não pode ser zero!")});
        }
        {
            Ambiente a;
            a.novaIndividual();
            a.preencheIndividual();
            a.clica(QStringLiteral("ChkMand_Retif(1)"));
            QCOMPARE(a.msgs.textos(), QStringList{});
            a.digita(QStringLiteral("mskDadosGerais(0)"), numeroVrt());
            a.clica(QStringLiteral("chkSimRest"));
            a.digita(QStringLiteral("mskDadosGerais(3)"), zeros);
            QCOMPARE(a.msgs.textos(), QStringList{});
            a.msgs.responde(Msg::OK);
            a.sai(QStringLiteral("chkSimRest"));
            QCOMPARE(a.msgs.textos(), QStringList{t("O número de processo não pode ser zero")});
            QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDadosGerais(3)")));
        }
    }

    // Right after a load a click chooses nothing until the grid's current row has moved: the first row, current
    // since the load, does not answer a click; another row does, and from then on every click until the next load.
    void cliqueSoEscolheDepoisQueALinhaAtualMudou()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.incluiValor(0, QStringLiteral("VRT - PI com PPB"), QStringLiteral("PIS/PASEP"), QStringLiteral("20"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        auto* valor = a.campo<QLineEdit>(QStringLiteral("mskValor(0)"));
        clicaLinha(g, 0);
        QCOMPARE(valor->text(), QString());
        QVERIFY(!a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        clicaLinha(g, 1);
        QCOMPARE(valor->text(), QStringLiteral("20,00"));
        clicaLinha(g, 0);
        QCOMPARE(valor->text(), QStringLiteral("10,00"));
        // Limpar reloads the grid: the current row answers no click again.
        a.clica(QStringLiteral("cmdLimparValores(0)"));
        clicaLinha(g, g->currentRow());
        QCOMPARE(valor->text(), QString());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // A declaration opened with both boxes ticked shows its rows in the grids, but the sub-tabs stay closed and the
    // entry off: the boxes' handlers do nothing while it is read, and only a click on a box opens a sub-tab.
    void abertaComCaixasMarcadasDeixaAsSubAbasFechadas()
    {
        Ambiente a;
        abreValores(a, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.clica(QStringLiteral("ChkMand_Retif(1)"));
        a.digita(QStringLiteral("mskDadosGerais(0)"), numeroVrt());
        a.incluiValor(1, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("30"));
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
        a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
        QTest::mouseClick(a.janela.findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
        QVERIFY(a.editor());
        QVERIFY(a.campo<QCheckBox>(QStringLiteral("ChkMand_Retif(0)"))->isChecked());
        QVERIFY(a.campo<QCheckBox>(QStringLiteral("ChkMand_Retif(1)"))->isChecked());
        QVERIFY(!a.abasValores()->isEnabled());
        QVERIFY(!a.abasValores()->isTabVisible(0));
        QVERIFY(!a.abasValores()->isTabVisible(1));
        QCOMPARE(a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"))->dataRowCount(), 1);
        QCOMPARE(a.campo<ConsultGrid>(QStringLiteral("grdValoresRetificacao"))->dataRowCount(), 1);
        QVERIFY(!a.campo(QStringLiteral("cmdIncluirValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cboModalidade(1)"))->isEnabled());
        a.fechar();
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_valoresDiferenca)
#include "tst_valoresDiferenca.moc"
