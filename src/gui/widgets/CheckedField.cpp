#include "gui/widgets/CheckedField.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "gui/widgets/FieldFocus.h"

void CheckedField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (!isLeaveToCheck(event))
        return;
    if (checkLeave()) {
        emit leaveAccepted();
    } else {
        emit leaveRefused();
        returnFocusLater(this);
    }
}

bool CheckedField::refusesZero(const QString& text) const
{
    if (m_zeroMessage.isEmpty() || !Funcoes::EhZero(text))
        return false;
    MsgBox(m_zeroMessage, Msg::OKOnly | Msg::Critical);
    return true;
}
