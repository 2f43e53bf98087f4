// Tests of Parse(), which splits a line into words.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "cli/parse/tokenizer.h"

namespace {

struct Word {
    std::string text;           // the word in Words
    bool quoted = false;        // the flag in Quote
    std::string original = {};  // the word in OrigCaseWords; "" if it equals `text`
};

struct TokenizerCase {
    const char* catches;
    std::string line;
    std::vector<Word> words;
};

InputLineType Tokenize(const std::string& text) {
    InputLineType line;
    std::memset(&line, 0x5A, sizeof line);  // fills the line with values, as an earlier line would leave them
    std::memset(line.CmdLine, 0, sizeof line.CmdLine);
    std::memcpy(line.CmdLine, text.data(), text.size());
    Parse(&line);
    return line;
}

std::string Repeat(const std::string& part, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += part;
    return text;
}

// Returns as many words as a line can have: 24 times "a", then `last`.
std::vector<Word> WithLast(const Word& last) {
    std::vector<Word> words(24, Word{"A", false, "a"});
    words.push_back(last);
    return words;
}

// clang-format off
const TokenizerCase kCases[] = {
    // cases: separators
    {"an empty line has a word", "", {}},
    {"a word consists of spaces", "   ", {}},
    {"spaces are part of words", "  show   fans ", {{"SHOW", false, "show"}, {"FANS", false, "fans"}}},
    {"control characters are part of words", "a\x01\x1F\rb", {{"A", false, "a"}, {"B", false, "b"}}},
    {"a TAB or 0x7F separates words", "a\tb\177 c", {{"A\tB\177", false, "a\tb\177"}, {"C", false, "c"}}},
    {"bytes of 0x80 and above are part of words", "a\200b\377c", {{"A", false, "a"}, {"B", false, "b"}, {"C", false, "c"}}},
    // cases: quotes
    {"case or spaces in quotes change", "set name \"Main Server\"", {{"SET", false, "set"}, {"NAME", false, "name"}, {"Main Server", true}}},
    {"a separator in quotes ends the word", "\"a\x80\x01 b\"", {{"a\x80\x01 b", true}}},
    {"a space after the opening quote clears the flag", "\" a\" b", {{" a", true}, {"B", false, "b"}}},
    {"a quote that isn't closed is rejected", "\"a b", {{"a b", true}}},
    {"reads after the end: a quote at the end", "a \"", {{"A", false, "a"}, {"", true}}},
    {"reads after the end: a quote at the end of a word", "a\"", {{"A", false, "a"}}},
    {"text right after a closing quote is a word, or its quotes have no effect", "\"abc\"d\"e f\"g h", {{"abc", true}, {"H", false, "h"}}},
    {"text after a quote in a word is part of the word", "ab\"c d\"e f", {{"AB", false, "ab"}, {"F", false, "f"}}},
    {"two quotes aren't an empty word", "a \"\" b", {{"A", false, "a"}, {"", false}, {"B", false, "b"}}},
    {"the second of two quotes in a word closes the first", "a\"\" b c", {{"A", false, "a"}}},
    {"a quote after an empty word doesn't open quotes", "\"\"\"x y\" z", {{"", false}, {"Z", false, "z"}}},
    // cases: limits
    {"there is a 26th word", Repeat("a ", 24) + "y \"z\"  A", WithLast({"Y \"Z\"  A", false, "y \"z\"  A"})},
    {"a quote ends the 25th word", Repeat("a ", 24) + "\"y\" z", WithLast({"y\" z", true})},
    {"the longest line is truncated", std::string(254, 'X'), {{std::string(254, 'X')}}},
};
// clang-format on

TEST(Tokenizer, SplitsALineIntoWords) {
    MakeUpper(nullptr);  // a null pointer must not crash it
    for (const TokenizerCase& c : kCases) {
        SCOPED_TRACE(c.line + ": " + c.catches);
        const InputLineType line = Tokenize(c.line);
        ASSERT_EQ(line.NumWords, static_cast<int>(c.words.size()));
        for (int i = 0; i < line.NumWords; ++i) {
            const Word& word = c.words[static_cast<size_t>(i)];
            EXPECT_EQ(line.Words[i], word.text);
            EXPECT_EQ(line.Quote[i] != 0, word.quoted) << "the Quote flag of " << word.text;
            EXPECT_EQ(line.OrigCaseWords[i], word.original.empty() ? word.text : word.original);
        }
    }
}

}  // namespace
