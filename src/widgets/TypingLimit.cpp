#include "widgets/TypingLimit.h"

#include <QLineEdit>

TypingLimit::TypingLimit(QLineEdit* field, int limit) : m_field(field), m_limit(limit)
{
    // QLineEdit's own maximum would cut a longer value set by the program.
    field->setMaxLength(32767);
    QObject::connect(field, &QLineEdit::textChanged, field, [this] { m_before = m_field->text(); });
}

void TypingLimit::trimEdit()
{
    const QString text = m_field->text();
    const qsizetype room = qMax<qsizetype>(m_limit, m_before.size());
    const qsizetype excess = text.size() - room;
    if (excess <= 0)
        return;
    const int caret = m_field->cursorPosition();
    const qsizetype from = qMax<qsizetype>(0, caret - excess);
    QString kept = text;
    kept.remove(from, qMin<qsizetype>(excess, caret - from));
    if (kept.size() > room)
        kept.truncate(room);
    m_field->setText(kept);
    m_field->setCursorPosition(int(from));
}
