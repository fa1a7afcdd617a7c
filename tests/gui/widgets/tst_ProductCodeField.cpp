#include "TestUtil.h"

#include "gui/widgets/ProductCodeField.h"

#include <QVBoxLayout>
#include <QtTest>

namespace {

struct Screen {
    QWidget window;
    ProductCodeField* field;
    QLineEdit* description;
    QLineEdit* next;

    Screen()
    {
        auto* layout = new QVBoxLayout(&window);
        field = new ProductCodeField(QStringLiteral("txtCodProd100N"));
        description = new QLineEdit;
        description->setObjectName(QStringLiteral("txtDescrProd100N"));
        next = new QLineEdit;
        layout->addWidget(field);
        layout->addWidget(next);
        layout->addWidget(description);
        field->setDescriptionField(description);
        window.show();
        window.activateWindow();
    }
    bool ready() { return QTest::qWaitForWindowActive(&window); }
};

void insereProdutos()
{
    for (const auto& [codigo, nome] : {std::pair{"P1", "Parafuso"}, std::pair{"P10", "Porca"}, std::pair{"AB7", "Arruela"}})
        BancoTeste::executa(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)"),
                            {QString::fromLatin1(codigo), QString::fromUtf8(nome)});
}

}  // namespace

class tst_ProductCodeField : public QObject {
    Q_OBJECT
private slots:
    void descriptionShowsWhenTheCodeIsCompleteAndUnique();
    void codeThatBeginsTwoProductsShowsNothing();
    void emptyCodeEmptiesTheDescription();
    void specialCharactersAreRefusedAndLengthIsFifteen();
};

void tst_ProductCodeField::descriptionShowsWhenTheCodeIsCompleteAndUnique()
{
    BancoTeste banco;
    insereProdutos();
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(screen.field, QStringLiteral("A"));
    QCOMPARE(screen.description->text(), QString());
    QTest::keyClicks(screen.field, QStringLiteral("b7"));
    QCOMPARE(screen.description->text(), QStringLiteral("Arruela"));
}

void tst_ProductCodeField::codeThatBeginsTwoProductsShowsNothing()
{
    BancoTeste banco;
    insereProdutos();
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(screen.field, QStringLiteral("P1"));
    QCOMPARE(screen.description->text(), QString());
    QTest::keyClicks(screen.field, QStringLiteral("0"));
    QCOMPARE(screen.description->text(), QStringLiteral("Porca"));
}

void tst_ProductCodeField::emptyCodeEmptiesTheDescription()
{
    BancoTeste banco;
    insereProdutos();
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setText(QStringLiteral("AB7"));
    QCOMPARE(screen.description->text(), QStringLiteral("Arruela"));
    screen.field->clear();
    QCOMPARE(screen.description->text(), QString());
    screen.description->setText(QStringLiteral("solta"));
    screen.field->setFocus(Qt::TabFocusReason);
    QTest::keyClick(screen.field, Qt::Key_Tab);
    QTRY_VERIFY(screen.next->hasFocus());
    QCOMPARE(screen.description->text(), QString());
}

void tst_ProductCodeField::specialCharactersAreRefusedAndLengthIsFifteen()
{
    BancoTeste banco;
    Screen screen;
    QVERIFY(screen.ready());
    screen.field->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(screen.field, QStringLiteral("A\"B'C-1234567890123456"));
    QCOMPARE(screen.field->text(), QStringLiteral("ABC123456789012"));
    QCOMPARE(screen.field->maxLength(), 15);
}

QTEST_MAIN(tst_ProductCodeField)
#include "tst_ProductCodeField.moc"
