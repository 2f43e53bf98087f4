// Runs the commands of a test case and compares their output, requests and status with the expected ones.
#pragma once

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// A command that is run as a script, and its expected results.
struct Step {
    std::string command;
    std::string output;         // without the two newlines at the end, and with '~' for each NUL
    std::string requests = "";  // as Requests() returns them; kAnything: they aren't compared
    int status = 0;
};
constexpr char kAnything[] = "...";

// Returns a step whose status is 1.
inline Step Fails(const std::string& command, const std::string& output, const std::string& requests = "") {
    return {command, output, requests, 1};
}

// Runs the steps one after another. `name` is the name of the test case, for failure messages.
void ExpectRuns(TestMachine& machine, const std::vector<Step>& steps, const std::string& name);

// Returns the requests of a trace, separated by "; " and abbreviated: without the requests of start-up, and
// without "crom", "length=", "data=" and results of 0.
std::string Requests(const std::string& trace);
