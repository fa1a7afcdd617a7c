#pragma once
// The NCM field of every item tab: mask "####.##.##", and the lookup that fills the description and the
// statistical unit beside it. The change step runs on every change of the text, typed or set by the NCM picker.
//     mskNumNCM100 = new NcmField("mskNumNCM100", this);
//     mskNumNCM100->setTargets(txtDescrNCM100, txtUnidMedEstatistica);
#include "gui/widgets/MaskedField.h"

class NcmField : public MaskedField {
    Q_OBJECT
public:
    explicit NcmField(const QString& name, QWidget* parent = nullptr);

    NcmField& setTargets(QLineEdit* description, QLineEdit* statisticalUnit);
    // The individual editor also empties the NCM field when the code is not found.
    NcmField& setClearCodeWhenNotFound(bool clear = true);

signals:
    // A code of eight digits was found (true) or not (false).
    void lookedUp(bool found);

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void onTextChanged();
    void clearTargets();

    QLineEdit* m_description = nullptr;
    QLineEdit* m_unit = nullptr;
    bool m_clearCode = false;
    bool m_busy = false;
};
