#include "gui/widgets/OkCancelRow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

QHBoxLayout* okCancelRow(QWidget* screen, QPushButton*& cmdOk, QPushButton*& cmdCancela)
{
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    cmdOk = new QPushButton(QStringLiteral("&Ok"), screen);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdCancela = new QPushButton(QStringLiteral("&Cancela"), screen);
    cmdCancela->setObjectName(QStringLiteral("cmdCancela"));
    botoes->addWidget(cmdOk);
    botoes->addWidget(cmdCancela);
    return botoes;
}

void teclasOkCancela(QWidget* screen, QPushButton* ok, QPushButton* cancela)
{
    const auto clica = [](QPushButton* botao) {
        if (botao->isEnabled() && botao->isVisible())
            botao->click();
    };
    for (int tecla : {int(Qt::Key_Return), int(Qt::Key_Enter)}) {
        auto* atalho = new QShortcut(QKeySequence(tecla), screen);
        atalho->setContext(Qt::WidgetWithChildrenShortcut);
        // A button that has the focus is the one Enter presses, as in a dialog.
        QObject::connect(atalho, &QShortcut::activated, ok, [screen, ok, clica] {
            auto* focado = qobject_cast<QPushButton*>(QApplication::focusWidget());
            clica(focado && screen->isAncestorOf(focado) ? focado : ok);
        });
    }
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), screen);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(escape, &QShortcut::activated, cancela, [cancela, clica] { clica(cancela); });
}
