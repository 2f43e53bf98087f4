// Completes a line against the command tree. Words are cut at blanks alone, at most 25 of them, and compared
// without regard to case; quotes mean nothing here.
#pragma once

#include <string_view>

#include "cli/command/command.h"

// Completes a line of kLineSize bytes in place, and writes it in its normal form: recognised keywords in
// upper case, single blanks. Rings the bell when the last word is ambiguous, or when nothing can be done: a
// word that is no command, no room for what would be added. A longer word has the next TAB count as a first
// one. Result: 0 when the line stays as it was (also, without the bell, when it has no words); 1 when it
// names one command; else the number of candidates for its last word.
int TabComplete(char* CmdLine);

// TabComplete; when the last word is ambiguous then, its candidates are printed on a line of their own.
// Result: 1 when they were.
int DoubleTabComplete(char* CmdLine);

// Cuts a line at its blanks. words: point into the line. Result: how many there are.
int SplitAtBlanks(std::string_view line, std::string_view (&words)[kMaxWords]);
