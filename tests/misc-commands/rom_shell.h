// What the tests of the commands that read and change ROM settings share.
#pragma once

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// The items of a list, which are separated by "; ".
std::vector<std::string> Items(const std::string& list);

// Gives a machine a list of facts: "NAME=bytes" sets a variable, "-NAME" removes it, "!CALL RESULT" is a
// fault. Bytes are hexadecimal, two digits each.
void SetFacts(TestMachine& machine, const char* facts);

// The commands in this process, on a machine without variables: for tests that need very many of them.
class RomShell {
  public:
    RomShell();

    // Runs a command line. Result: what it printed, without the dispatcher's line end.
    std::string Run(const std::string& line);

    TestMachine machine;  // traced
    int status = 0;       // the last line's result
};
