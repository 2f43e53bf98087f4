// The interface between the shell and the commands: the tokenized command line, the nodes of the command
// tree, and the messages that all commands share.
#pragma once

constexpr int kLineSize = 255;  // size of a line in bytes, including the NUL terminator
constexpr int kMaxWords = 25;

// The longest line that can be typed from left to right: the editor rejects a line once the cursor is beyond
// this column. Insertions before the end can make a line longer, up to the size of the buffer.
constexpr int kLongestEntered = 252;

// A command line from the prompt or the script argument, and its words.
struct InputLineType {
    char CmdLine[kLineSize];                   // the line as typed or scripted
    char ParseLine[kLineSize];                 // a copy with a NUL after each word
    char* Words[kMaxWords];                    // pointers into ParseLine; in upper case unless quoted
    char OrigCaseWords[kMaxWords][kLineSize];  // the words as typed
    char Quote[kMaxWords];                     // 1: the word began inside double quotes and keeps its case
    int NumWords;
};

// Runs a command: reads the line's words and prints results and messages. Returns 0 for success, 1 for
// failure.
using CommandHandler = int (*)(InputLineType* InputLine);

// A node of the command tree. A command is the path of tokens from the top level down to a node.
struct CmdType {
    const char* Token;        // upper case
    const char* Help;         // nodes with the same help text share the pointer
    CmdType* Synonym;         // the node whose synonym this one is, or null
    CommandHandler Function;  // called if a line ends at this node; null only at the root
    CmdType* Sub;             // first child, in ascending order of the tokens' bytes
    CmdType* Next;            // next sibling
};

// The current command line, from the prompt or from a script.
extern InputLineType CurrentCommandLine;

// Clears CmdLine, ParseLine and Words before the next command. Parse overwrites the other members.
void ClearLine(InputLineType* InputLine);

// The node of the current or last command, or null if the line named no command. Handlers print its help
// text.
extern CmdType* current_command;

// These three functions print an error message and return 1, so that a handler can fail in one line.

// Prints "Invalid argument(s)" and the help text of current_command.
int InvalidArguments();

// Prints the help text of current_command, for a command without its required argument.
int ShowUsage();

// Prints an error message, formatted like printf.
__attribute__((format(printf, 1, 2))) int Fail(const char* format, ...);

constexpr const char* YesNo(bool yes) {
    return yes ? "Yes" : "No";
}

constexpr const char* EnabledOrDisabled(bool enabled) {
    return enabled ? "enabled" : "disabled";
}
