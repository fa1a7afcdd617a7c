#include "gui/widgets/NcmField.h"

#include "core/lookups/BuscaNcm.h"
#include "core/session/MsgBox.h"

#include <QFocusEvent>

NcmField::NcmField(const QString& name, QWidget* parent) : MaskedField(QStringLiteral("####.##.##"), name, parent)
{
    connect(this, &QLineEdit::textChanged, this, &NcmField::onTextChanged);
}

NcmField& NcmField::setTargets(QLineEdit* description, QLineEdit* statisticalUnit)
{
    m_description = description;
    m_unit = statisticalUnit;
    return *this;
}

NcmField& NcmField::setClearCodeWhenNotFound(bool clear)
{
    m_clearCode = clear;
    return *this;
}

void NcmField::clearTargets()
{
    if (m_description)
        m_description->clear();
    if (m_unit)
        m_unit->clear();
}

void NcmField::onTextChanged()
{
    if (m_busy)
        return;
    m_busy = true;
    const QString code = digits();
    if (code.size() == 8) {
        QString description;
        QString unit;
        if (Funcoes::BuscaNcm(code, &description, &unit)) {
            if (m_description)
                m_description->setText(description);
            if (m_unit)
                m_unit->setText(unit);
            emit lookedUp(true);
        } else {
            MsgBox(QStringLiteral("Código NCM não encontrado!"), Msg::OKOnly | Msg::Critical);
            clearTargets();
            if (m_clearCode)
                clear();
            emit lookedUp(false);
        }
    } else if (code.isEmpty()) {
        if (m_description && !m_description->text().isEmpty())
            clearTargets();
    } else {
        clearTargets();
    }
    m_busy = false;
}

void NcmField::focusOutEvent(QFocusEvent* event)
{
    MaskedField::focusOutEvent(event);
    if (isBlank())
        clearTargets();
}
