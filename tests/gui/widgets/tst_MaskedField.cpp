#include "TelaCampo.h"
#include "TestUtil.h"

#include "gui/widgets/MaskedField.h"

#include <QApplication>
#include <QtTest>

namespace {

struct Screen : TelaCampo<MaskedField> {
    explicit Screen(const QString& mask) : TelaCampo(new MaskedField(mask, QStringLiteral("mskNumNCM100"))) {}
};

}  // namespace

class tst_MaskedField : public QObject {
    Q_OBJECT
private slots:
    void inputMask_data();
    void inputMask();
    void typing_data();
    void typing();
    void blankPromptShowsOnlyThePunctuation();
    void focusSelectsTheWholeText();
    void setDigitsAndComplete();
};

void tst_MaskedField::inputMask_data()
{
    QTest::addColumn<QString>("oldMask");
    QTest::addColumn<QString>("inputMask");
    QTest::newRow("NCM") << "####.##.##" << "9999.99.99; ";
    QTest::newRow("DI") << "##/#######-#" << "99/9999999-9; ";
    QTest::newRow("CNPJ") << "##.###.###/####-##" << "99.999.999/9999-99; ";
    QTest::newRow("process") << "#####.######/####-##" << "99999.999999/9999-99; ";
}

void tst_MaskedField::inputMask()
{
    QFETCH(QString, oldMask);
    QFETCH(QString, inputMask);
    QCOMPARE(MaskedField::toInputMask(oldMask), inputMask);
}

void tst_MaskedField::typing_data()
{
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("digits");
    QTest::addColumn<bool>("complete");
    QTest::newRow("NCM of eight digits") << "####.##.##" << "12345678" << "1234.56.78" << "12345678" << true;
    QTest::newRow("letters and signs are refused") << "####.##.##" << "12ab-+34" << "1234.." << "1234" << false;
    QTest::newRow("a ninth digit has no place") << "####.##.##" << "123456789" << "1234.56.78" << "12345678" << true;
    QTest::newRow("DI keeps the zero of its year") << "##/#######-#" << "0212345678" << "02/1234567-8" << "0212345678"
                                                  << true;
    QTest::newRow("DCR-E of nine digits") << "####/#####-#" << "200112345" << "2001/12345-" << "200112345" << false;
}

void tst_MaskedField::typing()
{
    QFETCH(QString, mask);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    QFETCH(QString, digits);
    QFETCH(bool, complete);
    Screen screen(mask);
    QVERIFY(screen.ready());
    screen.field->setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen.field, Qt::Key_Home);
    QTest::keyClicks(screen.field, keys);
    QCOMPARE(screen.field->text(), text);
    QCOMPARE(screen.field->digits(), digits);
    QCOMPARE(screen.field->isComplete(), complete);
}

void tst_MaskedField::blankPromptShowsOnlyThePunctuation()
{
    MaskedField field(QStringLiteral("####.##.##"), QStringLiteral("mskNumNCMPE"));
    QCOMPARE(field.objectName(), QStringLiteral("mskNumNCMPE"));
    QCOMPARE(field.displayText(), QStringLiteral("    .  .  "));
    QVERIFY(field.isBlank());
    QCOMPARE(field.digits(), QString());
}

void tst_MaskedField::focusSelectsTheWholeText()
{
    Screen screen(QStringLiteral("####.##.##"));
    QVERIFY(screen.ready());
    screen.field->setDigits(QStringLiteral("12345678"));
    screen.next->setFocus();
    QTest::mouseClick(screen.field, Qt::LeftButton, Qt::NoModifier, QPoint(3, screen.field->height() / 2));
    QTRY_VERIFY(screen.field->hasFocus());
    QTRY_COMPARE(screen.field->selectedText(), QStringLiteral("1234.56.78"));
}

void tst_MaskedField::setDigitsAndComplete()
{
    MaskedField field(QStringLiteral("##/#######-#"), QStringLiteral("mskDadosGerais(0)"));
    field.setDigits(QStringLiteral("05/1234567-4"));
    QCOMPARE(field.text(), QStringLiteral("05/1234567-4"));
    QCOMPARE(field.digits(), QStringLiteral("0512345674"));
    QVERIFY(field.isComplete());
    field.setDigits(QString());
    QVERIFY(field.isBlank());
    QVERIFY(!field.isComplete());
}

QTEST_MAIN(tst_MaskedField)
#include "tst_MaskedField.moc"
