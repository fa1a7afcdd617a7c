#include "gui/widgets/FieldFocus.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <QWidget>

namespace {
// Set between a refusal and the moment the refused field has its focus back.
bool returningFocus = false;
}  // namespace

void showFieldTab(QWidget* field)
{
    QWidget* child = field;
    for (QWidget* parent = field ? field->parentWidget() : nullptr; parent; parent = parent->parentWidget()) {
        auto* stack = qobject_cast<QStackedWidget*>(parent);
        if (stack && qobject_cast<QTabWidget*>(stack->parentWidget()))
            qobject_cast<QTabWidget*>(stack->parentWidget())->setCurrentWidget(child);
        child = parent;
    }
}

void returnFocusLater(QWidget* field)
{
    returningFocus = true;
    QPointer<QWidget> guard(field);
    QTimer::singleShot(0, QCoreApplication::instance(), [guard] {
        if (guard) {
            showFieldTab(guard);
            guard->setFocus(Qt::OtherFocusReason);
        }
        returningFocus = false;
    });
}

bool isLeaveToCheck(const QFocusEvent* event)
{
    if (returningFocus)
        return false;
    return isEntryToSelect(event);
}

bool isEntryToSelect(const QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

void selectAllLater(QLineEdit* field)
{
    QTimer::singleShot(0, field, [field] {
        if (field->hasFocus())
            field->selectAll();
    });
}
