// Tests of the results of calls, of injected faults, of the trace, and of the messages about failures.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "platform/physical_memory.h"
#include "platform/sim/machine_directory.h"
#include "tests/platform/make_call.h"
#include "tests/support/golden.h"
#include "tests/support/pattern.h"

namespace {

namespace fs = std::filesystem;

// Replaces \n with a newline and \xHH with the byte HH.
std::string Unescape(const std::string& text) {
    std::string bytes;
    for (const Match& match : MatchAll(text, "\\\\x(..)|(\\\\n)|(.)")) {
        if (!match[1].empty()) bytes += static_cast<char>(std::stoi(match[1], nullptr, 16));
        bytes += match[2].empty() ? match[3] : "\n";
    }
    return bytes;
}

// Runs a line of calls.txt: a call, or a command that changes or reads a file of the machine. Returns the
// result. If it is a call, appends its trace line to `calls`.
std::string RunLine(TestMachine& machine, const std::string& line, std::string& calls) {
    Match words;
    const auto is = [&](const char* pattern) { return !(words = MatchWhole(line, pattern)).empty(); };
    if (is("write (\\S+) ?(.*)")) {
        machine.Write(words[1], Unescape(words[2]));
    } else if (is("resize (\\S+) (\\d+)")) {
        machine.Write(words[1], std::string(std::stoul(words[2]), '\0'));
    } else if (is("memory (\\S+) (.*)")) {
        machine.PhysicalMemory(std::stoull(words[1], nullptr, 0), Unescape(words[2]));
    } else if (is("event (\\d+) (\\d+)")) {
        const auto number = static_cast<uint32_t>(std::stoul(words[1]));
        machine.Append("cevt/hlog", LogEntry(number, std::stoul(words[2])));
    } else if (is("chmod (\\S+) (\\d+)")) {
        fs::permissions(machine.Directory() + "/" + words[1], fs::perms(std::stoul(words[2], nullptr, 8)));
    } else if (is("mode (\\S+)")) {
        std::ostringstream mode;
        mode << std::oct
             << static_cast<unsigned>(fs::status(machine.Directory() + "/" + words[1]).permissions());
        return mode.str();
    } else if (is("remove (\\S+)")) {
        machine.Remove(words[1]);
    } else if (is("directory (\\S+)")) {
        fs::create_directory(machine.Directory() + "/" + words[1]);
    } else if (is("read (\\S+)")) {
        const bool exists = fs::exists(machine.Directory() + "/" + words[1]);
        return exists ? Hexadecimal(machine.Read(words[1])) : "no file";
    } else if (is("(picl get|move root|callbacks return) .*")) {
        return Make(line);  // isn't in the trace
    } else {
        const std::string result = Make(line);
        calls += line + (result.empty() ? "" : " -> ") + ReplaceAll(result, " = .*", "") + "\n";
        return result;
    }
    return "";
}

}  // namespace

// Each paragraph of calls.txt uses a new machine. A comment after '#' names the bug that the line detects. A
// line that begins with '!' is one of standard error.
TEST(Calls, HaveTheResultsOfTheGoldenFile) {
    constexpr char kGolden[] = "platform/calls.txt";
    std::istringstream golden(GoldenText(kGolden));
    std::string listing;
    for (std::string line; golden;) {
        TestMachine machine;
        machine.StartTrace();
        InChild(machine, [&] {
            std::string calls;
            while (std::getline(golden, line) && !line.empty()) {
                if (line[0] == '!') continue;
                const Match parts = MatchWhole(line, "([^#].*?)?( ->.*?)?( *#.*)?");
                const std::string result = parts[1].empty() ? "" : RunLine(machine, parts[1], calls);
                machine.Append("results",
                               parts[1] + (result.empty() ? "" : " -> ") + result + parts[3] + "\n");
            }
            machine.Write("calls", calls);
        });
        while (std::getline(golden, line) && !line.empty()) continue;
        EXPECT_EQ(machine.TakeTrace(), machine.Read("calls")) << machine.Read("results");
        listing += (listing.empty() ? "" : "\n") + machine.Read("results") +
                   ReplaceAll(machine.Read("stderr"), "(.+\n)", "! $1");
    }
    ExpectGolden(kGolden, listing);
}

TEST(Trace, IsOpenedAtTheFirstCallAndAppendedTo) {
    TestMachine machine;
    machine.Asr(true);
    machine.Write("trace", "kept\n");
    InChild(machine, [&] {
        Make("open casr");
        machine.Fault("casr 6 1");
        EXPECT_EQ(Make("casr 6"), "0 = 01000000") << "the faults were read after the first call";
        Make("open crom");
        Make("crom read A\tB length=1");
        EXPECT_EQ(Make("crom write A length=257 data=" + Hexadecimal(std::string(256, 'Z'))), "1");
        setenv("BRANT_MACHINE", "", 1);
        EXPECT_STREQ(MachinePath(), "/var/lib/brant/machine");
    });
    EXPECT_EQ(machine.Read("trace"),
              "kept\nopen casr -> 0\ncasr 6 -> 0\nopen crom -> 0\ncrom read A?B length=1 -> 1\n"
              "crom write A length=257 data=" +
                  Hexadecimal(std::string(256, 'Z')) + " -> 1\n");
    machine.Remove("trace");
    InChild(machine, [&] {
        Make("open casr");
        machine.StartTrace();
        Make("casr 6");
    });
    EXPECT_EQ(machine.Read("trace"), "") << "the trace was opened after the first call";
}

TEST(PhysicalMemory, StaysMappedWhenTheFileShrinks) {
    TestMachine machine;
    machine.Write("xsvc", std::string(8192, 'M'));
    InChild(machine, [&] {
        const int fd = xsvc_open();
        const auto* bytes = static_cast<const char*>(xsvc_map(fd, 0, 8192));
        xsvc_close(fd);
        EXPECT_EQ(xsvc_open(), fd) << "the descriptor wasn't closed";
        machine.Write("xsvc", "");
        ASSERT_NE(bytes, nullptr);
        EXPECT_EQ(bytes[8191], 'M') << "the mapping isn't a copy";
    });
}

// On standard output, the programs print only that they don't run on foreign hardware. The reason is on
// standard error.
TEST(Opening, ReportsOnceWhyTheMachineDirectoryCannotBeOpened) {
    const TestMachine machine;
    const std::string xsvc = machine.Directory() + "/xsvc";
    const struct {
        std::string command, machine, reason;
    } cases[] = {
        {InShell("brantcli"), "/nowhere", "/nowhere: No such file or directory"},
        {InShell("brantexport"), "/nowhere", "/nowhere: No such file or directory"},
        {InShell("savemachine") + " " + machine.Directory() + "/copy", "/nowhere",
         "/nowhere: No such file or directory"},
        {InShell("brantcli"), xsvc, xsvc + ": Not a directory"},
        {InShell("brantcli"), "/usr", "/usr: there is no file xsvc"},
    };
    for (const auto& [command, path, reason] : cases) {
        const RunResult run = RunProgram("/bin/sh", {"-c", "exec 2>&1; " + command}, path);
        const std::string expected(
            "simulated machine: " + reason +
            "\nsimulated machine: mkmachine DIR creates one; set BRANT_MACHINE to its "
            "path \\(default: /var/lib/brant/machine\\)\nERROR: \\w+ only runs on VX hardware.\n+");
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
