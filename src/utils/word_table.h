// Looking up a row of a table in which a value has a number for the firmware and a word for the user.
#pragma once

#include <cstddef>
#include <cstring>

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

// A row that has nothing but the code and the text that stands for it.
struct CodeText {
    unsigned code;
    const char* text;
};

// The text of a code; the one given for a code that has no row.
template <size_t kCount>
constexpr const char* TextOfCode(const CodeText (&rows)[kCount], unsigned code, const char* without_row) {
    const CodeText* const row = FindCode(rows, code);
    return row != nullptr ? row->text : without_row;
}
