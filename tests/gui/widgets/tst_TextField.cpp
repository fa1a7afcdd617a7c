#include "TelaCampo.h"
#include "TestUtil.h"

#include "gui/widgets/TextField.h"

#include <QApplication>
#include <QClipboard>
#include <QtTest>

namespace {

struct Screen : TelaCampo<TextField> {
    explicit Screen(int maxLength = 80) : TelaCampo(new TextField(QStringLiteral("txtCodProdPE"), maxLength)) {}
};

// Types one character as a key event with its text, for characters beyond Latin-1 as well.
void typeCharacter(QWidget* widget, const QString& character)
{
    QTest::sendKeyEvent(QTest::Press, widget, Qt::Key_unknown, character, Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Release, widget, Qt::Key_unknown, character, Qt::NoModifier);
}

// Types a text key by key, each key carrying its character (keyClicks knows ASCII keys only).
void typeText(QWidget* widget, const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const int n = text.at(i).isHighSurrogate() ? 2 : 1;
        typeCharacter(widget, text.mid(i, n));
        i += n - 1;
    }
}

}  // namespace

class tst_TextField : public QObject {
    Q_OBJECT
private slots:
    void caretGoesBehindTheTextOnFocus();
    void caretGoesBehindTheTextAfterAClick();
    void selectAllOnFocusWhenAsked();
    void specialCharacters_data();
    void specialCharacters();
    void justificationDropsOnlyTheApostrophe();
    void charactersWindows1252CannotHoldAreRefused_data();
    void charactersWindows1252CannotHoldAreRefused();
    void pasteLosesTheRefusedCharacters();
    void seriesInCapitals();
    void lettersAndDigitsOnly();
    void lengthIsLimited();
};

void tst_TextField::caretGoesBehindTheTextOnFocus()
{
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setText(QStringLiteral("PARAFUSO"));
    screen.next->setFocus();
    QTest::keyClick(screen.next, Qt::Key_Backtab);
    QTRY_VERIFY(screen.field->hasFocus());
    QTRY_VERIFY(!screen.field->hasSelectedText());
    QCOMPARE(screen.field->cursorPosition(), 8);
    QTest::keyClicks(screen.field, QStringLiteral("X"));
    QCOMPARE(screen.field->text(), QStringLiteral("PARAFUSOX"));
}

void tst_TextField::caretGoesBehindTheTextAfterAClick()
{
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setText(QStringLiteral("PARAFUSO"));
    screen.next->setFocus();
    QTest::mouseClick(screen.field, Qt::LeftButton, Qt::NoModifier, QPoint(3, screen.field->height() / 2));
    QTRY_VERIFY(screen.field->hasFocus());
    QTRY_COMPARE(screen.field->cursorPosition(), 8);
    QVERIFY(!screen.field->hasSelectedText());
}

void tst_TextField::selectAllOnFocusWhenAsked()
{
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setSelectAllOnFocus();
    screen.field->setText(QStringLiteral("PARAFUSO"));
    screen.next->setFocus();
    QTest::mouseClick(screen.field, Qt::LeftButton, Qt::NoModifier, QPoint(3, screen.field->height() / 2));
    QTRY_COMPARE(screen.field->selectedText(), QStringLiteral("PARAFUSO"));
}

void tst_TextField::specialCharacters_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("double quote refused in a product code") << "AB\"C" << "ABC";
    QTest::newRow("apostrophe refused") << "D'AGUA" << "DAGUA";
    QTest::newRow("accented letter accepted") << QStringLiteral("AÇÃOé") << QStringLiteral("AÇÃOé");
    QTest::newRow("the whole forbidden set") << QStringLiteral("A!@#$%¨&*()-+=_{[}]~^:;/?<>.,\\|'\"B") << "AB";
    QTest::newRow("blank accepted") << "A B" << "A B";
}

void tst_TextField::specialCharacters()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    Screen screen(60);
    QVERIFY(screen.ready());
    screen.field->refuseSpecialCharacters();
    screen.enter();
    typeText(screen.field, keys);
    QCOMPARE(screen.field->text(), text);
}

void tst_TextField::justificationDropsOnlyTheApostrophe()
{
    Screen screen(253);
    QVERIFY(screen.ready());
    screen.field->refuseCharacters(QStringLiteral("'"));
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("Art. 5'-A, \"b\""));
    QCOMPARE(screen.field->text(), QStringLiteral("Art. 5-A, \"b\""));
}

void tst_TextField::charactersWindows1252CannotHoldAreRefused_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<bool>("kept");
    QTest::newRow("euro kept") << QStringLiteral("€") << true;
    QTest::newRow("curly quote kept") << QStringLiteral("“") << true;
    QTest::newRow("greek letter refused") << QStringLiteral("α") << false;
    QTest::newRow("ideogram refused") << QStringLiteral("中") << false;
    QTest::newRow("emoji refused") << QStringLiteral("😀") << false;
}

void tst_TextField::charactersWindows1252CannotHoldAreRefused()
{
    QFETCH(QString, character);
    QFETCH(bool, kept);
    Screen screen;
    QVERIFY(screen.ready());
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("A"));
    typeCharacter(screen.field, character);
    QCOMPARE(screen.field->text(), kept ? QStringLiteral("A") + character : QStringLiteral("A"));
}

void tst_TextField::pasteLosesTheRefusedCharacters()
{
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->refuseSpecialCharacters();
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("XY"));
    QTest::keyClick(screen.field, Qt::Key_Home);
    QApplication::clipboard()->setText(QStringLiteral("a'α€\"b"));
    QTest::keyClick(screen.field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(screen.field->text(), QStringLiteral("a€bXY"));
    QCOMPARE(screen.field->cursorPosition(), 3);
}

void tst_TextField::seriesInCapitals()
{
    Screen screen(5);
    QVERIFY(screen.ready());
    screen.field->refuseSpecialCharacters().setUpperCase();
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("ab-1"));
    QCOMPARE(screen.field->text(), QStringLiteral("AB1"));
    QCOMPARE(screen.field->cursorPosition(), 3);
}

void tst_TextField::lettersAndDigitsOnly()
{
    Screen screen(5);
    QVERIFY(screen.ready());
    screen.field->acceptLettersAndDigitsOnly();
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("a-b 1_"));
    QCOMPARE(screen.field->text(), QStringLiteral("ab1"));
}

void tst_TextField::lengthIsLimited()
{
    Screen screen(15);
    QVERIFY(screen.ready());
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("12345678901234567890"));
    QCOMPARE(screen.field->text(), QStringLiteral("123456789012345"));
}

QTEST_MAIN(tst_TextField)
#include "tst_TextField.moc"
