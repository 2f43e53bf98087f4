// The line editor: edits a line of at most 254 characters in place on the screen. Each key first changes the
// line; then Draw() updates the screen.
#pragma once

#include "cli/command/command.h"

// Prints the prompt, reads a line up to Enter, splits it into words and stores it in the history. Ends the
// process like EXIT at the end of the input, or if the prompt can't be written.
//
// If the cursor passes column kLongestEntered, rejects the line with a message: the line then has no words,
// and the rest of the input up to Enter is discarded.
void GetCmd(InputLineType* InputLine);

// Inserts `ch` at column `pos` (counted from 0) of `string`, a line's buffer. Returns the column after the
// character. If the line is full, returns -1 and changes nothing.
int InsertChar(int pos, char ch, char* string);

// Removes the character at column `pos`. Returns `pos`. If `pos` isn't a valid column, returns -1 and changes
// nothing.
int DeleteChar(int pos, char* string);
