// Runs brantexport on a simulated machine, and compares two runs.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/support/test_machine.h"

struct Exported {
    std::string json;
    std::string metrics;
    std::string verdict;  // output of --check
    std::string errors;   // standard error of the run with --json
    std::string trace;    // of the run with --json
    int status = 0;
};

// Returns the scalar values of a JSON document, and each error, as paths and values: {"/fans/0/present",
// "true"}. The path of a list ends with a colon, its value is the number of entries. Expects valid JSON.
std::vector<std::pair<std::string, std::string>> ValuesOf(const std::string& json);

// Runs brantexport in the time zone UTC. Replaces the time, the duration and the version in its output, if
// they have the right form, by constants.
RunResult RunExport(const TestMachine& machine, const std::vector<std::string>& arguments);

// Runs brantexport with --json, --prometheus and --check. Expects the same messages and calls of all, and a
// status of 1 if the document has errors, otherwise 0. The status of --check must be that of its line.
Exported Export(TestMachine& machine);

// Returns how `now` differs from `before`, a line for each difference: a new or changed value or sample, a
// list or metric with a different number of entries, a problem that --check has or has no longer reported,
// standard error, status, a call that was made more or less often.
std::string Difference(const Exported& before, const Exported& now);

// Expects every JSON document to match docs/brantexport.schema.json.
void ExpectFits(const std::vector<std::string>& documents);
