#pragma once
// A masked edit box: a mask written the old way ("####.##.##", "##/#######-#", "##.###.###/####-##"), whose
// "#" take one digit each and whose other characters stand fixed; the prompt is blank, and the whole text is
// selected when the field gets the focus. digits() hands over the digits without the mask's punctuation, as
// the rules and the store want them.
//     mskNumNCM100 = new MaskedField("####.##.##", "mskNumNCM100", this);
#include <QLineEdit>

class MaskedField : public QLineEdit {
    Q_OBJECT
public:
    MaskedField(const QString& mask, const QString& name, QWidget* parent = nullptr);

    QString mask() const { return m_mask; }
    // Another mask for the same field (a person's number as CNPJ or CPF); the text is emptied.
    void setMask(const QString& mask);
    // The digits typed, without punctuation and blanks.
    QString digits() const;
    // Fills the field from digits (a stored value); an empty text empties it.
    void setDigits(const QString& digits);
    // Every position of the mask holds a digit.
    bool isComplete() const;
    bool isBlank() const { return digits().isEmpty(); }

    // The old mask written as a toolkit input mask with a blank prompt.
    static QString toInputMask(const QString& oldMask);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    QString m_mask;
    int m_positions;
};
