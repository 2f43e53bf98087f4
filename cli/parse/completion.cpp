#include "cli/parse/completion.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstring>

#include "cli/parse/command_tree.h"
#include "cli/parse/keys.h"
#include "cli/parse/terminal.h"
#include "src/utils/text_writer.h"

namespace {

// Whether a token fits a word of the line, whatever the word's case. last: only the last word may be the
// beginning of a token.
bool Fits(std::string_view token, std::string_view word, bool last) {
    if (word.size() > token.size() || (!last && word.size() < token.size())) return false;
    return std::equal(word.begin(), word.end(), token.begin(), [](char typed, char upper) {
        return std::toupper(static_cast<unsigned char>(typed)) == static_cast<unsigned char>(upper);
    });
}

struct Candidates {
    CmdType* first = nullptr;
    int count = 0;            // 1 also where all but one are synonyms: the first stands for them all
    std::string_view common;  // what their tokens begin with, all of them
};

Candidates FindCandidates(const CmdType& parent, std::string_view word, bool last) {
    Candidates found;
    int commands = 0;  // candidates that aren't synonyms
    for (CmdType* child = parent.Sub; child != nullptr; child = child->Next) {
        const std::string_view token = child->Token;
        if (!Fits(token, word, last)) continue;
        if (found.count++ == 0) {
            found.first = child;
            found.common = token;
        }
        const auto differ =
            std::mismatch(token.begin(), token.end(), found.common.begin(), found.common.end());
        found.common = token.substr(0, static_cast<size_t>(differ.first - token.begin()));
        if (child->Synonym == nullptr) ++commands;
    }
    if (commands == 1) found.count = 1;
    return found;
}

// Puts the tokens of the tree in the words' place, as far as the tree goes, and in the last word's place what
// all its candidates begin with. Result: how many candidates the word had that it ended at; 0 for none.
int CompleteWords(std::string_view* words, int count) {
    int candidates = 0;
    const CmdType* node = Cmds;
    for (int i = 0; i < count && node->Sub != nullptr; ++i) {
        const Candidates found = FindCandidates(*node, words[i], i == count - 1);
        candidates = found.count;
        if (candidates == 0) break;
        if (candidates > 1) {
            if (found.common.size() > words[i].size()) words[i] = found.common;
            break;
        }
        node = found.first;
        words[i] = node->Token;
    }
    return candidates;
}

}  // namespace

int SplitAtBlanks(std::string_view line, std::string_view (&words)[kMaxWords]) {
    int count = 0;
    size_t begin = line.find_first_not_of(' ');
    while (begin != line.npos && count < kMaxWords) {
        const size_t end = std::min(line.find(' ', begin), line.size());
        words[count++] = line.substr(begin, end - begin);
        begin = line.find_first_not_of(' ', end);
    }
    return count;
}

int TabComplete(char* CmdLine) {
    std::string_view words[kMaxWords];
    const int count = SplitAtBlanks(CmdLine, words);
    if (count == 0) return 0;

    const size_t typed = words[count - 1].size();
    const int candidates = CompleteWords(words, count);
    char completed[kLineSize] = {};
    TextWriter line(completed, sizeof completed);
    for (int i = 0; i < count; ++i) {
        if (i > 0) line.Letter(' ');
        line.Text(words[i]);
    }
    if (candidates == 1) line.Letter(' ');  // the next word may begin
    if (candidates != 1 || line.Cut()) RingBell();
    if (candidates == 0 || line.Cut()) return 0;

    if (words[count - 1].size() > typed) GetChar(1);
    std::memcpy(CmdLine, completed, sizeof completed);
    return candidates;
}

int DoubleTabComplete(char* CmdLine) {
    if (TabComplete(CmdLine) <= 1) return 0;

    // The words before the last are whole tokens now.
    std::string_view words[kMaxWords];
    const int last = SplitAtBlanks(CmdLine, words) - 1;
    const CmdType* parent = FollowWords(words, last);
    const char* before = "\n[ ";
    for (const CmdType* child = parent->Sub; child != nullptr; child = child->Next) {
        if (child->Synonym != nullptr || !Fits(child->Token, words[last], true)) continue;
        std::printf("%s%s", before, child->Token);
        before = " | ";
    }
    std::printf(" ]\n");
    return 1;
}
