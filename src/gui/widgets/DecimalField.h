#pragma once
// The decimal value field of the editors: text of digits and one comma, in one of four families by its limits
// (13+7, 13+2, 9+5, 3+2). One class serves every such field; a screen chooses the family, the name and the
// zero message, and may change the display format:
//     mskPE[2] = new DecimalField(DecimalField::Quantity, "mskPE(2)", ZeroMessage::NotEqualZeroPoder, this);
//
// While it has the focus the field holds the plain text being typed ("1234567,5"); once left it shows the
// grouped display of its format ("1.234.567,50000"). value() gives the text the store keeps ("1234567,50000").
#include "gui/widgets/CheckedField.h"

#include <functional>

// The four texts the editors show for a value of zero; the caller picks the one its screen uses.
namespace ZeroMessage {
inline const QString NotEqualZero = QStringLiteral("Este campo não pode ser igual a zero.");
// The monthly editor's quantity text, with its "poder".
inline const QString NotEqualZeroPoder = QStringLiteral("Este campo não poder ser igual a zero.");
inline const QString GreaterThanZero = QStringLiteral("Campo deve ser maior que zero.");
inline const QString NotZero = QStringLiteral("Este campo não pode ser zero.");
}  // namespace ZeroMessage

class DecimalField : public CheckedField {
    Q_OBJECT
public:
    enum Family {
        UnitValue,   // 13 integers, 7 decimals
        TotalValue,  // 13 integers, 2 decimals
        Quantity,    // 9 integers, 5 decimals
        Rate         // 3 integers, 2 decimals
    };

    // An empty zeroMessage means the field has no zero test.
    DecimalField(Family family, const QString& name, const QString& zeroMessage = QString(),
                 QWidget* parent = nullptr);

    Family family() const { return m_family; }
    int integers() const { return m_integers; }
    int decimals() const { return m_decimals; }
    // The family's message for a comma beyond the integer limit.
    QString formatMessage() const;

    // The format of the display once the field is left; each family has its default.
    void setDisplayFormat(const QString& format) { m_displayFormat = format; }
    QString displayFormat() const { return m_displayFormat; }
    void setZeroMessage(const QString& message) { m_zeroMessage = message; }
    QString zeroMessage() const { return m_zeroMessage; }
    // A further test run on leaving after the family's own, for fields with a rule of their own (a reduction
    // coefficient below 100). It shows its own message and returns false to keep the focus in the field.
    void setExtraCheck(std::function<bool(const QString& text)> check) { m_extraCheck = std::move(check); }

    // The text the store keeps: the value through the family's plain format ("0.00000" for quantities), or
    // empty for an empty field.
    QString value() const;
    // Shows a stored value by the display format; an empty value empties the field.
    void setValue(const QString& storedValue);

    // On success a filled field takes its grouped display.
    bool checkLeave() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void onTextEdited(const QString& text);
    bool isFull() const;
    QString plainText() const;

    Family m_family;
    int m_integers;
    int m_decimals;
    QString m_displayFormat;
    QString m_storeFormat;
    std::function<bool(const QString&)> m_extraCheck;
    bool m_keyTyped = false;
    bool m_adjusting = false;
};
