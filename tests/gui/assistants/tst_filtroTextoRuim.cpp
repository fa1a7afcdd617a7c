// Bad text in the pickers' filter fields: quotes, percent signs, underscores, backslashes, semicolons,
// Windows-1252 letters, characters outside Windows-1252 and very long text, typed, pasted, or brought from the
// calling field. The NCM and currency pickers take digits only; the product picker drops the special characters
// when they are typed or pasted, and takes whatever comes from the calling field literally (never as a pattern).
// No picker shows an error or ends the run: the list shows what matches, or is empty.
#include "ChamadorTeste.h"
#include "DigitaTexto.h"
#include "TestUtil.h"

#include "gui/assistants/frmAssistMoeda.h"
#include "gui/assistants/frmAssistNCM.h"
#include "gui/assistants/frmAssistenteCCI.h"
#include "gui/assistants/frmAssistenteMED.h"
#include "core/session/modVRTPLN.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using namespace modVRTPLN;

namespace {

// Every bad character at once, with a digit between them so that a digit-only field shows what it kept.
const QString todosRuins = QStringLiteral("'1\"%2_\\;3\u00C7\u20AC\u03A9\U0001D11E");

void ativa(QWidget& tela)
{
    tela.show();
    QTest::qWait(5);
}

QStringList codigos(ConsultGrid* g)
{
    QStringList c;
    for (int i = 0; i < g->dataRowCount(); ++i)
        c << g->cellText(i, AssistenteTabela::ColunaChave);
    return c;
}

void aplica(AssistenteTabela& tela)
{
    QTest::mouseClick(tela.findChild<QPushButton*>(QStringLiteral("cmdFiltro")), Qt::LeftButton);
}

QLineEdit* filtro(AssistenteTabela& tela)
{
    return tela.findChild<QLineEdit*>(QStringLiteral("txtCodigo"));
}

void cola(QLineEdit* campo, const QString& texto)
{
    campo->setFocus();
    campo->selectAll();
    QApplication::clipboard()->setText(texto);
    QTest::keyClick(campo, Qt::Key_V, Qt::ControlModifier);
}

// The list is what it should be, Ok follows it, the screen is still there.
void confere(AssistenteTabela& tela, const QStringList& esperados)
{
    QCOMPARE(codigos(tela.grade()), esperados);
    QCOMPARE(tela.findChild<QPushButton*>(QStringLiteral("cmdOk"))->isEnabled(), !esperados.isEmpty());
    QVERIFY(tela.isVisible());
}

void ncms()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
    BancoTeste::executa(QStringLiteral("INSERT INTO NCM_ITEM VALUES ('01012100', 'Cavalos', 'NUMERO (UNIDADE)'), "
                                       "('12300000', 'Outros', 'QUILOGRAMA LIQUIDO'), "
                                       "('84713012', 'Máquinas', 'NUMERO (UNIDADE)')"));
}

void moedas()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM MOEDA"));
    BancoTeste::executa(
        QStringLiteral("INSERT INTO MOEDA VALUES ('123', 'MOEDA UM'), ('220', 'DOLAR DOS EUA'), ('978', 'EURO')"));
}

// Product codes may hold any of these characters: the table import and the declaration reader take them.
const QStringList codigosProduto = {QStringLiteral("A%1"),  QStringLiteral("A'1"),   QStringLiteral("A1"),
                                    QStringLiteral("A10"),  QStringLiteral("A;1"),   QStringLiteral("AB1"),
                                    QStringLiteral("A\"1"), QStringLiteral("A\\1"),  QStringLiteral("A_1"),
                                    QStringLiteral("AÇÃO1"), QStringLiteral("A€1")};

void produtos()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM PRODUTO"));
    for (const QString& c : codigosProduto)
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                            {c, QStringLiteral("PRODUTO ") + c});
}

}  // namespace

class tst_filtroTextoRuim : public QObject {
    Q_OBJECT
private slots:
    void init()
    {
        ChamadorNCM.clear();
        ChamadorMoeda.clear();
        ChamadorProduto.clear();
        ProdutoPeloMenu = false;
        UnidadePeloMenu = false;
    }

    // Typed or pasted, only the digits stay, up to the code's length; the list follows them.
    void codigosNumericosSoTomamDigitos_data()
    {
        QTest::addColumn<bool>("ncm");
        QTest::addColumn<bool>("colado");
        QTest::newRow("NCM digitado") << true << false;
        QTest::newRow("NCM colado") << true << true;
        QTest::newRow("moeda digitada") << false << false;
        QTest::newRow("moeda colada") << false << true;
    }
    void codigosNumericosSoTomamDigitos()
    {
        QFETCH(bool, ncm);
        QFETCH(bool, colado);
        BancoTeste banco;
        MensagensRoteiro msgs;
        ncm ? ncms() : moedas();
        std::unique_ptr<AssistenteTabela> tela;
        if (ncm)
            tela.reset(new frmAssistNCM);
        else
            tela.reset(new frmAssistMoeda);
        ativa(*tela);
        QLineEdit* campo = filtro(*tela);
        if (colado)
            cola(campo, todosRuins);
        else
            DigitaTexto(campo, todosRuins);
        QCOMPARE(campo->text().remove(QLatin1Char(' ')), QStringLiteral("123"));
        aplica(*tela);
        confere(*tela, {ncm ? QStringLiteral("12300000") : QStringLiteral("123")});

        // A very long run of digits keeps the code's length and matches by it.
        campo->clear();
        QTest::keyClicks(campo, QString(500, QLatin1Char('8')) + QStringLiteral("'%"));
        QCOMPARE(campo->text().size(), ncm ? 8 : 3);
        aplica(*tela);
        confere(*tela, {});
        QCOMPARE(msgs.caixas.size(), 0);
    }

    // The calling field's text reaches the digit-only filters through their mask: what is not a digit is left out.
    void codigosNumericosDoCampoChamador()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        ncms();
        frmAssistNCM tela;
        tela.defineFiltro(QStringLiteral("84%_'71"));
        ativa(tela);
        QCOMPARE(tela.txtCodigo->text().remove(QLatin1Char(' ')).remove(QLatin1Char('.')), QStringLiteral("8471"));
        confere(tela, {QStringLiteral("84713012")});
        QCOMPARE(msgs.caixas.size(), 0);
    }

    // Typed or pasted, the special characters of a product code are dropped; Windows-1252 letters stay, the rest
    // of Unicode is dropped; the list is what starts with what is left.
    void produtoDigitadoOuColado_data()
    {
        QTest::addColumn<bool>("colado");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("fica");
        QTest::addColumn<QStringList>("lista");
        const QStringList a1{"A1", "A10"};
        for (bool colado : {false, true}) {
            const char* modo = colado ? "colado" : "digitado";
            QTest::newRow(qPrintable(QStringLiteral("%1: por cento").arg(modo))) << colado << "A%1" << "A1" << a1;
            QTest::newRow(qPrintable(QStringLiteral("%1: sublinhado").arg(modo))) << colado << "A_1" << "A1" << a1;
            QTest::newRow(qPrintable(QStringLiteral("%1: aspas").arg(modo))) << colado << "A'\"1" << "A1" << a1;
            QTest::newRow(qPrintable(QStringLiteral("%1: barra invertida").arg(modo))) << colado << "A\\1" << "A1" << a1;
            QTest::newRow(qPrintable(QStringLiteral("%1: ponto e vírgula").arg(modo))) << colado << "A;1" << "A1" << a1;
            QTest::newRow(qPrintable(QStringLiteral("%1: Windows-1252").arg(modo))) << colado << "AÇÃO" << "AÇÃO" << QStringList{"AÇÃO1"};
            QTest::newRow(qPrintable(QStringLiteral("%1: euro").arg(modo))) << colado << "A€" << "A€" << QStringList{"A€1"};
            QTest::newRow(qPrintable(QStringLiteral("%1: fora do Windows-1252").arg(modo)))
                << colado << QStringLiteral("A\u03A9\U0001D11EB") << "AB" << QStringList{"AB1"};
        }
    }
    void produtoDigitadoOuColado()
    {
        QFETCH(bool, colado);
        QFETCH(QString, texto);
        QFETCH(QString, fica);
        QFETCH(QStringList, lista);
        BancoTeste banco;
        MensagensRoteiro msgs;
        produtos();
        frmAssistenteCCI tela;
        ativa(tela);
        if (colado)
            cola(tela.txtCodigo, texto);
        else
            DigitaTexto(tela.txtCodigo, texto);
        QCOMPARE(tela.txtCodigo->text(), fica);
        aplica(tela);
        confere(tela, lista);
        QCOMPARE(msgs.caixas.size(), 0);
    }

    // From the calling field, a code with special characters is matched literally: "%" and "_" are no
    // wildcards, quotes and backslashes no escapes. Ok hands the code back intact.
    void produtoDoCampoChamadorELiteral_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("codigo");
        QTest::newRow("por cento") << "A%" << "A%1";
        QTest::newRow("sublinhado") << "A_" << "A_1";
        QTest::newRow("apóstrofo") << "A'" << "A'1";
        QTest::newRow("aspas") << "A\"" << "A\"1";
        QTest::newRow("barra invertida") << "A\\" << "A\\1";
        QTest::newRow("ponto e vírgula") << "A;" << "A;1";
        QTest::newRow("Windows-1252") << "AÇ" << "AÇÃO1";
        QTest::newRow("euro") << "A€" << "A€1";
    }
    void produtoDoCampoChamadorELiteral()
    {
        QFETCH(QString, texto);
        QFETCH(QString, codigo);
        BancoTeste banco;
        MensagensRoteiro msgs;
        produtos();
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("produtoPE"));
        chamador.codigo->setText(texto);
        QStringList listados;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistenteCCI*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            listados = codigos(tela->grdAssistenteCCI);
            QTest::mouseClick(tela->cmdOk, Qt::LeftButton);
        });
        QVERIFY(frmAssistenteCCI::Escolhe(QStringLiteral("produtoPE")));
        QCOMPARE(listados, QStringList{codigo});
        QCOMPARE(chamador.codigo->text(), codigo);
        QCOMPARE(chamador.complemento->text(), QStringLiteral("PRODUTO ") + codigo);
        QCOMPARE(msgs.caixas.size(), 0);
    }

    // A wildcard or a quote alone matches nothing: the picker closes with its message, as for any unknown code.
    void produtoSoCaractereEspecialNaoEncontra_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::newRow("por cento") << "%";
        QTest::newRow("sublinhado") << "_";
        QTest::newRow("apóstrofo") << "'";
        QTest::newRow("barra invertida") << "\\";
        QTest::newRow("texto muito longo") << QString(300, QLatin1Char('A'));
        QTest::newRow("comando") << "'; DROP TABLE PRODUTO; --";
    }
    void produtoSoCaractereEspecialNaoEncontra()
    {
        QFETCH(QString, texto);
        BancoTeste banco;
        produtos();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        ChamadorTeste chamador(DestinosEscolha::produto(), QStringLiteral("produtoPE"));
        chamador.codigo->setText(texto);
        QVERIFY(!frmAssistenteCCI::Escolhe(QStringLiteral("produtoPE")));
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código de produto não encontrado!")});
        QCOMPARE(chamador.codigo->text(), texto);
        QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), int(codigosProduto.size()));
    }

    // Typing past the field's length keeps the first characters; a filter that matches nothing empties the list
    // and the screen stays, with Ok off.
    void produtoTextoMuitoLongo()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        produtos();
        frmAssistenteCCI tela;
        ativa(tela);
        QTest::keyClicks(tela.txtCodigo, QStringLiteral("A1") + QString(400, QLatin1Char('Z')));
        QCOMPARE(tela.txtCodigo->text(), QStringLiteral("A1") + QString(13, QLatin1Char('Z')));
        aplica(tela);
        confere(tela, {});
        tela.txtCodigo->clear();
        aplica(tela);
        QCOMPARE(tela.grdAssistenteCCI->dataRowCount(), int(codigosProduto.size()));
        QCOMPARE(msgs.caixas.size(), 0);
    }

    // The unit list has no filter at all: nothing to type into.
    void unidadeNaoTemFiltro()
    {
        BancoTeste banco;
        UnidadePeloMenu = true;
        MensagensRoteiro msgs;
        frmAssistenteMED tela;
        ativa(tela);
        QVERIFY(!tela.findChild<QGroupBox*>(QStringLiteral("fraFiltro"))->isVisible());
        QVERIFY(!filtro(tela)->isVisible());
        QCOMPARE(msgs.caixas.size(), 0);
    }
};

QTEST_MAIN(tst_filtroTextoRuim)
#include "tst_filtroTextoRuim.moc"
