// What the commands of a test's row are expected to do: the one way in which rows say it.
#pragma once

#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// One command line, run as a script of its own.
struct Step {
    std::string command;
    std::string says;  // to the letter, but for the two newlines that end a run; '~' stands for a zero byte
    std::string asks = "";  // of the driver, as Requests gives it; kAnything where that isn't the point
    int status = 0;
};
constexpr char kAnything[] = "...";

inline Step Fails(const std::string& command, const std::string& says, const std::string& asks = "") {
    return {command, says, asks, 1};
}

// Runs the steps one after the other. row: named by what fails.
void ExpectRuns(TestMachine& machine, const std::vector<Step>& steps, const std::string& row);

// The requests of a trace, separated by "; ", without those of start-up and without what goes without saying:
// "crom", "length=", "data=" and a result of 0.
std::string Requests(const std::string& trace);
