#pragma once
// The row at the foot of a screen: a stretch, then "Ok" and "Cancela" named cmdOk and cmdCancela, with their
// access keys (Alt+O, Alt+C).
class QHBoxLayout;
class QPushButton;
class QWidget;

// Creates both buttons as children of `screen`, stores them in the screen's members and returns the row to add
// to the screen's layout.
QHBoxLayout* okCancelRow(QWidget* screen, QPushButton*& cmdOk, QPushButton*& cmdCancela);

// On a screen that is not a dialog (a child of the main window): Enter works as `ok` when that button is enabled
// and in view (on a button that has the focus, as that button), Escape as `cancela`.
void teclasOkCancela(QWidget* screen, QPushButton* ok, QPushButton* cancela);
