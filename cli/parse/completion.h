// Completes a partly typed line from the command tree. Here only spaces separate words, quotes have no
// special meaning, and case is ignored.
#pragma once

#include <string_view>

#include "cli/command/command.h"

// A line, split at its spaces.
struct WordsOfLine {
    std::string_view words[kMaxWords];  // substrings of the line
    int count = 0;
    bool all = true;  // false: the line has more than kMaxWords words

    std::string_view Last() const { return words[count - 1]; }  // requires count > 0
};
WordsOfLine SplitAtSpaces(std::string_view line);

// The effect of TAB on a line.
struct Completion {
    int candidates = 0;           // for the last word that was looked up; 0: the line is unchanged
    bool rings = false;           // whether the last word is ambiguous or the line can't be completed
    bool last_word_grew = false;  // if so, the next TAB isn't the second of a pair
    char line[kLineSize] = {};    // the completed line: keywords in upper case, single spaces
};

// Completes the words of a line that are in `tree`. A line can't be completed if one of its words matches no
// command, if it has more than kMaxWords words, or if the result is longer than kLongestEntered.
Completion CompleteLine(std::string_view line, const CmdType* tree);

// Completes `CmdLine`, a buffer of kLineSize bytes, in place. Rings the bell if the last word is ambiguous or
// the line can't be completed. Returns the number of candidates for the last word: 1 if the line names one
// command, 0 if the line is unchanged because it has no words or can't be completed.
int TabComplete(char* CmdLine);

// Completes the line like TabComplete. If the last word is ambiguous, prints its candidates on a separate
// line. Ignores synonyms. Returns 1 if it printed candidates, else 0.
int DoubleTabComplete(char* CmdLine);
