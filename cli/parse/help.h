// Prints the help texts of the command tree.
#pragma once

#include "cli/command/command.h"

// Handles HELP and ?. Returns 1 for HELP TREE, else 0.
int do_help(InputLineType* InputLine);

// Completes the partly typed line `CmdLine`, a buffer of kLineSize bytes, like TabComplete, and prints help:
// the help text of the command that it names, the candidates for an ambiguous last word, or the root's help
// text if no command matches. Returns 1 if it printed candidates, else 0.
int FindHelp(char* CmdLine);
