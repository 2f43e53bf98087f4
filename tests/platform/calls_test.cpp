// Tests of injected faults and of the trace, for calls of each kind, and of failure reports.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>

#include "platform/physical_memory.h"
#include "tests/platform/make_call.h"
#include "tests/support/pattern.h"

namespace {

// `catches`: the defect that the case detects. `bad_lines`: the numbers of the lines that are reported.
const struct {
    const char* catches;
    const char* faults;
    const char* calls;
    const char* bad_lines = "";
} kFaults[] = {
    {"a fault of another device", "open cevt -13\n", "open cdt -> 0; open cevt -> -1 errno=13"},
    {"a fault of another record", "cdt 351.0.0 7\n",
     "open cdt -> 0; cdt 351.0.0 size=4 cru=0.0 -> 7; cdt 351.0.1 size=4 cru=0.0 -> 0 = 02"},
    {"a change that is made in spite of a fault", "cdt 1503.0.0 -5\ncasr 4 0\ncasr 6 0\ncevt clear 0\n",
     "open cdt -> 0; cdt 1503.0.0 size=5 cru=1.1 -> -1 errno=5; open casr -> 0; casr 4 -> 0; casr 6 -> 0;"
     "open cevt -> 0; cevt clear length=56 -> 0"},
    {"a read's fault for writes, or a name compared by its beginning", "crom read A 1\ncrom write AB 2\n",
     "open crom -> 0; crom read A length=1 -> 1; crom write A length=1 data=41 -> 0;"
     "crom read AB length=1 -> 0 = 42; crom write AB length=1 data=00 -> 2"},
    {"a fault of another event", "cevt read 2147483648 4\ncevt read 0 5\ncevt read * 6\n",
     "open cevt -> 0; cevt read 0 length=44 -> 5; cevt read 1 length=44 -> 6;"
     "cevt read -2147483648 length=44 -> 4; cevt choice=7 length=44 -> -1 errno=22"},
    {"a fault of another page", "xsvc map 0x00001000 -12\n",
     "xsvc open -> 0; xsvc map 0x00000000 4096 -> 0 = 4d4e; xsvc unmap 4096;"
     "xsvc map 0x00001000 4096 -> -1 errno=12; xsvc close"},
    {"physical memory that opens in spite of a fault", "xsvc open -1\n", "xsvc open -> -1 errno=1"},
    {"PICL that initializes in spite of a fault", "picl initialize 1\n",
     "picl initialize -> 1; picl root -> 4"},
    {"a root in spite of a fault", "picl root 15\n", "picl initialize -> 0; picl root -> 15"},
    {"request numbers that start at 0 or count other calls", "request 2 9\n",
     "open casr -> 0; xsvc open -> 0; casr 6 -> 0 = 01000000; casr 6 -> 9; casr 6 -> 0 = 01000000"},
    {"a later line of several that match", "request 1 3\ncasr 6 4\nrequest 2 5\ncasr 6 6\n",
     "open casr -> 0; casr 6 -> 3; casr 6 -> 4"},
    {"a comment taken for a fault, or a last line without newline ignored", "\n# casr 6 1\ncasr 6 2",
     "open casr -> 0; casr 6 -> 2"},
    {"an invalid line accepted or not reported",
     "casr\ncasr 6\ncasr 6 x\ncasr x 1\nopen cdt 0\nopen tape -1\n"
     "cdt 5 1\ncdt 351.0 1\ncdt x.0.0 1\ncdt 351.256.0 1\nrequest 0 1\n"
     "picl root -1\ncasr 6 99999999999\n\1\2\xff\n casr 6 1\ncevt clear 0 1\ncevt read -2147483649 1\n"
     "cevt read 4294967296 1\ncasr 6 1x\ncrom read A B 1\ncasr 6 5\n",
     "open casr -> 0; casr 6 -> 5", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 "},
};

}  // namespace

TEST(Faults, ReplaceTheMatchingCalls) {
    for (const auto& [catches, faults, calls, bad_lines] : kFaults) {
        SCOPED_TRACE(catches);
        TestMachine machine;
        machine.Asr(true);
        machine.Write("cdt/351.0.0", "\1");
        machine.Write("cdt/351.0.1", "\2");
        machine.Write("cdt/1503.0.0", "\1\7");
        machine.Variable("A", std::string("A"));
        machine.Variable("AB", std::string("B"));
        machine.Write("cevt/hlog", "log");
        machine.Write("picl", "picl\n");
        machine.PhysicalMemory(0, "M" + std::string(4094, '\0') + "N" + std::string(4096, '\0'));
        machine.Write("faults", faults);
        ExpectCalls(machine, calls);

        EXPECT_EQ(machine.Read("cdt/1503.0.0") + machine.Read("crom/AB") + machine.Read("cevt/hlog"),
                  "\1\7Blog")
            << "a call that a fault replaces has changed a file";
        const char* const report = "simulated machine: faults: line (\\d+) can't be read\n";
        EXPECT_EQ(ReplaceAll(machine.Read("stderr"), report, "$1 "), bad_lines);
    }
}

TEST(Trace, IsOpenedAtTheFirstCallAndAppendedTo) {
    TestMachine machine;
    machine.Asr(true);
    machine.Write("trace", "kept\n");
    InChild(machine, [&] {
        Make("open casr");
        machine.Fault("casr 6 1");
        EXPECT_EQ(Make("casr 6"), "0 = 01000000") << "the faults were read after the first call";
    });
    EXPECT_EQ(machine.Read("trace"), "kept\nopen casr -> 0\ncasr 6 -> 0\n");
    machine.Remove("trace");
    InChild(machine, [&] {
        Make("open casr");
        machine.StartTrace();
        Make("casr 6");
    });
    EXPECT_EQ(machine.Read("trace"), "") << "the trace was opened after the first call";
    machine.Remove("trace");
    std::filesystem::create_directory(machine.Directory() + "/trace");
    InChild(machine, [] { Make("open casr"); });
    EXPECT_EQ(machine.Read("stderr"), "simulated machine: trace: Is a directory\n");
}

// The programs' own message is only that they don't run on foreign hardware.
TEST(Opening, ReportsOnceWhyTheMachineDirectoryCannotBeOpened) {
    const TestMachine machine;
    const std::string xsvc = machine.Directory() + "/xsvc";
    const struct {
        std::string command, machine, reason;
    } cases[] = {
        {InShell("brantcli"), "/nowhere", "/nowhere: No such file or directory; mkmachine DIR makes one"},
        {InShell("brantexport"), "/nowhere", "/nowhere: No such file or directory; mkmachine DIR makes one"},
        {InShell("savemachine") + " " + machine.Directory() + "/copy", "/nowhere",
         "/nowhere: No such file or directory; mkmachine DIR makes one"},
        {InShell("brantcli"), xsvc, xsvc + ": Not a directory"},
    };
    for (const auto& [command, path, reason] : cases) {
        const RunResult run = RunProgram("/bin/sh", {"-c", "exec 2>&1; " + command}, path);
        const std::string expected("simulated machine: " + reason +
                                   "\nERROR: \\w+ only runs on VX hardware.\n+");
        EXPECT_FALSE(MatchWhole(run.output, expected).empty())
            << command << "\nexpected: " << expected << "\nactual: " << run.output;
    }
}

TEST(Opening, ReportsALackOfMemory) {
    TestMachine machine;
    InChild(machine, [&] {
        const int memory = xsvc_open();
        rlimit found;
        getrlimit(RLIMIT_AS, &found);
        const rlimit none = {0, found.rlim_max};
        setrlimit(RLIMIT_AS, &none);
        const void* const mapping = xsvc_map(memory, 0, 4096);
        setrlimit(RLIMIT_AS, &found);
        EXPECT_EQ(mapping, nullptr);
    });
    EXPECT_EQ(machine.Read("stderr"), "simulated machine: xsvc: Cannot allocate memory\n");
}
