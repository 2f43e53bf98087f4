// Functions shared by the tests of the commands for ROM settings.
#pragma once

#include <string>
#include <vector>

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

// Runs commands in this process, for tests that run very many of them. Its machine has no ROM variables.
class RomShell {
  public:
    RomShell();

    // Runs a command line. Returns its output without the newline that the dispatcher adds.
    std::string Run(const std::string& line);

    TestMachine machine;  // with a trace
    int status = 0;       // the result of the last command
};
