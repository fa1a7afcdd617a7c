#include "gui/widgets/DecimalField.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "gui/widgets/FieldFocus.h"

#include <QKeyEvent>

namespace {

struct FamilyLimits {
    int integers;
    int decimals;
    const char* display;
    const char* store;
};

FamilyLimits limitsOf(DecimalField::Family family)
{
    switch (family) {
    case DecimalField::UnitValue: return {13, 7, "#,###,###,###,##0.0000000", "0.0000000"};
    case DecimalField::TotalValue: return {13, 2, "#,###,###,###,##0.00", "0.00"};
    case DecimalField::Quantity: return {9, 5, "###,###,##0.00000", "0.00000"};
    case DecimalField::Rate: break;
    }
    return {3, 2, "##0.00", "0.00"};
}

// Keys the field throws away whatever the text holds.
bool isDroppedKey(const QString& text)
{
    return text == QLatin1String(" ") || text == QLatin1String("-") || text == QLatin1String("+")
           || text == QLatin1String(".");
}

bool isTypedCharacter(const QKeyEvent* event)
{
    const QString t = event->text();
    return !t.isEmpty() && t.at(0).isPrint() && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

}  // namespace

DecimalField::DecimalField(Family family, const QString& name, const QString& zeroMessage, QWidget* parent)
    : CheckedField(parent), m_family(family)
{
    const FamilyLimits limits = limitsOf(family);
    m_integers = limits.integers;
    m_decimals = limits.decimals;
    m_displayFormat = QString::fromLatin1(limits.display);
    m_storeFormat = QString::fromLatin1(limits.store);
    m_zeroMessage = zeroMessage;
    setObjectName(name);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QLineEdit::textEdited, this, &DecimalField::onTextEdited);
}

QString DecimalField::formatMessage() const
{
    return QStringLiteral("Formato inválido! Devem ser no máximo %1 inteiros e %2 decimais!")
        .arg(m_integers)
        .arg(m_decimals);
}

QString DecimalField::value() const
{
    return Funcoes::FormataNumero(text(), m_storeFormat);
}

void DecimalField::setValue(const QString& storedValue)
{
    setText(Funcoes::FormataNumero(storedValue, m_displayFormat));
}

// The comma right behind the full integer part and every decimal typed: only Backspace may change the text.
bool DecimalField::isFull() const
{
    const QString t = text();
    return t.indexOf(QLatin1Char(',')) == m_integers && t.size() == m_integers + 1 + m_decimals;
}

// The text without grouping, as it is typed.
QString DecimalField::plainText() const
{
    QString t = text();
    if (Funcoes::EhNumerico(t))
        t.remove(QLatin1Char('.'));
    return t;
}

void DecimalField::keyPressEvent(QKeyEvent* event)
{
    const bool typed = isTypedCharacter(event);
    if (typed && (isDroppedKey(event->text()) || isFull())) {
        event->accept();
        return;
    }
    m_keyTyped = typed;
    QLineEdit::keyPressEvent(event);
    m_keyTyped = false;
}

void DecimalField::onTextEdited(const QString&)
{
    if (m_adjusting)
        return;
    m_adjusting = true;
    // Dots cannot be typed; in a pasted text they are grouping.
    if (text().contains(QLatin1Char('.'))) {
        const int caret = cursorPosition() - text().left(cursorPosition()).count(QLatin1Char('.'));
        setText(QString(text()).remove(QLatin1Char('.')));
        setCursorPosition(caret);
    }
    // A character typed is judged against the layout; a pasted text is left for the leave check to judge.
    const bool typedOne = m_keyTyped;
    for (int guard = 0; guard < 64; ++guard) {
        const QString t = text();
        const int comma = t.indexOf(QLatin1Char(','));
        bool illegal = false;
        if (comma < 0 && t.size() > m_integers) {
            // Digits alone: the comma arrives by itself behind the last integer position.
            setText(t.left(m_integers) + QLatin1Char(',') + t.mid(m_integers));
            end(false);
            continue;
        }
        if (t.count(QLatin1Char(',')) > 1 || (!t.isEmpty() && !Funcoes::EhNumerico(t)))
            illegal = true;
        else if (comma >= 0 && t.size() - comma - 1 > m_decimals)
            illegal = true;
        else if (typedOne && comma > m_integers)
            illegal = true;
        if (!illegal)
            break;
        // The old field was sent a Backspace key: the character before the caret goes.
        const int before = t.size();
        backspace();
        if (text().size() == before)
            break;
    }
    m_adjusting = false;
}

void DecimalField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (!isEntryToSelect(event))
        return;
    const QString plain = plainText();
    if (plain != text())
        setText(plain);
    selectAllLater(this);
}

bool DecimalField::checkLeave()
{
    const QString t = text();
    if (t.trimmed().isEmpty())
        return true;
    if (refusesZero(t))
        return false;
    if (plainText().indexOf(QLatin1Char(',')) > m_integers) {
        MsgBox(formatMessage(), Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (m_extraCheck && !m_extraCheck(t))
        return false;
    if (Funcoes::EhNumerico(t))
        setText(Funcoes::FormataNumero(t, m_displayFormat));
    return true;
}
