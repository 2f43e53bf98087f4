// Tests of the program brantexport: its arguments, its streams and its exit status.
#include <gtest/gtest.h>

#include <chrono>

#include "mkmachine/models.h"
#include "tests/brantexport/export.h"
#include "tests/support/pattern.h"

namespace {

constexpr char kUsage[] =
    "usage: brantexport [--json | --prometheus | --check | --http] [SECTION...]\n"
    "       brantexport --lines [--since TIME] [--severity WORD]...\n"
    "sections: system processors memory nics port_map fans temperatures power_supplies uid asr settings "
    "versions "
    "events\n";
constexpr char kNoTime[] = "brantexport: --since expects a time such as 2006-03-15 or 2006-03-15T14:07, not ";
constexpr char kNoSeverity[] =
    "brantexport: --severity expects info, repaired, caution, critical or unknown, not ";

struct ArgumentsCase {
    std::vector<std::string> arguments;
    const char* output;  // a pattern that a part of the output matches; "" if the arguments are invalid
    std::string errors = "";
};

TEST(Arguments, SelectFormatsSectionsAndEvents) {
    const ArgumentsCase cases[] = {
        {{"uid", "--json", "fans", "uid"},
         R"(Z",\n  "fans": \[[^\]]*\],\n  "uid": \{[^}]*\},\n  "errors": \[\])"},
        {{"--prometheus", "--json", "versions"}, R"(Z",\n  "versions": )"},
        {{"events", "system"}, R"(Z",\n  "system": \{[^}]*\},\n  "events": )"},
        {{"--check", "uid"}, "^BRANT OK - no problem found\n$"},
        {{"--lines", "--since", "2006-04-12T00:51", "--severity=CRITICAL"},
         "^2006-04-12T00:51 critical [^\n]*\n$"},
        {{"--severity", "info", "--since=2006-04-11T21:37", "--severity", "caution", "--lines"},
         "^2006-04-11T21:37 info [^\n]*\n2006-04-11T23:14 caution [^\n]*\n2006-04-12T02:28 caution "
         "[^\n]*\n$"},
        {{"--xml", "--help", "--since"},
         "\nusage: brantexport (.|\n)*--severity info\\|repaired(.|\n)*\nSee brantexport\\(8\\).\n$"},
        {{"fans", "--version"}, "^brantexport \\d+\\.\\d+\\.\\d+\n$"},
        {{"--xml"}, "", kUsage},
        {{"fan"}, "", kUsage},
        {{"FANS"}, "", kUsage},
        {{"uid", ""}, "", kUsage},
        {{"errors"}, "", kUsage},
        {{"--lines", "events"}, "", kUsage},
        {{"--since", "2006-03-15"}, "", kUsage},
        {{"--severity=info"}, "", kUsage},
        {{"--lines", "--severity"}, "", kUsage},
        {{"--lines", "--since", "2006-02-29"}, "", kNoTime + std::string("\"2006-02-29\"\n")},
        {{"--lines", "--since=2006-03-15 14:07"}, "", kNoTime + std::string("\"2006-03-15 14:07\"\n")},
        {{"--lines", "--since=2006-03-15T14"}, "", kNoTime + std::string("\"2006-03-15T14\"\n")},
        {{"--lines", "--since=2006-03-15T14:o7"}, "", kNoTime + std::string("\"2006-03-15T14:o7\"\n")},
        {{"--severity", "warning", "--lines", "--since=x"}, "", kNoSeverity + std::string("\"warning\"\n")},
    };
    TestMachine machine("tr500k2");
    for (const ArgumentsCase& c : cases) {
        const RunResult run = RunProgram(ProgramPath("brantexport"), c.arguments, machine.Directory());
        const std::string words = testing::PrintToString(c.arguments);
        EXPECT_TRUE(*c.output != '\0' ? Contains(run.output, c.output) : run.output.empty())
            << words << run.output;
        EXPECT_EQ(run.errors, c.errors) << words;
        EXPECT_EQ(run.status, c.errors.empty() ? 0 : 2) << words;
    }
}

// A section that isn't requested is not read, and its errors are not counted.
TEST(Arguments, LimitTheRequestsAndTheErrors) {
    TestMachine machine("tr500k2");
    machine.Fault("cdt 351.0.0 1\ncdt 1503.0.0 1");
    RunOptions options;
    options.input = "GET /metrics HTTP/1.0\r\n\r\n";
    for (const auto& [format, status] : {std::pair("--prometheus", 1), std::pair("--http", 0)}) {
        machine.StartTrace();
        const RunResult run =
            RunProgram(ProgramPath("brantexport"), {format, "uid", "asr"}, machine.Directory(), options);
        EXPECT_EQ(run.status, status);
        EXPECT_EQ(machine.TakeTrace("cdt "), "cdt 1503.0.0 size=5 cru=1.4 -> 1\n");
        EXPECT_TRUE(Contains(run.output,
                             "\nbrant_asr_timeout_seconds \\d+\n# HELP brant_read_errors .*\n# TYPE .*\n"
                             "brant_read_errors\\{section=\"uid\"\\} 1\n"
                             "brant_read_errors\\{section=\"asr\"\\} 0\n# EOF\n$"))
            << run.output;
    }
}

TEST(Program, OpensAndClosesEachDeviceAndChangesNothing) {
    for (const Model& model : Models()) {
        TestMachine machine(model.name);
        machine.StartTrace();
        RunOptions options;
        options.detect_leaks = true;
        const RunResult run = RunProgram(ProgramPath("brantexport"), {}, machine.Directory(), options);
        EXPECT_EQ(run.errors, "");
        const std::string trace = machine.TakeTrace();
        for (const char* change : {"crom write", "cevt clear", "casr 3", "casr 4", "cru=1.1", "cru=1.2"}) {
            EXPECT_EQ(trace.find(change), trace.npos) << trace;
        }
        for (const char* device : {"cdt", "cevt", "casr", "crom"}) {
            EXPECT_NE(trace.find("open " + std::string(device) + " -> 0\n"), trace.npos);
            EXPECT_NE(trace.find("close " + std::string(device) + "\n"), trace.npos);
        }
    }
}

struct StreamCase {
    const char* catches;
    std::string command;  // of the shell; $P: the program, $D: an empty directory
    std::string errors;
    int status;
    std::string output = "";
};

TEST(Program, EndsWithAMessageAndAStatus) {
    const StreamCase cases[] = {
        {"a full disk", "$P >/dev/full", "brantexport: No space left on device\n", 1},
        {"a full disk for metrics", "$P --prometheus uid >/dev/full",
         "brantexport: No space left on device\n", 1},
        {"a file-size limit", "ulimit -f 8; $P >$D/out", "brantexport: File too large\n", 1},
        {"a reader that exits", "{ $P; echo $? >$D/status; } | head -c 1 >/dev/null; exit $(cat $D/status)",
         "brantexport: Broken pipe\n", 1},
        {"a full disk for lines", "$P --lines >/dev/full", "brantexport: No space left on device\n", 1},
        {"a full disk for a verdict", "$P --check uid >/dev/full", "brantexport: No space left on device\n",
         3},
        {"a full disk for the help text", "$P --help >/dev/full", "brantexport: No space left on device\n",
         1},
        {"no standard output", "$P >&-", "brantexport: Bad file descriptor\n", 1},
        {"no standard error", "$P uid >$D/uid 2>&-", "", 0},
        {"another user", "setpriv --reuid=65534 $P", "ERROR: You must be root to run brantexport.\n", 1},
        {"requests to another user",
         "for p in x metrics; do printf \"GET /$p HTTP/1.0\\r\\n\\r\\n\" | setpriv --ruid=65534 $P --http "
         "2>$D/errors | tail -n 1; done; cat $D/errors >&2",
         "ERROR: You must be root to run brantexport.\n", 0,
         "Not Found\nbrantexport was not started as root.\n"},
        {"foreign hardware", ">$D/xsvc; BRANT_MACHINE=$D $P",
         "ERROR: brantexport only runs on VX hardware.\n", 1},
        {"a check by another user", "setpriv --reuid=65534 $P --check",
         "ERROR: You must be root to run brantexport.\n", 3,
         "BRANT UNKNOWN - brantexport was not started as root.\n"},
        {"a check of foreign hardware", ">$D/xsvc; BRANT_MACHINE=$D $P --check",
         "ERROR: brantexport only runs on VX hardware.\n", 3,
         "BRANT UNKNOWN - This is not a Corvex server, or its firmware can't be read.\n"},
        {"a group that can be changed back", "setpriv --securebits=+no_setuid_fixup $P --http </dev/null",
         "brantexport: can't become the user nobody: groups remain\n", 1},
        {"a user that can be changed back",
         "setpriv --reuid=65534 --inh-caps=+setuid --ambient-caps=+setuid $P --http </dev/null",
         "brantexport: can't become the user nobody: root remains\n"
         "ERROR: You must be root to run brantexport.\n",
         1},
        {"help for another user", "setpriv --reuid=65534 $P --help >/dev/null", "", 0},
        {"a check with invalid arguments", "$P --since 2006-03-15 --check", kUsage, 3,
         "BRANT UNKNOWN - The arguments are invalid.\n"},
    };
    TestMachine machine("tr500k2");
    const TestMachine parent;
    for (const StreamCase& c : cases) {
        const std::string with_program = ReplaceAll(c.command, "\\$P", InShell("brantexport"));
        const std::string command = "D=" + parent.Directory() + "; " + with_program;
        const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory());
        EXPECT_EQ(run.errors, c.errors) << c.catches;
        EXPECT_EQ(run.output, c.output) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
    }
    const std::string whole = RunProgram(ProgramPath("brantexport"), {}, machine.Directory()).output;
    constexpr size_t kAfterTheTime = 100;
    EXPECT_EQ(parent.Read("out").substr(kAfterTheTime), whole.substr(kAfterTheTime, 8 * 512 - kAfterTheTime));
}

TEST(Program, ReportsTimes) {
    TestMachine machine("tr500k2");
    const TestMachine parent;
    const std::string command = "cd " + parent.Directory() +
                                "; export TZ=ABC-4DEF,0/0,J365/25; date -u +%FT%TZ >before; " +
                                InShell("brantexport") + " events >json; date -u +%FT%TZ >after; " +
                                InShell("brantexport") + " --prometheus events";
    const auto start = std::chrono::steady_clock::now();
    const std::string metrics = RunProgram("/bin/sh", {"-c", command}, machine.Directory()).output;
    const auto elapsed = std::chrono::steady_clock::now() - start;
    const std::string json = parent.Read("json");
    const std::string exported_at = MatchAll(json, "exported_at\": \"([^\"]+)")[0][1] + "\n";
    EXPECT_LE(parent.Read("before"), exported_at);
    EXPECT_GE(parent.Read("after"), exported_at);
    const std::chrono::milliseconds duration(std::stoi(MatchAll(json, "duration_ms\": (\\d+)")[0][1]));
    EXPECT_GT(duration.count(), 0);
    EXPECT_LT(duration, elapsed);
    EXPECT_TRUE(Contains(metrics, "_duration_seconds \\d+\\.?\\d{0,3}\n")) << metrics;
    const double seconds = std::stod(MatchAll(metrics, "\nbrant_scrape_duration_seconds (\\S+)")[0][1]);
    EXPECT_LT(std::chrono::duration<double>(seconds), elapsed);
    // The newest information is of 2006-04-11T21:37, in the server's time zone.
    EXPECT_TRUE(Contains(metrics, "newest_event_timestamp_seconds\\{severity=\"info\"\\} 1144773420\n"))
        << metrics;
}

// Fails one allocation of each run: each of the first 30, then at growing intervals. Expects a complete
// output, or a message and status 1. A check always prints its verdict.
TEST(Program, SurvivesAFailedAllocation) {
    TestMachine machine("bx20");
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"--json"}, "\n\\}\n$"},
        {{"--prometheus"}, "\n# EOF\n$"},
        {{"--since=2006-04-12", "--lines"}, "\n2006-04-12T02:28 caution [^\n]*\n$"},
        {{"events", "--check"}, "^BRANT [A-Z]+ - [^\n]*\n$"},
    };
    for (const auto& [arguments, complete] : cases) {
        bool failed = true;
        for (int failing = 1; failed; failing += 1 + failing / 30) {
            RunOptions options;
            options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(failing)};
            const RunResult run =
                RunProgram(ProgramPath("brantexport_interposed"), arguments, machine.Directory(), options);
            failed = run.errors.find("allocation failed\n") != run.errors.npos;
            const bool has_message = run.errors.find("brantexport: ") != run.errors.npos;
            EXPECT_TRUE(Contains(run.output, complete) ||
                        (has_message && run.status == 1 && arguments.back() != "--check"))
                << arguments.back() << ", failed allocation " << failing << ", status " << run.status << "\n"
                << run.errors;
        }
    }
}

TEST(Program, RunsOnlyOnCorvexServers) {
    TestMachine machine;
    const std::pair<SmbiosRecord, std::string> cases[] = {
        {SystemRecord("Corvax", ""), ""},
        {BootRecord(1),
         "\nERROR: Failed to get SMBIOS system data.\nThis does not seem to be a VX Corvex Server."},
    };
    for (const auto& [record, message] : cases) {
        AddTables(machine, SmbiosTable().Add(record));
        const RunResult run = RunProgram(ProgramPath("brantexport"), {"--check"}, machine.Directory());
        EXPECT_EQ(run.errors, message + "ERROR: brantexport only runs on VX Corvex Servers.\n");
        EXPECT_EQ(run.output,
                  "BRANT UNKNOWN - This is not a Corvex server, or its firmware can't be read.\n");
        EXPECT_EQ(run.status, 3);
    }
}

}  // namespace
