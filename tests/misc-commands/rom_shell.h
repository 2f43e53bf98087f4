// Functions shared by the tests of the commands for ROM settings.
#pragma once

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// Splits a list at each "; " and returns its items.
std::vector<std::string> Items(const std::string& list);

// Changes a machine. `facts` is a list for Items(): "NAME=bytes" sets a variable to bytes in hexadecimal,
// "-NAME" removes a variable, "!CALL RESULT" adds a fault.
void SetFacts(TestMachine& machine, const char* facts);

constexpr char kOrdinary[] = "tr300";  // a model without the optional parts of kFull
constexpr char kFull[] = "tr500k2";    // a model with a USB key in its boot order and a management processor
#define NIC "0100000000000000"         // an entry of the variable ZTHMAC that contains a NIC

// Runs commands in the test's own process, for tests that run thousands of commands. Its machine has no ROM
// variables.
class RomShell {
  public:
    RomShell();

    // Runs a command line. Returns its output without the newline that the dispatcher adds.
    std::string Run(const std::string& line);

    TestMachine machine;  // a machine whose calls are traced
    int status = 0;       // result of the last command
};
