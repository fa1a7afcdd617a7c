#pragma once
// A window holding one entry field and a plain field after it, so that a test can enter the field, type into it
// and leave it with Tab as a user would. The field is built by the test and handed over.
//     TelaCampo<DigitField> tela(new DigitField(QStringLiteral("txtItem"), 3));
#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

template <class Campo>
struct TelaCampo {
    QWidget window;
    Campo* field;
    QLineEdit* next;

    explicit TelaCampo(Campo* campo) : field(campo)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        next = new QLineEdit;
        layout->addWidget(next);
        window.show();
        window.activateWindow();
    }
    bool ready() { return QTest::qWaitForWindowActive(&window); }
    Campo* byName(const QString& nome) { return window.findChild<Campo*>(nome); }
    // Enters the field as Tab would, and lets the deferred selection run.
    void enter()
    {
        field->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
    }
};
