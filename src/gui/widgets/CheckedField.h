#pragma once
// What the digit and decimal fields share: a leave check run when the focus moves on to another control of the
// screen, the signals that tell the screen its outcome, and the zero test with the critical icon. A refused
// field takes the focus back (see FieldFocus.h).
#include <QLineEdit>

class CheckedField : public QLineEdit {
    Q_OBJECT
public:
    explicit CheckedField(QWidget* parent = nullptr) : QLineEdit(parent) {}

    // The leave check, as run when the focus moves on: true when the field may be left.
    virtual bool checkLeave() = 0;

signals:
    void leaveRefused();
    void leaveAccepted();

protected:
    void focusOutEvent(QFocusEvent* event) override;

    // True (after showing the box) when a zero message is set and `text` is zero.
    bool refusesZero(const QString& text) const;

    // An empty message means the field has no zero test.
    QString m_zeroMessage;
};
