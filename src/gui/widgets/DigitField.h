#pragma once
// A text field that takes digits only (item, adição, month, year, bank and the like). Two filters, as the old
// fields had: a key other than a digit or Backspace is dropped, and a change that leaves a text with anything
// but digits (a paste) gets Backspaces until it has none. Optional: more accepted characters (the "X" of an
// account), upper case, a zero test and the rewriting to a fixed width ("000") on leaving.
//     txtItem = new DigitField("txt100NacionalIndividual(0)", 3, this);
//     txtItem->setZeroMessage(ZeroMessage::GreaterThanZero).setPadWidth(3);
#include "gui/widgets/CheckedField.h"

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

    bool checkLeave() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    bool accepts(QChar c) const;
    void onTextEdited(const QString& text);

    QString m_extra;
    bool m_upper = false;
    int m_padWidth = 0;
    bool m_adjusting = false;
};
