// The line editor: edits a line of at most 254 characters in place on the screen. Each key first changes the
// line; then Draw() updates the screen.
#pragma once

#include "cli/command/command.h"

// Prints the prompt, reads a line up to Enter, splits it into words and stores it in the history. Once the
// cursor is beyond kLongestEntered, rejects the line with a message: it has no words, and the rest of the
// input up to Enter is discarded. Ends the process like EXIT at the end of the input, and if the prompt can't
// be written.
void GetCmd(InputLineType* InputLine);

// Inserts `ch` before column `pos` (from 0) of `string`, a line's buffer. Returns the column after it.
// Returns -1 and changes nothing if the line is full.
int InsertChar(int pos, char ch, char* string);

// Removes the character at column `pos`. Returns `pos`. Returns -1 and changes nothing if `pos` can't be a
// column.
int DeleteChar(int pos, char* string);
