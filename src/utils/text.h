// Texts: written, read as numbers, and looked up in tables.
#pragma once

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

// Builds a text in its caller's buffer: never past it, always terminated; once full, what came first stays.
class TextWriter {
  public:
    // size: bytes of the buffer, the terminator included; 1 or more. The text starts empty.
    TextWriter(char* buffer, size_t size);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    void Letter(char letter);
    void Text(std::string_view text);
    // Each with zeros in front up to so many digits, at most 10.
    void Number(uint32_t value, int digits = 1);  // decimal
    void Hex(uint32_t value, int digits);         // hexadecimal, upper case

    bool Empty() const { return next_ == begin_; }
    bool Cut() const { return cut_; }  // whether anything was dropped
    size_t Length() const { return static_cast<size_t>(next_ - begin_); }

  private:
    void Digits(uint32_t value, uint32_t base, int least);

    char* begin_;
    char* next_;  // the terminator's place
    char* last_;  // the buffer's last byte
    bool cut_ = false;
};

// Whether a text begins with another, letter by letter.
inline bool StartsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

// Compares as strcmp does, ASCII letters in either case being equal. Result: 0, or the difference of the
// first two bytes that differ, capitals taken as small letters and the end of a text as 0.
int strcmpi(std::string_view a, std::string_view b);

// The decimal number that a text begins with, behind any white space and a sign; 0 when there is none. What
// an int can't hold becomes the largest or the smallest int.
inline int DecimalNumber(const char* text) {
    const long number = std::strtol(text, nullptr, 10);
    return static_cast<int>(std::clamp(number, long{INT_MIN}, long{INT_MAX}));
}

// Tables in which a value has a number for the firmware and a word for the user.

// The row whose `word` is exactly the one given; null when there is none. A row without a word is never
// found.
template <typename Row, size_t kCount>
const Row* FindWord(const Row (&rows)[kCount], const char* word) {
    for (const Row& row : rows) {
        if (row.word != nullptr && std::strcmp(row.word, word) == 0) return &row;
    }
    return nullptr;
}

// The row whose `code` is the one given; null when there is none.
template <typename Row, size_t kCount>
constexpr const Row* FindCode(const Row (&rows)[kCount], unsigned code) {
    for (const Row& row : rows) {
        if (row.code == code) return &row;
    }
    return nullptr;
}

// A row that has nothing but the code and the text that stands for it. The text is in the row: a pointer to
// it would have to be set by the loader whenever the program starts.
struct CodeText {
    unsigned code;
    char text[28];
};

// The text of a code; the one given for a code that has no row.
template <size_t kCount>
constexpr const char* TextOfCode(const CodeText (&rows)[kCount], unsigned code, const char* without_row) {
    const CodeText* const row = FindCode(rows, code);
    return row != nullptr ? row->text : without_row;
}
