// The machine's text files: their lines, and the numbers in them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// The lines that count: those that are blank or begin with '#' don't, and neither do blanks at the end of a
// line, among them the carriage return that some editors leave there.
class Lines {
  public:
    // file: its name in the machine directory. text: what it holds. Both must outlive this.
    Lines(const char* file, std::string_view text) : file_(file), rest_(text) {}

    // Takes the next line that counts. False at the end.
    bool Take();

    // The line that was taken, with its indentation.
    std::string_view Line() const { return line_; }
    size_t Indentation() const;  // in blanks

    // Reports on standard error that the line can't be read.
    void Reject() const;

  private:
    const char* file_;
    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;  // from 1
};

// Reads a whole text as a number, decimal or hexadecimal after "0x". largest: the largest that is accepted.
// False, with value as it was, for anything else.
bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value);
