#pragma once
// The row at the foot of a dialog screen: a stretch, then "Ok" and "Cancela" named cmdOk and cmdCancela.
class QHBoxLayout;
class QPushButton;
class QWidget;

// Creates both buttons as children of `screen`, stores them in the screen's members and returns the row to add
// to the screen's layout.
QHBoxLayout* okCancelRow(QWidget* screen, QPushButton*& cmdOk, QPushButton*& cmdCancela);
