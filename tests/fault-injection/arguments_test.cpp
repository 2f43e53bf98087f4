// Words too many and values left out, for every command of the tree: arguments.txt holds the status and the
// output, and which commands take the words and ask the machine all the same.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/fault-injection/every_command.h"
#include "tests/support/golden.h"

namespace {

TEST(Words, TooManyOrTooFewAreRefusedBeforeAnyRequest) {
    std::vector<std::string> lines;
    for (const std::string& command : Commands()) lines.push_back(command + " X");
    for (const auto& [command, arguments] : kArguments) lines.push_back(command);

    TestMachine machine("tr500k2");
    machine.Write("cevt/hlog", "");
    machine.StartTrace();
    const auto run = [&](const std::string& line) {
        return RunProgram(ProgramPath("brantcli_interposed"), {"-s", line}, machine.Directory());
    };
    const auto requests = [&] {
        const std::string trace = machine.TakeTrace("c");
        return std::count(trace.begin(), trace.end(), '\n');
    };
    run("HELP");
    const auto at_start = requests();
    std::string listing;
    for (const std::string& line : lines) {
        const RunResult result = run(line);
        const bool asks = requests() != at_start;
        listing +=
            line + " -> " + std::to_string(result.status) + (asks ? ", asks" : "") + "\n" + result.output;
    }
    ExpectGolden("fault-injection/arguments.txt", listing);
}

}  // namespace
