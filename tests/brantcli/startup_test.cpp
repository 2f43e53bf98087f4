#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/pattern.h"
#include "tests/support/test_machine.h"

namespace {

constexpr char kHint[] = "\nPlease make sure the brantd/brantlited daemon is started and running properly.";

// The trace without what the firmware tables ask for, which is another test's.
std::string Devices(const std::string& trace) {
    return ReplaceAll(trace, "[^\n]*(xsvc|picl)[^\n]*\n", "");
}

struct DeviceCase {
    const char* missing;
    std::string output;
    const char* trace;
};

const DeviceCase kDeviceCases[] = {
    {"cdt", std::string("\nERROR: Could not communicate with brantd/brantlited.\n") + kHint + "\n",
     "open cdt -> -1 errno=2\n"},
    {"cevt", std::string("\nERROR: Could not open /dev/zethealth/cevt.") + kHint + "\n\n",
     "open cdt -> 0\nopen cevt -> -1 errno=2\nclose cdt\n"},
    {"casr", std::string("\nERROR: Could not open /dev/zethealth/casr.") + kHint + "\n\n",
     "open cdt -> 0\nopen cevt -> 0\nopen casr -> -1 errno=2\nclose cevt\nclose cdt\n"},
    {"crom", std::string("\nERROR: Could not open /dev/zethealth/crom.") + kHint + "\n\n",
     "open cdt -> 0\nopen cevt -> 0\nopen casr -> 0\nopen crom -> -1 errno=2\nclose casr\nclose cevt\nclose "
     "cdt\n"},
};

const std::string kRule(74, '-');
const std::string kBanner = "VX management CLI for Solaris (v1.1)\n" + kRule +
                            "\nNOTE: Some brantcli commands may not be supported on all Corvex servers.\n" +
                            kRule + "\n";

TEST(StartUp, EndsWhenADeviceDoesNotOpen) {
    for (const DeviceCase& c : kDeviceCases) {
        TestMachine machine("tr500k2");
        machine.Remove(c.missing);
        machine.StartTrace();
        const RunResult run = machine.Script("SHOW FANS");
        EXPECT_EQ(run.output, c.output) << c.missing;
        EXPECT_EQ(run.status, 1) << c.missing;
        EXPECT_EQ(Devices(machine.TakeTrace()), c.trace) << c.missing;
        EXPECT_EQ(machine.Type("").output, kBanner + c.output) << c.missing;
    }
}

struct OptionCase {
    const char* catches;
    std::vector<std::string> arguments;
    std::string output;
    int status;
    bool touches_the_machine;
};

constexpr char kUsage[] = "\nUSAGE: brantcli [-s  \"<command1>;<command2>;...<commandN>\"]\n";
constexpr char kNoCommand[] = "ERROR: At least one command must be specified in script mode.\n";

// clang-format off
const OptionCase kOptionCases[] = {
    {"an unknown option run",                   {"-x"},                  kUsage,                  0, false},
    {"-S without its value run",                {"-S"},                  kUsage,                  0, false},
    {"-s without commands taken for success",   {"-s"},                  kNoCommand,              1, true},
    {"no command taken for success",            {"-s", ""},              "\n",                    1, true},
    {"-S not the same as -s",                   {"-S", "nonsense"},      "\nInvalid Command\n\n", 1, true},
    {"a final ';' taken for an empty command",  {"-s", "HELP EXIT;"},    "\nUSAGE: EXIT: Exit brantcli.\n\n", 0, true},
    {"a command run after EXIT",                {"-s", "EXIT;nonsense"}, "\n",                    0, true},
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

TEST(StartUp, ClosesTheDevicesInTheOrderOfItsEnd) {
    TestMachine machine("tr500k2");
    const auto closes = [&](const char* commands) {
        machine.StartTrace();
        machine.Script(commands);
        const std::string trace = Devices(machine.TakeTrace());
        return trace.substr(trace.find("close"));
    };
    EXPECT_EQ(closes("HELP"), "close crom\nclose casr\nclose cevt\nclose cdt\n");
    EXPECT_EQ(closes("EXIT"), "close cdt\nclose cevt\nclose casr\nclose crom\n");
}

TEST(StartUp, ReportsOutputThatCanNotBeWritten) {
    TestMachine machine("tr500k2");
    const auto status = [&](const std::string& words) {
        return RunProgram("/bin/sh", {"-c", "timeout 20 " + InShell("brantcli") + words}, machine.Directory())
            .status;
    };
    EXPECT_EQ(status(" -s 'SHOW FANS' > /dev/full"), 1);
    EXPECT_EQ(status(" -s 'EXIT' > /dev/full"), 1);
    EXPECT_EQ(status(" -s 'SHOW FANS' > /dev/null"), 0);
    EXPECT_EQ(status(" -x > /dev/full"), 0);
    EXPECT_EQ(status(" < /dev/zero > /dev/full"), 1);  // keys that do nothing, without end
}

}  // namespace
