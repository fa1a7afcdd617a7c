#pragma once
// A text field that takes digits only (item, adição, month, year, bank and the like). Two filters, as the old
// fields had: a key other than a digit or Backspace is dropped, and a change that leaves a text with anything
// but digits (a paste) gets Backspaces until it has none. Optional: more accepted characters (the "X" of an
// account), upper case, a zero test, the rewriting to a fixed width ("000") on leaving, and a display format
// shown while the field is not being typed in (an invoice number "000,000" shows "004.567").
//     txtItem = new DigitField("txt100NacionalIndividual(0)", 3, this);
//     txtItem->setZeroMessage(ZeroMessage::GreaterThanZero).setPadWidth(3);
//     txtNumero->setDisplayFormat("000,000");   // read it with value(), fill it with setValue()
#include "gui/widgets/CheckedField.h"
#include "gui/widgets/TypingLimit.h"

class DigitField : public CheckedField {
    Q_OBJECT
public:
    DigitField(const QString& name, int maxLength, QWidget* parent = nullptr);

    DigitField& setExtraCharacters(const QString& characters);
    DigitField& setUpperCase(bool upper);
    // A non-empty message makes a value of zero refused on leaving, with the critical icon.
    DigitField& setZeroMessage(const QString& message);
    // On leaving, a filled field is rewritten with zeros in front up to this width (0: no rewriting).
    DigitField& setPadWidth(int width);
    // A number format (FormataNumero) for the display once the field is left or filled by the program; with the
    // focus the field shows the digits as typed again.
    DigitField& setDisplayFormat(const QString& format);

    // The digits as typed, without the display format's zeros and grouping.
    QString value() const;
    // Fills the field; without the focus it shows the value through the display format.
    void setValue(const QString& value);

    bool checkLeave() override;
    // The most characters the user may type; a longer value set by the program is kept whole.
    int typingLimit() const { return m_limit.limit(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    bool accepts(QChar c) const;
    void onTextEdited(const QString& text);
    void showDisplay();

    TypingLimit m_limit;
    QString m_extra;
    bool m_upper = false;
    int m_padWidth = 0;
    QString m_displayFormat;
    QString m_plain;    // the value behind the display
    QString m_display;  // the display last shown
    bool m_adjusting = false;
};
