// The line editor: keys edit a line of at most 254 characters in place on the screen.
//
// All that it writes is text, bells and two movements: a backspace moves the cursor left, and printing the
// character that is there already moves it right. Only what is drawn again, after the program was stopped,
// begins with a carriage return. A line's buffer is zero behind its last character.
#pragma once

#include "cli/command/command.h"

// Reads one line: shows the prompt, acts on the keys up to Enter, stores the line in the history and cuts it
// into words. A line whose cursor passes column 252 is refused with a message, and has no words; what is
// typed behind it up to the next Enter goes with it. The end of the input ends the process as EXIT does, and
// so does a prompt that can't be written.
void GetCmd(InputLineType* InputLine);

// The editor's movements. string: the line. pos, currpos, newpos: columns of it, from 0; the cursor of the
// screen is at the first one named, and ends at the one returned.

// Inserts ch before pos. Result: the column behind it; -1, with nothing done, when the line is full.
int InsertChar(int pos, char ch, char* string);

// Removes the character at pos. Result: pos; -1, with nothing done, when it is no column of a line.
int DeleteChar(int pos, char* string);

// Moves left; never right. erase: nonzero to blank what is passed. Result: newpos.
int BackupCursor(int currpos, int newpos, int erase);
