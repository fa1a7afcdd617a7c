// The maintenance face of the product and unit assistants, opened from the Ferramentas menu: Incluir, Alterar,
// Excluir in a transaction of their own, and the closing question.
#include "DigitaTexto.h"
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "gui/assistants/frmAssistenteCCI.h"
#include "gui/assistants/frmAssistenteMED.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "gui/widgets/TextField.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <memory>

using namespace modVRTPLN;

namespace {

// One of the two screens, seen through what the tests need of it.
struct Cadastro {
    std::unique_ptr<AssistenteTabela> tela;
    QLineEdit* codigo = nullptr;
    QLineEdit* descricao = nullptr;
    QPushButton* incluir = nullptr;
    QPushButton* alterar = nullptr;
    QPushButton* excluir = nullptr;
    QPushButton* cancela = nullptr;
    ConsultGrid* grade = nullptr;
    QString tabela, colunaCodigo, colunaNome;
};

// A control of the screen by its name; a screen without it cannot be tested at all.
template <class Controle>
Controle* peloNome(QWidget* tela, const QString& nome)
{
    auto* controle = tela->findChild<Controle*>(nome);
    if (!controle)
        qFatal("a tela não tem o controle %s", qPrintable(nome));
    return controle;
}

Cadastro abre(bool produto)
{
    Cadastro c;
    if (produto) {
        ProdutoPeloMenu = true;
        c.tela.reset(new frmAssistenteCCI);
        c.tabela = QStringLiteral("PRODUTO");
        c.colunaCodigo = QStringLiteral("CD_INT_PRODUTO");
        c.colunaNome = QStringLiteral("NM_INT_PRODUTO");
    } else {
        UnidadePeloMenu = true;
        c.tela.reset(new frmAssistenteMED);
        c.tabela = QStringLiteral("UNIDADE_MEDIDA");
        c.colunaCodigo = QStringLiteral("CD_UNID_MEDIDA");
        c.colunaNome = QStringLiteral("NM_MEDIDA");
    }
    // The two screens name their controls after their table: txtCodigoProduto, cmdIncluir_UnidadeMedida ...
    const QString campos = produto ? QStringLiteral("Produto") : QStringLiteral("Unidade");
    const QString botoes = produto ? QStringLiteral("Produto") : QStringLiteral("UnidadeMedida");
    QWidget* tela = c.tela.get();
    c.codigo = peloNome<QLineEdit>(tela, QStringLiteral("txtCodigo") + campos);
    c.descricao = peloNome<QLineEdit>(tela, QStringLiteral("txtDescricao") + campos);
    c.incluir = peloNome<QPushButton>(tela, QStringLiteral("cmdIncluir_") + botoes);
    c.alterar = peloNome<QPushButton>(tela, QStringLiteral("cmdAlterar_") + botoes);
    c.excluir = peloNome<QPushButton>(tela, QStringLiteral("cmdExcluir_") + botoes);
    c.cancela = peloNome<QPushButton>(tela, QStringLiteral("cmdCancela"));
    c.grade = peloNome<ConsultGrid>(tela, produto ? QStringLiteral("grdAssistenteCCI")
                                                  : QStringLiteral("grdAssistenteMED"));
    c.tela->show();
    QTest::qWait(5);
    return c;
}

void preenche(Cadastro& c, const QString& codigo, const QString& descricao)
{
    c.codigo->clear();
    QTest::keyClicks(c.codigo, codigo);
    c.descricao->clear();
    QTest::keyClicks(c.descricao, descricao);
}

void clicaLinha(ConsultGrid* g, int linha)
{
    QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(linha, 1)).center());
}

int linhaDe(ConsultGrid* g, const QString& codigo)
{
    for (int i = 0; i < g->dataRowCount(); ++i)
        if (g->cellText(i, AssistenteTabela::ColunaChave) == codigo)
            return i;
    return -1;
}

int limite(QLineEdit* campo)
{
    auto* texto = qobject_cast<TextField*>(campo);
    return texto ? texto->typingLimit() : -1;
}

void semeia(const QString& tabela)
{
    BancoTeste::executa(QStringLiteral("DELETE FROM ") + tabela);
    BancoTeste::executa(QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" VALUES ('01', 'UNIDADE')"));
    BancoTeste::executa(QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" VALUES ('02', 'QUILOGRAMA')"));
}

}  // namespace

class tst_manutencaoCadastros : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        ProdutoPeloMenu = false;
        UnidadePeloMenu = false;
        AlteracaoPendente = false;
        TelaAtual = 0;
    }

    void faces_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::newRow("produto") << true;
        QTest::newRow("unidade de medida") << false;
    }

    void menuMostraAManutencaoEAbreTransacao_data() { faces_data(); }
    void menuMostraAManutencaoEAbreTransacao()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        QVERIFY(modBancoDados::TransacaoAberta());
        QVERIFY(!c.tela->findChild<QGroupBox*>(QStringLiteral("fraFiltro"))->isVisible());
        if (auto* ok = c.tela->findChild<QPushButton*>(QStringLiteral("cmdOk")))
            QVERIFY(!ok->isVisible());
        QCOMPARE(c.cancela->text(), QStringLiteral("&Fechar"));
        QVERIFY(c.incluir->isVisible() && c.incluir->isEnabled());
        QVERIFY(c.alterar->isVisible() && !c.alterar->isEnabled());
        QVERIFY(c.excluir->isVisible() && !c.excluir->isEnabled());
        QCOMPARE(c.grade->dataRowCount(), 2);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
        QVERIFY(!c.tela->isVisible());
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    void incluirRecusaCamposVazios_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<QString>("descricao");
        QTest::addColumn<QString>("mensagem");
        QTest::addColumn<QString>("foco");
        QTest::newRow("produto sem código") << true << "" << "X" << "O campo código do produto deve ser preenchido."
                                            << "txtCodigoProduto";
        QTest::newRow("produto código em branco") << true << "   " << "X"
                                                  << "O campo código do produto deve ser preenchido."
                                                  << "txtCodigoProduto";
        QTest::newRow("produto sem descrição") << true << "P9" << ""
                                               << "O campo descrição do produto deve ser preenchido."
                                               << "txtDescricaoProduto";
        QTest::newRow("unidade sem código") << false << "" << "X"
                                            << "O campo código da unidade de medida deve ser preenchido."
                                            << "txtCodigoUnidade";
        QTest::newRow("unidade sem descrição") << false << "09" << ""
                                               << "O campo descrição da unidade de medida deve ser preenchido."
                                               << "txtDescricaoUnidade";
    }
    void incluirRecusaCamposVazios()
    {
        QFETCH(bool, produto);
        QFETCH(QString, codigo);
        QFETCH(QString, descricao);
        QFETCH(QString, mensagem);
        QFETCH(QString, foco);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        preenche(c, codigo, descricao);
        QTest::mouseClick(c.incluir, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QCOMPARE(msgs.caixas[0].titulo, TituloPadrao);
        QCOMPARE(QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(), foco);
        QCOMPARE(BancoTeste::conta(c.tabela), 2);
        QVERIFY(!AlteracaoPendente);
        msgs.responde(Msg::No);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    // Incluir with a code that exists stays on the code field and writes nothing.
    void incluirCodigoExistente_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("produto") << true << "02" << "O código de produto informado já foi incluído anteriormente.";
        QTest::newRow("produto em outra caixa")
            << true << "AB" << "O código de produto informado já foi incluído anteriormente.";
        QTest::newRow("unidade") << false << "02"
                                 << "O código de unidade de medida informado já foi incluído anteriormente.";
    }
    void incluirCodigoExistente()
    {
        QFETCH(bool, produto);
        QFETCH(QString, codigo);
        QFETCH(QString, mensagem);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        if (produto)
            BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('ab', 'MINUSCULO')"));
        const int antes = BancoTeste::conta(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        preenche(c, codigo, QStringLiteral("OUTRA"));
        QTest::mouseClick(c.incluir, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(c.codigo));
        QCOMPARE(BancoTeste::conta(c.tabela), antes);
        QVERIFY(!AlteracaoPendente);
        QCOMPARE(c.codigo->text(), codigo);  // nothing is emptied
        QTest::mouseClick(c.cancela, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 1);  // no change pending: no closing question
    }

    void incluirGravaNaTransacaoEEsvaziaOsCampos_data() { faces_data(); }
    void incluirGravaNaTransacaoEEsvaziaOsCampos()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        preenche(c, QStringLiteral("03"), QStringLiteral("LITRO"));
        QTest::mouseClick(c.incluir, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 0);
        QVERIFY(AlteracaoPendente);
        QCOMPARE(c.grade->dataRowCount(), 3);
        QCOMPARE(c.grade->cellText(2, AssistenteTabela::ColunaChave), QStringLiteral("03"));
        QCOMPARE(c.codigo->text(), QString());
        QCOMPARE(c.descricao->text(), QString());
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = '03'")
                                       .arg(c.colunaNome, c.tabela, c.colunaCodigo))
                     .toString(),
                 QStringLiteral("LITRO"));
        QVERIFY(modBancoDados::TransacaoAberta());
        msgs.responde(Msg::No);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    // Alterar with the code unchanged needs no search: the row finds itself and is still changed.
    void alterarComCodigoIgualNaoProcura_data() { faces_data(); }
    void alterarComCodigoIgualNaoProcura()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        clicaLinha(c.grade, 1);
        QCOMPARE(c.codigo->text(), QStringLiteral("02"));
        QCOMPARE(c.descricao->text(), QStringLiteral("QUILOGRAMA"));
        QVERIFY(c.alterar->isEnabled());
        c.descricao->clear();
        QTest::keyClicks(c.descricao, QStringLiteral("KG"));
        QTest::mouseClick(c.alterar, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 0);
        QVERIFY(AlteracaoPendente);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = '02'")
                                       .arg(c.colunaNome, c.tabela, c.colunaCodigo))
                     .toString(),
                 QStringLiteral("KG"));
        QCOMPARE(c.codigo->text(), QString());
        QVERIFY(!c.alterar->isEnabled());
        msgs.responde(Msg::No);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    void alterarParaCodigoExistenteRecusa_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("produto") << true << "O código de produto informado já foi incluído anteriormente.";
        QTest::newRow("unidade") << false << "O código de unidade de medida informado já foi incluído anteriormente.";
    }
    void alterarParaCodigoExistenteRecusa()
    {
        QFETCH(bool, produto);
        QFETCH(QString, mensagem);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        clicaLinha(c.grade, 1);
        c.codigo->clear();
        QTest::keyClicks(c.codigo, QStringLiteral("01"));
        QTest::mouseClick(c.alterar, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(c.codigo));
        QVERIFY(!AlteracaoPendente);
        QCOMPARE(BancoTeste::conta(c.tabela, c.colunaCodigo + QStringLiteral(" = '02'")), 1);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    void alterarParaCodigoNovoMudaAChave_data() { faces_data(); }
    void alterarParaCodigoNovoMudaAChave()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        clicaLinha(c.grade, 1);
        c.codigo->clear();
        QTest::keyClicks(c.codigo, QStringLiteral("07"));
        QTest::mouseClick(c.alterar, Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::conta(c.tabela, c.colunaCodigo + QStringLiteral(" = '02'")), 0);
        QCOMPARE(BancoTeste::conta(c.tabela, c.colunaCodigo + QStringLiteral(" = '07'")), 1);
        QVERIFY(linhaDe(c.grade, QStringLiteral("07")) >= 0);
        msgs.responde(Msg::Yes);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
        QCOMPARE(BancoTeste::conta(c.tabela, c.colunaCodigo + QStringLiteral(" = '07'")), 1);
    }

    void excluirPerguntaEApagaNoSim_data() { faces_data(); }
    void excluirPerguntaEApagaNoSim()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        msgs.responde(Msg::No);
        clicaLinha(c.grade, 0);
        QTest::mouseClick(c.excluir, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Deseja realmente excluir?")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Information);
        QCOMPARE(msgs.caixas[0].botoes(), Msg::YesNo);
        QCOMPARE(BancoTeste::conta(c.tabela), 2);
        QVERIFY(!AlteracaoPendente);
        msgs.responde(Msg::Yes);
        QTest::mouseClick(c.excluir, Qt::LeftButton);
        QCOMPARE(BancoTeste::conta(c.tabela), 1);
        QCOMPARE(BancoTeste::conta(c.tabela, c.colunaCodigo + QStringLiteral(" = '01'")), 0);
        QVERIFY(AlteracaoPendente);
        QCOMPARE(c.grade->dataRowCount(), 1);
        QCOMPARE(c.codigo->text(), QString());
        msgs.responde(Msg::Yes);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
        QCOMPARE(msgs.inesperadas, 0);
    }

    void fechamento_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::addColumn<int>("resposta");
        QTest::addColumn<bool>("fica");
        QTest::addColumn<int>("linhasDepois");
        QTest::newRow("produto, Sim grava") << true << Msg::Yes << false << 3;
        QTest::newRow("produto, Não desfaz") << true << Msg::No << false << 2;
        QTest::newRow("produto, Cancelar fica com a transação") << true << Msg::Cancel << true << 3;
        QTest::newRow("unidade, Sim grava") << false << Msg::Yes << false << 3;
        QTest::newRow("unidade, Não desfaz") << false << Msg::No << false << 2;
        QTest::newRow("unidade, Cancelar fica com a transação") << false << Msg::Cancel << true << 3;
    }
    void fechamento()
    {
        QFETCH(bool, produto);
        QFETCH(int, resposta);
        QFETCH(bool, fica);
        QFETCH(int, linhasDepois);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        preenche(c, QStringLiteral("09"), QStringLiteral("NOVA"));
        QTest::mouseClick(c.incluir, Qt::LeftButton);
        msgs.responde(resposta);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Deseja salvar as alterações?")});
        QCOMPARE(msgs.caixas[0].botoes(), Msg::YesNoCancel);
        QCOMPARE(msgs.caixas[0].icone(), Msg::Information);
        QCOMPARE(msgs.caixas[0].titulo, TituloPadrao);
        QCOMPARE(c.tela->isVisible(), fica);
        QCOMPARE(modBancoDados::TransacaoAberta(), fica);
        QCOMPARE(AlteracaoPendente, fica);
        QCOMPARE(BancoTeste::conta(c.tabela), linhasDepois);
        if (fica) {
            // Still in the same transaction: a No now takes the new row away.
            msgs.responde(Msg::No);
            QTest::mouseClick(c.cancela, Qt::LeftButton);
            QVERIFY(!c.tela->isVisible());
            QCOMPARE(BancoTeste::conta(c.tabela), 2);
        }
        // What stands was committed: a fresh connection sees the same.
        modBancoDados::ConectaBanco(banco.arquivo());
        QCOMPARE(BancoTeste::conta(c.tabela), fica ? 2 : linhasDepois);
    }

    void fecharSemAlteracaoDesfazSemPerguntar_data() { faces_data(); }
    void fecharSemAlteracaoDesfazSemPerguntar()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        QTest::keyClick(c.tela.get(), Qt::Key_Escape);
        QCOMPARE(msgs.caixas.size(), 0);
        QVERIFY(!c.tela->isVisible());
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    // The menu item sets the face, the screen sets the menus at load and back at unload.
    void pelaJanelaPrincipal_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::addColumn<QString>("comando");
        QTest::newRow("produto") << true << "mnuFerramentasTabelasProduto";
        QTest::newRow("unidade") << false << "mnuFerramentasTabelasUnidMedida";
    }
    void pelaJanelaPrincipal()
    {
        QFETCH(bool, produto);
        QFETCH(QString, comando);
        BancoTeste banco;
        RegistraTelas();
        frmVRTPLN janela;
        HabilitaMenus(false);
        janela.show();
        bool peloMenu = false, abrirDesligado = false, viu = false, centrada = false;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<AssistenteTabela*>(QApplication::activeModalWidget());
            viu = tela != nullptr;
            if (!tela)
                return;
            peloMenu = tela->peloMenu() && (produto ? ProdutoPeloMenu : UnidadePeloMenu);
            abrirDesligado = !janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->isEnabled();
            centrada = (tela->frameGeometry().center() - janela.frameGeometry().center()).manhattanLength() <= 4;
            QTest::mouseClick(tela->findChild<QPushButton*>(QStringLiteral("cmdCancela")), Qt::LeftButton);
        });
        janela.acao(comando)->trigger();
        QVERIFY(viu);
        QVERIFY(peloMenu);
        QVERIFY(abrirDesligado);
        QVERIFY(centrada);
        QVERIFY(!ProdutoPeloMenu && !UnidadePeloMenu);
        QVERIFY(janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->isEnabled());
        QCOMPARE(TelaAtual, 0);
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    // The whole maintenance from the menu: a row included, the closing question answered Yes, the row kept.
    void pelaJanelaPrincipalIncluiEGravaAoFechar_data() { pelaJanelaPrincipal_data(); }
    void pelaJanelaPrincipalIncluiEGravaAoFechar()
    {
        QFETCH(bool, produto);
        QFETCH(QString, comando);
        BancoTeste banco;
        const QString tabela = produto ? QStringLiteral("PRODUTO") : QStringLiteral("UNIDADE_MEDIDA");
        semeia(tabela);
        RegistraTelas();
        frmVRTPLN janela;
        HabilitaMenus(false);
        janela.show();
        MensagensRoteiro msgs;
        bool viu = false, pendente = false;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<AssistenteTabela*>(QApplication::activeModalWidget());
            viu = tela != nullptr;
            if (!tela)
                return;
            const QString campos = produto ? QStringLiteral("Produto") : QStringLiteral("Unidade");
            const QString botoes = produto ? QStringLiteral("Produto") : QStringLiteral("UnidadeMedida");
            QTest::keyClicks(peloNome<QLineEdit>(tela, QStringLiteral("txtCodigo") + campos), QStringLiteral("09"));
            QTest::keyClicks(peloNome<QLineEdit>(tela, QStringLiteral("txtDescricao") + campos), QStringLiteral("NOVA"));
            QTest::mouseClick(peloNome<QPushButton>(tela, QStringLiteral("cmdIncluir_") + botoes), Qt::LeftButton);
            pendente = AlteracaoPendente && modBancoDados::TransacaoAberta();
            msgs.responde(Msg::Yes);
            QTest::mouseClick(peloNome<QPushButton>(tela, QStringLiteral("cmdCancela")), Qt::LeftButton);
        });
        janela.acao(comando)->trigger();
        QVERIFY(viu);
        QVERIFY(pendente);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Deseja salvar as alterações?")});
        QVERIFY(!ProdutoPeloMenu && !UnidadePeloMenu);
        QVERIFY(!modBancoDados::TransacaoAberta());
        QVERIFY(!AlteracaoPendente);
        // Committed: a fresh connection sees the new row beside the two there before.
        modBancoDados::ConectaBanco(banco.arquivo());
        QCOMPARE(BancoTeste::conta(tabela), 3);
        QCOMPARE(BancoTeste::conta(tabela, (produto ? QStringLiteral("CD_INT_PRODUTO") : QStringLiteral("CD_UNID_MEDIDA"))
                                               + QStringLiteral(" = '09'")),
                 1);
    }

    void unidadeForaDoMenuSoLista()
    {
        BancoTeste banco;
        semeia("UNIDADE_MEDIDA");
        frmAssistenteMED tela;
        tela.show();
        QTest::qWait(5);
        QVERIFY(!tela.peloMenu());
        QCOMPARE(tela.grdAssistenteMED->dataRowCount(), 2);
        QVERIFY(!tela.cmdIncluir_UnidadeMedida->isVisible());
        QVERIFY(!tela.txtCodigoUnidade->isVisible());
        QVERIFY(!tela.findChild<QGroupBox*>(QStringLiteral("fraFiltro"))->isVisible());
        QVERIFY(!tela.findChild<QPushButton*>(QStringLiteral("cmdOk")));
        QVERIFY(!modBancoDados::TransacaoAberta());
        QTest::mouseClick(tela.cmdCancela, Qt::LeftButton);
        QVERIFY(!tela.isVisible());
    }

    // The double quote is refused in a product code; a letter with an accent isn't; a name drops the apostrophe.
    void camposRecusamAsAspas_data() { faces_data(); }
    void camposRecusamAsAspas()
    {
        QFETCH(bool, produto);
        BancoTeste banco;
        Cadastro c = abre(produto);
        QTest::keyClicks(c.codigo, QStringLiteral("\"É'"));
        QCOMPARE(c.codigo->text(), QStringLiteral("É"));
        QTest::keyClicks(c.descricao, QStringLiteral("D'ÁGUA \"X\""));
        QCOMPARE(c.descricao->text(), QStringLiteral("DÁGUA \"X\"").left(produto ? 45 : 20));
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    void camposTemOsTamanhosDaTela()
    {
        BancoTeste banco;
        Cadastro p = abre(true);
        QCOMPARE(limite(p.codigo), 15);
        QCOMPARE(limite(p.descricao), 45);
        QTest::mouseClick(p.cancela, Qt::LeftButton);
        Cadastro u = abre(false);
        QCOMPARE(limite(u.codigo), 2);
        QCOMPARE(limite(u.descricao), 20);
        QTest::mouseClick(u.cancela, Qt::LeftButton);
    }

    // Tab goes from the list to the fields and the buttons, not from cell to cell; the list opens with no row
    // highlighted, since none is chosen; the code column holds a code of fifteen wide letters.
    void tabSaiDaListaENenhumaLinhaDestacadaAoAbrir()
    {
        BancoTeste banco;
        semeia(QStringLiteral("PRODUTO"));
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('WWWWWWWWWWWWWWW', 'LARGO')"));
        Cadastro c = abre(true);
        QVERIFY(QTest::qWaitForWindowActive(c.tela.get()));
        QCOMPARE(c.grade->currentRow(), -1);
        QVERIFY(c.grade->selectionModel()->selectedRows().isEmpty());
        QVERIFY(c.codigo->text().isEmpty());
        QVERIFY(!c.alterar->isEnabled());
        const int linha = linhaDe(c.grade, QStringLiteral("WWWWWWWWWWWWWWW"));
        QVERIFY(c.grade->columnWidth(AssistenteTabela::ColunaCodigoMostrado)
                > c.grade->fontMetrics().horizontalAdvance(c.grade->shownText(linha, 1)));
        clicaLinha(c.grade, 0);
        QVERIFY(c.grade->hasFocus());
        QTest::keyClick(c.grade, Qt::Key_Tab);
        QVERIFY(c.codigo->hasFocus());
        QTest::keyClick(c.codigo, Qt::Key_Tab);
        QVERIFY(c.descricao->hasFocus());
        QTest::keyClick(c.descricao, Qt::Key_Tab);
        QVERIFY(c.incluir->hasFocus());
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    // The limit is for typing: an imported description longer than the field is shown whole and written back
    // whole by Alterar when the user changed nothing.
    void alterarSemMudancaGuardaDescricaoLonga()
    {
        BancoTeste banco;
        const QString longa = QStringLiteral("PARAFUSO SEXTAVADO DE AÇO INOXIDÁVEL M8 X 40 MM COM PORCA E ARRUELA LISA 2025 ZN");
        QCOMPARE(longa.size(), 80);
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('P-80', ?)"), {longa});
        Cadastro c = abre(true);
        clicaLinha(c.grade, linhaDe(c.grade, QStringLiteral("P-80")));
        QCOMPARE(c.descricao->text(), longa);
        QVERIFY(c.alterar->isEnabled());
        QTest::mouseClick(c.alterar, Qt::LeftButton);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'P-80'"))
                     .toString(),
                 longa);
        // Typing at its end adds nothing; a character taken away cannot be typed back past the limit.
        clicaLinha(c.grade, linhaDe(c.grade, QStringLiteral("P-80")));
        c.descricao->setFocus();
        QTest::qWait(20);
        c.descricao->end(false);
        QTest::keyClicks(c.descricao, QStringLiteral("XYZ"));
        QCOMPARE(c.descricao->text(), longa);
        QTest::keyClick(c.descricao, Qt::Key_Backspace);
        QTest::keyClicks(c.descricao, QStringLiteral("12"));
        QCOMPARE(c.descricao->text(), longa.left(79) + QLatin1Char('1'));
        QTest::mouseClick(c.alterar, Qt::LeftButton);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT NM_INT_PRODUTO FROM PRODUTO WHERE CD_INT_PRODUTO = 'P-80'"))
                     .toString(),
                 longa.left(79) + QLatin1Char('1'));
        MensagensRoteiro msgs;
        msgs.responde(Msg::No);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    // A description longer than its column wraps in its row: the row grows until the whole text fits, and
    // a short one keeps a single line.
    void descricaoLongaQuebraNaLinhaEAparaceInteira()
    {
        BancoTeste banco;
        const QString longa = QStringLiteral("PARAFUSO SEXTAVADO DE AÇO INOXIDÁVEL M8 X 40 MM COM PORCA E ARRUELA LISA 2025 ZN");
        BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('P-80', ?)"), {longa});
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO VALUES ('P-1', 'ARRUELA')"));
        Cadastro c = abre(true);
        c.tela->resize(520, 480);
        QTest::qWait(20);
        const int linhaLonga = linhaDe(c.grade, QStringLiteral("P-80"));
        const int linhaCurta = linhaDe(c.grade, QStringLiteral("P-1"));
        const int coluna = AssistenteTabela::ColunaNome;
        const QFontMetrics m = c.grade->fontMetrics();
        QVERIFY(m.horizontalAdvance(longa) > c.grade->columnWidth(coluna));
        QVERIFY(c.grade->wordWrap());
        const QRect celula = c.grade->visualRect(c.grade->model()->index(linhaLonga, coluna));
        const QRect texto = m.boundingRect(QRect(0, 0, celula.width() - 8, 1 << 20), Qt::TextWordWrap, longa);
        QVERIFY2(texto.height() <= celula.height(), qPrintable(QStringLiteral("%1 > %2").arg(texto.height()).arg(celula.height())));
        QVERIFY(c.grade->rowHeight(linhaLonga) > c.grade->rowHeight(linhaCurta));
        QCOMPARE(c.grade->rowHeight(linhaCurta), c.grade->verticalHeader()->defaultSectionSize());
        // A wider window needs fewer lines.
        const int alta = c.grade->rowHeight(linhaLonga);
        c.tela->resize(1000, 480);
        QTRY_VERIFY(c.grade->rowHeight(linhaLonga) < alta);
        MensagensRoteiro msgs;
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }

    // Quotes, semicolons, percent signs, backslashes and Windows-1252 letters typed into the fields are stored
    // and read back as typed; the apostrophe (and in codes every special character) and what Windows-1252
    // cannot hold are refused at entry. No statement ever fails on them.
    void textoDificilGuardadoComoDigitado_data()
    {
        QTest::addColumn<bool>("produto");
        QTest::addColumn<QString>("codigo");
        QTest::addColumn<QString>("descricao");
        QTest::addColumn<QString>("codigoGuardado");
        QTest::addColumn<QString>("descricaoGuardada");
        QTest::newRow("aspas, ponto e vírgula, por cento, barra invertida")
            << true << "P-1" << "Caneca \"G\"; 100% \\ a_b" << "P1" << "Caneca \"G\"; 100% \\ a_b";
        QTest::newRow("letras do Windows-1252") << true << "ÇÃO€" << "Ação “€” Œ œ ™ ñ ‰" << "ÇÃO€"
                                                << "Ação “€” Œ œ ™ ñ ‰";
        QTest::newRow("apóstrofo recusado") << true << "D'AV" << "D'Ávila" << "DAV" << "DÁvila";
        QTest::newRow("especiais recusados no código")
            << true << "A\"B;C%D\\E" << "X" << "ABCDE" << "X";
        QTest::newRow("fora do Windows-1252 recusado") << true << "Ω1" << "Ωmega 漢字 ok" << "1" << "mega  ok";
        QTest::newRow("unidade com aspas e por cento") << false << "77" << "Caixa \"50%\"; 10\\20"
                                                       << "77" << "Caixa \"50%\"; 10\\20";
        QTest::newRow("unidade fora do Windows-1252") << false << "78" << "Ω caixa ‘1’ ☃" << "78"
                                                      << " caixa ‘1’ ";
    }
    void textoDificilGuardadoComoDigitado()
    {
        QFETCH(bool, produto);
        QFETCH(QString, codigo);
        QFETCH(QString, descricao);
        QFETCH(QString, codigoGuardado);
        QFETCH(QString, descricaoGuardada);
        BancoTeste banco;
        semeia(produto ? "PRODUTO" : "UNIDADE_MEDIDA");
        Cadastro c = abre(produto);
        MensagensRoteiro msgs;
        c.codigo->clear();
        DigitaTexto(c.codigo, codigo);
        c.descricao->clear();
        DigitaTexto(c.descricao, descricao);
        QCOMPARE(c.codigo->text(), codigoGuardado);
        QCOMPARE(c.descricao->text(), descricaoGuardada);
        const QString fim = numeroDoFim([&] { QTest::mouseClick(c.incluir, Qt::LeftButton); });
        QCOMPARE(fim, QString());
        QCOMPARE(msgs.caixas.size(), 0);
        QCOMPARE(BancoTeste::valor(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                                       .arg(c.colunaNome, c.tabela, c.colunaCodigo),
                                   {codigoGuardado})
                     .toString(),
                 descricaoGuardada);
        const int linha = linhaDe(c.grade, codigoGuardado);
        QVERIFY(linha >= 0);
        QCOMPARE(c.grade->cellText(linha, AssistenteTabela::ColunaNome), descricaoGuardada);
        msgs.responde(Msg::No);
        QTest::mouseClick(c.cancela, Qt::LeftButton);
    }
};

QTEST_MAIN(tst_manutencaoCadastros)
#include "tst_manutencaoCadastros.moc"
