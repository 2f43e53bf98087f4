// How the shell explains itself from the tree's help texts.
#pragma once

#include "cli/command/command.h"

// HELP and ?. Result: 1 for HELP TREE, else 0.
int do_help(InputLineType* InputLine);

// Help on a partly typed line of kLineSize bytes, which is completed in place as by TAB. Prints the help text
// of the command that it names, the alternatives for its last word, or the root's text when it names nothing.
// Result: 1 when it printed alternatives, else 0.
int FindHelp(char* CmdLine);
