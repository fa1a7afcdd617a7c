// The currency picker: listing by code prefix, the twenty-four caller keys, the closing message of an empty list.
#include "ChamadorTeste.h"
#include "TestUtil.h"

#include "gui/assistants/frmAssistMoeda.h"
#include "core/session/modVRTPLN.h"

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

void moedas()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM MOEDA"));
    BancoTeste::executa(QStringLiteral("INSERT INTO MOEDA VALUES ('220', 'DOLAR DOS EUA'), ('978', 'EURO'), "
                                       "('790', 'REAL BRASIL'), ('225', 'DOLAR CANADENSE')"));
}

QStringList codigos(ConsultGrid* g)
{
    QStringList c;
    for (int i = 0; i < g->dataRowCount(); ++i)
        c << g->cellText(i, AssistenteTabela::ColunaCodigoMostrado);
    return c;
}

}  // namespace

class tst_frmAssistMoeda : public QObject {
    Q_OBJECT
private slots:
    void init() { ChamadorMoeda.clear(); }

    void vinteEQuatroChavesDeMoeda()
    {
        const QStringList& chaves = DestinosEscolha::ChavesMoeda();
        QCOMPARE(chaves.size(), 24);
        for (const char* c : {"produtoPEDIProd", "produtoPEDISI", "produtoPEDIFI", "produtoPEDSIProd", "produtoPEDSISI",
                              "produtoPEDSIFI", "InsumoPISemPPBDIIns", "InsumoPISemPPBDISI", "InsumoPISemPPBDIFI",
                              "InsumoPISemPPBDSIIns", "InsumoPISemPPBDSISI", "InsumoPISemPPBDSIFI",
                              "produtoPEMensalDIProd", "produtoPEMensalDSIFI", "InsumoPISemPPBMensalDIIns",
                              "InsumoPISemPPBMensalDSISI"})
            QVERIFY2(chaves.contains(QLatin1String(c)), c);
    }

    void listaOrdenadaPeloCodigo()
    {
        BancoTeste banco;
        moedas();
        frmAssistMoeda tela;
        ativa(tela);
        QCOMPARE(tela.grdAssistMoeda->objectName(), QStringLiteral("grdAssistMoeda"));
        QCOMPARE(codigos(tela.grdAssistMoeda), (QStringList{"220", "225", "790", "978"}));
        QCOMPARE(tela.grdAssistMoeda->rowTexts(0).mid(1), (QStringList{"220", "DOLAR DOS EUA"}));
        QCOMPARE(tela.lblFiltro->text(), QStringLiteral("Selecione um código"));
        QCOMPARE(tela.cmdFiltro->text(), QStringLiteral("Aplicar"));
    }

    void filtro_data()
    {
        QTest::addColumn<QString>("filtro");
        QTest::addColumn<QStringList>("lista");
        QTest::newRow("um dígito") << "2" << QStringList{"220", "225"};
        QTest::newRow("dois dígitos") << "22" << QStringList{"220", "225"};
        QTest::newRow("código inteiro") << "978" << QStringList{"978"};
        QTest::newRow("nada") << "5" << QStringList{};
    }
    void filtro()
    {
        QFETCH(QString, filtro);
        QFETCH(QStringList, lista);
        BancoTeste banco;
        moedas();
        MensagensRoteiro msgs;
        frmAssistMoeda tela;
        ativa(tela);
        QTest::keyClicks(tela.txtCodigo, filtro);
        QTest::mouseClick(tela.cmdFiltro, Qt::LeftButton);
        QCOMPARE(codigos(tela.grdAssistMoeda), lista);
        QVERIFY(tela.isVisible());
        QCOMPARE(msgs.caixas.size(), 0);
    }

    void filtroSemResultadoAoAbrirFechaComMensagem()
    {
        BancoTeste banco;
        moedas();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        frmAssistMoeda tela;
        tela.defineFiltro(QStringLiteral("5"));
        ativa(tela);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código de moeda não encontrado!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QVERIFY(!tela.isVisible());
    }

    void cadaChaveRecebeOCodigo_data()
    {
        QTest::addColumn<QString>("chave");
        for (const QString& c : DestinosEscolha::ChavesMoeda())
            QTest::newRow(qPrintable(c)) << c;
    }
    void cadaChaveRecebeOCodigo()
    {
        QFETCH(QString, chave);
        BancoTeste banco;
        moedas();
        ChamadorTeste chamador(DestinosEscolha::moeda(), chave, false);
        QVERIFY(chamador.registrada);
        chamador.complemento->setText(QStringLiteral("INTACTO"));
        ChamadorMoeda = chave;
        frmAssistMoeda tela;
        ativa(tela);
        ConsultGrid* g = tela.grdAssistMoeda;
        QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(3, 1)).center());
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(chamador.codigo->text(), QStringLiteral("978"));
        QCOMPARE(chamador.complemento->text(), QStringLiteral("INTACTO"));
        QCOMPARE(chamador.passosDeMudanca, 1);
        QVERIFY(!tela.isVisible());
    }

    // A double click on a row writes its code into the calling field and closes the list.
    void duploCliqueNaLinhaPreencheOCampoEFecha()
    {
        BancoTeste banco;
        moedas();
        ChamadorTeste chamador(DestinosEscolha::moeda(), QStringLiteral("InsumoPISemPPBMensalDSIFI"), false);
        chamador.codigo->setText(QStringLiteral("22"));
        MensagensRoteiro msgs;
        int linhas = -1;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistMoeda*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            ConsultGrid* g = tela->grdAssistMoeda;
            linhas = g->dataRowCount();
            QTest::mouseDClick(g->viewport(), Qt::LeftButton, {},
                               g->visualRect(g->model()->index(1, AssistenteTabela::ColunaCodigoMostrado)).center());
        });
        QVERIFY(frmAssistMoeda::Escolhe(QStringLiteral("InsumoPISemPPBMensalDSIFI")));
        QCOMPARE(linhas, 2);
        QCOMPARE(chamador.codigo->text(), QStringLiteral("225"));
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(msgs.caixas.size(), 0);
    }

    void escolheComecaDoCampoEEscapeNaoMexe()
    {
        BancoTeste banco;
        moedas();
        ChamadorTeste chamador(DestinosEscolha::moeda(), QStringLiteral("InsumoPISemPPBMensalDSIFI"), false);
        chamador.codigo->setText(QStringLiteral(" 22"));
        int linhas = -1;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistMoeda*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            linhas = tela->grdAssistMoeda->dataRowCount();
            QTest::keyClick(tela, Qt::Key_Escape);
        });
        QVERIFY(!frmAssistMoeda::Escolhe(QStringLiteral("InsumoPISemPPBMensalDSIFI")));
        QCOMPARE(linhas, 2);
        QCOMPARE(chamador.codigo->text(), QStringLiteral(" 22"));
    }
};

QTEST_MAIN(tst_frmAssistMoeda)
#include "tst_frmAssistMoeda.moc"
