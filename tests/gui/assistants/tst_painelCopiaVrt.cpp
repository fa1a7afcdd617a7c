// The chooser's copy panel, driven on the real screen: opening it from the list, the options and the number,
// the messages of Ok, the progress shown while the copy runs, and the list that comes back.
#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "core/file/numbering/IdentificacaoPrevista.h"
#include "core/rules/DigitoVerificador.h"
#include "gui/assistants/PainelCopiaVrt.h"
#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/widgets/ConsultGrid.h"
#include "gui/widgets/MaskedField.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}

template <typename T>
T* controle(QWidget& tela, const char* nome)
{
    T* c = tela.findChild<T*>(QString::fromLatin1(nome));
    if (!c)
        qFatal("controle ausente: %s", nome);
    return c;
}

// A declaration number with a valid check digit.
QString numeroValido()
{
    for (int d = 0; d <= 9; ++d) {
        const QString n = t("091234567") + QString::number(d);
        if (Funcoes::ValidaDigito(n, t("VRT")))
            return n;
    }
    return QString();
}

// The chooser in its copy action, shown, with Ok clicked on the first row: the copy panel comes up.
void abrePainel(frmAssistenteVRT& tela)
{
    tela.FuncaoForm(frmAssistenteVRT::Copiar);
    tela.show();
    QTest::mouseClick(controle<QPushButton>(tela, "cmdOk"), Qt::LeftButton);
}

// What the screen showed at the moment of the success message.
struct NoFim {
    QString andamento;
    bool barraVisivel = false;
    int barra = -1;
    int icone = -1;
};
}  // namespace

class tst_painelCopiaVrt : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { RegistraTelas(); }

    void abreComAOrigemEAIdentificacaoPrevista()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        auto* painel = controle<PainelCopiaVrt>(tela, "FraAssistenteVRT_Copia");
        QVERIFY(painel->isVisible());
        QVERIFY(!controle<QGroupBox>(tela, "fraAssistenteVRT")->isVisible());
        QCOMPARE(controle<QLineEdit>(tela, "txtIdentificador")->text(), t("00012/09"));
        QCOMPARE(controle<QLineEdit>(tela, "txtTipo")->text(), t("Mensal"));
        QCOMPARE(controle<QLineEdit>(tela, "txtIdentificadorNovaVRT")->text(), Funcoes::IdentificacaoPrevista());
        QVERIFY(!controle<QRadioButton>(tela, "OptRetificacao")->isChecked());
        QVERIFY(!controle<QRadioButton>(tela, "OptNormal")->isChecked());
        QVERIFY(!controle<MaskedField>(tela, "mskNumVRT")->isEnabled());
        QVERIFY(!controle<QProgressBar>(tela, "ProgBarCopia")->isVisible());
        QVERIFY(!controle<QLabel>(tela, "lblCopiaAnd")->isVisible());
    }

    void okSemOpcaoPedeAOpcaoEOPainelFica()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::mouseClick(controle<QPushButton>(tela, "cmdOKCopia"), Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{t("Escolha qual a opção de cópia.")});
        QCOMPARE(msgs.caixas.at(0).icone(), int(Msg::Critical));
        QVERIFY(controle<PainelCopiaVrt>(tela, "FraAssistenteVRT_Copia")->isVisible());
    }

    void naoNaPerguntaNaoCopiaEOPainelFica()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        QTest::mouseClick(controle<QRadioButton>(tela, "OptNormal"), Qt::LeftButton, {}, QPoint(6, 6));
        MensagensRoteiro msgs;
        msgs.responde(Msg::No);
        QTest::mouseClick(controle<QPushButton>(tela, "cmdOKCopia"), Qt::LeftButton);
        QCOMPARE(msgs.textos(), QStringList{t("Deseja realmente copiar essa VRT ?")});
        QCOMPARE(msgs.caixas.at(0).icone(), int(Msg::Question));
        QCOMPARE(msgs.caixas.at(0).botoes(), int(Msg::YesNo));
        QVERIFY(controle<PainelCopiaVrt>(tela, "FraAssistenteVRT_Copia")->isVisible());
        QCOMPARE(banco.conta(t("VRT")), 1);
    }

    void retificadoraCopiaComONumeroMostraOProgressoEVoltaALista()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        const QString nova = Funcoes::IdentificacaoPrevista();
        frmAssistenteVRT tela;
        abrePainel(tela);
        QTest::mouseClick(controle<QRadioButton>(tela, "OptRetificacao"), Qt::LeftButton, {}, QPoint(6, 6));
        auto* numero = controle<MaskedField>(tela, "mskNumVRT");
        QVERIFY(numero->isEnabled());
        const QString digitos = numeroValido();
        numero->setFocus();
        numero->setCursorPosition(0);
        QTest::keyClicks(numero, digitos);
        QCOMPARE(numero->digits(), digitos);

        QStringList textos;
        NoFim fim;
        const ManipuladorMsg anterior = InstalaManipuladorMsg([&](const QString& texto, int estilo, const QString&) {
            textos << texto;
            if (texto == t("VRT Mensal copiada com sucesso!")) {
                fim.andamento = controle<QLabel>(tela, "lblCopiaAnd")->text();
                fim.barraVisivel = controle<QProgressBar>(tela, "ProgBarCopia")->isVisible();
                fim.barra = controle<QProgressBar>(tela, "ProgBarCopia")->value();
                fim.icone = estilo & Msg::MascaraIcone;
            }
            return (estilo & Msg::MascaraBotoes) == Msg::YesNo ? int(Msg::Yes) : int(Msg::OK);
        });
        QTest::mouseClick(controle<QPushButton>(tela, "cmdOKCopia"), Qt::LeftButton);
        InstalaManipuladorMsg(anterior);

        QCOMPARE(textos, (QStringList{t("Deseja realmente copiar essa VRT ?"), t("VRT Mensal copiada com sucesso!")}));
        QCOMPARE(fim.andamento, t("** Cópia concluída **"));
        QVERIFY(fim.barraVisivel);
        QCOMPARE(fim.barra, 100);
        QCOMPARE(fim.icone, int(Msg::Information));
        QCOMPARE(banco.valor(t("SELECT NR_VRT || IND_RETIFICACAO FROM VRT WHERE ID_VRT_MICRO = ?"), {nova}).toString(),
                 digitos + t("S"));
        // The panel is closed and the list is back, ascending, with the copy.
        QVERIFY(!controle<PainelCopiaVrt>(tela, "FraAssistenteVRT_Copia")->isVisible());
        QVERIFY(controle<QGroupBox>(tela, "fraAssistenteVRT")->isVisible());
        QVERIFY(controle<QPushButton>(tela, "cmdOk")->isVisible());
        QCOMPARE(controle<QLabel>(tela, "lblCopiaAnd")->text(), t("Cópia em andamento ... AGUARDE"));
        QCOMPARE(controle<QProgressBar>(tela, "ProgBarCopia")->value(), 0);
        QVERIFY(numero->isBlank());
        QVERIFY(!numero->isEnabled());
        QCOMPARE(tela.grdAssistenteVRT->dataRowCount(), 2);
        QCOMPARE(tela.grdAssistenteVRT->rowTexts(0).value(0), qMin(nova, t("00012/09")));
        QCOMPARE(tela.grdAssistenteVRT->rowTexts(1).value(0), qMax(nova, t("00012/09")));
    }

    void originalDeIndividualCopiaSemNumero()
    {
        BancoTeste banco;
        CenariosGravacao::insereIndividualCompleta(t("00013/09"));
        const QString nova = Funcoes::IdentificacaoPrevista();
        frmAssistenteVRT tela;
        abrePainel(tela);
        QTest::mouseClick(controle<QRadioButton>(tela, "OptNormal"), Qt::LeftButton, {}, QPoint(6, 6));
        MensagensRoteiro msgs;
        msgs.responde(Msg::Yes).responde(Msg::OK);
        QTest::mouseClick(controle<QPushButton>(tela, "cmdOKCopia"), Qt::LeftButton);
        QCOMPARE(msgs.textos(),
                 (QStringList{t("Deseja realmente copiar essa VRT ?"), t("VRT Individual copiada com sucesso!")}));
        QCOMPARE(banco.valor(t("SELECT NR_VRT || '|' || IND_RETIFICACAO FROM VRT WHERE ID_VRT_MICRO = ?"), {nova})
                     .toString(),
                 t("|N"));
    }

    void numeroZeradoOuComDigitoErrado_data()
    {
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("zerado") << t("0000000000") << t("Número da VRT não pode ser zerado.");
        QString ruim = numeroValido();
        ruim[9] = QChar(u'0' + (ruim.at(9).digitValue() + 1) % 10);
        QTest::newRow("dígito") << ruim << t("Dígito verificador inválido.");
    }

    void numeroZeradoOuComDigitoErrado()
    {
        QFETCH(QString, numero);
        QFETCH(QString, mensagem);
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        QTest::mouseClick(controle<QRadioButton>(tela, "OptRetificacao"), Qt::LeftButton, {}, QPoint(6, 6));
        auto* campo = controle<MaskedField>(tela, "mskNumVRT");
        campo->setFocus();
        campo->setCursorPosition(0);
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QTest::keyClicks(campo, numero);
        QCOMPARE(msgs.textos(), QStringList{mensagem});
        // Leaving the field with it empties it, without a further message.
        QFocusEvent saida(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(campo, &saida);
        QVERIFY(campo->isBlank());
        QCOMPARE(msgs.caixas.size(), 1);
    }

    void cancelaFechaSemCopiar()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        QTest::mouseClick(controle<QRadioButton>(tela, "OptNormal"), Qt::LeftButton, {}, QPoint(6, 6));
        MensagensRoteiro msgs;
        QTest::mouseClick(controle<QPushButton>(tela, "cmdCancelaCopia"), Qt::LeftButton);
        QCOMPARE(msgs.caixas.size(), 0);
        QVERIFY(!controle<PainelCopiaVrt>(tela, "FraAssistenteVRT_Copia")->isVisible());
        QVERIFY(controle<QGroupBox>(tela, "fraAssistenteVRT")->isVisible());
        QCOMPARE(banco.conta(t("VRT")), 1);
    }
    // The expected identification is only a display: the counter plus one with this year's two digits, even when
    // the counter's year is an older one; with no counter row, the first number of this year.
    void identificacaoPrevistaDoContadorComOAnoAtual_data()
    {
        QTest::addColumn<QString>("numerador");
        QTest::addColumn<QString>("numero");
        QTest::newRow("ano antigo") << t("41, 9") << t("00042/");
        QTest::newRow("sem linha") << QString() << t("00001/");
    }

    void identificacaoPrevistaDoContadorComOAnoAtual()
    {
        QFETCH(QString, numerador);
        QFETCH(QString, numero);
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        banco.executa(t("DELETE FROM ARQUIVO_NUMERADOR"));
        if (!numerador.isEmpty())
            banco.executa(t("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (%1)").arg(numerador));
        frmAssistenteVRT tela;
        abrePainel(tela);
        const QString ano = QStringLiteral("%1").arg(QDate::currentDate().year() % 100, 2, 10, QLatin1Char('0'));
        QCOMPARE(controle<QLineEdit>(tela, "txtIdentificadorNovaVRT")->text(), numero + ano);
        QVERIFY(!controle<QLineEdit>(tela, "txtIdentificadorNovaVRT")->isEnabled());
        // Opening the panel takes no number.
        QCOMPARE(banco.conta(t("ARQUIVO_NUMERADOR")), numerador.isEmpty() ? 0 : 1);
    }

    // Original turns the number field off again after Retificadora turned it on; the two options exclude each other.
    void originalDesligaONumero()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        auto* numero = controle<MaskedField>(tela, "mskNumVRT");
        auto* retificadora = controle<QRadioButton>(tela, "OptRetificacao");
        auto* original = controle<QRadioButton>(tela, "OptNormal");
        QTest::mouseClick(retificadora, Qt::LeftButton, {}, QPoint(6, 6));
        QVERIFY(numero->isEnabled());
        QTest::mouseClick(original, Qt::LeftButton, {}, QPoint(6, 6));
        QVERIFY(original->isChecked());
        QVERIFY(!retificadora->isChecked());
        QVERIFY(!numero->isEnabled());
        QTest::mouseClick(retificadora, Qt::LeftButton, {}, QPoint(6, 6));
        QVERIFY(!original->isChecked());
        QVERIFY(numero->isEnabled());
    }

    // The panel's texts, the label of the source's identification without its cedilla included.
    void rotulosDoPainel()
    {
        BancoTeste banco;
        CenariosGravacao::insereMensalCompleta(t("00012/09"));
        frmAssistenteVRT tela;
        abrePainel(tela);
        auto* painel = controle<PainelCopiaVrt>(tela, "FraAssistenteVRT_Copia");
        QStringList rotulos;
        for (const QLabel* l : painel->findChildren<QLabel*>())
            rotulos << l->text();
        for (const char* esperado : {"Identificaçao :", "Tipo :", "Internador :", "Data :", "Identificação :",
                                     "Número VRT :"})
            QVERIFY2(rotulos.contains(t(esperado)), esperado);
        QStringList quadros;
        for (const QGroupBox* g : painel->findChildren<QGroupBox*>())
            quadros << g->title();
        QCOMPARE(quadros, (QStringList{t("Dados VRT"), t("Nova VRT"), t("Transformar a cópia em")}));
        QCOMPARE(controle<QRadioButton>(tela, "OptRetificacao")->text(), t("Retificadora"));
        QCOMPARE(controle<QRadioButton>(tela, "OptNormal")->text(), t("Original"));
        QCOMPARE(controle<QPushButton>(tela, "cmdCancelaCopia")->text(), t("Cancela"));
        QCOMPARE(controle<MaskedField>(tela, "mskNumVRT")->mask(), t("##/#######-#"));
        // Filled from the row: the internador and the date as the list shows them.
        QCOMPARE(controle<QLineEdit>(tela, "txtInternador")->text(), tela.grdAssistenteVRT->rowTexts(0).value(1));
        QCOMPARE(controle<QLineEdit>(tela, "txtData")->text(), tela.grdAssistenteVRT->rowTexts(0).value(2));
    }
};

QTEST_MAIN(tst_painelCopiaVrt)
#include "tst_painelCopiaVrt.moc"
