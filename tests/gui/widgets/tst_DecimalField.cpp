#include "TestUtil.h"

#include "core/rules/FormatoNumero.h"
#include "gui/widgets/DecimalField.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

Q_DECLARE_METATYPE(DecimalField::Family)

namespace {

// A small screen: the field under test on the first page of a tab strip, another page, and a field after it.
struct Screen {
    QWidget window;
    QTabWidget* tabs;
    DecimalField* field;
    QLineEdit* next;

    Screen(DecimalField::Family family, const QString& zeroMessage = QString())
    {
        auto* layout = new QVBoxLayout(&window);
        tabs = new QTabWidget;
        auto* page = new QWidget;
        auto* pageLayout = new QVBoxLayout(page);
        field = new DecimalField(family, QStringLiteral("mskPE(2)"), zeroMessage);
        pageLayout->addWidget(field);
        tabs->addTab(page, QStringLiteral("Produto"));
        tabs->addTab(new QWidget, QStringLiteral("Documento de Origem"));
        layout->addWidget(tabs);
        next = new QLineEdit;
        next->setObjectName(QStringLiteral("proximo"));
        layout->addWidget(next);
        window.show();
        window.activateWindow();
    }
    bool ready() { return QTest::qWaitForWindowActive(&window); }
    DecimalField* byName() { return window.findChild<DecimalField*>(QStringLiteral("mskPE(2)")); }
    void enter()
    {
        field->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
    }
    void leave() { QTest::keyClick(field, Qt::Key_Tab); }
};

}  // namespace

class tst_DecimalField : public QObject {
    Q_OBJECT
private slots:
    void typing_data();
    void typing();
    void digitTypedInFrontOfAFullIntegerPartIsTakenBack();
    void fullFieldDropsEveryKeyButBackspaceEvenOverASelection();
    void leaving_data();
    void leaving();
    void pastedCommaBeyondTheLimitStopsTheUserOnLeaving_data();
    void pastedCommaBeyondTheLimitStopsTheUserOnLeaving();
    void pastedLongDigitsGetTheCommaAndLoseExtraDecimals();
    void refusedFieldGetsItsTabAndFocusBack();
    void focusSelectsThePlainText();
    void mouseClickSelectsTheWholeText();
    void windowLosingFocusRunsNoCheck();
    void extraCheckRunsAfterTheFamilyChecks();
    void valueAndSetValue_data();
    void valueAndSetValue();
    void formatMessagesOfTheFourFamilies();
};

void tst_DecimalField::typing_data()
{
    QTest::addColumn<DecimalField::Family>("family");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("fifteen digits of a total value get the comma after the thirteenth")
        << DecimalField::TotalValue << "123456789012345" << "1234567890123,45";
    QTest::newRow("a sixteenth digit of a total value is dropped")
        << DecimalField::TotalValue << "1234567890123456" << "1234567890123,45";
    QTest::newRow("fourteen digits of a unit value show 1234567890123,4")
        << DecimalField::UnitValue << "12345678901234" << "1234567890123,4";
    QTest::newRow("a unit value fills its seven decimals and drops the next digit")
        << DecimalField::UnitValue << "123456789012345678901" << "1234567890123,4567890";
    QTest::newRow("ten digits of a quantity get the comma after the ninth")
        << DecimalField::Quantity << "1234567890" << "123456789,0";
    QTest::newRow("a full quantity drops further digits")
        << DecimalField::Quantity << "12345678901234567" << "123456789,01234";
    QTest::newRow("four digits of a rate get the comma after the third") << DecimalField::Rate << "1234" << "123,4";
    QTest::newRow("a full rate drops further digits") << DecimalField::Rate << "123456" << "123,45";
    QTest::newRow("space minus plus and full stop are dropped") << DecimalField::Quantity << "1 2-3+4.5" << "12345";
    QTest::newRow("a second comma is taken back") << DecimalField::Quantity << "12,3,4" << "12,34";
    QTest::newRow("a decimal beyond the limit is taken back") << DecimalField::Rate << "1,234" << "1,23";
    QTest::newRow("a letter is taken back") << DecimalField::Quantity << "12a3" << "123";
    QTest::newRow("a comma alone is no number and is taken back") << DecimalField::Quantity << ",5" << "5";
    QTest::newRow("zero and a comma start a fraction") << DecimalField::Quantity << "0,5" << "0,5";
    QTest::newRow("a comma typed within the limit stays") << DecimalField::TotalValue << "1234567890123,4"
                                                          << "1234567890123,4";
}

void tst_DecimalField::typing()
{
    QFETCH(DecimalField::Family, family);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    Screen screen(family);
    QVERIFY(screen.ready());
    screen.enter();
    DecimalField* field = screen.byName();
    QVERIFY(field);
    QTest::keyClicks(field, keys);
    QCOMPARE(field->text(), text);
    QCOMPARE(field->cursorPosition(), text.size());
}

void tst_DecimalField::digitTypedInFrontOfAFullIntegerPartIsTakenBack()
{
    Screen screen(DecimalField::TotalValue);
    QVERIFY(screen.ready());
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("1234567890123,4"));
    QTest::keyClick(screen.field, Qt::Key_Home);
    QTest::keyClick(screen.field, Qt::Key_9);
    QCOMPARE(screen.field->text(), QStringLiteral("1234567890123,4"));
    QCOMPARE(screen.field->cursorPosition(), 0);
    // With room in the integer part the digit stays.
    screen.field->clear();
    QTest::keyClicks(screen.field, QStringLiteral("12,5"));
    QTest::keyClick(screen.field, Qt::Key_Home);
    QTest::keyClick(screen.field, Qt::Key_3);
    QCOMPARE(screen.field->text(), QStringLiteral("312,5"));
}

// The old rule looks at the text alone: a full field takes only Backspace, even when its text is selected.
void tst_DecimalField::fullFieldDropsEveryKeyButBackspaceEvenOverASelection()
{
    Screen screen(DecimalField::Quantity);
    QVERIFY(screen.ready());
    screen.field->setValue(QStringLiteral("123456789,12345"));
    QCOMPARE(screen.field->text(), QStringLiteral("123.456.789,12345"));
    screen.enter();
    QTRY_COMPARE(screen.field->selectedText(), QStringLiteral("123456789,12345"));
    QTest::keyClick(screen.field, Qt::Key_5);
    QCOMPARE(screen.field->text(), QStringLiteral("123456789,12345"));
    QTest::keyClick(screen.field, Qt::Key_Backspace);
    QCOMPARE(screen.field->text(), QString());
    QTest::keyClick(screen.field, Qt::Key_5);
    QCOMPARE(screen.field->text(), QStringLiteral("5"));
}

void tst_DecimalField::leaving_data()
{
    QTest::addColumn<DecimalField::Family>("family");
    QTest::addColumn<QString>("zeroMessage");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("value");
    QTest::newRow("zero in a monthly quantity") << DecimalField::Quantity << ZeroMessage::NotEqualZeroPoder << "0"
                                                << "Este campo não poder ser igual a zero." << "0" << "0,00000";
    QTest::newRow("zero in a monthly field") << DecimalField::Quantity << ZeroMessage::NotEqualZero << "0"
                                             << "Este campo não pode ser igual a zero." << "0" << "0,00000";
    QTest::newRow("zero in the individual editor") << DecimalField::Quantity << ZeroMessage::GreaterThanZero << "0"
                                                   << "Campo deve ser maior que zero." << "0" << "0,00000";
    QTest::newRow("zero with decimals") << DecimalField::TotalValue << ZeroMessage::NotZero << "0,00"
                                        << "Este campo não pode ser zero." << "0,00" << "0,00";
    QTest::newRow("zero passes a field without zero test") << DecimalField::Rate << QString() << "0" << QString()
                                                           << "0,00" << "0,00";
    QTest::newRow("empty field passes") << DecimalField::Quantity << ZeroMessage::NotEqualZero << "" << QString()
                                        << "" << "";
    QTest::newRow("quantity grouped once left") << DecimalField::Quantity << ZeroMessage::NotEqualZero << "1234567,5"
                                                << QString() << "1.234.567,50000" << "1234567,50000";
    QTest::newRow("total value grouped once left") << DecimalField::TotalValue << ZeroMessage::NotEqualZero
                                                   << "123456789012345" << QString() << "1.234.567.890.123,45"
                                                   << "1234567890123,45";
    QTest::newRow("unit value grouped once left") << DecimalField::UnitValue << ZeroMessage::GreaterThanZero
                                                  << "1234567890123,1234567" << QString()
                                                  << "1.234.567.890.123,1234567" << "1234567890123,1234567";
    QTest::newRow("rate without comma") << DecimalField::Rate << QString() << "12" << QString() << "12,00"
                                        << "12,00";
    QTest::newRow("fraction of a quantity") << DecimalField::Quantity << ZeroMessage::NotEqualZero << "0,5"
                                            << QString() << "0,50000" << "0,50000";
}

void tst_DecimalField::leaving()
{
    QFETCH(DecimalField::Family, family);
    QFETCH(QString, zeroMessage);
    QFETCH(QString, keys);
    QFETCH(QString, message);
    QFETCH(QString, shown);
    QFETCH(QString, value);
    Screen screen(family, zeroMessage);
    QVERIFY(screen.ready());
    MensagensRoteiro msgs;
    if (!message.isEmpty())
        msgs.responde(Msg::OK);
    QSignalSpy refused(screen.field, &DecimalField::leaveRefused);
    screen.enter();
    QTest::keyClicks(screen.field, keys);
    screen.leave();
    if (message.isEmpty()) {
        QCOMPARE(msgs.caixas.size(), 0);
        QTRY_VERIFY(screen.next->hasFocus());
        QCOMPARE(refused.size(), 0);
    } else {
        QCOMPARE(msgs.textos(), QStringList{message});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
        QCOMPARE(msgs.caixas.at(0).botoes(), Msg::OKOnly);
        QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
        QTRY_VERIFY(screen.field->hasFocus());
        QCOMPARE(refused.size(), 1);
    }
    QCOMPARE(msgs.inesperadas, 0);
    QCOMPARE(screen.field->text(), shown);
    QCOMPARE(screen.field->value(), value);
}

void tst_DecimalField::pastedCommaBeyondTheLimitStopsTheUserOnLeaving_data()
{
    QTest::addColumn<DecimalField::Family>("family");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("message");
    QTest::newRow("unit value with fourteen integers") << DecimalField::UnitValue << "12345678901234,5"
                                                       << "Formato inválido! Devem ser no máximo 13 inteiros e 7 decimais!";
    QTest::newRow("total value with fourteen integers") << DecimalField::TotalValue << "12345678901234,5"
                                                        << "Formato inválido! Devem ser no máximo 13 inteiros e 2 decimais!";
    QTest::newRow("quantity with ten integers") << DecimalField::Quantity << "1234567890,5"
                                                << "Formato inválido! Devem ser no máximo 9 inteiros e 5 decimais!";
    QTest::newRow("rate with four integers") << DecimalField::Rate << "1234,5"
                                             << "Formato inválido! Devem ser no máximo 3 inteiros e 2 decimais!";
}

void tst_DecimalField::pastedCommaBeyondTheLimitStopsTheUserOnLeaving()
{
    QFETCH(DecimalField::Family, family);
    QFETCH(QString, pasted);
    QFETCH(QString, message);
    Screen screen(family, ZeroMessage::NotEqualZero);
    QVERIFY(screen.ready());
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    screen.enter();
    QApplication::clipboard()->setText(pasted);
    QCOMPARE(QApplication::clipboard()->text(), pasted);
    QTest::keyClick(screen.field, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(screen.field->text(), pasted);
    screen.leave();
    QCOMPARE(msgs.textos(), QStringList{message});
    QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
    QCOMPARE(msgs.inesperadas, 0);
    QTRY_VERIFY(screen.field->hasFocus());
    QCOMPARE(screen.field->text(), pasted);
}

void tst_DecimalField::pastedLongDigitsGetTheCommaAndLoseExtraDecimals()
{
    Screen screen(DecimalField::Quantity);
    QVERIFY(screen.ready());
    screen.enter();
    QApplication::clipboard()->setText(QStringLiteral("1.234.567.890.123"));
    QTest::keyClick(screen.field, Qt::Key_V, Qt::ControlModifier);
    // Grouping dots go, the comma comes after the ninth digit, the decimals beyond five are taken back.
    QCOMPARE(screen.field->text(), QStringLiteral("123456789,0123"));
}

void tst_DecimalField::refusedFieldGetsItsTabAndFocusBack()
{
    Screen screen(DecimalField::Quantity, ZeroMessage::GreaterThanZero);
    QVERIFY(screen.ready());
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("0"));
    // Another tab comes to the front: the field loses the focus with its page.
    screen.tabs->setCurrentIndex(1);
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("Campo deve ser maior que zero.")});
    QTRY_VERIFY(screen.field->hasFocus());
    QCOMPARE(screen.tabs->currentIndex(), 0);
    QCOMPARE(msgs.inesperadas, 0);
}

void tst_DecimalField::focusSelectsThePlainText()
{
    Screen screen(DecimalField::Quantity);
    QVERIFY(screen.ready());
    screen.field->setValue(QStringLiteral("1234567,5"));
    QCOMPARE(screen.field->text(), QStringLiteral("1.234.567,50000"));
    screen.enter();
    QCOMPARE(screen.field->text(), QStringLiteral("1234567,50000"));
    QTRY_COMPARE(screen.field->selectedText(), QStringLiteral("1234567,50000"));
    // Typing replaces the whole text.
    QTest::keyClicks(screen.field, QStringLiteral("7"));
    QCOMPARE(screen.field->text(), QStringLiteral("7"));
}

void tst_DecimalField::mouseClickSelectsTheWholeText()
{
    Screen screen(DecimalField::TotalValue);
    QVERIFY(screen.ready());
    screen.field->setValue(QStringLiteral("15,5"));
    screen.next->setFocus();
    QTest::mouseClick(screen.field, Qt::LeftButton, Qt::NoModifier, QPoint(3, screen.field->height() / 2));
    QTRY_VERIFY(screen.field->hasFocus());
    QTRY_COMPARE(screen.field->selectedText(), QStringLiteral("15,50"));
}

void tst_DecimalField::windowLosingFocusRunsNoCheck()
{
    Screen screen(DecimalField::Quantity, ZeroMessage::NotEqualZero);
    QVERIFY(screen.ready());
    MensagensRoteiro msgs;
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("0"));
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(screen.field, &out);
    QCOMPARE(msgs.caixas.size(), 0);
    QCOMPARE(screen.field->text(), QStringLiteral("0"));
}

void tst_DecimalField::extraCheckRunsAfterTheFamilyChecks()
{
    Screen screen(DecimalField::Rate, ZeroMessage::NotEqualZero);
    QVERIFY(screen.ready());
    screen.field->setExtraCheck([](const QString& text) {
        if (Funcoes::ValorNumerico(text) < 100)
            return true;
        MsgBox(QStringLiteral("o coeficiente de redução deve ser um valor entre 0 e 100%."), Msg::Critical);
        return false;
    });
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    screen.enter();
    QTest::keyClicks(screen.field, QStringLiteral("100"));
    screen.leave();
    QCOMPARE(msgs.textos(), QStringList{QStringLiteral("o coeficiente de redução deve ser um valor entre 0 e 100%.")});
    QTRY_VERIFY(screen.field->hasFocus());
    QCOMPARE(screen.field->text(), QStringLiteral("100"));
    msgs.limpa();
    QTest::keyClick(screen.field, Qt::Key_Backspace);
    QTest::keyClicks(screen.field, QStringLiteral("99,5"));
    screen.leave();
    QCOMPARE(msgs.caixas.size(), 0);
    QCOMPARE(screen.field->text(), QStringLiteral("99,50"));
}

void tst_DecimalField::valueAndSetValue_data()
{
    QTest::addColumn<DecimalField::Family>("family");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("value");
    QTest::newRow("quantity") << DecimalField::Quantity << "1234,5" << "1.234,50000" << "1234,50000";
    QTest::newRow("total value") << DecimalField::TotalValue << "1234567,891" << "1.234.567,89" << "1234567,89";
    QTest::newRow("unit value of twenty digits")
        << DecimalField::UnitValue << "9999999999999,9999999" << "9.999.999.999.999,9999999" << "9999999999999,9999999";
    QTest::newRow("rate") << DecimalField::Rate << "5" << "5,00" << "5,00";
    QTest::newRow("empty") << DecimalField::Quantity << "" << "" << "";
}

void tst_DecimalField::valueAndSetValue()
{
    QFETCH(DecimalField::Family, family);
    QFETCH(QString, stored);
    QFETCH(QString, shown);
    QFETCH(QString, value);
    DecimalField field(family, QStringLiteral("campo"));
    field.setValue(stored);
    QCOMPARE(field.text(), shown);
    QCOMPARE(field.value(), value);
}

void tst_DecimalField::formatMessagesOfTheFourFamilies()
{
    QCOMPARE(DecimalField(DecimalField::UnitValue, QStringLiteral("a")).formatMessage(),
             QStringLiteral("Formato inválido! Devem ser no máximo 13 inteiros e 7 decimais!"));
    QCOMPARE(DecimalField(DecimalField::TotalValue, QStringLiteral("b")).formatMessage(),
             QStringLiteral("Formato inválido! Devem ser no máximo 13 inteiros e 2 decimais!"));
    QCOMPARE(DecimalField(DecimalField::Quantity, QStringLiteral("c")).formatMessage(),
             QStringLiteral("Formato inválido! Devem ser no máximo 9 inteiros e 5 decimais!"));
    QCOMPARE(DecimalField(DecimalField::Rate, QStringLiteral("d")).formatMessage(),
             QStringLiteral("Formato inválido! Devem ser no máximo 3 inteiros e 2 decimais!"));
}

QTEST_MAIN(tst_DecimalField)
#include "tst_DecimalField.moc"
