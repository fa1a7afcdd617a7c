#include "gui/widgets/TextField.h"

#include "core/rules/CaracteresTexto.h"

#include <QKeyEvent>
#include <QTimer>

TextField::TextField(const QString& name, int maxLength, QWidget* parent) : QLineEdit(parent)
{
    setObjectName(name);
    setMaxLength(maxLength);
    connect(this, &QLineEdit::textEdited, this, &TextField::onTextEdited);
}

TextField& TextField::refuseSpecialCharacters()
{
    m_refused += Funcoes::CaracteresEspeciais;
    return *this;
}

TextField& TextField::refuseCharacters(const QString& characters)
{
    m_refused += characters;
    return *this;
}

TextField& TextField::acceptLettersAndDigitsOnly(bool only)
{
    m_lettersAndDigits = only;
    return *this;
}

TextField& TextField::setUpperCase(bool upper)
{
    m_upper = upper;
    return *this;
}

TextField& TextField::setSelectAllOnFocus(bool selectAll)
{
    m_selectAll = selectAll;
    return *this;
}

bool TextField::accepts(QChar c) const
{
    if (!Funcoes::CabeEmWindows1252(c) || m_refused.contains(c))
        return false;
    return !m_lettersAndDigits || c.isLetterOrNumber();
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    const QString t = event->text();
    const bool typed = !t.isEmpty() && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
                       && (t.at(0).isPrint() || t.at(0).isSurrogate());
    if (typed) {
        for (QChar c : t) {
            if (!accepts(c)) {
                event->accept();
                return;
            }
        }
    }
    QLineEdit::keyPressEvent(event);
}

// A paste or a drop brings text past the key filter: the characters the field refuses are taken out of it.
void TextField::onTextEdited(const QString&)
{
    if (m_adjusting)
        return;
    m_adjusting = true;
    const QString t = text();
    QString kept;
    int caret = cursorPosition();
    for (int i = 0; i < t.size(); ++i) {
        if (accepts(t.at(i)))
            kept += t.at(i);
        else if (i < cursorPosition())
            --caret;
    }
    if (m_upper)
        kept = kept.toUpper();
    if (kept != t) {
        setText(kept);
        setCursorPosition(m_upper ? kept.size() : caret);
    } else if (m_upper) {
        end(false);
    }
    m_adjusting = false;
}

void TextField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    // Deferred: the old field received the End key after the click had placed the caret.
    QTimer::singleShot(0, this, [this] {
        if (!hasFocus())
            return;
        if (m_selectAll)
            selectAll();
        else
            end(false);
    });
}
