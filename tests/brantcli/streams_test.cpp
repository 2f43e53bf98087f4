// The standard streams as a caller may leave them.
#include <gtest/gtest.h>

#include "tests/support/test_machine.h"

namespace {

struct StreamCase {
    const char* program;
    const char* words;
    const char* streams;  // closed by the caller
    const char* errors;
};

constexpr char kNoNull[] = "ERROR: Could not open /dev/null: No such file or directory.\n";

// A stream that can't be replaced ends the program before it opens anything: what it prints would be written
// into the first file that it opens.
TEST(Streams, EndTheProgramIfOneIsMissing) {
    const StreamCase cases[] = {
        {"brantcli_interposed", "-s 'SET UID ON'", "<&-", kNoNull},
        {"brantcli_interposed", "-s 'SET UID ON'", ">&-", kNoNull},
        {"brantcli_interposed", "-s 'SET UID ON'", "2>&-", ""},
        {"savemachine_interposed", "$BRANT_MACHINE/copy", ">&-", kNoNull},
    };
    for (const StreamCase& c : cases) {
        TestMachine machine("tr300");
        machine.StartTrace();
        RunOptions options;
        options.environment = {"BRANT_NO_NULL=1"};
        const std::string command = "exec " + InShell(c.program) + " " + c.words + " " + c.streams;
        const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory(), options);
        EXPECT_EQ(run.output, "") << command;
        EXPECT_EQ(run.errors, c.errors) << command;
        EXPECT_EQ(run.status, 1) << command;
        EXPECT_EQ(machine.TakeTrace(), "") << command;
    }
}

}  // namespace
