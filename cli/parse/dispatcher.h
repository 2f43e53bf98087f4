// Finds the command that a line names and runs it.
#pragma once

#include "cli/command/command.h"

// Runs the command that a line names, and prints a newline. `scriptFlag`: nonzero if CmdLine contains the
// line; 0 to read the line from the keyboard first. In script mode returns the command's result, or 1 if the
// line is empty or names no command. At the prompt always returns 1.
int Command(InputLineType* InputLine, int scriptFlag);
