// One command line, typed at the prompt or taken from the script argument, and its words: the one thing that
// the shell hands to a command.
#pragma once

constexpr int kLineSize = 255;  // bytes of a line, its terminating zero included
constexpr int kMaxWords = 25;

struct InputLineType {
    char CmdLine[kLineSize];                   // the line as typed or scripted
    char ParseLine[kLineSize];                 // a copy, cut into words by zeros
    char* Words[kMaxWords];                    // into ParseLine; upper case unless quoted
    char OrigCaseWords[kMaxWords][kLineSize];  // the words as typed
    char Quote[kMaxWords];                     // 1: the word began inside double quotes and keeps its case
    int NumWords;
};

// A command: reads the line's words, prints its own messages and results; 0 for success, 1 for failure.
using CommandHandler = int (*)(InputLineType* InputLine);

// The one line that both modes use.
extern InputLineType CurrentCommandLine;

// Empties a line before the next command: zeros in CmdLine and ParseLine, null for each of the Words. The
// other members are as they were until Parse fills them.
void ClearLine(InputLineType* InputLine);
