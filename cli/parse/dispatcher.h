// Finds the command that a line names and runs it.
#pragma once

#include "cli/command/command.h"

// Runs the command that a line names and prints a newline. `scriptFlag`: nonzero if CmdLine contains the
// line, 0 to read it from the keyboard first. In script mode returns the command's result, and 1 if the line
// is empty or names no command; otherwise returns 1.
int Command(InputLineType* InputLine, int scriptFlag);
