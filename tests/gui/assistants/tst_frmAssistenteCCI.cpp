// The product assistant in its two faces: picker with filter, and maintenance from the menu with its own
// transaction and closing question; and the shared product search.
#include "ChamadorTeste.h"
#include "TestUtil.h"

#include "gui/assistants/frmAssistenteCCI.h"
#include "core/lookups/BuscaProduto.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace modVRTPLN;

namespace {

void ativa(QWidget& tela)
{
    tela.show();
    QTest::qWait(5);
}

void clicaLinha(ConsultGrid* g, int linha)
{
    QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(linha, 1)).center());
}

void produtos(const QList<QPair<QString, QString>>& lista)
{
    BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
    for (const auto& p : lista)
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                            {p.first, p.second});
}

QStringList codigos(ConsultGrid* g)
{
    QStringList c;
    for (int i = 0; i < g->dataRowCount(); ++i)
        c << g->cellText(i, AssistenteTabela::ColunaChave);
    return c;
}

const QList<QPair<QString, QString>> tres = {
    {"A100", "PARAFUSO"}, {"A200", "PORCA"}, {"B100", "ARRUELA"}};

}  // namespace

class tst_frmAssistenteCCI : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        ProdutoPeloMenu = false;
        ChamadorProduto.clear();
        AlteracaoPendente = false;
    }

    void pickerEscondeAManutencao()
    {
        BancoTeste banco;
        produtos(tres);
        frmAssistenteCCI tela;
        ativa(tela);
        QCOMPARE(tela.windowTitle(), QStringLiteral("Selecione o Código do Produto"));
        QVERIFY(tela.fraFiltro->isVisible());
        QVERIFY(tela.cmdOk->isVisible());
        QCOMPARE(tela.cmdCancela->text(), QStringLiteral("&Cancela"));
        for (QWidget* w : {(QWidget*)tela.cmdIncluir_Produto, (QWidget*)tela.cmdAlterar_Produto,
                           (QWidget*)tela.cmdExcluir_Produto, (QWidget*)tela.txtCodigoProduto,
                           (QWidget*)tela.txtDescricaoProduto, (QWidget*)tela.lblCodigoProduto,
                           (QWidget*)tela.lblDescricaoProduto})
            QVERIFY2(!w->isVisible(), qPrintable(w->objectName()));
        QCOMPARE(tela.findChild<ConsultGrid*>(QStringLiteral("grdAssistenteCCI")), tela.grdAssistenteCCI);
        QCOMPARE(codigos(tela.grdAssistenteCCI), (QStringList{"A100", "A200", "B100"}));
        QCOMPARE(tela.grdAssistenteCCI->titleText(1), QStringLiteral("Código"));
        QCOMPARE(tela.grdAssistenteCCI->titleText(2), QStringLiteral("Descrição"));
        QVERIFY(!modBancoDados::TransacaoAberta());
    }

    void filtroEhPrefixoDoCodigo_data()
    {
        QTest::addColumn<QString>("filtro");
        QTest::addColumn<QStringList>("lista");
        QTest::newRow("uma letra") << "A" << QStringList{"A100", "A200"};
        QTest::newRow("código inteiro") << "A200" << QStringList{"A200"};
        QTest::newRow("sem diferença de caixa") << "a1" << QStringList{"A100"};
        QTest::newRow("em branco lista tudo") << "  " << QStringList{"A100", "A200", "B100"};
        QTest::newRow("no meio do código não acha") << "100" << QStringList{};
    }
    void filtroEhPrefixoDoCodigo()
    {
        QFETCH(QString, filtro);
        QFETCH(QStringList, lista);
        BancoTeste banco;
        produtos(tres);
        frmAssistenteCCI tela;
        ativa(tela);
        tela.txtCodigo->setText(filtro);
        QTest::mouseClick(tela.cmdFiltro, Qt::LeftButton);
        QCOMPARE(codigos(tela.grdAssistenteCCI), lista);
        QCOMPARE(tela.cmdOk->isEnabled(), !lista.isEmpty());
        QVERIFY(tela.isVisible());
    }

    // A picker that found nothing for the typed code closes with its message.
    void pickerSemProdutoFechaComMensagem()
    {
        BancoTeste banco;
        produtos(tres);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        frmAssistenteCCI tela;
        tela.defineFiltro(QStringLiteral("Z"));
        ativa(tela);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código de produto não encontrado!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QVERIFY(!tela.isVisible());
        QCOMPARE(tela.result(), int(QDialog::Rejected));
    }

    void okEscreveCodigoEDescricaoNoChamador()
    {
        BancoTeste banco;
        produtos(tres);
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("produto100NacionalMensal"));
        QVERIFY(chamador.registrada);
        ChamadorProduto = QStringLiteral("produto100NacionalMensal");
        frmAssistenteCCI tela;
        ativa(tela);
        clicaLinha(tela.grdAssistenteCCI, 1);
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(chamador.codigo->text(), QStringLiteral("A200"));
        QCOMPARE(chamador.complemento->text(), QStringLiteral("PORCA"));
        // The code field's own change step ran, as after typing.
        QCOMPARE(chamador.passosDeMudanca, 1);
        QCOMPARE(chamador.textoNaMudanca, QStringLiteral("A200"));
        QVERIFY(!tela.isVisible());
        QCOMPARE(tela.result(), int(QDialog::Accepted));
    }

    void cadaChaveDeProdutoPreencheSeuCampo_data()
    {
        QTest::addColumn<QString>("chave");
        for (const QString& c : DestinosEscolha::ChavesProduto())
            QTest::newRow(qPrintable(c)) << c;
    }
    void cadaChaveDeProdutoPreencheSeuCampo()
    {
        QFETCH(QString, chave);
        BancoTeste banco;
        produtos(tres);
        ChamadorTeste chamador(DestinosEscolha::produto(), chave);
        ChamadorTeste outro(DestinosEscolha::produto(), chave == QLatin1String("produto") ? "insumo" : "produto");
        ChamadorProduto = chave;
        frmAssistenteCCI tela;
        ativa(tela);
        clicaLinha(tela.grdAssistenteCCI, 2);
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(chamador.codigo->text(), QStringLiteral("B100"));
        QCOMPARE(outro.codigo->text(), QString());
    }

    void escolheComecaDoTextoDoCampoChamador()
    {
        BancoTeste banco;
        produtos(tres);
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("produtoPE"));
        chamador.codigo->setText(QStringLiteral("  B1 "));
        MensagensRoteiro msgs;
        QStringList listados;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistenteCCI*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            QCOMPARE(tela->txtCodigo->text(), QStringLiteral("B1"));
            QCOMPARE(tela->txtCodigo->selectedText(), QStringLiteral("B1"));
            listados = codigos(tela->grdAssistenteCCI);
            // A double click works as Ok.
            ConsultGrid* g = tela->grdAssistenteCCI;
            QTest::mouseDClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(0, 2)).center());
        });
        QVERIFY(frmAssistenteCCI::Escolhe(QStringLiteral("produtoPE")));
        QCOMPARE(ChamadorProduto, QStringLiteral("produtoPE"));
        QCOMPARE(listados, QStringList{"B100"});
        QCOMPARE(chamador.codigo->text(), QStringLiteral("B100"));
        QCOMPARE(chamador.complemento->text(), QStringLiteral("ARRUELA"));
        QCOMPARE(msgs.caixas.size(), 0);
    }

    void escapeNaGradeCancelaENaoMexeNoChamador()
    {
        BancoTeste banco;
        produtos(tres);
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("produtoPE"));
        chamador.codigo->setText(QStringLiteral("A"));
        chamador.passosDeMudanca = 0;
        ChamadorProduto = QStringLiteral("produtoPE");
        frmAssistenteCCI tela;
        tela.defineFiltro(QStringLiteral("A"));
        ativa(tela);
        tela.grdAssistenteCCI->setFocus();
        QTest::keyClick(tela.grdAssistenteCCI, Qt::Key_Escape);
        QVERIFY(!tela.isVisible());
        QCOMPARE(tela.result(), int(QDialog::Rejected));
        QCOMPARE(chamador.codigo->text(), QStringLiteral("A"));
        QCOMPARE(chamador.passosDeMudanca, 0);
    }

    void cancelaFechaSemEscrever()
    {
        BancoTeste banco;
        produtos(tres);
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("insumo"));
        ChamadorProduto = QStringLiteral("insumo");
        frmAssistenteCCI tela;
        ativa(tela);
        QTest::mouseClick(tela.cmdCancela, Qt::LeftButton);
        QVERIFY(!tela.isVisible());
        QCOMPARE(chamador.codigo->text(), QString());
    }

    void chaveSemCampoRegistradoNaoEscreveNada()
    {
        BancoTeste banco;
        produtos(tres);
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("insumo"));
        ChamadorProduto = QStringLiteral("produtoPIcomPPBDCR");
        frmAssistenteCCI tela;
        ativa(tela);
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QVERIFY(!tela.isVisible());
        QCOMPARE(chamador.codigo->text(), QString());
    }

    void chaveDesconhecidaEhRecusadaNoRegistro()
    {
        QLineEdit campo;
        QVERIFY(!DestinosEscolha::produto().registra(QStringLiteral("produtoXYZ"), &campo, nullptr, &campo));
        QVERIFY(!DestinosEscolha::produto().registrada(QStringLiteral("produtoXYZ")));
    }

    void registroSaiComOEditor()
    {
        {
            ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("produto100Nacional"));
            QVERIFY(DestinosEscolha::produto().registrada(QStringLiteral("produto100Nacional")));
        }
        QVERIFY(!DestinosEscolha::produto().registrada(QStringLiteral("produto100Nacional")));
        QVERIFY(!DestinosEscolha::produto().entrega(QStringLiteral("produto100Nacional"), "X", "Y"));
    }

    void enterNaGradeFuncionaComoClique()
    {
        BancoTeste banco;
        produtos(tres);
        ProdutoPeloMenu = true;
        frmAssistenteCCI tela;
        ativa(tela);
        QVERIFY(!tela.cmdAlterar_Produto->isEnabled());
        tela.grdAssistenteCCI->setFocus();
        // The list opens with no row chosen: the first key goes to the first row.
        QTest::keyClick(tela.grdAssistenteCCI, Qt::Key_Down);
        QVERIFY(tela.cmdAlterar_Produto->isEnabled());
        QTest::keyClick(tela.grdAssistenteCCI, Qt::Key_Down);
        QCOMPARE(tela.txtCodigoProduto->text(), QStringLiteral("A200"));
        tela.txtCodigoProduto->clear();
        QTest::keyClick(tela.grdAssistenteCCI, Qt::Key_Return);
        QCOMPARE(tela.txtCodigoProduto->text(), QStringLiteral("A200"));
        QCOMPARE(tela.txtDescricaoProduto->text(), QStringLiteral("PORCA"));
        QVERIFY(tela.cmdAlterar_Produto->isEnabled());
        QVERIFY(tela.cmdExcluir_Produto->isEnabled());
        QVERIFY(tela.isVisible());
        QTest::mouseClick(tela.cmdCancela, Qt::LeftButton);
    }
};

QTEST_MAIN(tst_frmAssistenteCCI)
#include "tst_frmAssistenteCCI.moc"
