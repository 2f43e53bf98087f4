// Runs a command line.
#pragma once

#include "cli/command/command.h"

// Gets one line, runs the command that its words name and prints the closing newline. scriptFlag: nonzero
// when CmdLine is already filled; 0 to read it from the keyboard. Result: in script mode the command's
// result, else 1; 1 for an empty line.
int Command(InputLineType* InputLine, int scriptFlag);
