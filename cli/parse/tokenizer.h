// Splits a command line into words.
#pragma once

#include "cli/command/command.h"

// Splits CmdLine into words: fills ParseLine, Words, OrigCaseWords, Quote and NumWords.
void Parse(InputLineType* InputLine);

// Converts a string to upper case in place. Ignores a null pointer.
void MakeUpper(char* String);
