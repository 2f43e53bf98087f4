// How the shell explains itself from the tree's help texts.
#pragma once

#include "cli/parse/input_line.h"

// HELP and ?. Result: 1 for HELP TREE, else 0.
int do_help(InputLineType* InputLine);

// The handler of every inner node: lists the usage of current_command's children. Result: 1.
int Display_Subcommand_Usage(InputLineType* InputLine);
