// The monthly editor driven as a user drives it: opening from the menu, the general data and their checks,
// numbering on first leaving tab 0, saving and closing inside the editor's one transaction.
#include "EditorTeste.h"

#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/editor/AbaDadosGerais.h"
#include "gui/widgets/TextField.h"

#include <QCheckBox>
#include <QLabel>

using namespace EditorTeste;
using namespace modVRTPLN;

class tst_frmVRTmensalNovo : public QObject {
    Q_OBJECT
private slots:
    void novaMensalAbreOEditorComSuasAbas()
    {
        Ambiente a;
        EditorDeclaracao* e = a.novaMensal();
        QVERIFY(e);
        QCOMPARE(e->objectName(), QStringLiteral("frmVRTmensalNovo"));
        QCOMPARE(e->windowTitle(), QStringLiteral("Nova VRT Mensal"));
        QCOMPARE(TelaAtual, int(Mensal));
        const QStringList legendas = {"Dados Gerais", "&Produto Estrangeiro", "PI com PPB", "PI sem PPB",
                                      "100% Nacional"};
        QCOMPARE(a.abas()->count(), 5);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(a.abas()->tabText(i), legendas.at(i));
        QVERIFY(!a.abasValores()->isEnabled());
        QVERIFY(!a.abasValores()->isTabVisible(0));
        QVERIFY(!a.abasValores()->isTabVisible(1));
        QCOMPARE(a.abasValores()->tabText(0), QStringLiteral(" Mandado Judicial"));
        QCOMPARE(a.abasValores()->tabText(1), QStringLiteral("Retificação"));
        QVERIFY(a.janela.acao(QStringLiteral("mnuDeclaracaoSalvar"))->isEnabled());
        QVERIFY(a.janela.acao(QStringLiteral("mnuDeclaracaoFechar"))->isEnabled());
        QVERIFY(!a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->isEnabled());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // Every grid of both editors, on every tab and document page: a column of figures (quantities, values,
    // rates) stands right-aligned, a column of codes, names, masked numbers or dates left-aligned.
    void numerosDasGradesAlinhadosADireita()
    {
        for (bool individual : {false, true}) {
            Ambiente a;
            a.novaPreenchida(individual);
            for (int aba = 1; aba <= 4; ++aba)
                a.vaiParaAba(aba);
            const QList<ConsultGrid*> grades = a.editor()->findChildren<ConsultGrid*>();
            QVERIFY(grades.size() > 10);
            const QStringList figuras = {QStringLiteral("Quantidade"), QStringLiteral("Valor"),
                                         QStringLiteral("PIS/PASEP"), QStringLiteral("COFINS")};
            int aDireita = 0;
            for (ConsultGrid* g : grades)
                for (int c = 0; c < g->columnCount(); ++c) {
                    const QString titulo = g->titleText(c);
                    if (g->isColumnHidden(c) || titulo.isEmpty())
                        continue;
                    const bool direita = g->columnAlignment(c) & Qt::AlignRight;
                    QVERIFY2(direita == figuras.contains(titulo), qPrintable(g->objectName() + QLatin1Char('/') + titulo));
                    aDireita += direita;
                }
            // Both values grids, and the quantity of every item and document grid.
            QVERIFY(aDireita >= (individual ? 8 : 15));
        }
    }

    // Every masked and digit field of the general data selects all of its text when it receives the focus, in both
    // editors; free-text fields (the series) put the caret behind their text instead.
    void camposDosDadosGeraisSelecionamTudoAoReceberOFoco()
    {
        for (bool individual : {false, true}) {
            Ambiente a;
            a.novaPreenchida(individual);
            a.campo<QLineEdit>(QStringLiteral("txtDadosGerais(1)"))->setText(QStringLiteral("001"));
            a.campo<QLineEdit>(QStringLiteral("txtDadosGerais(2)"))->setText(QStringLiteral("1234"));
            int vistos = 0;
            for (QLineEdit* e : a.editor()->findChild<QWidget*>(QStringLiteral("tabDeclaracao(0)"))->findChildren<QLineEdit*>()) {
                if (!e->isVisible() || !e->isEnabled() || e->text().isEmpty() || e->objectName().isEmpty()
                    || qobject_cast<QComboBox*>(e->parentWidget()))
                    continue;
                a.campo(QStringLiteral("ChkMand_Retif(0)"))->setFocus(Qt::TabFocusReason);
                QCoreApplication::processEvents();
                e->setFocus(Qt::TabFocusReason);
                QCoreApplication::processEvents();
                if (qobject_cast<TextField*>(e)) {
                    QTRY_VERIFY(e->selectedText().isEmpty());
                    QCOMPARE(e->cursorPosition(), e->text().size());
                    continue;
                }
                QTRY_COMPARE(e->selectedText(), e->displayText());
                ++vistos;
            }
            QVERIFY(vistos >= (individual ? 9 : 5));
            a.msgs.limpa();
        }
    }

    void fecharNovaSemDigitarNaoPerguntaNemGrava()
    {
        Ambiente a;
        a.novaMensal();
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 0);
        QVERIFY(a.janela.acao(QStringLiteral("mnuDeclaracaoNovaMensal"))->isEnabled());
        QVERIFY(!a.janela.acao(QStringLiteral("mnuDeclaracaoSalvar"))->isEnabled());
    }

    void primeiraSaidaDaAbaZeroNumeraEGravaComMesDeDoisDigitos()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal(QStringLiteral("3"), QStringLiteral("2009"));
        a.vaiParaAba(4);
        QCOMPARE(a.msgs.inesperadas, 0);
        QCOMPARE(a.abas()->currentIndex(), 4);
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisMensal(0)"))->text(), QStringLiteral("03"));
        const QString id = QStringLiteral("00001/") + anoAtual2();
        QCOMPARE(a.editor()->idVrt(), id);
        QCOMPARE(TextoPainelStatus(2), id);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT DT_REFERENCIA_VRT FROM VRT_MENSAL WHERE ID_VRT_MICRO = ?"),
                                   {id}).toString(),
                 QStringLiteral("032009"));
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT CD_TIPO_VRT || NR_CNPJ_INTERNADOR || IND_MANDADO_JUDIC || "
                                                  "IND_RETIFICACAO || IND_RESTITUICAO FROM VRT")).toString(),
                 QStringLiteral("2") + Cnpj + QStringLiteral("NNN"));
        QVERIFY(BancoTeste::valor(QStringLiteral("SELECT DT_REGISTRO_VRT_MICRO FROM VRT")).toString()
                == QDate::currentDate().toString(Qt::ISODate));
        QVERIFY(AlteracaoPendente);
        a.salvar();
        QVERIFY(!AlteracaoPendente);
        QCOMPARE(a.comprometido(QStringLiteral("SELECT COUNT(*) FROM VRT")).toInt(), 1);
        // Nothing changed since the save: closing asks nothing.
        a.fechar();
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(TextoPainelStatus(2), QString());
    }

    void naoDepoisDeAlteracoesNaoDeixaLinhasNemNumeroGasto()
    {
        Ambiente a;
        BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR VALUES (7, ?)"), {anoAtual2().toInt()});
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(1);
        a.vaiParaAba(0);
        a.clica(QStringLiteral("ChkMand_Retif(0)"));
        a.incluiValor(0, QStringLiteral("VRT"), QStringLiteral("Multa por Atraso"), QStringLiteral("10"));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
        a.msgs.responde(Msg::No);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Deseja salvar a VRT?")});
        QCOMPARE(a.msgs.caixas.first().estilo, Msg::YesNoCancel | Msg::Information);
        QCOMPARE(a.msgs.caixas.first().titulo, TituloPadrao);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VALORES_DIVER_MANDADO")), 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR")).toInt(), 7);
        QVERIFY(!AlteracaoPendente);
    }

    void cancelarAoFecharDeixaOEditorEATransacao()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.msgs.responde(Msg::Cancel);
        a.fechar();
        QVERIFY(a.editor());
        QVERIFY(modBancoDados::TransacaoAberta());
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 1);
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.comprometido(QStringLiteral("SELECT COUNT(*) FROM VRT")).toInt(), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void salvarDuasVezesASegundaNadaFaz()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(1);
        a.salvar();
        QVERIFY(!AlteracaoPendente);
        // A change the editor holds but has not confirmed by a write: the second save commits nothing.
        modBancoDados::ExecutaSql(QStringLiteral("UPDATE VRT SET NR_BANCO_ARREC = '999'"));
        a.salvar();
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_BANCO_ARREC FROM VRT")).toString(), QString());
        QCOMPARE(a.msgs.caixas.size(), 0);
    }

    // A CNPJ counts as changed only once all its digits stand: a half-typed one is no change, and closing asks
    // nothing and keeps the stored CNPJ; a whole other CNPJ is a change, and closing asks.
    void cnpjPelaMetadeNaoContaComoMudanca()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(1);
        a.salvar();
        a.vaiParaAba(0);
        a.campo<QLineEdit>(QStringLiteral("mskDadosGerais(1)"))->setText(QStringLiteral("1122"));
        QVERIFY(!a.editor()->TestaDadosGerais());
        a.campo<QLineEdit>(QStringLiteral("mskDadosGerais(1)"))->setText(QStringLiteral("33000167000101"));
        QVERIFY(a.editor()->TestaDadosGerais());
        a.campo<QLineEdit>(QStringLiteral("mskDadosGerais(1)"))->setText(QStringLiteral("1122"));
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_CNPJ_INTERNADOR FROM VRT")).toString(), Cnpj);
    }

    void bancoAlteradoSemTrocaDeAbaNaoEntraNoSalvar()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(1);
        a.salvar();
        a.vaiParaAba(0);
        a.digita(QStringLiteral("txtDadosGerais(1)"), QStringLiteral("237"));
        a.sai(QStringLiteral("txtDadosGerais(2)"));
        a.salvar();
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_BANCO_ARREC FROM VRT")).toString(), QString());
        QVERIFY(!AlteracaoPendente);
        // Closing writes the general data first, and so asks.
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Deseja salvar a VRT?")});
        QCOMPARE(a.comprometido(QStringLiteral("SELECT NR_BANCO_ARREC FROM VRT")).toString(), QStringLiteral("237"));
    }

    void retificacaoSemNumeroVoltaAoCampoNaSubAba()
    {
        Ambiente a;
        a.novaMensal();
        a.preencheMensal();
        a.clica(QStringLiteral("ChkMand_Retif(1)"));
        QVERIFY(a.abasValores()->isEnabled());
        QVERIFY(a.abasValores()->isTabVisible(1));
        QCOMPARE(a.abasValores()->currentIndex(), 1);
        a.msgs.responde(Msg::OK);
        a.vaiParaAba(2);
        QCOMPARE(a.msgs.inesperadas, 0);
        QCOMPARE(a.msgs.textos(),
                 QStringList{QStringLiteral("Na retificação o preenchimento do número da VRT é obrigatório.")});
        QCOMPARE(a.msgs.caixas.first().estilo, Msg::OKOnly | Msg::Critical);
        QCOMPARE(a.abas()->currentIndex(), 0);
        QCOMPARE(a.abasValores()->currentIndex(), 1);
        QCOMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("mskDadosGerais(0)")));
    }

    void anoDeReferenciaTemLimites_data()
    {
        QTest::addColumn<int>("ano");
        QTest::addColumn<QString>("mensagem");
        const int limite = QDate::currentDate().year() + 10;
        const QString texto = QStringLiteral("Ano de referência inválido!\n\nO ano de referência deve ser maior ou "
                                             "igual a 2002\ne menor que %1")
                                  .arg(limite);
        QTest::newRow("2001 recusado") << 2001 << texto;
        QTest::newRow("2002 aceito") << 2002 << QString();
        QTest::newRow("ano corrente mais 10 aceito apesar de menor que") << limite << QString();
        QTest::newRow("ano corrente mais 11 recusado") << limite + 1 << texto;
    }
    void anoDeReferenciaTemLimites()
    {
        QFETCH(int, ano);
        QFETCH(QString, mensagem);
        Ambiente a;
        a.novaMensal();
        a.preencheMensal(QStringLiteral("12"), QString::number(ano));
        if (!mensagem.isEmpty())
            a.msgs.responde(Msg::OK);
        a.vaiParaAba(1);
        QCOMPARE(a.msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
        QCOMPARE(a.abas()->currentIndex(), mensagem.isEmpty() ? 1 : 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), mensagem.isEmpty() ? 1 : 0);
    }

    void validacaoParaNoPrimeiroErroNaOrdem_data()
    {
        QTest::addColumn<QString>("cnpj");
        QTest::addColumn<QString>("mes");
        QTest::addColumn<QString>("ano");
        QTest::addColumn<QString>("mensagem");
        QTest::addColumn<QString>("foco");
        QTest::newRow("sem CNPJ") << "" << "" << "" << "O campo CNPJ do internador deve ser preenchido."
                                  << "mskDadosGerais(1)";
        QTest::newRow("sem mês") << Cnpj << "" << "" << "O campo mês de referência deve ser preenchido."
                                 << "txtDadosGeraisMensal(0)";
        QTest::newRow("mês 13") << Cnpj << "13" << "2009" << "Mês de referência invalido!"
                                << "txtDadosGeraisMensal(0)";
        QTest::newRow("mês 0") << Cnpj << "0" << "2009" << "Mês de referência invalido!" << "txtDadosGeraisMensal(0)";
        QTest::newRow("sem ano") << Cnpj << "05" << "" << "O campo ano de referência deve ser preenchido."
                                 << "txtDadosGeraisMensal(1)";
    }
    void validacaoParaNoPrimeiroErroNaOrdem()
    {
        QFETCH(QString, cnpj);
        QFETCH(QString, mes);
        QFETCH(QString, ano);
        QFETCH(QString, mensagem);
        QFETCH(QString, foco);
        Ambiente a;
        a.novaMensal();
        if (!cnpj.isEmpty())
            a.digita(QStringLiteral("mskDadosGerais(1)"), cnpj);
        // Typed directly: the month's jump to the year is not what is tested here.
        a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisMensal(0)"))->setText(mes);
        a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisMensal(1)"))->setText(ano);
        a.msgs.responde(Msg::OK);
        a.vaiParaAba(3);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(a.msgs.caixas.first().estilo, Msg::OKOnly | Msg::Critical);
        QCOMPARE(a.abas()->currentIndex(), 0);
        QCOMPARE(QApplication::focusWidget(), a.campo(foco));
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
    }

    void cnpjInvalidoMostraOTextoDaRegra()
    {
        Ambiente a;
        a.novaMensal();
        a.msgs.responde(Msg::OK);
        a.digita(QStringLiteral("mskDadosGerais(1)"), QStringLiteral("11222333000182"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("CNPJ inválido.")});
    }

    void mesDeDoisDigitosLevaAoAno()
    {
        Ambiente a;
        a.novaMensal();
        a.digita(QStringLiteral("txtDadosGeraisMensal(0)"), QStringLiteral("11"));
        QCOMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("txtDadosGeraisMensal(1)")));
    }

    void primeiraDeclaracaoDeUmAnoNovoRecebeONumero1_data()
    {
        QTest::addColumn<int>("ultimo");
        QTest::addColumn<int>("ano");
        QTest::addColumn<QString>("esperado");
        const int atual = anoAtual2().toInt();
        QTest::newRow("banco vazio") << -1 << 0 << QStringLiteral("00001/") + anoAtual2();
        QTest::newRow("mesmo ano soma um") << 41 << atual << QStringLiteral("00042/") + anoAtual2();
        QTest::newRow("ano anterior recomeça em 1") << 41 << (atual + 99) % 100 << QStringLiteral("00001/") + anoAtual2();
    }
    void primeiraDeclaracaoDeUmAnoNovoRecebeONumero1()
    {
        QFETCH(int, ultimo);
        QFETCH(int, ano);
        QFETCH(QString, esperado);
        Ambiente a;
        if (ultimo >= 0)
            BancoTeste::executa(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR VALUES (?, ?)"), {ultimo, ano});
        a.novaMensal();
        a.preencheMensal();
        a.vaiParaAba(1);
        QCOMPARE(a.editor()->idVrt(), esperado);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT ANO FROM ARQUIVO_NUMERADOR")).toInt(), anoAtual2().toInt());
        QCOMPARE(BancoTeste::conta(QStringLiteral("ARQUIVO_NUMERADOR")), 1);
    }

    void contaComXPassaEZerosSaoRecusados()
    {
        Ambiente a;
        a.novaMensal();
        a.digita(QStringLiteral("txtDadosGerais(3)"), QStringLiteral("12345x"));
        a.sai(QStringLiteral("txtDadosGerais(2)"));
        QCOMPARE(a.msgs.caixas.size(), 0);
        a.msgs.responde(Msg::OK);
        a.digita(QStringLiteral("txtDadosGerais(3)"), QStringLiteral("0000"));
        a.sai(QStringLiteral("txtDadosGerais(2)"));
        QCOMPARE(a.msgs.textos(), QStringList{QStringLiteral("Conta-Corrente inválida.")});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(QStringLiteral("txtDadosGerais(3)")));
    }

    void zerosRecusadosAoSair_data()
    {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("zeros");
        QTest::addColumn<QString>("proximo");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("agência") << QStringLiteral("txtDadosGerais(2)") << QStringLiteral("0000")
                                 << QStringLiteral("txtDadosGerais(3)") << QString::fromUtf8("Agência inválida.");
        QTest::newRow("banco") << QStringLiteral("txtDadosGerais(1)") << QStringLiteral("000")
                               << QStringLiteral("txtDadosGerais(2)") << QStringLiteral("Banco inválido.");
    }
    void zerosRecusadosAoSair()
    {
        QFETCH(QString, campo);
        QFETCH(QString, zeros);
        QFETCH(QString, proximo);
        QFETCH(QString, mensagem);
        Ambiente a;
        a.novaMensal();
        a.msgs.responde(Msg::OK);
        a.digita(campo, zeros);
        a.sai(proximo);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QTRY_COMPARE(QApplication::focusWidget(), a.campo(campo));
    }

    void abrirPeloEscolhedorMostraOsCamposComoGravadosEFecharNadaPergunta()
    {
        Ambiente a;
        BancoTeste::executa(QStringLiteral(
            "INSERT INTO VRT (ID_VRT_MICRO, NR_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, IND_RETIFICACAO, "
            "NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, CD_TIPO_VRT, NR_PROC_ADM_FISCAL, IND_RESTITUICAO) "
            "VALUES ('00005/09', ?, ?, 'S', 'S', '001', '1234', '998877X', '2', ' ', 'N')"),
                            {numeroVrt(), Cnpj});
        BancoTeste::executa(QStringLiteral("INSERT INTO VRT_MENSAL VALUES ('00005/09', '052009')"));
        BancoTeste::executa(QStringLiteral("INSERT INTO VALORES_DIVER_MANDADO VALUES ('00005/09', '1', "
                                           "'VRT - PE', '3', 'Imposto de Importação', '1234,50')"));
        a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
        QTest::mouseClick(a.janela.findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
        QVERIFY(a.editor());
        QCOMPARE(a.editor()->objectName(), QStringLiteral("frmVRTmensalNovo"));
        QCOMPARE(a.editor()->windowTitle(), QStringLiteral("VRT Mensal"));
        QCOMPARE(TextoPainelStatus(2), QStringLiteral("00005/09"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("mskDadosGerais(1)"))->text(), QStringLiteral("11.222.333/0001-81"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisMensal(0)"))->text(), QStringLiteral("05"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDadosGeraisMensal(1)"))->text(), QStringLiteral("2009"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDadosGerais(3)"))->text(), QStringLiteral("998877X"));
        QVERIFY(a.campo<QCheckBox>(QStringLiteral("ChkMand_Retif(0)"))->isChecked());
        QVERIFY(a.campo<QCheckBox>(QStringLiteral("ChkMand_Retif(1)"))->isChecked());
        auto* grade = a.campo<ConsultGrid>(QStringLiteral("grdValoresTotaisAssociadosMandadoJudicial"));
        QCOMPARE(grade->dataRowCount(), 1);
        QCOMPARE(grade->cellText(0, 4), QStringLiteral("1.234,50"));
        // Reading a declaration runs no box handler: the values' sub-tab stays closed.
        QVERIFY(!a.abasValores()->isTabVisible(0));
        QVERIFY(!AlteracaoPendente);
        a.vaiParaAba(1);
        a.vaiParaAba(0);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NR_PROC_ADM_FISCAL FROM VRT")).toString(), QStringLiteral(" "));
    }
};

QTEST_MAIN(tst_frmVRTmensalNovo)
#include "tst_frmVRTmensalNovo.moc"
