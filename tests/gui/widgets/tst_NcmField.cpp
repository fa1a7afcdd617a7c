#include "TestUtil.h"

#include "gui/widgets/NcmField.h"

#include <QVBoxLayout>
#include <QtTest>

namespace {

struct Screen {
    QWidget window;
    NcmField* field;
    QLineEdit* description;
    QLineEdit* unit;
    QLineEdit* next;

    Screen()
    {
        auto* layout = new QVBoxLayout(&window);
        field = new NcmField(QStringLiteral("mskNumNCM100"));
        description = new QLineEdit;
        description->setObjectName(QStringLiteral("txtDescrNCM100"));
        unit = new QLineEdit;
        unit->setObjectName(QStringLiteral("txtUnidMedEstatistica"));
        next = new QLineEdit;
        for (QWidget* w : {static_cast<QWidget*>(field), static_cast<QWidget*>(next), static_cast<QWidget*>(description),
                           static_cast<QWidget*>(unit)})
            layout->addWidget(w);
        field->setTargets(description, unit);
        window.show();
        window.activateWindow();
    }
    bool ready() { return QTest::qWaitForWindowActive(&window); }
    void type(const QString& keys)
    {
        field->setFocus(Qt::TabFocusReason);
        QTest::keyClick(field, Qt::Key_Home);
        QTest::keyClicks(field, keys);
    }
};

void insereNcm()
{
    BancoTeste::executa(QStringLiteral("DELETE FROM NCM_ITEM WHERE CD_NCM_PRODUTO IN ('84713012', '84713019')"));
    BancoTeste::executa(
        QStringLiteral("INSERT INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST) VALUES (?, ?, ?)"),
        {QStringLiteral("84713012"), QStringLiteral("Máquinas portáteis"), QStringLiteral("UNIDADE")});
}

}  // namespace

class tst_NcmField : public QObject {
    Q_OBJECT
private slots:
    void eightDigitsFoundFillDescriptionAndUnit();
    void codeNotFoundSaysSoAndEmptiesTheFields();
    void individualEditorAlsoEmptiesTheCode();
    void fewerThanEightDigitsLeaveNoDescription();
    void codeSetByThePickerRunsTheLookup();
    void emptyFieldLeftEmptiesDescriptionAndUnit();
};

void tst_NcmField::eightDigitsFoundFillDescriptionAndUnit()
{
    BancoTeste banco;
    insereNcm();
    Screen screen;
    QVERIFY(screen.ready());
    MensagensRoteiro msgs;
    screen.type(QStringLiteral("84713012"));
    QCOMPARE(screen.field->text(), QStringLiteral("8471.30.12"));
    QCOMPARE(screen.description->text(), QStringLiteral("Máquinas portáteis"));
    QCOMPARE(screen.unit->text(), QStringLiteral("UNIDADE"));
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_NcmField::codeNotFoundSaysSoAndEmptiesTheFields()
{
    BancoTeste banco;
    insereNcm();
    Screen screen;
    QVERIFY(screen.ready());
    screen.description->setText(QStringLiteral("antiga"));
    screen.unit->setText(QStringLiteral("KG"));
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    screen.type(QStringLiteral("84713019"));
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código NCM não encontrado!")});
    QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
    QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
    QCOMPARE(msgs.inesperadas, 0);
    QCOMPARE(screen.description->text(), QString());
    QCOMPARE(screen.unit->text(), QString());
    QCOMPARE(screen.field->digits(), QStringLiteral("84713019"));
}

void tst_NcmField::individualEditorAlsoEmptiesTheCode()
{
    BancoTeste banco;
    insereNcm();
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setClearCodeWhenNotFound();
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    screen.type(QStringLiteral("84713019"));
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Código NCM não encontrado!")});
    QCOMPARE(msgs.inesperadas, 0);
    QVERIFY(screen.field->isBlank());
}

void tst_NcmField::fewerThanEightDigitsLeaveNoDescription()
{
    BancoTeste banco;
    insereNcm();
    Screen screen;
    QVERIFY(screen.ready());
    MensagensRoteiro msgs;
    screen.type(QStringLiteral("84713012"));
    QCOMPARE(screen.description->text(), QStringLiteral("Máquinas portáteis"));
    QTest::keyClick(screen.field, Qt::Key_End);
    QTest::keyClick(screen.field, Qt::Key_Backspace);
    QCOMPARE(screen.field->digits(), QStringLiteral("8471301"));
    QCOMPARE(screen.description->text(), QString());
    QCOMPARE(screen.unit->text(), QString());
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_NcmField::codeSetByThePickerRunsTheLookup()
{
    BancoTeste banco;
    insereNcm();
    Screen screen;
    QVERIFY(screen.ready());
    QSignalSpy spy(screen.field, &NcmField::lookedUp);
    screen.field->setDigits(QStringLiteral("84713012"));
    QCOMPARE(screen.description->text(), QStringLiteral("Máquinas portáteis"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), true);
}

void tst_NcmField::emptyFieldLeftEmptiesDescriptionAndUnit()
{
    BancoTeste banco;
    Screen screen;
    QVERIFY(screen.ready());
    screen.unit->setText(QStringLiteral("KG"));
    screen.field->setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen.field, Qt::Key_Tab);
    QTRY_VERIFY(screen.next->hasFocus());
    QCOMPARE(screen.unit->text(), QString());
}

QTEST_MAIN(tst_NcmField)
#include "tst_NcmField.moc"
