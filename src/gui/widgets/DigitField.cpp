#include "gui/widgets/DigitField.h"

#include "core/rules/Formatadores.h"
#include "core/rules/FormatoNumero.h"
#include "gui/widgets/FieldFocus.h"

#include <QKeyEvent>

DigitField::DigitField(const QString& name, int maxLength, QWidget* parent) : CheckedField(parent), m_limit(this, maxLength)
{
    setObjectName(name);
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

DigitField& DigitField::setDisplayFormat(const QString& format)
{
    m_displayFormat = format;
    return *this;
}

QString DigitField::value() const
{
    // The display stands only until the text changes; anything else in the field is its own value.
    if (!m_display.isEmpty() && text() == m_display)
        return m_plain;
    return text();
}

void DigitField::setValue(const QString& value)
{
    m_display.clear();
    setText(value);
    if (!hasFocus())
        showDisplay();
}

void DigitField::showDisplay()
{
    const QString plain = value();
    if (m_displayFormat.isEmpty() || plain.isEmpty() || !Funcoes::EhNumerico(plain))
        return;
    m_plain = plain;
    m_display = Funcoes::FormataNumero(plain, m_displayFormat);
    setText(m_display);
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
    m_limit.trimEdit();
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
        setModified(true);
        end(false);
    }
    m_adjusting = false;
}

void DigitField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (!m_display.isEmpty() && text() == m_display)
        setText(m_plain);
    m_display.clear();
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
    showDisplay();
    return true;
}
