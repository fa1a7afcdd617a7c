// The NCM picker: listing by code prefix with the code shown through its mask, the caller keys, the closing
// message of an empty list, and the real NCM table imported and searched.
#include "ArquivoTabela.h"
#include "ChamadorTeste.h"
#include "TestUtil.h"

#include "gui/assistants/frmAssistNCM.h"
#include "core/refdata/modImportacao.h"
#include "core/session/modVRTPLN.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace modVRTPLN;

namespace {

void ativa(QWidget& tela)
{
    tela.show();
    QTest::qWait(5);
}

void ncms()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
    const QList<QStringList> linhas = {{"01012100", "Cavalos reprodutores de raça pura", "NUMERO (UNIDADE)"},
                                       {"01012900", "Outros cavalos", "NUMERO (UNIDADE)"},
                                       {"02011000", "Carcaças e meias-carcaças de bovino", "QUILOGRAMA LIQUIDO"},
                                       {"84713012", "Máquinas portáteis de processamento de dados", "NUMERO (UNIDADE)"}};
    for (const QStringList& l : linhas)
        BancoTeste::executa(QStringLiteral("INSERT INTO NCM_ITEM VALUES (?, ?, ?)"), {l[0], l[1], l[2]});
}

QStringList mostrados(ConsultGrid* g)
{
    QStringList c;
    for (int i = 0; i < g->dataRowCount(); ++i)
        c << g->cellText(i, AssistenteTabela::ColunaCodigoMostrado);
    return c;
}

}  // namespace

class tst_frmAssistNCM : public QObject {
    Q_OBJECT
private slots:
    void init() { ChamadorNCM.clear(); }

    void telaTemSeusControles()
    {
        BancoTeste banco;
        ncms();
        frmAssistNCM tela;
        ativa(tela);
        QCOMPARE(tela.windowTitle(), QStringLiteral("Selecione a NCM"));
        QCOMPARE(tela.lblFiltro->text(), QStringLiteral("Selecione um código"));
        QCOMPARE(tela.cmdFiltro->text(), QStringLiteral("Aplicar"));
        QCOMPARE(tela.cmdCancela->text(), QStringLiteral("Cancela"));
        QCOMPARE(tela.cmdOk->objectName(), QStringLiteral("cmdOk"));
        QCOMPARE(tela.grdAssistNCM->objectName(), QStringLiteral("grdAssistNCM"));
        QCOMPARE(tela.fraFiltro->objectName(), QStringLiteral("fraFiltro"));
        // Code (shown through its mask), description and statistical unit.
        QCOMPARE(tela.grdAssistNCM->dataRowCount(), 4);
        QCOMPARE(tela.grdAssistNCM->rowTexts(0).mid(1),
                 (QStringList{"0101.21.00", "Cavalos reprodutores de raça pura", "NUMERO (UNIDADE)"}));
        QVERIFY(tela.grdAssistNCM->isColumnHidden(AssistenteTabela::ColunaChave));
        // The filter field has the focus.
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(tela.txtCodigo));
    }

    void filtro_data()
    {
        QTest::addColumn<QString>("filtro");
        QTest::addColumn<QStringList>("lista");
        QTest::newRow("um dígito lista todos que começam com ele")
            << "0" << QStringList{"0101.21.00", "0101.29.00", "0201.10.00"};
        QTest::newRow("quatro dígitos") << "0101" << QStringList{"0101.21.00", "0101.29.00"};
        QTest::newRow("código inteiro") << "84713012" << QStringList{"8471.30.12"};
        QTest::newRow("em branco lista tudo")
            << "" << QStringList{"0101.21.00", "0101.29.00", "0201.10.00", "8471.30.12"};
    }
    void filtro()
    {
        QFETCH(QString, filtro);
        QFETCH(QStringList, lista);
        BancoTeste banco;
        ncms();
        frmAssistNCM tela;
        tela.defineFiltro(filtro);
        ativa(tela);
        QCOMPARE(mostrados(tela.grdAssistNCM), lista);
        // The same by Aplicar, from the whole list.
        tela.txtCodigo->clear();
        QTest::mouseClick(tela.cmdFiltro, Qt::LeftButton);
        QCOMPARE(tela.grdAssistNCM->dataRowCount(), 4);
        QTest::keyClicks(tela.txtCodigo, filtro);
        QTest::mouseClick(tela.cmdFiltro, Qt::LeftButton);
        QCOMPARE(mostrados(tela.grdAssistNCM), lista);
    }

    void filtroSoAceitaDigitos()
    {
        BancoTeste banco;
        ncms();
        frmAssistNCM tela;
        ativa(tela);
        QTest::keyClicks(tela.txtCodigo, QStringLiteral("01a.2x123456789"));
        QCOMPARE(tela.txtCodigo->text(), QStringLiteral("01212345"));
    }

    // A filter that matches nothing closes the list with its message as it comes to the front.
    void filtroSemResultadoAoAbrirFechaComMensagem()
    {
        BancoTeste banco;
        ncms();
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        frmAssistNCM tela;
        tela.defineFiltro(QStringLiteral("99"));
        ativa(tela);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código de NCM não encontrado!")});
        QCOMPARE(msgs.caixas[0].icone(), Msg::Critical);
        QCOMPARE(msgs.caixas[0].titulo, TituloPadrao);
        QVERIFY(!tela.isVisible());
    }

    // After Aplicar the list shows no row, and the screen stays.
    void filtroSemResultadoPeloAplicarEsvaziaALista()
    {
        BancoTeste banco;
        ncms();
        MensagensRoteiro msgs;
        frmAssistNCM tela;
        ativa(tela);
        tela.txtCodigo->setText(QStringLiteral("99"));
        QTest::mouseClick(tela.cmdFiltro, Qt::LeftButton);
        QCOMPARE(tela.grdAssistNCM->dataRowCount(), 0);
        QVERIFY(tela.isVisible());
        QVERIFY(!tela.cmdOk->isEnabled());
        QCOMPARE(msgs.caixas.size(), 0);
    }

    void tabelaVaziaFechaComMensagem()
    {
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        frmAssistNCM tela;
        ativa(tela);
        QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código de NCM não encontrado!")});
        QVERIFY(!tela.isVisible());
    }

    void cadaChaveRecebeCodigoEUnidade_data()
    {
        QTest::addColumn<QString>("chave");
        for (const QString& c : DestinosEscolha::ChavesNcm())
            QTest::newRow(qPrintable(c)) << c;
    }
    void cadaChaveRecebeCodigoEUnidade()
    {
        QFETCH(QString, chave);
        BancoTeste banco;
        ncms();
        ChamadorTeste chamador(DestinosEscolha::ncm(), chave);
        QVERIFY(chamador.registrada);
        ChamadorNCM = chave;
        frmAssistNCM tela;
        ativa(tela);
        ConsultGrid* g = tela.grdAssistNCM;
        QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(2, 1)).center());
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        // The code goes as stored, without the mask's points, and the statistical unit beside it.
        QCOMPARE(chamador.codigo->text(), QStringLiteral("02011000"));
        QCOMPARE(chamador.complemento->text(), QStringLiteral("QUILOGRAMA LIQUIDO"));
        QCOMPARE(chamador.passosDeMudanca, 1);
        QVERIFY(!tela.isVisible());
    }

    // A double click on a row fills the field and closes; Escape leaves the field as it was.
    void duploCliqueEEscapePeloEscolhe()
    {
        BancoTeste banco;
        ncms();
        ChamadorTeste chamador(DestinosEscolha::ncm(), QStringLiteral("produtoPEMensal"));
        chamador.codigo->setText(QStringLiteral("0101."));
        QString filtroRecebido, selecionado;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistNCM*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            filtroRecebido = tela->txtCodigo->text();
            // The whole text is selected, blank places of the mask included.
            selecionado = tela->txtCodigo->selectedText() == tela->txtCodigo->displayText()
                              ? tela->txtCodigo->selectedText().trimmed()
                              : QString();
            ConsultGrid* g = tela->grdAssistNCM;
            QTest::mouseDClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(1, 2)).center());
        });
        QVERIFY(frmAssistNCM::Escolhe(QStringLiteral("produtoPEMensal")));
        QCOMPARE(ChamadorNCM, QStringLiteral("produtoPEMensal"));
        QCOMPARE(filtroRecebido, QStringLiteral("0101"));
        QCOMPARE(selecionado, QStringLiteral("0101"));
        QCOMPARE(chamador.codigo->text(), QStringLiteral("01012900"));
        QCOMPARE(chamador.complemento->text(), QStringLiteral("NUMERO (UNIDADE)"));

        chamador.codigo->setText(QStringLiteral("8"));
        chamador.complemento->setText(QStringLiteral("ANTES"));
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistNCM*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            tela->grdAssistNCM->setFocus();
            QTest::keyClick(tela->grdAssistNCM, Qt::Key_Escape);
        });
        QVERIFY(!frmAssistNCM::Escolhe(QStringLiteral("produtoPEMensal")));
        QCOMPARE(chamador.codigo->text(), QStringLiteral("8"));
        QCOMPARE(chamador.complemento->text(), QStringLiteral("ANTES"));
    }

    // The real NCM table of the fixtures, imported as a table file, is searchable in the picker.
    void tabelaNcmRealImportadaEPesquisavel()
    {
        const QList<ArquivoTabela::Ncm> reais = ArquivoTabela::ncmReal(QStringLiteral(VRT_REFDATA_DIR));
        QVERIFY(reais.size() > 13000);
        BancoTeste banco;
        BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM"));
        QTemporaryDir pasta;
        QVERIFY(ArquivoTabela::grava(pasta.filePath(QStringLiteral("ncm.txt")), ArquivoTabela::linhasNcm(reais)));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        ArquivoImportaTabela = QStringLiteral("SIM");
        QCOMPARE(modImportacao::ImportaTabela(pasta.path(), QStringLiteral("ncm.txt")),
                 modImportacao::Resultado::Sucesso);
        ArquivoImportaTabela = QStringLiteral("NAO");

        int esperados = 0;
        for (const auto& n : reais)
            esperados += n.codigo.startsWith(QLatin1String("8471")) ? 1 : 0;
        QVERIFY(esperados > 10);
        ChamadorTeste chamador(DestinosEscolha::ncm(), QStringLiteral("produto"));
        ChamadorNCM = QStringLiteral("produto");
        frmAssistNCM tela;
        tela.defineFiltro(QStringLiteral("8471"));
        ativa(tela);
        QCOMPARE(tela.grdAssistNCM->dataRowCount(), esperados);
        for (int i = 0; i < esperados; ++i)
            QVERIFY(tela.grdAssistNCM->cellText(i, AssistenteTabela::ColunaCodigoMostrado).startsWith("8471."));
        tela.txtCodigo->setText(QStringLiteral("60063130"));
        QTest::mouseClick(tela.cmdFiltro, Qt::LeftButton);
        QCOMPARE(tela.grdAssistNCM->dataRowCount(), 1);
        QCOMPARE(tela.grdAssistNCM->cellText(0, AssistenteTabela::ColunaCodigoMostrado), QStringLiteral("6006.31.30"));
        QCOMPARE(tela.grdAssistNCM->cellText(0, AssistenteTabela::ColunaNome).trimmed(),
                 QStringLiteral("Outros tecidos de malha, de fibras sintéticas, crus ou branqueados, acrílicos ou"));
        QTest::mouseClick(tela.cmdOk, Qt::LeftButton);
        QCOMPARE(chamador.codigo->text(), QStringLiteral("60063130"));
        QCOMPARE(chamador.complemento->text().trimmed(), QStringLiteral("QUILOGRAMA LIQUIDO"));
        QCOMPARE(msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_frmAssistNCM)
#include "tst_frmAssistNCM.moc"
