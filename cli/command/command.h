// What the shell hands to a command, the typed line as words and the node of the command tree that they name;
// and what commands say in the same way.
#pragma once

constexpr int kLineSize = 255;  // bytes of a line, its terminating zero included
constexpr int kMaxWords = 25;

// The longest line that can be entered with the cursor at its end: the editor refuses a line whose cursor
// gets further. What is inserted in mid-line may make a line longer.
constexpr int kLongestEntered = 252;

// One command line, typed at the prompt or taken from the script argument, and its words.
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

// One keyword of the command tree: a command is the path of tokens from the top level down to a node.
struct CmdType {
    const char* Token;  // upper case
    const char* Help;  // begins with "USAGE:" (the root's doesn't); nodes that share a text share the pointer
    CmdType* Synonym;  // the node that this one stands for, or null
    CommandHandler Function;  // runs when a line ends at this node; null at the root only
    CmdType* Sub;             // first child, in ascending order of the tokens' bytes
    CmdType* Next;            // next sibling
};

// The one line that both modes use.
extern InputLineType CurrentCommandLine;

// Empties a line before the next command: zeros in CmdLine and ParseLine, null for each of the Words. The
// other members are as they were until Parse fills them.
void ClearLine(InputLineType* InputLine);

// The node that the last dispatch reached; null when nothing matched. A handler reads its help text here.
extern CmdType* current_command;

// What commands say in the same way. The refusals return 1, the result of a command that failed, so that a
// handler can refuse in one line.

// "Invalid argument(s)" and the current command's help text.
int InvalidArguments();

// The current command's help text alone: a command given without its value.
int ShowUsage();

// A message of the handler's own, as printf prints it.
__attribute__((format(printf, 1, 2))) int Fail(const char* format, ...);

constexpr const char* YesNo(bool yes) {
    return yes ? "Yes" : "No";
}

constexpr const char* EnabledOrDisabled(bool enabled) {
    return enabled ? "enabled" : "disabled";
}
