// Runs brantexport on a simulated machine, and compares two runs.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/support/test_machine.h"

using Json = nlohmann::ordered_json;

struct Exported {
    Json document;
    std::string metrics;
    std::string errors;  // standard error of the run with --json
    int status = 0;
};

// Runs brantexport with --json and with --prometheus. Expects the same status and messages of both, ASCII
// output, and a status of 1 if the document has errors, otherwise 0.
Exported Export(const TestMachine& machine);

// Returns how `now` differs from `before`, a line for each difference: a member's path and new value, a list
// that has fewer entries, a new or changed sample, a metric that has fewer samples, standard error, status.
std::string Difference(const Exported& before, const Exported& now);

// Expects every document to match docs/brantexport.schema.json.
void ExpectFits(const std::vector<Json>& documents);
