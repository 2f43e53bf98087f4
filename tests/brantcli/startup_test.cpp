#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

const std::string kRule(74, '-');
const std::string kBanner = "VX management CLI for Solaris (v1.1)\n" + kRule +
                            "\nNOTE: Some brantcli commands may not be supported on all Corvex servers.\n" +
                            kRule + "\n";

// Runs the program with its output and the machine's trace in one file. Returns that file from the beginning
// of `first` on, and the exit status.
std::string RunInOrder(TestMachine& machine, const std::string& words, const char* first = "open cdt",
                       const RunOptions& options = {}) {
    machine.StartTrace();
    const std::string command = InShell("brantcli_interposed") + words + " >> \"$BRANT_MACHINE/trace\"";
    const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory(), options);
    const std::string all = machine.Read("trace") + "[" + std::to_string(run.status) + "]\n";
    return "\nbrantcli" + words + "\n" + all.substr(std::min(all.find(first), all.size()));
}

// Fails one allocation after the other until the program prints the message.
std::string RunOutOfMemory(TestMachine& machine, const std::string& message) {
    for (int failing = 1; failing < 1000; ++failing) {
        RunOptions options;
        options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(failing)};
        const std::string run = RunInOrder(machine, " -s HELP", "open cdt", options);
        if (run.find(message) != run.npos) return run;
    }
    return "never printed: " + message;
}

TEST(StartUp, AndTheEndOfARunKeepTheirOrder) {
    TestMachine machine;
    RunOptions keys;
    keys.input = "\33\33\33[A\3exit\r";
    std::string runs = RunInOrder(machine, " -s 'HELP EXIT'", "xsvc") + RunInOrder(machine, " -s") +
                       RunInOrder(machine, " -s 'EXIT;HELP'") + RunInOrder(machine, "", "VX", keys) +
                       RunOutOfMemory(machine, "command history") + RunOutOfMemory(machine, "command tree");
    for (const char* device : {"crom", "casr", "cevt", "cdt"}) {
        machine.Remove(device);
        runs += std::string("\nno ") + device + RunInOrder(machine, " -s HELP");
    }
    ExpectGolden("brantcli/runs.txt", runs);
}

struct OptionCase {
    const char* catches;
    std::vector<std::string> arguments;
    std::string output;
    int status;
    bool touches_the_machine;
};

constexpr char kUsage[] = "\nUSAGE: brantcli [-s  \"<command1>;<command2>;...<commandN>\"]\n";

// clang-format off
const OptionCase kOptionCases[] = {
    {"an unknown option run",                   {"-x"},                  kUsage,                  0, false},
    {"-S without its value run",                {"-S"},                  kUsage,                  0, false},
    {"no command taken for success",            {"-s", ""},              "\n",                    1, true},
    {"-S not the same as -s",                   {"-S", "nonsense"},      "\nInvalid Command\n\n", 1, true},
    {"a final ';' taken for an empty command",  {"-s", "HELP EXIT;"},    "\nUSAGE: EXIT: Exit brantcli.\n\n", 0, true},
    {"options behind another word read, no end at the end of the input", {"SET UID ON", "-s"}, kBanner + "brantcli> \n", 0, true},
    {"options behind the commands read",        {"-s", "HELP EXIT", "-x"}, "\nUSAGE: EXIT: Exit brantcli.\n\n", 0, true},
    {"words behind \"--\" taken for options",   {"--", "-x"},            kBanner + "brantcli> \n", 0, true},
};
// clang-format on

TEST(StartUp, ReadsItsOptions) {
    for (const OptionCase& c : kOptionCases) {
        TestMachine machine("tr500k2");
        machine.StartTrace();
        const RunResult run = RunProgram(ProgramPath("brantcli"), c.arguments, machine.Directory());
        EXPECT_EQ(run.output, c.output) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
        EXPECT_EQ(!machine.TakeTrace().empty(), c.touches_the_machine) << c.catches;
    }
}

TEST(StartUp, RefusesEveryoneButRoot) {
    TestMachine machine("tr500k2");
    RunOptions as_nobody;
    as_nobody.as_root = false;
    for (const char* option : {"-s", "-x"}) {
        machine.StartTrace();
        const RunResult run =
            RunProgram(ProgramPath("brantcli"), {option, "EXIT"}, machine.Directory(), as_nobody);
        EXPECT_EQ(run.output, "ERROR: You must be root to run brantcli.\n\n") << option;
        EXPECT_EQ(run.status, 1) << option;
        EXPECT_EQ(machine.TakeTrace(), "") << option;
    }
}

TEST(StartUp, ReportsOutputThatCanNotBeWritten) {
    TestMachine machine("tr500k2");
    const auto status = [&](const std::string& words, const std::string& with = "timeout 20 ") {
        return RunProgram("/bin/sh", {"-c", with + InShell("brantcli") + words}, machine.Directory()).status;
    };
    EXPECT_EQ(status(" -s 'SHOW FANS' > /dev/full"), 1);
    EXPECT_EQ(status(" -s 'EXIT' > /dev/full"), 1);
    EXPECT_EQ(status(" -s 'SHOW FANS' > /dev/null"), 0);
    EXPECT_EQ(status(" -x > /dev/full"), 0);
    EXPECT_EQ(status(" < /dev/zero > /dev/full"), 1);  // keys that do nothing, without end
    machine.StartTrace();
    EXPECT_EQ(status(" -s HELP <&- >&-"), 1) << "written to the trace, which is opened early";
    int pipe_ends[2];
    ASSERT_EQ(pipe(pipe_ends), 0);
    close(pipe_ends[0]);
    EXPECT_EQ(status(" -s HELP >&" + std::to_string(pipe_ends[1])), 1) << "ended by SIGPIPE";
    close(pipe_ends[1]);
    const std::string help =
        " -s '" + std::string(100, ';') + "HELP EXIT' > $BRANT_MACHINE/out";  // 129 bytes, and one
    EXPECT_EQ(status(help, "trap '' XFSZ; prlimit --fsize=129 "), 1);
    EXPECT_EQ(status(help, "trap '' XFSZ; prlimit --fsize=130 "), 0);
}

}  // namespace
