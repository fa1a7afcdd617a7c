#include "gui/widgets/TypingLimit.h"

#include <QLineEdit>

TypingLimit::TypingLimit(QLineEdit* field, int limit) : m_field(field), m_limit(limit), m_room(limit)
{
    // QLineEdit's own maximum would cut a longer value set by the program.
    field->setMaxLength(32767);
    // A value set by the program (setText leaves the field unmodified) gives the room for the edits that follow.
    QObject::connect(field, &QLineEdit::textChanged, field, [this] {
        if (!m_field->isModified())
            m_room = qMax<qsizetype>(m_limit, m_field->text().size());
    });
}

void TypingLimit::trimEdit()
{
    const QString text = m_field->text();
    const qsizetype excess = text.size() - m_room;
    if (excess <= 0)
        return;
    const int caret = m_field->cursorPosition();
    const qsizetype from = qMax<qsizetype>(0, caret - excess);
    QString kept = text;
    kept.remove(from, qMin<qsizetype>(excess, caret - from));
    if (kept.size() > m_room)
        kept.truncate(m_room);
    m_field->setText(kept);
    m_field->setModified(true);
    m_field->setCursorPosition(int(from));
}
