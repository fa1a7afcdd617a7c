#pragma once
// Types a text key by key, each key event carrying its character, beyond Latin-1 too (QTest::keyClicks knows
// Latin-1 only).
#include <QString>
#include <QTest>
#include <QWidget>

inline void DigitaTexto(QWidget* campo, const QString& texto)
{
    for (const QChar c : texto) {
        QTest::sendKeyEvent(QTest::Press, campo, Qt::Key_unknown, QString(c), Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Release, campo, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}
