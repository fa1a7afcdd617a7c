#include "gui/widgets/ProductCodeField.h"

#include "core/lookups/BuscaProduto.h"

#include <QFocusEvent>

ProductCodeField::ProductCodeField(const QString& name, QWidget* parent) : TextField(name, 15, parent)
{
    refuseSpecialCharacters();
    connect(this, &QLineEdit::textChanged, this, &ProductCodeField::onTextChanged);
}

ProductCodeField& ProductCodeField::setDescriptionField(QLineEdit* description)
{
    m_description = description;
    return *this;
}

void ProductCodeField::onTextChanged(const QString& text)
{
    if (!m_description)
        return;
    if (text.isEmpty()) {
        if (!m_description->text().isEmpty())
            m_description->clear();
        return;
    }
    m_description->setText(modVRTPLN::BuscaProduto(text, false));
}

void ProductCodeField::focusOutEvent(QFocusEvent* event)
{
    TextField::focusOutEvent(event);
    if (text().isEmpty() && m_description)
        m_description->clear();
}
