// Functions shared by the tests of the commands for ROM settings.
#pragma once

#include <string>
#include <vector>

#include "tests/support/expected_run.h"
#include "tests/support/test_machine.h"

// Splits a list at each "; ".
std::vector<std::string> Items(const std::string& list);

// Changes a machine by a list for Items(): "NAME=bytes" sets a variable to bytes in hexadecimal, "-NAME"
// removes a variable, "!CALL RESULT" adds a fault.
void SetFacts(TestMachine& machine, const char* facts);

constexpr char kOrdinary[] = "tr300";  // a server without the parts that kFull has
constexpr char kFull[] =
    "tr500k2";                  // a server with a USB key in its boot order, and with a management processor
#define NIC "0100000000000000"  // an entry of ZTHMAC that contains a NIC

struct RomRow {
    const char* model;
    const char* catches;  // the defect that makes the test case fail
    const char* facts;    // for SetFacts()
    std::vector<Step> steps;
};
// Runs the steps of each test case on a machine of its own.
void ExpectRows(const std::vector<RomRow>& rows);

struct Shown {
    const char* facts;  // for SetFacts()
    const char* command;
    const char* output;
    int status = 0;
};
// Runs the commands of all test cases on one server called `product`, which has a management processor and
// four embedded NICs.
void ExpectShown(const char* product, const std::vector<Shown>& rows);

// Runs commands in this process, for tests that run very many of them. Its machine has no ROM variables.
class RomShell {
  public:
    RomShell();

    // Runs a command line. Returns its output without the newline that the dispatcher adds.
    std::string Run(const std::string& line);

    TestMachine machine;  // with a trace
    int status = 0;       // the result of the last command
};
