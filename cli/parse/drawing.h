// Updates the screen after each key of the line editor.
//
// The editor writes only text, bells, and backspaces, which move the cursor left. To move the cursor right,
// it prints the characters under the cursor again. It writes a carriage return only when the process
// continues after a stop.
#pragma once

#include <cstring>

#include "cli/command/command.h"

// The line that is being edited.
struct Line {
    char* text;              // CmdLine; all bytes after the text are NUL
    int currentpos;          // column of the cursor, 0 to the line's length
    int temp_history_index;  // slot of the history entry on the line; history_index if there is none
    bool entered;            // whether Enter was pressed

    int Length() const { return static_cast<int>(std::strlen(text)); }
    bool AtEnd() const { return text[currentpos] == '\0'; }
};

// The line as it is on the screen, after the prompt.
struct Shown {
    char text[kLineSize];
    int column;  // column of the cursor on the screen
};

// The effect of a key on the line.
enum class Change {
    None,
    Rejected,    // the key has no effect in this state: the bell rings
    Cursor,      // the cursor moved
    Tail,        // the text changed, from the old or the new cursor on, whichever is further left
    Replaced,    // the whole text changed
    Completed,   // like Replaced, but the old text to the right of the cursor isn't erased
    PromptGone,  // other output replaced the prompt; the screen's cursor is at the start of a row
    ScreenLost,  // like PromptGone, but the screen's cursor may be anywhere
};

// Updates the screen after a change of the line. `shown` is the line on the screen; it is updated, too.
void Draw(Shown& shown, const Line& line, Change change);

// Erases the prompt and the line from the screen. The cursor is then at the start of the erased prompt.
void EraseRow(Shown& shown);

// Moves the screen's cursor left from column `currpos` to `newpos`. Does nothing if `newpos` is to the right.
// `erase`: nonzero to overwrite the characters with spaces. Returns `newpos`.
int BackupCursor(int currpos, int newpos, int erase);
