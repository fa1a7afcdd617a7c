#pragma once
// Entry fields as wide as the text they take, in the screen's font, so that a full value is seen whole.
#include <QFontMetrics>
#include <QLineEdit>

inline void larguraParaTexto(QLineEdit* campo, const QString& modelo, bool fixa = false)
{
    const int largura = campo->fontMetrics().horizontalAdvance(modelo) + 16;
    if (fixa)
        campo->setFixedWidth(largura);
    else
        campo->setMinimumWidth(largura);
}
