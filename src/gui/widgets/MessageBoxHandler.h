#pragma once
#include <QString>

// The program's message handler: a QMessageBox with the icon, buttons and default button of the style.
int ShowMessageBox(const QString& text, int style, const QString& title);
