#include "gui/widgets/MaskedField.h"

#include "core/rules/FormatoNumero.h"
#include "gui/widgets/FieldFocus.h"

#include <QFocusEvent>

MaskedField::MaskedField(const QString& mask, const QString& name, QWidget* parent)
    : QLineEdit(parent), m_mask(mask), m_positions(mask.count(QLatin1Char('#')))
{
    setObjectName(name);
    setInputMask(toInputMask(mask));
}

void MaskedField::setMask(const QString& mask)
{
    m_mask = mask;
    m_positions = int(mask.count(QLatin1Char('#')));
    clear();
    setInputMask(toInputMask(mask));
}

QString MaskedField::toInputMask(const QString& oldMask)
{
    static const QString metaCharacters = QStringLiteral("AaNnXx90DdHhBb#><![]{}\\;");
    QString out;
    for (QChar c : oldMask) {
        if (c == QLatin1Char('#'))
            out += QLatin1Char('9');
        else if (metaCharacters.contains(c))
            out += QLatin1Char('\\') + QString(c);
        else
            out += c;
    }
    return out + QStringLiteral("; ");
}

QString MaskedField::digits() const
{
    return Funcoes::SoDigitos(text());
}

void MaskedField::setDigits(const QString& digits)
{
    setText(Funcoes::SoDigitos(digits));
}

bool MaskedField::isComplete() const
{
    return digits().size() == m_positions;
}

void MaskedField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (isEntryToSelect(event))
        selectAllLater(this);
}
