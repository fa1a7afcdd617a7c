#include "TelaCampo.h"
#include "TestUtil.h"

#include "gui/widgets/DecimalField.h"
#include "gui/widgets/DigitField.h"

#include <QApplication>
#include <QClipboard>
#include <QtTest>

namespace {

struct Screen : TelaCampo<DigitField> {
    explicit Screen(int maxLength)
        : TelaCampo(new DigitField(QStringLiteral("txt100NacionalIndividual(0)"), maxLength))
    {
    }
    DigitField* byName() { return TelaCampo::byName(QStringLiteral("txt100NacionalIndividual(0)")); }
};

}  // namespace

class tst_DigitField : public QObject {
    Q_OBJECT
private slots:
    void typing_data();
    void typing();
    void pasteLosesCharactersFromTheEndUntilOnlyDigitsRemain();
    void accountTakesXInUpperCase();
    void zeroIsRefusedOnLeaving();
    void filledFieldIsRewrittenToItsWidth();
    void focusSelectsTheWholeText();
};

void tst_DigitField::typing_data()
{
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("digits stay") << 4 << "2005" << "2005";
    QTest::newRow("letters signs and comma are dropped") << 4 << "1a,2-3 .4" << "1234";
    QTest::newRow("no more than the field's length") << 3 << "12345" << "123";
}

void tst_DigitField::typing()
{
    QFETCH(int, maxLength);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    Screen screen(maxLength);
    QVERIFY(screen.ready());
    screen.enter();
    QTest::keyClicks(screen.byName(), keys);
    QCOMPARE(screen.field->text(), text);
    QTest::keyClick(screen.field, Qt::Key_Backspace);
    QCOMPARE(screen.field->text(), text.chopped(1));
}

// A paste passes the key filter; the change then sends Backspace until the text is digits again, so the
// characters behind the first wrong one go as well.
void tst_DigitField::pasteLosesCharactersFromTheEndUntilOnlyDigitsRemain()
{
    Screen screen(10);
    QVERIFY(screen.ready());
    screen.enter();
    QApplication::clipboard()->setText(QStringLiteral("12a45"));
    QTest::keyClick(screen.field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(screen.field->text(), QStringLiteral("12"));
}

void tst_DigitField::accountTakesXInUpperCase()
{
    Screen screen(19);
    QVERIFY(screen.ready());
    screen.field->setExtraCharacters(QStringLiteral("Xx")).setUpperCase(true);
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("12-34x"));
    QCOMPARE(screen.field->text(), QStringLiteral("1234X"));
    QCOMPARE(screen.field->cursorPosition(), 5);
}

void tst_DigitField::zeroIsRefusedOnLeaving()
{
    Screen screen(3);
    QVERIFY(screen.ready());
    screen.field->setZeroMessage(ZeroMessage::GreaterThanZero).setPadWidth(3);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("00"));
    QTest::keyClick(screen.field, Qt::Key_Tab);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Campo deve ser maior que zero.")});
    QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
    QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
    QCOMPARE(msgs.inesperadas, 0);
    QTRY_VERIFY(screen.field->hasFocus());
    QCOMPARE(screen.field->text(), QStringLiteral("00"));
}

void tst_DigitField::filledFieldIsRewrittenToItsWidth()
{
    Screen screen(3);
    QVERIFY(screen.ready());
    screen.field->setZeroMessage(ZeroMessage::GreaterThanZero).setPadWidth(3);
    MensagensRoteiro msgs;
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("7"));
    QTest::keyClick(screen.field, Qt::Key_Tab);
    QCOMPARE(msgs.caixas.size(), 0);
    QTRY_VERIFY(screen.next->hasFocus());
    QCOMPARE(screen.field->text(), QStringLiteral("007"));
    // An empty field is left alone.
    screen.field->clear();
    screen.enter();
    QTest::keyClick(screen.field, Qt::Key_Tab);
    QCOMPARE(screen.field->text(), QString());
    QCOMPARE(msgs.caixas.size(), 0);
}

void tst_DigitField::focusSelectsTheWholeText()
{
    Screen screen(4);
    QVERIFY(screen.ready());
    screen.field->setText(QStringLiteral("2005"));
    screen.next->setFocus();
    QTest::mouseClick(screen.field, Qt::LeftButton, Qt::NoModifier, QPoint(3, screen.field->height() / 2));
    QTRY_COMPARE(screen.field->selectedText(), QStringLiteral("2005"));
}

QTEST_MAIN(tst_DigitField)
#include "tst_DigitField.moc"
