#pragma once
// The product code field of every item tab: free text of at most 15 characters without the special characters,
// whose description field shows the product's name the moment the code is complete and names one product.
//     txtCodProd100N = new ProductCodeField("txtCodProd100N", this);
//     txtCodProd100N->setDescriptionField(txtDescrProd100N);
#include "gui/widgets/TextField.h"

class ProductCodeField : public TextField {
    Q_OBJECT
public:
    explicit ProductCodeField(const QString& name, QWidget* parent = nullptr);

    ProductCodeField& setDescriptionField(QLineEdit* description);

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void onTextChanged(const QString& text);

    QLineEdit* m_description = nullptr;
};
