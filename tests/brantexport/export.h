// Runs brantexport on a simulated machine, and compares two runs.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/support/test_machine.h"

struct Exported {
    std::string json;
    std::string metrics;
    std::string errors;  // standard error of the run with --json
    int status = 0;
};

// Returns the scalar values of a JSON document, and each error, as paths and values: {"/fans/0/present",
// "true"}. The path of a list ends with a colon, its value is the number of entries. Expects valid JSON.
std::vector<std::pair<std::string, std::string>> ValuesOf(const std::string& json);

// Runs brantexport in the time zone UTC. Replaces the time, the duration and the version in its output, if
// they have the right form, by constants.
RunResult RunExport(const TestMachine& machine, const std::vector<std::string>& arguments);

// Runs brantexport with --json and with --prometheus. Expects the same status and messages of both, and a
// status of 1 if the document has errors, otherwise 0.
Exported Export(const TestMachine& machine);

// Returns how `now` differs from `before`, a line for each difference: a new or changed value or sample, a
// list or metric with a different number of entries, standard error, status.
std::string Difference(const Exported& before, const Exported& now);

// Expects every JSON document to match docs/brantexport.schema.json.
void ExpectFits(const std::vector<std::string>& documents);
