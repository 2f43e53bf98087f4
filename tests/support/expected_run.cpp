#include "tests/support/expected_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/support/pattern.h"

std::string Requests(const std::string& trace) {
    std::istringstream lines(trace);
    std::string requests;
    for (std::string line; std::getline(lines, line);) {
        if (!Contains(line, "^(cdt|cevt|casr|crom) (?!read ZTHMAC)")) continue;
        requests += (requests.empty() ? "" : "; ") + ReplaceAll(line, "^crom |length=|data=| -> 0$", "");
    }
    return requests;
}

void ExpectRuns(TestMachine& machine, const std::vector<Step>& steps, const std::string& name) {
    for (const Step& step : steps) {
        SCOPED_TRACE(name + ": " + step.command);
        machine.StartTrace();
        RunResult run = machine.Script(step.command);
        std::replace(run.output.begin(), run.output.end(), '\0', '~');
        EXPECT_EQ(step.output + "\n\n", run.output);
        EXPECT_EQ("", run.errors);
        EXPECT_EQ(step.status, run.status);
        if (step.requests == kAnything) continue;
        EXPECT_EQ(step.requests, Requests(machine.TakeTrace()));
    }
}
