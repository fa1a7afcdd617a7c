#include "gui/widgets/OkCancelRow.h"

#include <QHBoxLayout>
#include <QPushButton>

QHBoxLayout* okCancelRow(QWidget* screen, QPushButton*& cmdOk, QPushButton*& cmdCancela)
{
    auto* botoes = new QHBoxLayout;
    botoes->addStretch(1);
    cmdOk = new QPushButton(QStringLiteral("Ok"), screen);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdCancela = new QPushButton(QStringLiteral("Cancela"), screen);
    cmdCancela->setObjectName(QStringLiteral("cmdCancela"));
    botoes->addWidget(cmdOk);
    botoes->addWidget(cmdCancela);
    return botoes;
}
