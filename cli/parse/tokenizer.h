// Cuts a command line into words.
#pragma once

#include "cli/command/command.h"

// Fills ParseLine, Words, OrigCaseWords, Quote and NumWords from CmdLine.
void Parse(InputLineType* InputLine);

// Upper-cases a zero-terminated string in place; a null pointer is ignored.
void MakeUpper(char* String);
