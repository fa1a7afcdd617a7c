#include "gui/widgets/DigitField.h"

#include "core/rules/Formatadores.h"
#include "gui/widgets/FieldFocus.h"

#include <QKeyEvent>

DigitField::DigitField(const QString& name, int maxLength, QWidget* parent) : CheckedField(parent)
{
    setObjectName(name);
    setMaxLength(maxLength);
    connect(this, &QLineEdit::textEdited, this, &DigitField::onTextEdited);
}

DigitField& DigitField::setExtraCharacters(const QString& characters)
{
    m_extra = characters;
    return *this;
}

DigitField& DigitField::setUpperCase(bool upper)
{
    m_upper = upper;
    return *this;
}

DigitField& DigitField::setZeroMessage(const QString& message)
{
    m_zeroMessage = message;
    return *this;
}

DigitField& DigitField::setPadWidth(int width)
{
    m_padWidth = width;
    return *this;
}

bool DigitField::accepts(QChar c) const
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || m_extra.contains(c);
}

void DigitField::keyPressEvent(QKeyEvent* event)
{
    const QString t = event->text();
    const bool typed = !t.isEmpty() && t.at(0).isPrint()
                       && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (typed && !accepts(t.at(0))) {
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DigitField::onTextEdited(const QString&)
{
    if (m_adjusting)
        return;
    m_adjusting = true;
    for (int guard = 0; guard < 64; ++guard) {
        const QString t = text();
        bool clean = true;
        for (QChar c : t)
            clean = clean && accepts(c);
        if (clean)
            break;
        backspace();
        if (text().size() == t.size())
            break;
    }
    if (m_upper && text() != text().toUpper()) {
        setText(text().toUpper());
        end(false);
    }
    m_adjusting = false;
}

void DigitField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (isEntryToSelect(event))
        selectAllLater(this);
}

bool DigitField::checkLeave()
{
    const QString t = text();
    if (t.isEmpty())
        return true;
    if (refusesZero(t))
        return false;
    if (m_padWidth > 0)
        setText(Funcoes::ZeroEsquerda(t, m_padWidth));
    return true;
}
