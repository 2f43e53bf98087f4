#include "tests/support/expected_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <sstream>

std::string Requests(const std::string& trace) {
    const std::regex request("^(cdt|cevt|casr|crom) (?!read ZTHMAC)"), unsaid("^crom |length=|data=| -> 0$");
    std::istringstream lines(trace);
    std::string requests;
    for (std::string line; std::getline(lines, line);) {
        if (!std::regex_search(line, request)) continue;
        requests += (requests.empty() ? "" : "; ") + std::regex_replace(line, unsaid, "");
    }
    return requests;
}

void ExpectRuns(TestMachine& machine, const std::vector<Step>& steps, const std::string& row) {
    for (const Step& step : steps) {
        SCOPED_TRACE(row + ": " + step.command);
        machine.StartTrace();
        RunResult run = machine.Script(step.command);
        std::replace(run.output.begin(), run.output.end(), '\0', '~');
        EXPECT_EQ(step.says + "\n\n", run.output);
        EXPECT_EQ("", run.errors);
        EXPECT_EQ(step.status, run.status);
        if (step.asks == kAnything) continue;
        EXPECT_EQ(step.asks, Requests(machine.TakeTrace()));
    }
}
