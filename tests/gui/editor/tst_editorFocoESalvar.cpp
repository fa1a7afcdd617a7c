// Both editors around the moments the user does not type: leaving the monthly editor for another window and
// coming back to it, saving (what a save forgets and reloads, a second save, a declaration of an earlier year),
// closing with "Não", and what a stored declaration shows when it is opened.
#include "EditorTeste.h"

#include "gui/widgets/DigitField.h"

#include <QCheckBox>
#include <QDialog>
#include <QTabBar>
#include <QVBoxLayout>

using namespace EditorTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

bool destacada(ConsultGrid* g)
{
    return !g->selectionModel()->selectedRows().isEmpty();
}

// Another window of the program, with a field that takes the focus.
struct OutraJanela {
    QWidget janela;
    QLineEdit* campo = new QLineEdit(&janela);

    bool ativa()
    {
        janela.show();
        janela.activateWindow();
        if (!QTest::qWaitForWindowActive(&janela))
            return false;
        campo->setFocus(Qt::ActiveWindowFocusReason);
        QCoreApplication::processEvents();
        return QApplication::focusWidget() == campo;
    }
};

bool voltaParaAPrincipal(Ambiente& a)
{
    a.janela.activateWindow();
    return QTest::qWaitForWindowActive(&a.janela);
}

// The individual general data, put straight into the fields.
void preencheIndividual(Ambiente& a)
{
    auto poe = [&](const char* nome, const char* texto) { a.campo<QLineEdit>(t(nome))->setText(t(texto)); };
    poe("mskDadosGerais(1)", "11222333000181");
    poe("mskDadosGerais(2)", "12345678");
    poe("mskDadosGeraisIndividual(3)", "4567");
    poe("txtDadosGeraisIndividual(1)", "A1");
    poe("mskDadosGeraisIndividual(0)", "10052009");
    poe("txtDadosGeraisIndividual(2)", "5102");
    poe("mskDadosGeraisIndividual(2)", "33000167000101");
    auto* uf = a.campo<QComboBox>(QStringLiteral("cboUF"));
    uf->setCurrentIndex(uf->findText(QStringLiteral("AM")));
}

// A stored monthly declaration of 2009, numbered 00005/09, with one court order value.
void gravaMensalDe2009()
{
    BancoTeste::executa(QStringLiteral(
        "INSERT INTO VRT (ID_VRT_MICRO, NR_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, IND_RETIFICACAO, "
        "NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, CD_TIPO_VRT, NR_PROC_ADM_FISCAL, IND_RESTITUICAO) "
        "VALUES ('00005/09', '', ?, 'S', 'N', '001', '1234', '998877X', '2', '', 'N')"),
                        {Cnpj});
    BancoTeste::executa(QStringLiteral("INSERT INTO VRT_MENSAL VALUES ('00005/09', '052009')"));
    BancoTeste::executa(QStringLiteral("INSERT INTO VALORES_DIVER_MANDADO VALUES ('00005/09', '1', "
                                       "'VRT - PE', '3', 'Imposto de Importação', '1234,50')"));
}

void abreNoEscolhedor(Ambiente& a)
{
    a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
    QTest::mouseClick(a.janela.findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
}

}  // namespace

class tst_editorFocoESalvar : public QObject {
    Q_OBJECT
private slots:
    void mensalQuePerdeOFocoGravaOsDadosGeraisEAoVoltarFocaOCnpj()
    {
        Ambiente a;
        a.novaMensal();
        QCOMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDadosGerais(1)")));
        a.preencheMensal();
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
        OutraJanela outra;
        QVERIFY(outra.ativa());
        QCOMPARE(a.editor()->idVrt(), QStringLiteral("00001/") + anoAtual2());
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT_MENSAL")), 1);
        QVERIFY(AlteracaoPendente);
        QVERIFY(voltaParaAPrincipal(a));
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDadosGerais(1)")));
        QCOMPARE(a.msgs.inesperadas, 0);
        a.msgs.responde(Msg::No);
        a.fechar();
    }

    void mensalVoltandoComOutraAbaNaFrenteNaoMudaOFoco()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(4);
        QWidget* barra = a.abas()->tabBar();
        barra->setFocus(Qt::OtherFocusReason);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), barra);
        OutraJanela outra;
        QVERIFY(outra.ativa());
        QVERIFY(voltaParaAPrincipal(a));
        QCoreApplication::processEvents();
        QCOMPARE(a.abas()->currentIndex(), 4);
        QTRY_COMPARE(QApplication::focusWidget(), barra);
        a.msgs.responde(Msg::No);
        a.fechar();
    }

    void caixaModalDoProprioEditorNaoContaComoPerderOFoco()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        QDialog dialogo(&a.janela);
        auto* campo = new QLineEdit(&dialogo);
        dialogo.setModal(true);
        dialogo.show();
        dialogo.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialogo));
        campo->setFocus(Qt::ActiveWindowFocusReason);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), campo);
        dialogo.close();
        QVERIFY(voltaParaAPrincipal(a));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
        QVERIFY(a.editor()->idVrt().isEmpty());
        QVERIFY(QApplication::focusWidget() != a.campo(QStringLiteral("mskDadosGerais(1)")));
    }

    void individualQuePerdeOFocoNadaGrava()
    {
        Ambiente a;
        a.novaIndividual();
        preencheIndividual(a);
        a.campo(QStringLiteral("txtDadosGerais(1)"))->setFocus(Qt::TabFocusReason);
        OutraJanela outra;
        QVERIFY(outra.ativa());
        QVERIFY(voltaParaAPrincipal(a));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
        QVERIFY(a.editor()->idVrt().isEmpty());
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("txtDadosGerais(1)")));
    }

    // The monthly save re-reads only the item grids: the chosen value row is forgotten, its fields and
    // buttons stay, and Alterar then asks for a row.
    void salvarNaMensalEsqueceALinhaEscolhidaDosValores()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QTest::keyClick(g, Qt::Key_Return);  // the only row answers no click right after a load
        QVERIFY(destacada(g));
        QVERIFY(a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        a.salvar();
        QVERIFY(!destacada(g));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QStringLiteral("10,00"));
        QVERIFY(a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        a.msgs.responde(Msg::OK);
        a.clica(QStringLiteral("cmdAlterarValores(0)"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Inclua uma modalidade ou selecione no grid")});
        QCOMPARE(a.comprometido(QStringLiteral("SELECT COUNT(*) FROM VALORES_DIVER_MANDADO")).toInt(), 1);
    }

    void salvarNaIndividualRecarregaEEsvaziaOsValores()
    {
        Ambiente a;
        a.novaIndividual();
        preencheIndividual(a);
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        QCOMPARE(a.msgs.inesperadas, 0);
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QTest::keyClick(g, Qt::Key_Return);  // the only row answers no click right after a load
        QVERIFY(a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        a.salvar();
        QVERIFY(!destacada(g));
        QCOMPARE(g->dataRowCount(), 1);
        QCOMPARE(a.campo<QComboBox>(QStringLiteral("cboModalidade(0)"))->currentIndex(), -1);
        QVERIFY(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text().isEmpty());
        QVERIFY(!a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        QVERIFY(!a.campo(QStringLiteral("cmdExcluirValores(0)"))->isEnabled());
        QCOMPARE(a.comprometido(QStringLiteral("SELECT COUNT(*) FROM VALORES_DIVER_MANDADO")).toInt(), 1);
    }

    void individualSalvarDuasVezesASegundaNadaFaz()
    {
        Ambiente a;
        a.novaIndividual();
        preencheIndividual(a);
        a.vaiParaAba(1);
        QCOMPARE(a.msgs.inesperadas, 0);
        a.salvar();
        QVERIFY(!AlteracaoPendente);
        QCOMPARE(a.comprometido(QStringLiteral("SELECT COUNT(*) FROM NOTA_FISCAL_SAIDA")).toInt(), 1);
        // Held by the editor's transaction but not written through the screen: the second save commits nothing.
        modBancoDados::ExecutaSql(QStringLiteral("UPDATE VRT SET NR_BANCO_ARREC = '999'"));
        a.salvar();
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_BANCO_ARREC FROM VRT")).toString(), QString());
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    void individualFecharComNaoNaoDeixaLinhasNemNumeroGasto()
    {
        Ambiente a;
        BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR VALUES (7, ?)"), {anoAtual2().toInt()});
        a.novaIndividual();
        preencheIndividual(a);
        a.vaiParaAba(1);
        a.vaiParaAba(0);
        QCOMPARE(a.editor()->idVrt(), QStringLiteral("00008/") + anoAtual2());
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        a.incluiValor(0, QStringLiteral("VRT"), QStringLiteral("Multa por Atraso"), QStringLiteral("10"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
        a.msgs.responde(Msg::No);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.textos(), QStringList{t("Deseja salvar a VRT?")});
        QCOMPARE(a.msgs.caixas.first().estilo, Msg::YesNoCancel | Msg::Information);
        for (const char* tabela : {"VRT", "VRT_INDIVIDUAL", "NOTA_FISCAL_SAIDA", "VALORES_DIVER_MANDADO"})
            QCOMPARE(BancoTeste::conta(t(tabela)), 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")).toInt(), 7);
        QVERIFY(!AlteracaoPendente);
    }

    void salvarDeclaracaoDeOutroAnoNaoMexeNaNumeracao()
    {
        Ambiente a;
        BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR VALUES (7, ?)"), {anoAtual2().toInt()});
        gravaMensalDe2009();
        abreNoEscolhedor(a);
        QVERIFY(a.editor());
        a.digita(QStringLiteral("txtDadosGerais(1)"), QStringLiteral("237"));
        a.sai(QStringLiteral("txtDadosGerais(2)"));
        a.vaiParaAba(1);
        QVERIFY(AlteracaoPendente);
        a.salvar();
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_BANCO_ARREC FROM VRT WHERE ID_VRT_MICRO = '00005/09'"))
                     .toString(),
                 QStringLiteral("237"));
        QCOMPARE(a.editor()->idVrt(), QStringLiteral("00005/09"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 1);
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NUM_ULTIMA_VRT || '/' || ANO FROM ARQUIVO_NUMERADOR")).toString(),
                 QStringLiteral("7/%1").arg(anoAtual2().toInt()));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The values are read, but their sub-tab opens only through a click on its box: reading a declaration
    // runs no box handler.
    void abrirDeixaASubAbaDeValoresFechadaMesmoComACaixaMarcada()
    {
        Ambiente a;
        gravaMensalDe2009();
        abreNoEscolhedor(a);
        QVERIFY(a.campo<QCheckBox>(QStringLiteral("ChkMand_Retif(0)"))->isChecked());
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QCOMPARE(g->dataRowCount(), 1);
        QVERIFY(!a.abasValores()->isEnabled());
        QVERIFY(!a.abasValores()->isTabVisible(0));
        QVERIFY(!a.abasValores()->isTabVisible(1));
        QVERIFY(!a.campo(QStringLiteral("cmdIncluirValores(0)"))->isEnabled());
        a.fechar();
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    // After a load the first row is current, so that the cursor keys go on from it, but with Alterar and
    // Excluir off none is highlighted; Enter chooses the current row and highlights it.
    void gradeCarregadaNaoDestacaLinhaAteSerEscolhida()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("COFINS"), QStringLiteral("10"));
        a.incluiValor(0, QStringLiteral("VRT - PE"), QStringLiteral("PIS/PASEP"), QStringLiteral("20"));
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QCOMPARE(g->currentRow(), 0);
        QVERIFY(!destacada(g));
        QVERIFY(!a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        g->setFocus(Qt::TabFocusReason);
        QTest::keyClick(g, Qt::Key_Return);
        QVERIFY(destacada(g));
        QCOMPARE(g->selectionModel()->selectedRows().first().row(), 0);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QStringLiteral("20,00"));
        QVERIFY(a.campo(QStringLiteral("cmdAlterarValores(0)"))->isEnabled());
        QTest::keyClick(g, Qt::Key_Down);
        QCOMPARE(g->selectionModel()->selectedRows().first().row(), 1);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskValor(0)"))->text(), QStringLiteral("10,00"));
    }

    void colunasDosValoresMostramATextoMaisLongoInteiro()
    {
        Ambiente a;
        a.novaMensal();
        auto* g = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        const QFontMetrics m = g->fontMetrics();
        QVERIFY(g->columnWidth(2) > m.horizontalAdvance(QStringLiteral("VRT - PI sem PPB")));
        QVERIFY(g->columnWidth(3) > m.horizontalAdvance(t("Imposto sobre Prod. Industrializados")));
        QVERIFY(g->columnWidth(4) > m.horizontalAdvance(QStringLiteral("9.999.999.999.999,99")));
    }

    // The exit invoice's number shows six digits with a group separator once left; typed in, it is the digits.
    void numeroDaNotaDeSaidaTemFormatoDeSeisDigitos()
    {
        Ambiente a;
        a.novaIndividual();
        a.digita(QStringLiteral("mskDadosGeraisIndividual(3)"), QStringLiteral("4567"));
        auto* numero = a.campo<DigitField>(QStringLiteral("mskDadosGeraisIndividual(3)"));
        QCOMPARE(numero->text(), QStringLiteral("4567"));
        a.sai(QStringLiteral("txtDadosGeraisIndividual(1)"));
        QCOMPARE(numero->text(), QStringLiteral("004.567"));
        QCOMPARE(numero->value(), QStringLiteral("4567"));
        a.sai(QStringLiteral("mskDadosGeraisIndividual(3)"));
        QCOMPARE(numero->text(), QStringLiteral("4567"));
        a.sai(QStringLiteral("txtDadosGeraisIndividual(1)"));
        preencheIndividual(a);
        a.vaiParaAba(1);
        QCOMPARE(a.msgs.inesperadas, 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_NF_SAIDA FROM NOTA_FISCAL_SAIDA")).toString(),
                 QStringLiteral("4567"));
        a.msgs.responde(Msg::Yes);
        a.fechar();
        // Opened again: the display format, and closing unchanged asks nothing.
        a.msgs.limpa();
        abreNoEscolhedor(a);
        numero = a.campo<DigitField>(QStringLiteral("mskDadosGeraisIndividual(3)"));
        QCOMPARE(numero->text(), QStringLiteral("004.567"));
        a.fechar();
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    void zeroNoNumeroDaNotaAindaERecusado()
    {
        Ambiente a;
        a.novaIndividual();
        a.msgs.responde(Msg::OK);
        a.digita(QStringLiteral("mskDadosGeraisIndividual(3)"), QStringLiteral("000"));
        a.sai(QStringLiteral("txtDadosGeraisIndividual(1)"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Número da Nota Fiscal inválido.")});
    }

    void contaSoComXPassaAoSair()
    {
        Ambiente a;
        a.novaMensal();
        a.digita(QStringLiteral("txtDadosGerais(3)"), QStringLiteral("X"));
        a.sai(QStringLiteral("txtDadosGerais(2)"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("txtDadosGerais(2)")));
    }
};

QTEST_MAIN(tst_editorFocoESalvar)
#include "tst_editorFocoESalvar.moc"
