// Completes a line against the command tree. Words end at blanks only, and upper and lower case are the
// same; quotes mean nothing here.
#pragma once

#include <string_view>

#include "cli/command/command.h"

// A line cut at its blanks.
struct WordsOfLine {
    std::string_view words[kMaxWords];  // parts of the line
    int count = 0;
    bool all = true;  // false: the line has more words than there is room for

    std::string_view Last() const { return words[count - 1]; }  // only when there are words
};
WordsOfLine SplitAtBlanks(std::string_view line);

// What TAB makes of a line.
struct Completion {
    int candidates = 0;           // of the word that it ended at; 0: the line stays as it is
    bool rings = false;           // the last word is ambiguous, or nothing can be done
    bool last_word_grew = false;  // so that the next TAB isn't the second of a pair
    char line[kLineSize] = {};    // the line in its normal form: known keywords in upper case, single blanks
};

// Completes a line as far as the tree knows its words. Nothing can be done when a word is no command, when
// the line has more than 25 words, and when the completed line couldn't be entered any more.
Completion CompleteLine(std::string_view line, const CmdType* tree);

// Completes the line that is being edited, kLineSize bytes, in place, and rings the bell where it is due.
// Result: 0 when the line stays as it was (also, without the bell, when it has no words); 1 when it names one
// command; else the number of candidates for its last word.
int TabComplete(char* CmdLine);

// Completes the line as TabComplete does. If the last word is ambiguous, prints its candidates on a line of
// their own; synonyms are no candidates, and no words lead through one. Returns 1 if it printed candidates,
// else 0.
int DoubleTabComplete(char* CmdLine);
