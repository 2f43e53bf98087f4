// What the tests of the commands that read and change ROM settings share.
#pragma once

#include <string>
#include <vector>

#include "tests/support/expected_run.h"
#include "tests/support/test_machine.h"

// The items of a list, which are separated by "; ".
std::vector<std::string> Items(const std::string& list);

// Gives a machine a list of facts: "NAME=bytes" sets a variable, "-NAME" removes it, "!CALL RESULT" is a
// fault. Bytes are hexadecimal, two digits each.
void SetFacts(TestMachine& machine, const char* facts);

constexpr char kOrdinary[] = "tr300";  // a server with nothing special
constexpr char kFull[] = "tr500k2";    // one with a USB key in its boot order and the management processor
#define NIC "0100000000000000"         // an entry of ZTHMAC that makes a NIC present

// What the commands of a family do.
struct RomRow {
    const char* model;
    const char* catches;  // the fault that the row is there for
    const char* facts;    // as SetFacts takes them
    std::vector<Step> steps;
};
void ExpectRows(const std::vector<RomRow>& rows);

// What a value reads as.
struct Shown {
    const char* facts;
    const char* command;
    const char* output;
    int status = 0;
};
// product: the server's name. The server has the management processor and four embedded NICs.
void ExpectShown(const char* product, const std::vector<Shown>& rows);

// The commands in this process, on a machine without variables: for tests that need very many of them.
class RomShell {
  public:
    RomShell();

    // Runs a command line. Result: what it printed, without the dispatcher's line end.
    std::string Run(const std::string& line);

    TestMachine machine;  // traced
    int status = 0;       // the last line's result
};
