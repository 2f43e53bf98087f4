// Commands that read and change ROM settings, as rows: the machine's facts, what is typed, and all that must
// come of it.
#pragma once

#include <string>

#include "tests/support/test_machine.h"

// Lists separate their items by "; ". Bytes are hexadecimal, two digits each.
struct RomCase {
    const char* model;
    const char* catches;   // the fault that the row is there for
    const char* facts;     // "NAME=bytes" sets a variable, "-NAME" removes it, "!CALL RESULT" is a fault
    const char* commands;  // the script: separated by ';'
    const char* output;    // without the line ends of dispatcher and program behind it; '~' is a zero byte
    int status;
    const char* requests;    // as Requests gives them
    const char* after = "";  // "NAME=bytes" for each variable that the row cares about
};

// Runs a row with the real program on a machine of its own, and reports what differs.
void CheckRow(const RomCase& row);

// Gives a machine a row's facts.
void SetFacts(TestMachine& machine, const char* facts);

// The ROM's and the recovery timer's lines of a trace, but for start-up's, without the words "crom",
// "length=" and "data=" and the results 0.
std::string Requests(const std::string& trace);

std::string FromHex(const std::string& digits);

// The commands in this process, on a machine without variables: for tests that need very many of them.
class RomShell {
  public:
    RomShell();

    // Runs a command line. Result: what it printed, without the dispatcher's line end.
    std::string Run(const std::string& line);

    TestMachine machine;  // traced
    int status = 0;       // the last line's result
};
