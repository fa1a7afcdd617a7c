// The declaration chooser: the list and its formats, the five captions, sorting by title, eliminating, opening,
// and writing one or several declarations through the file chooser.
#include "DeclaracoesTeste.h"
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "gui/assistants/frmAssistenteVRT.h"
#include "core/lookups/ListaDeclaracoes.h"
#include "gui/assistants/frmManipulaArquivo.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "gui/widgets/ConsultGrid.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <functional>

using namespace modVRTPLN;
using DeclaracoesTeste::Declaracao;

namespace {

// A stand-in for an editor, which opens from the chooser before the editors exist.
class EditorTeste : public TelaFilha {
public:
    explicit EditorTeste(const QString& nome) { setObjectName(nome); }
    int funcao = -1;
    QString idLido;
    void FuncaoForm(int f) override
    {
        funcao = f;
        idLido = frmAssistenteVRT::IdVrtAbrir;
    }
};
QPointer<EditorTeste> editores[5];

QStringList coluna(ConsultGrid* g, int c)
{
    QStringList v;
    for (int i = 0; i < g->dataRowCount(); ++i)
        v << g->cellText(i, c);
    return v;
}

void quatro()
{
    Declaracao a{"00001/09", "2", "33000000000191", "2009-01-20", "N", "012009"};
    Declaracao b{"00002/09", "1", "11222333000181", "2009-05-02", "S"};
    Declaracao c{"00003/09", "2", "22000000000100", "2009-03-11", "N", "022009"};
    Declaracao d{"00001/10", "1", "44000000000100", "2010-02-01", "N"};
    for (const Declaracao& x : {a, b, c, d})
        DeclaracoesTeste::insere(x);
}

void clicaTitulo(ConsultGrid* g, int c)
{
    QHeaderView* h = g->horizontalHeader();
    QTest::mouseClick(h->viewport(), Qt::LeftButton, {}, QPoint(h->sectionViewportPosition(c) + 5, h->height() / 2));
}

void clicaLinha(ConsultGrid* g, int linha, Qt::KeyboardModifiers m = {})
{
    QTest::mouseClick(g->viewport(), Qt::LeftButton, m, g->visualRect(g->model()->index(linha, 0)).center());
}

}  // namespace

class tst_frmAssistenteVRT : public QObject {
    Q_OBJECT
private slots:
    void initTestCase()
    {
        RegistraTelas();
        RegistraTela(Mensal, [] { return editores[Mensal] = new EditorTeste(QStringLiteral("frmVRTmensalNovo")); });
        RegistraTela(Individual,
                     [] { return editores[Individual] = new EditorTeste(QStringLiteral("frmVRTindividualNovo")); });
    }
    void init() { TelaAtual = 0; }

    void listaMostraOsFormatosDeCadaTipo_data()
    {
        QTest::addColumn<int>("linha");
        QTest::addColumn<QStringList>("esperado");
        // Opening order: 00003/09, 00002/09, 00001/10, 00001/09.
        QTest::newRow("mensal original") << 3 << QStringList{"00001/09", "33.000.000/0001-91", "20/01/2009", "Mensal",
                                                              "01/2009", "", "", "Original"};
        QTest::newRow("individual retificadora")
            << 1 << QStringList{"00002/09", "11.222.333/0001-81", "02/05/2009", "Individual", "", "000123", "1    ",
                                "Retificadora"};
    }
    void listaMostraOsFormatosDeCadaTipo()
    {
        QFETCH(int, linha);
        QFETCH(QStringList, esperado);
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        QCOMPARE(tela.grdAssistenteVRT->rowTexts(linha), esperado);
        for (int c = 0; c < 8; ++c)
            QCOMPARE(tela.grdAssistenteVRT->titleText(c), ListaDeclaracoes::Titulos().at(c));
        QCOMPARE(ListaDeclaracoes::Titulos(),
                 (QStringList{"Identificação", "Internador", "Criação", "Tipo", "Referência Mensal",
                              "Nota Fiscal Individual", "Série Individual", "Situação"}));
    }

    void abreDoMaiorParaOMenorIdentificador()
    {
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        // Text order: the newest within a year on top, years not told apart.
        QCOMPARE(coluna(tela.grdAssistenteVRT, 0), (QStringList{"00003/09", "00002/09", "00001/10", "00001/09"}));
        QCOMPARE(tela.direcoes(), (QStringList{"DESC", "", "", ""}));
        QVERIFY(tela.cmdOk->isEnabled());
        QVERIFY(tela.grdAssistenteVRT->isEnabled());
    }

    // The first row, on which Ok acts, opens picked: highlighted and counted among the rows picked.
    void primeiraLinhaAbreEscolhida()
    {
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        tela.show();
        ConsultGrid* g = tela.grdAssistenteVRT;
        QCOMPARE(g->currentRow(), 0);
        QCOMPARE(g->pickedRows(), QList<int>{0});
        QCOMPARE(g->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(g->selectionModel()->selectedRows().first().row(), 0);
        QCOMPARE(g->pickedTexts(0), QStringList{QStringLiteral("00003/09")});
        // A plain click picks another row alone; Ctrl adds to it.
        clicaLinha(g, 2);
        QCOMPARE(g->pickedRows(), QList<int>{2});
        clicaLinha(g, 0, Qt::ControlModifier);
        QCOMPARE(g->pickedRows(), (QList<int>{2, 0}));
    }

    void bancoVazioDesligaListaEOk()
    {
        BancoTeste banco;
        frmAssistenteVRT tela;
        QCOMPARE(tela.grdAssistenteVRT->dataRowCount(), 0);
        QVERIFY(!tela.grdAssistenteVRT->isEnabled());
        QVERIFY(!tela.cmdOk->isEnabled());
        QVERIFY(tela.cmdCancela->isEnabled());
        QCOMPARE(tela.cmdCancela->text(), QStringLiteral("&Cancela"));
    }

    // Enter runs the action as Ok does, from the list too; Escape leaves as Cancela does.
    void enterFazOOkEEscapeOCancela()
    {
        BancoTeste banco;
        quatro();
        frmVRTPLN janela;
        janela.show();
        janela.acao(QStringLiteral("mnuDeclaracaoEliminar"))->trigger();
        auto* tela = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        QVERIFY(tela);
        QCOMPARE(tela->cmdOk->text(), QStringLiteral("&Ok"));
        QVERIFY(QTest::qWaitForWindowActive(&janela));
        clicaLinha(tela->grdAssistenteVRT, 1);
        QVERIFY(tela->grdAssistenteVRT->hasFocus());
        {
            MensagensRoteiro msgs;
            msgs.responde(Msg::No);
            QTest::keyClick(tela->grdAssistenteVRT, Qt::Key_Return);
            QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Deseja realmente eliminar essa VRT ?")});
        }
        {
            MensagensRoteiro msgs;
            msgs.responde(Msg::No);
            tela->cmdOk->setFocus();
            QTest::keyClick(tela->cmdOk, Qt::Key_Enter);
            QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Deseja realmente eliminar essa VRT ?")});
        }
        // Enter on Cancela, which has the focus, is Cancela.
        tela->cmdCancela->setFocus();
        QTest::keyClick(tela->cmdCancela, Qt::Key_Return);
        QCOMPARE(TelaAtual, 0);
        QVERIFY(!janela.telaAberta());
        janela.acao(QStringLiteral("mnuDeclaracaoEliminar"))->trigger();
        tela = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        QVERIFY(tela);
        QTest::keyClick(tela->grdAssistenteVRT, Qt::Key_Escape);
        QCOMPARE(TelaAtual, 0);
        QVERIFY(!janela.telaAberta());
    }

    // Columns are wide enough for their widest value: a six-digit number, a formatted CNPJ, "Retificadora".
    void colunasCabemOValorMaisLargo()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere(Declaracao{"99999/09", "2", "88888888000188", "2009-01-20", "S", "122009"});
        frmAssistenteVRT tela;
        tela.show();
        ConsultGrid* g = tela.grdAssistenteVRT;
        for (int c = 0; c < g->columnCount() - 1; ++c) {
            const QString valor = g->shownText(0, c);
            QVERIFY2(g->columnWidth(c) > g->fontMetrics().horizontalAdvance(valor) + 6, qPrintable(valor));
            QVERIFY2(g->columnWidth(c) > g->horizontalHeader()->fontMetrics().horizontalAdvance(
                                             g->titleText(c)),
                     qPrintable(g->titleText(c)));
        }
    }

    void cincoLegendas_data()
    {
        QTest::addColumn<int>("acao");
        QTest::addColumn<QString>("comando");
        QTest::addColumn<QString>("legenda");
        QTest::newRow("abrir") << 0 << "mnuDeclaracaoAbrir" << "Abrir VRT";
        QTest::newRow("eliminar") << 1 << "mnuDeclaracaoEliminar" << "Eliminar VRT";
        QTest::newRow("copiar") << 2 << "mnuDeclaracaoCopiarDeclaracao" << "Copiar VRT";
        QTest::newRow("transmissão") << 3 << "mnuDeclaracaoGravarVRTTransmissao" << "Gravar para Transmissão";
        QTest::newRow("backup") << 4 << "mnuFerramentasGravarBackup" << "Gravar Backup";
    }
    void cincoLegendas()
    {
        QFETCH(int, acao);
        QFETCH(QString, comando);
        QFETCH(QString, legenda);
        BancoTeste banco;
        frmVRTPLN janela;
        janela.show();
        janela.acao(comando)->trigger();
        QCOMPARE(TelaAtual, int(Escolha));
        auto* tela = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        QVERIFY(tela);
        QCOMPARE(tela->acao(), acao);
        QCOMPARE(tela->windowTitle(), legenda);
        QCOMPARE(TextoPainelStatus(1), legenda);
        // cmdCancela unloads it: menus back, panel emptied.
        QVERIFY(!janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->isEnabled());
        QTest::mouseClick(tela->cmdCancela, Qt::LeftButton);
        QCOMPARE(TelaAtual, 0);
        QCOMPARE(TextoPainelStatus(1), QString());
        QVERIFY(janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->isEnabled());
    }

    void ordenaPeloTitulo_data()
    {
        QTest::addColumn<int>("coluna");
        QTest::addColumn<QStringList>("primeiro");
        QTest::addColumn<QStringList>("segundo");
        QTest::newRow("Identificação: já descendente, o primeiro clique sobe")
            << 0 << QStringList{"00001/09", "00001/10", "00002/09", "00003/09"}
            << QStringList{"00003/09", "00002/09", "00001/10", "00001/09"};
        QTest::newRow("Internador: primeiro clique desce")
            << 1 << QStringList{"00001/10", "00001/09", "00003/09", "00002/09"}
            << QStringList{"00002/09", "00003/09", "00001/09", "00001/10"};
        // The stored date, not the shown text: 01/02/2010 is the newest though "01/..." sorts first as text.
        QTest::newRow("Criação: pela data gravada, a mais nova primeiro")
            << 2 << QStringList{"00001/10", "00002/09", "00003/09", "00001/09"}
            << QStringList{"00001/09", "00003/09", "00002/09", "00001/10"};
    }
    void ordenaPeloTitulo()
    {
        QFETCH(int, coluna);
        QFETCH(QStringList, primeiro);
        QFETCH(QStringList, segundo);
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        tela.show();
        MensagensRoteiro msgs;
        clicaTitulo(tela.grdAssistenteVRT, coluna);
        QCOMPARE(::coluna(tela.grdAssistenteVRT, 0), primeiro);
        clicaTitulo(tela.grdAssistenteVRT, coluna);
        QCOMPARE(::coluna(tela.grdAssistenteVRT, 0), segundo);
        QCOMPARE(msgs.caixas.size(), 0);
    }

    void tipoOrdenaPeloCodigo()
    {
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        tela.show();
        clicaTitulo(tela.grdAssistenteVRT, 3);
        // "2" monthly before "1" individual.
        QCOMPARE(::coluna(tela.grdAssistenteVRT, 3).mid(0, 2), (QStringList{"Mensal", "Mensal"}));
        QCOMPARE(::coluna(tela.grdAssistenteVRT, 3).mid(2), (QStringList{"Individual", "Individual"}));
        QCOMPARE(tela.direcoes().at(3), QStringLiteral("DESC"));
    }

    void colunaSemOrdenacaoRecusa_data()
    {
        QTest::addColumn<int>("coluna");
        QTest::newRow("Referência Mensal") << 4;
        QTest::newRow("Nota Fiscal Individual") << 5;
        QTest::newRow("Série Individual") << 6;
        QTest::newRow("Situação") << 7;
    }
    void colunaSemOrdenacaoRecusa()
    {
        QFETCH(int, coluna);
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        tela.resize(1000, 400);
        tela.show();
        const QStringList antes = ::coluna(tela.grdAssistenteVRT, 0);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        clicaTitulo(tela.grdAssistenteVRT, coluna);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Esta coluna não pode ser reclassificada!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QCOMPARE(::coluna(tela.grdAssistenteVRT, 0), antes);
        QCOMPARE(tela.direcoes(), (QStringList{"DESC", "", "", ""}));
    }

    void eliminarPerguntaComNaoPadrao()
    {
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        tela.FuncaoForm(frmAssistenteVRT::Eliminar);
        tela.show();
        MensagensRoteiro msgs;
        msgs.responde(Msg::No);
        clicaLinha(tela.grdAssistenteVRT, 1);
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Deseja realmente eliminar essa VRT ?")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Question);
        QCOMPARE(msgs.caixas[0].botoes(), Msg::YesNo);
        QCOMPARE(msgs.caixas[0].estilo & Msg::MascaraPadrao, Msg::DefaultButton2);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 4);
    }

    // After eliminating, the order is ascending by identifier, not the earlier one.
    void eliminarApagaEmCascataEOrdenaAscendente()
    {
        BancoTeste banco;
        quatro();
        frmAssistenteVRT tela;
        tela.FuncaoForm(frmAssistenteVRT::Eliminar);
        tela.show();
        clicaTitulo(tela.grdAssistenteVRT, 2);  // by date, newest first
        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes);
        const int linha = ::coluna(tela.grdAssistenteVRT, 0).indexOf(QStringLiteral("00003/09"));
        QTest::mouseDClick(tela.grdAssistenteVRT->viewport(), Qt::LeftButton, {},
                           tela.grdAssistenteVRT->visualRect(tela.grdAssistenteVRT->model()->index(linha, 1)).center());
        QCOMPARE(msgs.inesperadas, 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT"), QStringLiteral("ID_VRT_MICRO = '00003/09'")), 0);
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT_MENSAL"), QStringLiteral("ID_VRT_MICRO = '00003/09'")), 0);
        QCOMPARE(::coluna(tela.grdAssistenteVRT, 0), (QStringList{"00001/09", "00001/10", "00002/09"}));
        QVERIFY(!modBancoDados::TransacaoAberta());
        QVERIFY(tela.isVisible());
        // Committed: a fresh connection sees it gone.
        modBancoDados::ConectaBanco(banco.arquivo());
        QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 3);
        QCOMPARE(BancoTeste::conta(QStringLiteral("NOTA_FISCAL_SAIDA")), 2);
    }

    // The last declaration eliminated: the grid empties and Ok is disabled.
    void eliminarAUltimaDesligaOk()
    {
        BancoTeste banco;
        DeclaracoesTeste::insere({"00001/09", "1"});
        frmAssistenteVRT tela;
        tela.FuncaoForm(frmAssistenteVRT::Eliminar);
        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes);
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(tela.grdAssistenteVRT->dataRowCount(), 0);
        QVERIFY(!tela.cmdOk->isEnabled());
        QVERIFY(!tela.grdAssistenteVRT->isEnabled());
        QCOMPARE(BancoTeste::conta(QStringLiteral("NOTA_FISCAL_SAIDA")), 0);
        // An action on an empty list is ignored.
        tela.cmdOk->setEnabled(true);
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 1);
    }

    void abrirLevaAoEditorDoTipo_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<int>("tela");
        QTest::addColumn<int>("funcao");
        QTest::newRow("mensal") << "00003/09" << int(Mensal) << 2;
        QTest::newRow("individual") << "00002/09" << int(Individual) << 3;
    }
    void abrirLevaAoEditorDoTipo()
    {
        QFETCH(QString, id);
        QFETCH(int, tela);
        QFETCH(int, funcao);
        BancoTeste banco;
        quatro();
        frmVRTPLN janela;
        janela.show();
        DefinePainelStatus(2, QStringLiteral("00009/09"));
        janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
        auto* escolha = qobject_cast<frmAssistenteVRT*>(janela.telaAberta());
        QVERIFY(escolha);
        clicaLinha(escolha->grdAssistenteVRT, ::coluna(escolha->grdAssistenteVRT, 0).indexOf(id));
        QTest::mouseClick(escolha->cmdOk, Qt::LeftButton);
        QCOMPARE(TelaAtual, tela);
        QVERIFY(editores[tela]);
        QCOMPARE(editores[tela]->funcao, funcao);
        QCOMPARE(editores[tela]->idLido, id);
        QCOMPARE(TextoPainelStatus(2), QString());
        janela.fechaTela();
    }

    // The time it takes is printed by bench/bench_escolha.
    void listaCincoMilDeclaracoesEReordenaPelaData()
    {
        BancoTeste banco;
        DeclaracoesTeste::insereMuitas(5000);
        frmAssistenteVRT tela;
        QCOMPARE(tela.grdAssistenteVRT->dataRowCount(), 5000);
        tela.show();
        clicaTitulo(tela.grdAssistenteVRT, 2);
        QCOMPARE(tela.grdAssistenteVRT->dataRowCount(), 5000);
        // By the stored date, newest first.
        QStringList datas;
        for (const QString& d : coluna(tela.grdAssistenteVRT, 2))
            datas << d.mid(6, 4) + d.mid(3, 2) + d.left(2);
        QStringList ordenadas = datas;
        std::sort(ordenadas.begin(), ordenadas.end(), std::greater<QString>());
        QCOMPARE(datas, ordenadas);
        QCOMPARE(datas.first(), QStringLiteral("20091228"));
        QCOMPARE(tela.direcoes().at(2), QStringLiteral("DESC"));
    }
};

QTEST_MAIN(tst_frmAssistenteVRT)
#include "tst_frmAssistenteVRT.moc"
