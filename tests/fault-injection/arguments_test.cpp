// Runs every command with one argument too many, and without the arguments that it needs. arguments.txt
// contains the status and the output. It marks the commands that make requests in spite of the wrong
// arguments.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/every_command.h"
#include "tests/support/golden.h"

namespace {

TEST(Arguments, TooManyOrTooFewAreRejectedBeforeAnyRequest) {
    std::vector<std::string> lines;
    for (const std::string& command : Commands()) lines.push_back(command + " X");
    for (const auto& [command, arguments] : kArguments) lines.push_back(command);

    TestMachine machine("tr500k2");
    machine.Write("cevt/hlog", "");
    machine.StartTrace();
    const auto run = [&](const std::string& line) {
        return RunProgram(ProgramPath("brantcli_interposed"), {"-s", line}, machine.Directory());
    };
    const auto take_request_count = [&] {
        const std::string trace = machine.TakeTrace("c");
        return std::count(trace.begin(), trace.end(), '\n');
    };
    run("HELP");
    const auto at_start = take_request_count();
    std::string listing;
    for (const std::string& line : lines) {
        const RunResult result = run(line);
        const bool makes_requests = take_request_count() != at_start;
        listing += line + " -> " + std::to_string(result.status) +
                   (makes_requests ? ", makes requests" : "") + "\n" + result.output;
    }
    ExpectGolden("fault-injection/arguments.txt", listing);
}

}  // namespace
