// The lines of the machine's text files. Those that are blank or begin with '#' don't count, and neither do
// blanks at the end of a line, among them the carriage return that some editors leave there.
#pragma once

#include <cstddef>
#include <string_view>

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
