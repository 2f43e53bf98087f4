// What the editor shows of the line, brought up to date in one place after each key.
//
// All that is written is text, bells and two movements: a backspace moves the cursor left, and printing the
// character that is there already moves it right. Only what is drawn again, after the program was stopped,
// begins with a carriage return.
#pragma once

#include <cstring>

#include "cli/command/command.h"

// The line that is being edited.
struct Line {
    char* text;              // the CmdLine that is being read
    int currentpos;          // the cursor's column, 0 to the line's length
    int temp_history_index;  // the slot of the history that was recalled, history_index when none was
    bool entered;            // Enter was pressed

    int Length() const { return static_cast<int>(std::strlen(text)); }
    bool AtEnd() const { return text[currentpos] == '\0'; }
};

// What the terminal shows of the line, behind the prompt.
struct Shown {
    char text[kLineSize];
    int column;  // the cursor's
};

// What a key has done to the line, and so what is to be drawn.
enum class Change {
    None,
    Refused,     // the key can do nothing here
    Cursor,      // it moved
    Tail,        // the text differs from where the cursor was or is, whichever is further left
    Replaced,    // another line stands in its place
    Completed,   // the same, and of the old one what is right of the cursor isn't erased
    PromptGone,  // what was printed stands in its place, and the cursor at the start of a row
    ScreenLost,  // the same, but the cursor may stand anywhere in a row
};

// Draws what a key has changed. shown: what the terminal has shown so far, and shows then.
void Draw(Shown& shown, const Line& line, Change change);

// Takes the prompt and what is shown of the line off the screen; the cursor stands where the prompt did.
void EraseRow(Shown& shown);

// Moves the screen's cursor left from currpos; never right. erase: nonzero to blank what is passed.
// Result: newpos.
int BackupCursor(int currpos, int newpos, int erase);
