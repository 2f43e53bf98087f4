// The line editor: keys edit a line of at most 254 characters in place on the screen. A key changes the line
// first; what that comes to on the screen is then drawn in one place, and written at once.
//
// A line's buffer is zero behind its last character.
#pragma once

#include "cli/command/command.h"

// Reads one line: shows the prompt, acts on the keys up to Enter, stores the line in the history and cuts it
// into words. A line whose cursor passes column 252 is refused with a message, and has no words; what is
// typed behind it up to the next Enter goes with it. The end of the input ends the process as EXIT does, and
// so does a prompt that can't be written.
void GetCmd(InputLineType* InputLine);

// What edits consist of. string: the line. pos: a column of it, from 0.

// Inserts ch before pos. Result: the column behind it; -1, with nothing done, when the line is full.
int InsertChar(int pos, char ch, char* string);

// Removes the character at pos. Result: pos; -1, with nothing done, when it is no column of a line.
int DeleteChar(int pos, char* string);
