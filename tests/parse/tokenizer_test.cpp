#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "cli/parse/tokenizer.h"

namespace {

struct Word {
    std::string text;           // as Words has it
    bool quoted = false;        // its Quote flag
    std::string original = {};  // as OrigCaseWords has it; the same as text when empty
};

struct TokenizerCase {
    const char* catches;
    std::string line;
    std::vector<Word> words;
};

InputLineType Tokenize(const std::string& text) {
    InputLineType line;
    std::memset(&line, 0x5A, sizeof line);  // what an earlier line may have left behind
    std::memset(line.CmdLine, 0, sizeof line.CmdLine);
    std::memcpy(line.CmdLine, text.data(), text.size());
    Parse(&line);
    return line;
}

std::string Repeat(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += piece;
    return text;
}

// As many words as a line has room for: 24 times "a", and the last one.
std::vector<Word> WithLast(const Word& last) {
    std::vector<Word> words(24, Word{"A", false, "a"});
    words.push_back(last);
    return words;
}

// clang-format off
const TokenizerCase kCases[] = {
    // separators
    {"no words from nothing", "", {}},
    {"a word made of blanks", "   ", {}},
    {"blanks around words kept", "  show   fans ", {{"SHOW", false, "show"}, {"FANS", false, "fans"}}},
    {"control characters kept in words", "a\x01\x1F\rb", {{"A", false, "a"}, {"B", false, "b"}}},
    {"a TAB taken for a separator", "a\tb c", {{"A\tB", false, "a\tb"}, {"C", false, "c"}}},
    {"bytes from 0x80 up kept in words", "a\200b\377c", {{"A", false, "a"}, {"B", false, "b"}, {"C", false, "c"}}},
    // quotes
    {"case or blanks lost in quotes", "set name \"Main Server\"", {{"SET", false, "set"}, {"NAME", false, "name"}, {"Main Server", true}}},
    {"a separator byte inside quotes cut", "\"a\x80\x01 b\"", {{"a\x80\x01 b", true}}},
    {"the flag lost on a leading blank", "\" a\" b", {{" a", true}, {"B", false, "b"}}},
    {"an open quote refused", "\"a b", {{"a b", true}}},
    {"a quote at the very end read past", "a \"", {{"A", false, "a"}, {"", true}}},
    {"a quote glued to the line's end read past", "a\"", {{"A", false, "a"}}},
    {"text glued to a closing quote kept", "\"abc\"def g", {{"abc", true}, {"G", false, "g"}}},
    {"text glued to an opening quote kept", "ab\"c d\"e f", {{"AB", false, "ab"}, {"F", false, "f"}}},
    {"no empty word", "a \"\" b", {{"A", false, "a"}, {"", false}, {"B", false, "b"}}},
    {"two quotes inside a word taken for none", "a\"\" b c", {{"A", false, "a"}}},
    {"a quote behind an empty word lost", "\"\"\"x y\" z", {{"", false}, {"Z", false, "z"}}},
    // limits
    {"a 26th word", Repeat("a ", 24) + "y \"z\"  A", WithLast({"Y \"Z\"  A", false, "y \"z\"  A"})},
    {"the longest line cut", std::string(254, 'X'), {{std::string(254, 'X')}}},
};
// clang-format on

TEST(Tokenizer, CutsALineIntoWords) {
    MakeUpper(nullptr);  // is allowed
    for (const TokenizerCase& c : kCases) {
        const InputLineType line = Tokenize(c.line);
        ASSERT_EQ(line.NumWords, static_cast<int>(c.words.size())) << c.catches;
        for (int i = 0; i < line.NumWords; ++i) {
            const Word& word = c.words[static_cast<size_t>(i)];
            EXPECT_EQ(line.Words[i], word.text) << c.catches;
            EXPECT_EQ(line.Quote[i] != 0, word.quoted) << c.catches << ": " << word.text;
            EXPECT_EQ(line.OrigCaseWords[i], word.original.empty() ? word.text : word.original) << c.catches;
        }
    }
}

}  // namespace
