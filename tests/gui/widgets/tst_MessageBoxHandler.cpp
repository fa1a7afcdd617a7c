#include "TestUtil.h"

#include "gui/widgets/MessageBoxHandler.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

// The program's message handler, driven through a real box: icon, buttons, default button, line breaks.
class tst_MessageBoxHandler : public QObject {
    Q_OBJECT
private slots:
    void caixaTemIconeBotoesEPadraoDoEstilo_data();
    void caixaTemIconeBotoesEPadraoDoEstilo();
    void retornoDeCarroQuebraALinha();
};

namespace {

struct Visto {
    QString texto;
    QString titulo;
    QMessageBox::Icon icone = QMessageBox::NoIcon;
    QStringList botoes;
    QString padrao;
};

// Answers the next box by clicking the button with `legenda`, after noting what it shows.
void respondeCom(const QString& legenda, Visto& visto)
{
    QTimer::singleShot(0, [legenda, &visto] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        visto.texto = box->text();
        visto.titulo = box->windowTitle();
        visto.icone = box->icon();
        for (QAbstractButton* b : box->buttons())
            visto.botoes << b->text();
        visto.padrao = box->defaultButton() ? box->defaultButton()->text() : QString();
        for (QAbstractButton* b : box->buttons())
            if (b->text() == legenda)
                b->click();
    });
}

}  // namespace

void tst_MessageBoxHandler::caixaTemIconeBotoesEPadraoDoEstilo_data()
{
    QTest::addColumn<int>("estilo");
    QTest::addColumn<QString>("clique");
    QTest::addColumn<int>("resposta");
    QTest::addColumn<int>("icone");
    QTest::addColumn<QStringList>("botoes");
    QTest::addColumn<QString>("padrao");
    QTest::newRow("OK crítico") << (Msg::OKOnly | Msg::Critical) << "OK" << Msg::OK << int(QMessageBox::Critical)
                                << QStringList{"OK"} << "OK";
    QTest::newRow("Sim/Não, padrão Não") << (Msg::YesNo | Msg::Question | Msg::DefaultButton2) << "&Sim" << Msg::Yes
                                         << int(QMessageBox::Question) << QStringList{"&Sim", "&Não"} << "&Não";
    QTest::newRow("Sim/Não/Cancelar, Cancelar") << (Msg::YesNoCancel | Msg::Information) << "Cancelar"
                                                << Msg::Cancel << int(QMessageBox::Information)
                                                << QStringList{"&Sim", "&Não", "Cancelar"} << "&Sim";
    QTest::newRow("OK/Cancelar aviso") << (Msg::OKCancel | Msg::Exclamation) << "OK" << Msg::OK
                                       << int(QMessageBox::Warning) << QStringList{"OK", "Cancelar"} << "OK";
}

void tst_MessageBoxHandler::caixaTemIconeBotoesEPadraoDoEstilo()
{
    QFETCH(int, estilo);
    QFETCH(QString, clique);
    QFETCH(int, resposta);
    QFETCH(int, icone);
    QFETCH(QStringList, botoes);
    QFETCH(QString, padrao);
    Visto visto;
    respondeCom(clique, visto);
    QCOMPARE(ShowMessageBox("Deseja salvar a VRT?", estilo, "Título"), resposta);
    QCOMPARE(visto.texto, QStringLiteral("Deseja salvar a VRT?"));
    QCOMPARE(visto.titulo, QStringLiteral("Título"));
    QCOMPARE(int(visto.icone), icone);
    QStringList ordenados = visto.botoes;
    QCOMPARE(ordenados.size(), botoes.size());
    for (const QString& b : botoes)
        QVERIFY2(visto.botoes.contains(b), qPrintable(b));
    QCOMPARE(visto.padrao, padrao);
}

void tst_MessageBoxHandler::retornoDeCarroQuebraALinha()
{
    Visto visto;
    respondeCom("OK", visto);
    ShowMessageBox("Relatório\rlinha 2\r\nlinha 3", Msg::OKOnly, "T");
    QCOMPARE(visto.texto, QStringLiteral("Relatório\nlinha 2\nlinha 3"));
}

QTEST_MAIN(tst_MessageBoxHandler)
#include "tst_MessageBoxHandler.moc"
