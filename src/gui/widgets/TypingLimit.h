#pragma once
// A field's length limit is a limit on typing, not on what the program shows: a value loaded from the database
// that is longer than the limit is shown whole and stays whole until the user changes it. A user's edit (a key,
// a paste, a drop) never makes the text longer than the limit, or than the value the program last set when that
// was longer: what would pass that room is cut from what was inserted. The field's own corrections of a user's
// edit (setText in its textEdited handler) keep the field modified, so that they do not count as set by the
// program.
//     TypingLimit m_limit{this, 45};                  // a member of the field
//     void onTextEdited() { m_limit.trimEdit(); ... }  // first thing on each user edit
#include <QString>

class QLineEdit;

class TypingLimit {
public:
    TypingLimit(QLineEdit* field, int limit);

    int limit() const { return m_limit; }
    // Run on textEdited: cuts the inserted text, just before the caret, down to the room there is.
    void trimEdit();

private:
    QLineEdit* m_field;
    int m_limit;
    qsizetype m_room;
};
