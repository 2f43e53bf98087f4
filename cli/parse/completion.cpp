#include "cli/parse/completion.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/parse/command_tree.h"
#include "cli/terminal/keys.h"
#include "cli/terminal/terminal.h"
#include "src/utils/text.h"

namespace {

// Returns whether a word of the line matches a token. `last`: true for the last word of the line, which may
// be a prefix of the token.
bool Matches(std::string_view token, std::string_view word, bool last) {
    if (word.size() > token.size() || (!last && word.size() < token.size())) return false;
    return strcmpi(word, token.substr(0, word.size())) == 0;
}

struct Candidates {
    CmdType* first = nullptr;
    int count = 0;            // doesn't include synonyms if exactly one candidate is a command
    std::string_view common;  // longest common prefix of the candidates' tokens
};

enum class Synonyms { Accepted, Skipped };

// Returns the children of `parent` that match a word. `last`: true for the last word of the line.
Candidates FindCandidates(const CmdType& parent, std::string_view word, bool last, Synonyms synonyms) {
    Candidates found;
    int commands = 0;  // number of candidates that aren't synonyms
    for (CmdType* child = parent.Sub; child != nullptr; child = child->Next) {
        if (synonyms == Synonyms::Skipped && child->Synonym != nullptr) continue;
        const std::string_view token = child->Token;
        if (!Matches(token, word, last)) continue;
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

// Completes the words from the top level of the tree down. Replaces each word with the token that it matches;
// replaces an ambiguous last word with the longest common prefix of its candidates. Returns the number of
// candidates for the last word that was looked up.
int CompleteWords(const CmdType* tree, WordsOfLine& line) {
    int candidates = 0;
    const CmdType* node = tree;
    for (int i = 0; i < line.count && node->Sub != nullptr; ++i) {
        std::string_view& word = line.words[i];
        const Candidates found = FindCandidates(*node, word, i == line.count - 1, Synonyms::Accepted);
        candidates = found.count;
        if (candidates == 0) break;
        if (candidates > 1) {
            if (found.common.size() > word.size()) word = found.common;
            break;
        }
        node = found.first;
        word = node->Token;
    }
    return candidates;
}

// Prints the tokens of all commands below `parent` that match the last word of the line.
void PrintAlternatives(const CmdType& parent, std::string_view word) {
    const char* separator = "\n[ ";
    for (const CmdType* child = parent.Sub; child != nullptr; child = child->Next) {
        if (child->Synonym != nullptr || !Matches(child->Token, word, true)) continue;
        std::printf("%s%s", separator, child->Token);
        separator = " | ";
    }
    std::printf(" ]\n");
}

}  // namespace

WordsOfLine SplitAtSpaces(std::string_view line) {
    WordsOfLine found;
    size_t begin = line.find_first_not_of(' ');
    for (; begin != line.npos && found.count < kMaxWords; begin = line.find_first_not_of(' ', begin)) {
        const size_t end = std::min(line.find(' ', begin), line.size());
        found.words[found.count++] = line.substr(begin, end - begin);
        begin = end;
    }
    found.all = begin == line.npos;
    return found;
}

Completion CompleteLine(std::string_view line, const CmdType* tree) {
    Completion completion;
    WordsOfLine words = SplitAtSpaces(line);
    if (words.count == 0) return completion;

    const size_t typed = words.Last().size();
    const int candidates = CompleteWords(tree, words);
    TextWriter text(completion.line, kLongestEntered + 1);
    for (int i = 0; i < words.count; ++i) {
        if (i > 0) text.Letter(' ');
        text.Text(words.words[i]);
    }
    if (candidates == 1) text.Letter(' ');  // so that the user can type the next word

    const bool fits = words.all && !text.Truncated();
    completion.rings = candidates != 1 || !fits;
    completion.candidates = fits ? candidates : 0;
    completion.last_word_grew = completion.candidates > 0 && words.Last().size() > typed;
    return completion;
}

int TabComplete(char* CmdLine) {
    const Completion completion = CompleteLine(CmdLine, Cmds);
    if (completion.rings) RingBell();
    if (completion.last_word_grew) GetChar(1);
    if (completion.candidates > 0) std::memcpy(CmdLine, completion.line, kLineSize);
    return completion.candidates;
}

int DoubleTabComplete(char* CmdLine) {
    if (TabComplete(CmdLine) <= 1) return 0;

    const WordsOfLine line = SplitAtSpaces(CmdLine);
    const CmdType* node = Cmds;
    for (int i = 0; i < line.count; ++i) {
        const Candidates found = FindCandidates(*node, line.words[i], i == line.count - 1, Synonyms::Skipped);
        if (found.count > 1) {
            PrintAlternatives(*node, line.words[i]);
            return 1;
        }
        if (found.count == 0) return 0;
        node = found.first;
    }
    return 0;
}
