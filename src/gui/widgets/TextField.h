#pragma once
// A free-text field (product code, names, justifications, series). When it gets the focus the caret goes behind
// what is already there, as the old fields did by sending themselves the End key. It never takes a character
// that Windows-1252, the declaration file's encoding, cannot hold, and it can refuse more:
//     txtCodProdPE = new TextField("txtCodProdPE", 15, this);
//     txtCodProdPE->refuseSpecialCharacters();                  // the VerificaCaracterEspecial set
//     txtJustifLegalAliqIIPE->refuseCharacters("'");            // justifications drop the apostrophe
#include <QLineEdit>

class TextField : public QLineEdit {
    Q_OBJECT
public:
    TextField(const QString& name, int maxLength, QWidget* parent = nullptr);

    // The characters of VerificaCaracterEspecial, the quotes among them.
    TextField& refuseSpecialCharacters();
    // Characters refused besides those Windows-1252 lacks.
    TextField& refuseCharacters(const QString& characters);
    // Letters and digits only (the individual editor's series).
    TextField& acceptLettersAndDigitsOnly(bool only = true);
    // The text forced to capitals after each change, the caret sent to its end.
    TextField& setUpperCase(bool upper = true);
    // Select the whole text on focus instead of placing the caret at the end.
    TextField& setSelectAllOnFocus(bool selectAll = true);

    bool accepts(QChar c) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void onTextEdited(const QString& text);

    QString m_refused;
    bool m_lettersAndDigits = false;
    bool m_upper = false;
    bool m_selectAll = false;
    bool m_adjusting = false;
};
