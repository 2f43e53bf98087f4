// The command line of the programs other than the shell: long options and operands. The C library's reader of
// long options accepts abbreviations and prints messages of its own, so the programs don't use it.
#pragma once

#include <string>
#include <string_view>

class ProgramArguments {
  public:
    ProgramArguments(int argc, char** argv) : next_(argv + (argc > 0)), end_(argv + argc) {}

    // Advances to the next argument. Returns false at the end.
    bool Next();

    // Returns whether the argument is `option`, such as "--json".
    bool Is(std::string_view option) const { return text_ == option; }

    // Returns whether the argument is `option` with a value, such as "--model=tr300" or "--model" followed by
    // "tr300", and stores the value. In the second case, advances to the value.
    bool HasValue(std::string_view option, std::string& value);

    // Returns whether the argument is neither empty nor an option.
    bool IsOperand() const { return !text_.empty() && text_[0] != '-'; }
    std::string Text() const { return std::string(text_); }

    // Returns whether the argument is --help or --version, and stores the reply: `help`, or the program's
    // name and version.
    bool AsksForReply(const char* program, std::string_view help, std::string& reply) const;

  private:
    char** next_;
    char** end_;
    std::string_view text_;
};

// Writes the reply to --help or --version to `output`. Returns the program's exit status. If the reply can't
// be written, prints a message on standard error and returns 1.
int PrintReply(int output, const char* program, std::string_view reply);
