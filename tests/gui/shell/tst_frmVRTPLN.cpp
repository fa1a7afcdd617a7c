#include "TestUtil.h"

#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/shell/frmAbout.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "gui/screens/TelaFilha.h"

#include <QAction>
#include <QDir>
#include <QPushButton>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QtTest>

using namespace modVRTPLN;

namespace {

// A child screen for the tests: counts what the main window asks of it and answers its closing step as told.
class TelaTeste : public TelaFilha {
public:
    explicit TelaTeste(const QString& nome) { setObjectName(nome); setWindowTitle(nome); }
    bool recusaFechar = false;
    int funcao = -1;
    int repopulacoes = 0;
    int validacoes = 0;
    void FuncaoForm(int f) override { funcao = f; }
    void RepopulaGrids() override { ++repopulacoes; }
    bool ValidaDadosGerais() override { ++validacoes; return true; }
    // As an editor does when it stores the general data of a new declaration: it takes a number and shows it.
    void AtualizaDadosGerais() override { DefinePainelStatus(2, QStringLiteral("00002/26")); }

protected:
    void closeEvent(QCloseEvent* e) override
    {
        if (recusaFechar)
            e->ignore();
        else
            e->accept();
    }
};

QPointer<TelaTeste> ultimaCriada[6];

void registraTelasDeTeste()
{
    const char* nomes[] = {"", "frmAssistenteVRT", "frmVRTindividualNovo", "frmManipulaArquivo", "frmVRTmensalNovo",
                           "frmAssistenteCCI"};
    for (int t = 1; t <= 5; ++t)
        RegistraTela(t, [t, nomes] {
            auto* tela = new TelaTeste(QString::fromLatin1(nomes[t]));
            ultimaCriada[t] = tela;
            return tela;
        });
}

const QStringList declaracao = {"mnuDeclaracaoAbrir", "mnuDeclaracaoCopiarDeclaracao", "mnuDeclaracaoEliminar",
                                "mnuDeclaracaoNovaIndividual", "mnuDeclaracaoNovaMensal"};
const QStringList editor = {"mnuDeclaracaoSalvar", "mnuDeclaracaoFechar"};
const QStringList tabelas = {"mnuFerramentasTabelasProduto", "mnuFerramentasTabelasUnidMedida"};
// Toolbar buttons by index, with the menu command each one runs.
const QList<QPair<int, QString>> botoes = {{2, "mnuDeclaracaoNovaMensal"}, {3, "mnuDeclaracaoNovaIndividual"},
                                           {5, "mnuDeclaracaoAbrir"},      {6, "mnuDeclaracaoSalvar"},
                                           {7, "mnuDeclaracaoEliminar"},   {8, "mnuDeclaracaoFechar"},
                                           {10, "mnuDeclaracaoCopiarDeclaracao"}};

}  // namespace

class tst_frmVRTPLN : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { registraTelasDeTeste(); }
    void menusTemLegendasTeclasDeAcessoESeparadores_data();
    void menusTemLegendasTeclasDeAcessoESeparadores();
    void barraDeFerramentasTemDicasEIndices();
    void menuFerramentasTemSeusSeparadoresNoLugar();
    void painel3MostraVersaoDesdeOPrimeiroMomento();
    void semTelaAbertaSalvarEFecharFicamDesligados();
    void matrizDeHabilitacao_data();
    void matrizDeHabilitacao();
    void botoesAcompanhamOsItensDeMenu();
    void aoCarregarATelaAMatrizUsaATelaAnterior();
    void abreTelaFechaATelaAbertaAntes();
    void abrirComEditorAbertoNaoEAlcancavel();
    void comandosDaEscolhaPassamAFuncaoDaTela_data();
    void comandosDaEscolhaPassamAFuncaoDaTela();
    void comandosDoEscolhedorDeArquivoDefinemModoETitulo_data();
    void comandosDoEscolhedorDeArquivoDefinemModoETitulo();
    void salvarSemAlteracaoNaoConfirmaNemReleAsGrades();
    void salvarConfirmaSemValidarOsDadosGeraisEMantemPainel2();
    void novaMensalENovaIndividualLimpamAIdentificacaoEscolhida_data();
    void novaMensalENovaIndividualLimpamAIdentificacaoEscolhida();
    void localizarEComoUsarAAjudaNaoFazemNada();
    void fecharComEditorQueRecusaMantemOProgramaAberto();
    void sairComTelaQueAceitaFechaAConexao();
    void capturasDaJanelaPrincipalEDoSobre();
    void janelaCabeNaTela_data();
    void janelaCabeNaTela();
    void iconesDaBarraMostramCadaComandoESeuEstado();
};

void tst_frmVRTPLN::menusTemLegendasTeclasDeAcessoESeparadores_data()
{
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QString>("legenda");
    const QList<QPair<QString, QString>> itens = {
        {"mnuDeclaracaoNovaMensal", "&Mensal"},
        {"mnuDeclaracaoNovaIndividual", "&Individual"},
        {"mnuDeclaracaoAbrir", "&Abrir..."},
        {"mnuDeclaracaoSalvar", "&Salvar"},
        {"mnuDeclaracaoEliminar", "&Eliminar..."},
        {"mnuDeclaracaoFechar", "&Fechar"},
        {"mnuDeclaracaoCopiarDeclaracao", "&Copiar Declaração..."},
        {"mnuDeclaracaoImportar", "Impor&tar ..."},
        {"mnuDeclaracaoGravarVRTTransmissao", "&Gravar para transmissão..."},
        {"mnuDeclaracaoSair", "Sai&r"},
        {"mnuFerramentasCalculadora", "&Calculadora"},
        {"mnuFerramentasGravarBackup", "&Gravar backup"},
        {"mnuFerramentasRestaurarBackup", "&Restaurar backup"},
        {"mnuFerramentasImportarTabelasMoeda", "&Moeda"},
        {"mnuFerramentasImportarTabelasNCM", "&NCM"},
        {"mnuFerramentasImportarTabelasProduto", "&Produto"},
        {"mnuFerramentasImportarTabelasUF", "&UF - Unidade da Federação"},
        {"mnuFerramentasImportarTabelasUnidadeMedida", "U&nidade de Medida Comercial"},
        {"mnuFerramentasTabelasProduto", "&Produto"},
        {"mnuFerramentasTabelasUnidMedida", "U&nidade de Medida Comercial"},
        {"mnuImportarBancoAnterior", "Importar Banco de Dados da Versão 1.0"},
        {"mnuAjudaTopicos", "&Tópicos"},
        {"mnuAjudaLocalizar", "&Localizar"},
        {"mnuAjudaComoUsarAjuda", "&Como usar a ajuda"},
        {"mnuAjudaSobreVRT", "&Sobre"},
        {"mnuDeclaracao", "&Declaração"},
        {"mnuDeclaracaoNova", "&Nova..."},
        {"mnuFerramentas", "&Ferramentas"},
        {"mnuFerramentasImportarTabelas", "&Tabelas"},
        {"mnuFerramentasImportar", "&Importação"},
        {"mnuFerramentasManutTabelaProduto", "&Manutenção"},
        {"mnuAjuda", "&Ajuda"},
    };
    for (const auto& [nome, legenda] : itens)
        QTest::newRow(qPrintable(nome)) << nome << legenda;
}

void tst_frmVRTPLN::menusTemLegendasTeclasDeAcessoESeparadores()
{
    QFETCH(QString, nome);
    QFETCH(QString, legenda);
    frmVRTPLN janela;
    QAction* a = janela.acao(nome);
    if (!a) {
        auto* menu = janela.findChild<QMenu*>(nome);
        QVERIFY2(menu, qPrintable(nome));
        a = menu->menuAction();
    }
    QCOMPARE(a->text(), legenda);
}

void tst_frmVRTPLN::barraDeFerramentasTemDicasEIndices()
{
    frmVRTPLN janela;
    auto* barra = janela.findChild<QToolBar*>("tlbDeclaracao");
    QVERIFY(barra);
    const QList<QAction*> acoes = barra->actions();
    QCOMPARE(acoes.size(), 10);
    const QStringList dicas = {"", "Nova VRT Mensal", "Nova VRT Individual", "", "Abrir VRT", "Salvar VRT",
                               "Eliminar VRT", "Fechar VRT", "", "Copiar VRT"};
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(acoes[i]->objectName(), QStringLiteral("tlbDeclaracao(%1)").arg(i + 1));
        QCOMPARE(acoes[i]->isSeparator(), dicas[i].isEmpty());
        if (!dicas[i].isEmpty())
            QCOMPARE(acoes[i]->toolTip(), dicas[i]);
    }
    // The separators of the menus stand where they should.
    auto* menuDecl = janela.findChild<QMenu*>("mnuDeclaracao");
    QStringList ordem;
    for (QAction* a : menuDecl->actions())
        ordem << (a->menu() ? a->menu()->objectName() : a->objectName());
    QCOMPARE(ordem, QStringList({"mnuDeclaracaoNova", "mnuDeclaracaoAbrir", "mnuDeclaracaoSalvar",
                                 "mnuDeclaracaoEliminar", "mnuDeclaracaoFechar", "lin11",
                                 "mnuDeclaracaoCopiarDeclaracao", "lin12", "mnuDeclaracaoImportar", "lin14",
                                 "mnuDeclaracaoGravarVRTTransmissao", "lin15", "mnuDeclaracaoSair"}));
    auto* ajuda = janela.findChild<QMenu*>("mnuAjuda");
    QCOMPARE(ajuda->actions().at(3)->objectName(), QStringLiteral("lin31"));
    QVERIFY(ajuda->actions().at(3)->isSeparator());
}

void tst_frmVRTPLN::menuFerramentasTemSeusSeparadoresNoLugar()
{
    frmVRTPLN janela;
    auto nomes = [](QMenu* menu) {
        QStringList ordem;
        for (QAction* a : menu->actions())
            ordem << (a->menu() ? a->menu()->objectName() : a->objectName());
        return ordem;
    };
    auto* ferramentas = janela.findChild<QMenu*>("mnuFerramentas");
    QVERIFY(ferramentas);
    // ln23 follows the unit maintenance item, the last of the Tabelas submenu.
    QCOMPARE(nomes(ferramentas),
             QStringList({"mnuFerramentasCalculadora", "lin21", "mnuFerramentasGravarBackup",
                          "mnuFerramentasRestaurarBackup", "lin22", "mnuFerramentasImportarTabelas", "ln23",
                          "mnuImportarBancoAnterior"}));
    for (QAction* a : ferramentas->actions())
        QCOMPARE(a->isSeparator(), a->objectName().startsWith(QLatin1String("lin")) ||
                                       a->objectName().startsWith(QLatin1String("ln")));
    auto* tabelasMenu = janela.findChild<QMenu*>("mnuFerramentasImportarTabelas");
    QCOMPARE(nomes(tabelasMenu), QStringList({"mnuFerramentasImportar", "mnuFerramentasManutTabelaProduto"}));
    QCOMPARE(nomes(janela.findChild<QMenu*>("mnuFerramentasManutTabelaProduto")),
             QStringList({"mnuFerramentasTabelasProduto", "mnuFerramentasTabelasUnidMedida"}));
    QCOMPARE(nomes(janela.findChild<QMenu*>("mnuFerramentasImportar")),
             QStringList({"mnuFerramentasImportarTabelasMoeda", "mnuFerramentasImportarTabelasNCM",
                          "mnuFerramentasImportarTabelasProduto", "mnuFerramentasImportarTabelasUF",
                          "mnuFerramentasImportarTabelasUnidadeMedida"}));
}

void tst_frmVRTPLN::painel3MostraVersaoDesdeOPrimeiroMomento()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QCOMPARE(janela.painel(3)->text(), QStringLiteral("Versão 04.00"));
    QVERIFY(janela.carrega());
    janela.show();
    QCOMPARE(janela.painel(3)->text(), QStringLiteral("Versão 04.00"));
    QCOMPARE(janela.windowTitle(), QStringLiteral("VRT - Vistoria de Remessa Tributada"));
    QVERIFY(modBancoDados::Conectado());
}

void tst_frmVRTPLN::semTelaAbertaSalvarEFecharFicamDesligados()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    for (const QString& c : declaracao)
        QVERIFY2(janela.acao(c)->isEnabled(), qPrintable(c));
    for (const QString& c : editor)
        QVERIFY2(!janela.acao(c)->isEnabled(), qPrintable(c));
    QVERIFY(!janela.acao("tlbDeclaracao(6)")->isEnabled());
    QVERIFY(!janela.acao("tlbDeclaracao(8)")->isEnabled());
}

void tst_frmVRTPLN::matrizDeHabilitacao_data()
{
    QTest::addColumn<int>("tela");
    QTest::addColumn<bool>("telaAberta");
    QTest::addColumn<bool>("declaracaoLigada");
    QTest::addColumn<bool>("editorLigado");
    QTest::addColumn<int>("estadoTabelas");  // 1 on, 0 off, -1 unchanged
    for (int tela : {0, 1, 3, 5}) {
        QTest::addRow("tela %d aberta", tela) << tela << true << false << false << -1;
        QTest::addRow("tela %d fechada", tela) << tela << false << true << false << -1;
    }
    for (int tela : {2, 4}) {
        QTest::addRow("editor %d aberto", tela) << tela << true << false << true << 0;
        QTest::addRow("editor %d fechado", tela) << tela << false << true << false << 1;
    }
}

void tst_frmVRTPLN::matrizDeHabilitacao()
{
    QFETCH(int, tela);
    QFETCH(bool, telaAberta);
    QFETCH(bool, declaracaoLigada);
    QFETCH(bool, editorLigado);
    QFETCH(int, estadoTabelas);
    frmVRTPLN janela;
    for (bool inicial : {true, false}) {
        for (const QString& c : tabelas)
            janela.acao(c)->setEnabled(inicial);
        TelaAtual = tela;
        HabilitaMenus(telaAberta);
        for (const QString& c : declaracao)
            QCOMPARE(janela.acao(c)->isEnabled(), declaracaoLigada);
        for (const QString& c : editor)
            QCOMPARE(janela.acao(c)->isEnabled(), editorLigado);
        for (const QString& c : tabelas)
            QCOMPARE(janela.acao(c)->isEnabled(), estadoTabelas == -1 ? inicial : estadoTabelas == 1);
    }
    TelaAtual = 0;
}

void tst_frmVRTPLN::botoesAcompanhamOsItensDeMenu()
{
    frmVRTPLN janela;
    for (bool ligado : {false, true}) {
        TelaAtual = ligado ? 4 : 0;
        HabilitaMenus(ligado);
        for (const auto& [indice, comando] : botoes)
            QCOMPARE(janela.acao(QStringLiteral("tlbDeclaracao(%1)").arg(indice))->isEnabled(),
                     janela.acao(comando)->isEnabled());
    }
    TelaAtual = 0;
    // A button runs its menu command.
    QSignalSpy disparos(janela.acao("mnuDeclaracaoAbrir"), &QAction::triggered);
    HabilitaMenus(false);
    janela.acao("tlbDeclaracao(5)")->trigger();
    QCOMPARE(disparos.count(), 1);
    FechaTela();
}

void tst_frmVRTPLN::aoCarregarATelaAMatrizUsaATelaAnterior()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    // An editor opened with nothing open before loads while TelaAtual is still 0: Salvar and Fechar stay off.
    janela.acao("mnuDeclaracaoNovaMensal")->trigger();
    QCOMPARE(TelaAtual, int(Mensal));
    QVERIFY(!janela.acao("mnuDeclaracaoSalvar")->isEnabled());
    QVERIFY(!janela.acao("mnuDeclaracaoAbrir")->isEnabled());
    QVERIFY(janela.acao("mnuFerramentasTabelasProduto")->isEnabled());
    QCOMPARE(ultimaCriada[Mensal]->funcao, 0);
    // Its unload step applies the matrix with TelaAtual still 4, then clears it.
    janela.acao("tlbDeclaracao(8)")->setEnabled(true);
    FechaTela();
    QCOMPARE(TelaAtual, 0);
    QVERIFY(janela.acao("mnuDeclaracaoAbrir")->isEnabled());
    QVERIFY(!janela.acao("mnuDeclaracaoSalvar")->isEnabled());
    QVERIFY(janela.acao("mnuFerramentasTabelasProduto")->isEnabled());
}

void tst_frmVRTPLN::abreTelaFechaATelaAbertaAntes()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    AbreTela(Escolha);
    QPointer<TelaTeste> escolha = ultimaCriada[Escolha];
    QVERIFY(escolha);
    QCOMPARE(TelaAtual, int(Escolha));
    AbreTela(ManipulaArquivo);
    QCOMPARE(TelaAtual, int(ManipulaArquivo));
    QTRY_VERIFY(!escolha);
    QCOMPARE(janela.mdiArea()->subWindowList().size(), 1);
    // An editor that refuses to close stays open behind the new screen.
    AbreTela(Mensal);
    ultimaCriada[Mensal]->recusaFechar = true;
    AbreTela(Escolha);
    QCOMPARE(TelaAtual, int(Escolha));
    QCOMPARE(janela.mdiArea()->subWindowList().size(), 2);
    ultimaCriada[Mensal]->recusaFechar = false;
    for (QMdiSubWindow* j : janela.mdiArea()->subWindowList())
        j->close();
    AbreTela(0);
    QCOMPARE(TelaAtual, 0);
}

void tst_frmVRTPLN::abrirComEditorAbertoNaoEAlcancavel()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.acao("mnuDeclaracaoNovaIndividual")->trigger();
    HabilitaMenus(true);  // the editor's own load step, once TelaAtual is its own
    QVERIFY(!janela.acao("mnuDeclaracaoAbrir")->isEnabled());
    QVERIFY(!janela.acao("tlbDeclaracao(5)")->isEnabled());
    QVERIFY(janela.acao("mnuDeclaracaoSalvar")->isEnabled());
    QVERIFY(janela.acao("mnuDeclaracaoFechar")->isEnabled());
    QVERIFY(!janela.acao("mnuFerramentasTabelasProduto")->isEnabled());
    // Importar, backup and the table imports are not governed by the matrix.
    QVERIFY(janela.acao("mnuDeclaracaoImportar")->isEnabled());
    QVERIFY(janela.acao("mnuFerramentasRestaurarBackup")->isEnabled());
    QVERIFY(janela.acao("mnuFerramentasImportarTabelasNCM")->isEnabled());
    janela.acao("mnuDeclaracaoFechar")->trigger();
    QCOMPARE(TelaAtual, 0);
}

void tst_frmVRTPLN::comandosDaEscolhaPassamAFuncaoDaTela_data()
{
    QTest::addColumn<QString>("comando");
    QTest::addColumn<int>("funcao");
    QTest::newRow("Abrir") << "mnuDeclaracaoAbrir" << 0;
    QTest::newRow("Eliminar") << "mnuDeclaracaoEliminar" << 1;
    QTest::newRow("Copiar") << "mnuDeclaracaoCopiarDeclaracao" << 2;
    QTest::newRow("Gravar para transmissão") << "mnuDeclaracaoGravarVRTTransmissao" << 3;
    QTest::newRow("Gravar backup") << "mnuFerramentasGravarBackup" << 4;
}

void tst_frmVRTPLN::comandosDaEscolhaPassamAFuncaoDaTela()
{
    QFETCH(QString, comando);
    QFETCH(int, funcao);
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.acao(comando)->trigger();
    QCOMPARE(TelaAtual, int(Escolha));
    QCOMPARE(ultimaCriada[Escolha]->funcao, funcao);
    FechaTela();
}

void tst_frmVRTPLN::comandosDoEscolhedorDeArquivoDefinemModoETitulo_data()
{
    QTest::addColumn<QString>("comando");
    QTest::addColumn<QString>("importaTabela");
    QTest::addColumn<QString>("titulo");
    QTest::newRow("Importar VRT") << "mnuDeclaracaoImportar" << "NAO" << "Importar VRT";
    QTest::newRow("Restaurar") << "mnuFerramentasRestaurarBackup" << "NAO" << "Restaurar Backup";
    QTest::newRow("Moeda") << "mnuFerramentasImportarTabelasMoeda" << "SIM" << "Importar Moeda";
    QTest::newRow("NCM") << "mnuFerramentasImportarTabelasNCM" << "SIM" << "Importar NCM";
    QTest::newRow("Produto") << "mnuFerramentasImportarTabelasProduto" << "SIM" << "Importar Produto";
    QTest::newRow("UF") << "mnuFerramentasImportarTabelasUF" << "SIM" << "Importar UF";
    QTest::newRow("Unidade") << "mnuFerramentasImportarTabelasUnidadeMedida" << "SIM"
                             << "Importar Unidade de Medida Comercial";
    QTest::newRow("Banco anterior") << "mnuImportarBancoAnterior" << "NAO"
                                    << "Importar Banco de Dados da Versão 1.0";
}

void tst_frmVRTPLN::comandosDoEscolhedorDeArquivoDefinemModoETitulo()
{
    QFETCH(QString, comando);
    QFETCH(QString, importaTabela);
    QFETCH(QString, titulo);
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    ArquivoImportaTabela = importaTabela == "SIM" ? "NAO" : "SIM";
    janela.acao(comando)->trigger();
    QCOMPARE(ArquivoImportaTabela, importaTabela);
    QCOMPARE(TelaAtual, int(ManipulaArquivo));
    QCOMPARE(ultimaCriada[ManipulaArquivo]->windowTitle(), titulo);
    QCOMPARE(janela.painel(1)->text(), titulo);
    FechaTela();
    QCOMPARE(janela.painel(1)->text(), QString());
}

void tst_frmVRTPLN::salvarSemAlteracaoNaoConfirmaNemReleAsGrades()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    janela.acao("mnuDeclaracaoNovaMensal")->trigger();
    modBancoDados::IniciaTransacao();
    BancoTeste::executa("INSERT INTO UNIDADE_FEDERATIVA (CD_UF_DESTINO, NM_UF) VALUES ('XX', 'Teste')");
    AlteracaoPendente = false;
    janela.acao("mnuDeclaracaoSalvar")->setEnabled(true);
    janela.acao("mnuDeclaracaoSalvar")->trigger();
    QCOMPARE(ultimaCriada[Mensal]->repopulacoes, 0);
    // Nothing was committed: a rollback takes the row away.
    modBancoDados::DesfazTransacao();
    QCOMPARE(BancoTeste::conta("UNIDADE_FEDERATIVA", "CD_UF_DESTINO = 'XX'"), 0);
    FechaTela();
}

void tst_frmVRTPLN::salvarConfirmaSemValidarOsDadosGeraisEMantemPainel2()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    janela.acao("mnuDeclaracaoNovaMensal")->trigger();
    TelaTeste* editorMensal = ultimaCriada[Mensal];
    DefinePainelStatus(2, "00001/26");
    modBancoDados::IniciaTransacao();
    BancoTeste::executa("INSERT INTO UNIDADE_FEDERATIVA (CD_UF_DESTINO, NM_UF) VALUES ('XX', 'Teste')");
    AlteracaoPendente = true;
    janela.acao("mnuDeclaracaoSalvar")->setEnabled(true);
    janela.acao("mnuDeclaracaoSalvar")->trigger();
    QCOMPARE(AlteracaoPendente, false);
    QCOMPARE(editorMensal->repopulacoes, 1);
    // The old name comparison never matched: the general data are not validated from here.
    QCOMPARE(editorMensal->validacoes, 0);
    // Had the general data been stored from here, the editor would have shown the number it took.
    QCOMPARE(janela.painel(2)->text(), QStringLiteral("00001/26"));
    // The save point holds: a later rollback keeps the row, and a new transaction is open.
    QVERIFY(modBancoDados::TransacaoAberta());
    modBancoDados::DesfazTransacao();
    QCOMPARE(BancoTeste::conta("UNIDADE_FEDERATIVA", "CD_UF_DESTINO = 'XX'"), 1);
    FechaTela();
}

void tst_frmVRTPLN::novaMensalENovaIndividualLimpamAIdentificacaoEscolhida_data()
{
    QTest::addColumn<QString>("comando");
    QTest::addColumn<int>("tela");
    QTest::addColumn<int>("funcao");
    QTest::newRow("mensal") << QStringLiteral("mnuDeclaracaoNovaMensal") << int(Mensal) << 0;
    QTest::newRow("individual") << QStringLiteral("mnuDeclaracaoNovaIndividual") << int(Individual) << 1;
    QTest::newRow("botão mensal") << QStringLiteral("tlbDeclaracao(2)") << int(Mensal) << 0;
    QTest::newRow("botão individual") << QStringLiteral("tlbDeclaracao(3)") << int(Individual) << 1;
}

void tst_frmVRTPLN::novaMensalENovaIndividualLimpamAIdentificacaoEscolhida()
{
    QFETCH(QString, comando);
    QFETCH(int, tela);
    QFETCH(int, funcao);
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    frmAssistenteVRT::IdVrtAbrir = QStringLiteral("00007/24");
    DefinePainelStatus(2, QStringLiteral("00007/24"));
    janela.acao(comando)->trigger();
    QCOMPARE(TelaAtual, tela);
    QCOMPARE(ultimaCriada[tela]->funcao, funcao);
    QCOMPARE(frmAssistenteVRT::IdVrtAbrir, QString());
    QCOMPARE(IdVrtAbrir, QString());
    QCOMPARE(janela.painel(2)->text(), QString());
    FechaTela();
}

void tst_frmVRTPLN::localizarEComoUsarAAjudaNaoFazemNada()
{
    BancoTeste banco(false);
    MensagensRoteiro msgs;
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    const int janelasAntes = QApplication::topLevelWidgets().size();
    janela.acao("mnuAjudaLocalizar")->trigger();
    janela.acao("mnuAjudaComoUsarAjuda")->trigger();
    QCoreApplication::processEvents();
    QVERIFY(janela.acao("mnuAjudaLocalizar")->isEnabled());
    QVERIFY(janela.acao("mnuAjudaComoUsarAjuda")->isEnabled());
    QCOMPARE(msgs.caixas.size(), 0);
    QCOMPARE(TelaAtual, 0);
    QCOMPARE(QApplication::topLevelWidgets().size(), janelasAntes);
}

void tst_frmVRTPLN::fecharComEditorQueRecusaMantemOProgramaAberto()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    janela.acao("mnuDeclaracaoNovaMensal")->trigger();
    ultimaCriada[Mensal]->recusaFechar = true;
    QVERIFY(!janela.close());
    QVERIFY(janela.isVisible());
    QCOMPARE(TelaAtual, int(Mensal));
    QVERIFY(modBancoDados::Conectado());
    ultimaCriada[Mensal]->recusaFechar = false;
    QVERIFY(janela.close());
    QVERIFY(!modBancoDados::Conectado());
    QCOMPARE(TelaAtual, 0);
}

void tst_frmVRTPLN::sairComTelaQueAceitaFechaAConexao()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    janela.show();
    janela.acao("mnuDeclaracaoAbrir")->trigger();
    janela.acao("mnuDeclaracaoSair")->trigger();
    QVERIFY(!janela.isVisible());
    QVERIFY(!modBancoDados::Conectado());
    QCOMPARE(TelaAtual, 0);
}

void tst_frmVRTPLN::capturasDaJanelaPrincipalEDoSobre()
{
    BancoTeste banco(false);
    frmVRTPLN janela;
    QVERIFY(janela.carrega());
    // The smallest screen a clerk may have.
    janela.resize(1024, 768);
    janela.show();
    QVERIFY(QTest::qWaitForWindowExposed(&janela));
    const QString pasta = QStringLiteral(VRT_BINARY_DIR "/capturas");
    QDir().mkpath(pasta);
    const QPixmap principal = janela.grab();
    QCOMPARE(principal.size(), janela.size());
    QVERIFY(principal.save(pasta + "/frmVRTPLN.png"));
    frmAbout sobre(&janela);
    sobre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&sobre));
    // Every text of the about box fits in it.
    for (QLabel* l : sobre.findChildren<QLabel*>())
        QVERIFY2(l->width() >= l->sizeHint().width() || l->wordWrap(), qPrintable(l->text()));
    QVERIFY(sobre.grab().save(pasta + "/frmAbout.png"));
    QCOMPARE(sobre.lblVersion->text(), QStringLiteral("Versão 04.00"));
    QCOMPARE(sobre.lblDescription->text(), QStringLiteral("Programa gerador de dados para a Vistoria de Remessa Tributada"));
    QCOMPARE(sobre.lblTitle->text(), QStringLiteral("VRT - Vistoria de Remessa Tributada"));
    QCOMPARE(sobre.cmdSysInfo->text(), QStringLiteral("&Informações"));
}

void tst_frmVRTPLN::janelaCabeNaTela_data()
{
    QTest::addColumn<QRect>("area");
    // The screen's own free area (at whatever scale the test runs), and what 1024 x 768 leaves at a scale of 2.
    QTest::newRow("tela do teste") << QRect();
    QTest::newRow("1024x768 em escala 2") << QRect(0, 0, 512, 384 - 24);
}

// The whole window, status bar included, stands within the free area of the screen.
void tst_frmVRTPLN::janelaCabeNaTela()
{
    QFETCH(QRect, area);
    BancoTeste banco(false);
    frmVRTPLN janela;
    if (area.isNull())
        area = janela.screen()->availableGeometry();
    else
        janela.ajustaATela(area);
    janela.show();
    QVERIFY(QTest::qWaitForWindowExposed(&janela));
    QVERIFY2(area.contains(janela.frameGeometry()),
             qPrintable(QStringLiteral("%1x%2+%3+%4")
                            .arg(janela.frameGeometry().width())
                            .arg(janela.frameGeometry().height())
                            .arg(janela.frameGeometry().x())
                            .arg(janela.frameGeometry().y())));
    QWidget* status = janela.findChild<QWidget*>("staDeclaracao");
    QVERIFY(status->isVisible());
    QVERIFY(janela.rect().contains(QRect(status->mapTo(&janela, QPoint(0, 0)), status->size())));
    for (int i = 1; i <= 3; ++i)
        QVERIFY(janela.rect().contains(janela.painel(i)->geometry().translated(status->mapTo(&janela, QPoint(0, 0)))));
}

namespace {
bool temCor(const QImage& imagem)
{
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < imagem.width(); ++x) {
            const QColor c = imagem.pixelColor(x, y);
            if (c.alpha() > 128 && c.hsvSaturation() > 100)
                return true;
        }
    return false;
}
}  // namespace

// Each command has its own picture, in colour when it is on, grey and faded when it is off.
void tst_frmVRTPLN::iconesDaBarraMostramCadaComandoESeuEstado()
{
    frmVRTPLN janela;
    QList<QImage> ligados;
    for (int indice : {2, 3, 5, 6, 7, 8, 10}) {
        QAction* botao = janela.acao(QStringLiteral("tlbDeclaracao(%1)").arg(indice));
        QVERIFY(!botao->icon().isNull());
        const QImage ligado = botao->icon().pixmap(24, QIcon::Normal).toImage();
        const QImage desligado = botao->icon().pixmap(24, QIcon::Disabled).toImage();
        QVERIFY2(temCor(ligado), qPrintable(botao->toolTip()));
        QVERIFY2(!temCor(desligado), qPrintable(botao->toolTip()));
        QVERIFY(ligado != desligado);
        for (const QImage& outro : std::as_const(ligados))
            QVERIFY2(outro != ligado, qPrintable(botao->toolTip()));
        ligados << ligado;
    }
    // Nova VRT Mensal is on with nothing open, and its button draws the enabled picture.
    QAction* mensal = janela.acao(QStringLiteral("tlbDeclaracao(2)"));
    QVERIFY(mensal->isEnabled());
    QVERIFY(janela.findChild<QToolBar*>("tlbDeclaracao")->widgetForAction(mensal)->isEnabled());
}

QTEST_MAIN(tst_frmVRTPLN)
#include "tst_frmVRTPLN.moc"
