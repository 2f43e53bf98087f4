// Cuts a line into words and runs the command that they name.
#pragma once

#include "cli/parse/input_line.h"

// Fills ParseLine, Words, OrigCaseWords, Quote and NumWords from CmdLine.
void Parse(InputLineType* InputLine);

// Upper-cases a zero-terminated string in place; null is left alone.
void MakeUpper(char* String);

// Gets one line, runs it and prints the closing newline. scriptFlag: nonzero when CmdLine is already filled;
// 0 to read it from the keyboard. Result: in script mode the command's result, else 1; 1 for an empty line.
int Command(InputLineType* InputLine, int scriptFlag);
