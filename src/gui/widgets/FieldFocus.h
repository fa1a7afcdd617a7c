#pragma once
// What every entry field does when its leave check refuses: the field's tab comes to the front and the focus
// goes back to the field. While that happens the field that had just received the focus must not run its own
// leave check, or one refusal would set off another.
#include <QFocusEvent>

class QLineEdit;
class QWidget;

// Makes every tab page that holds `field` the current one.
void showFieldTab(QWidget* field);

// Brings the field's tab to the front and gives the field the focus again once the current focus change is over.
void returnFocusLater(QWidget* field);

// True when a focus-out is a real move to another control of the screen, not the window losing the focus to a
// message box or another window, and no refused field is taking its focus back.
bool isLeaveToCheck(const QFocusEvent* event);

// True when a focus-in comes from a move inside the screen, not from the window getting the focus back or a popup
// closing: only then does a field select its text.
bool isEntryToSelect(const QFocusEvent* event);

// Selects the whole text once the focus change is over, so that a mouse click, which places the caret after the
// focus arrives, does not undo it.
void selectAllLater(QLineEdit* field);
