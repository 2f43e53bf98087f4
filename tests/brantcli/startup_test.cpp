// Tests of a whole run: the order of its steps, its options, its exit status, and that no command affects a
// later one.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/every_command.h"
#include "tests/support/expected_run.h"
#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

// Runs the program and makes it append its output to the machine's trace, so that the order of the output and
// the calls is visible. Returns the trace from the first occurrence of `first` on, the errors and the exit
// status.
std::string RunInOrder(TestMachine& machine, const std::string& words, const char* first = "open cdt",
                       const RunOptions& options = {}) {
    machine.StartTrace();
    const std::string command = InShell("brantcli_interposed") + words + " >> \"$BRANT_MACHINE/trace\"";
    const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory(), options);
    const std::string all = machine.Read("trace") + run.errors + "[" + std::to_string(run.status) + "]\n";
    return "\nbrantcli" + words + "\n" + all.substr(std::min(all.find(first), all.size()));
}

// Runs the program repeatedly. Each run fails a later allocation, until a run prints the message. Returns the
// output of that run.
std::string RunOutOfMemory(TestMachine& machine, const std::string& message) {
    for (int failing = 1; failing < 1000; ++failing) {
        RunOptions options;
        options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(failing)};
        const std::string run = RunInOrder(machine, " -s HELP", "open cdt", options);
        if (run.find(message) != run.npos) return run;
    }
    return "never printed: " + message;
}

TEST(StartUp, RunsItsStepsInOrder) {
    TestMachine machine, server("tr300");
    RunOptions keys;
    keys.input = "\33\33\33[A\3exit\r";
    std::string runs = RunInOrder(server, " -s 'HELP EXIT'", "xsvc") + RunInOrder(machine, " -s") +
                       RunInOrder(machine, " -s 'X;EXIT;HELP'") + RunInOrder(machine, "", "VX", keys) +
                       RunOutOfMemory(machine, "command history") + RunOutOfMemory(machine, "command tree");
    for (const char* device : {"crom", "casr", "cevt", "cdt"}) {
        machine.Remove(device);
        runs += std::string("\nno ") + device + RunInOrder(machine, " -s HELP");
    }
    machine.Fault("xsvc map 0x000f0000 -6");
    runs += RunInOrder(machine, " -s EXIT", "xsvc");
    ExpectGolden("brantcli/runs.txt", runs);
}

struct OptionCase {
    const char* catches;
    std::vector<std::string> arguments;
    bool as_root;
};

// clang-format off
const OptionCase kOptionCases[] = {
    {"an unknown option is ignored, or is run as the commands", {"-s", "-x"}, true},
    {"-S without its value is accepted", {"-S"}, true},
    {"an empty script succeeds", {"-s", ""}, true},
    {"-S isn't equivalent to -s, or its value is run", {"-Snonsense", "HELP EXIT"}, true},
    {"the commands aren't the second argument", {"-s", "-s", "HELP EXIT"}, true},
    {"an empty command follows a final ';'", {"-s", "HELP EXIT;"}, true},
    {"an option after another argument is read, or the end of the input doesn't end the run", {"SET UID ON", "-s"}, true},
    {"an option after the commands is read", {"-s", "HELP EXIT", "-x"}, true},
    {"an argument after \"--\" is an option", {"--", "-x"}, true},
    {"another user than root runs the commands", {"-s", "EXIT"}, false},
    {"the options are read before the user is checked", {"-x", "EXIT"}, false},
};
// clang-format on

// options.txt contains the output of each case, and whether the program calls the platform layer.
TEST(StartUp, ReadsItsOptionsAndRequiresRoot) {
    std::string runs;
    for (const OptionCase& c : kOptionCases) {
        TestMachine machine("tr500k2");
        machine.StartTrace();
        RunOptions user;
        user.as_root = c.as_root;
        const RunResult run = RunProgram(ProgramPath("brantcli"), c.arguments, machine.Directory(), user);
        runs += std::string(c.catches) + "\n" + run.output + "[" + std::to_string(run.status) +
                (machine.TakeTrace().empty() ? ", no calls]\n" : "]\n");
    }
    ExpectGolden("brantcli/options.txt", runs);
}

TEST(StartUp, ReturnsStatus1IfOutputIsLost) {
    TestMachine machine("tr500k2");
    const auto status = [&](const std::string& words, const std::string& with = "timeout 20 ") {
        return RunProgram("/bin/sh", {"-c", with + InShell("brantcli") + words}, machine.Directory()).status;
    };
    EXPECT_EQ(status(" -s 'SHOW FANS' > /dev/full"), 1);
    EXPECT_EQ(status(" -s 'EXIT' > /dev/full"), 1);
    EXPECT_EQ(status(" -s 'SHOW FANS' > /dev/null"), 0);
    EXPECT_EQ(status(" -x > /dev/full"), 0);
    EXPECT_EQ(status(" < /dev/zero > /dev/full"), 1);  // an endless input of keys without effect
    machine.StartTrace();
    EXPECT_EQ(status(" -s HELP <&- >&-"), 1)
        << "with standard output closed, HELP may have been written to the trace";
    int pipe_ends[2];
    ASSERT_EQ(pipe(pipe_ends), 0);
    close(pipe_ends[0]);
    EXPECT_EQ(status(" -s HELP >&" + std::to_string(pipe_ends[1])), 1)
        << "with a closed pipe, SIGPIPE may have ended the program";
    close(pipe_ends[1]);
    const std::string help =
        " -s '" + std::string(100, ';') + "HELP EXIT' > $BRANT_MACHINE/out";  // prints 130 bytes
    EXPECT_EQ(status(help, "prlimit --fsize=129 "), 1);
    EXPECT_EQ(status(help, "prlimit --fsize=130 "), 0);
}

// Runs each command twice: once all commands in one script, and once each in a process of its own.
TEST(Script, KeepsNothingFromOneCommandForTheNext) {
    TestMachine together("tr500k2"), apart("tr500k2");
    together.StartTrace();
    apart.StartTrace();
    std::string script, output;
    for (int round = 0; round < 2; ++round) {
        for (const std::string& command : Commands()) {
            if (command == "EXIT" || command == "QUIT") continue;
            script += command + ";";
            output += apart.Script(command).output;
            output.pop_back();  // the newline at the end of the run
        }
    }
    EXPECT_EQ(together.Script(script).output, output + "\n");
    EXPECT_EQ(Requests(together.TakeTrace()), Requests(apart.TakeTrace()));
}

}  // namespace
