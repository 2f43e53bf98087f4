// Writes strings into a buffer, compares and splits strings, parses numbers, and looks up codes and names in
// tables.
#pragma once

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

// Appends strings and numbers to a string in the caller's buffer. Never writes past the end of the buffer;
// the string always ends with a NUL. Text that doesn't fit is dropped.
class TextWriter {
  public:
    // `size` is the size of the buffer including the NUL, at least 1. The string starts empty.
    TextWriter(char* buffer, size_t size);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void Letter(char letter);
    void Text(std::string_view text);
    // Append a decimal or upper-case hexadecimal number, with leading zeros up to `digits` digits (at most
    // 10).
    void Number(uint32_t value, int digits = 1);
    void Hex(uint32_t value, int digits);

    bool Empty() const { return next_ == begin_; }
    bool Truncated() const { return truncated_; }  // whether text was dropped because the buffer was full
    size_t Length() const { return static_cast<size_t>(next_ - begin_); }

  private:
    void Digits(uint32_t value, uint32_t base, int least);

    char* begin_;
    char* next_;  // address of the NUL terminator
    char* last_;  // address of the buffer's last byte
    bool truncated_ = false;
};

// Returns whether `text` begins with `beginning`. Upper and lower case differ.
inline bool StartsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

// Removes the first word from `text` and returns it; returns "" if there is none. `separators`: a character,
// or a string of characters.
template <typename Separators>
std::string_view TakeWord(std::string_view& text, Separators separators) {
    text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(separators));
    text.remove_prefix(word.size());
    return word;
}

// Compares like strcmp, but ignores the case of ASCII letters. Returns 0 if the strings are equal. Otherwise
// returns the difference of the first two bytes that differ, after converting upper case to lower case; the
// end of a string counts as 0.
int strcmpi(std::string_view a, std::string_view b);

// Parses a decimal number at the beginning of `text`, after optional white space and an optional sign.
// Returns 0 if there is no number. Clamps a number out of range to INT_MIN or INT_MAX.
inline int DecimalNumber(const char* text) {
    const long number = std::strtol(text, nullptr, 10);
    return static_cast<int>(std::clamp(number, long{INT_MIN}, long{INT_MAX}));
}

// The functions below search a table whose rows contain a code of the firmware (`code`) and its name for the
// user (`word`).

// Returns the row whose `word` equals the argument, or null if there is none. Skips rows whose `word` is
// null.
template <typename Row, size_t kCount>
const Row* FindWord(const Row (&rows)[kCount], const char* word) {
    for (const Row& row : rows) {
        if (row.word != nullptr && std::strcmp(row.word, word) == 0) return &row;
    }
    return nullptr;
}

// Returns the row whose `code` equals the argument, or null if there is none.
template <typename Row, size_t kCount>
constexpr const Row* FindCode(const Row (&rows)[kCount], unsigned code) {
    for (const Row& row : rows) {
        if (row.code == code) return &row;
    }
    return nullptr;
}

// A row with a code and its text. The text is stored in an array, because the dynamic loader would have to
// relocate a pointer at every start.
struct CodeText {
    unsigned code;
    char text[28];
};

// Returns the text of a code, or `without_row` if the code has no row.
template <size_t kCount>
constexpr const char* TextOfCode(const CodeText (&rows)[kCount], unsigned code, const char* without_row) {
    const CodeText* const row = FindCode(rows, code);
    return row != nullptr ? row->text : without_row;
}
