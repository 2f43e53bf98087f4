// SHOW HLOG and CLEAR HLOG on machines whose log and faults are made for the case.

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "tests/misc-commands/listing_shape.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/events.h"

namespace {

std::string Entry(uint32_t number) {
    return EventEntry(EventHeader(number, kCaution, 13, 1), "");
}

std::string Log(const std::vector<uint32_t>& numbers) {
    std::string log;
    for (const uint32_t number : numbers) log += Entry(number);
    return log;
}

std::vector<uint32_t> UpTo(uint32_t last) {
    std::vector<uint32_t> numbers;
    for (uint32_t number = 1; number <= last; ++number) numbers.push_back(number);
    return numbers;
}

TEST(ShowHlog, PrintsAnEntryInFull) {
    TestMachine machine;
    EVT_HEADER header = EventHeader(7, kCritical, 11, 10);
    header.InitTime = {19, 99, 12, 31, 23, 59};
    header.UpdateTime = {20, 6, 3, 5, 4, 7};
    header.dwCount = 12;
    machine.Write("cevt/hlog",
                  EventEntry(header, WithTexts(EVT_POWER_SUPPLY_POWERED{{1, 0, 0}, 3, {}}, {""})));
    const RunResult run = machine.Script("SHOW HLOG");
    EXPECT_EQ(run.output,
              "\n\nEvent: 7 Added: 03/05/2006 04:07\n"
              "CRITICAL: Power Subsystem - System Power Supply Powered Up (Power Supply 3).\n\n\n");
    EXPECT_EQ(run.status, 0);
}

TEST(ShowHlog, SaysThatTheLogIsEmpty) {
    TestMachine machine;
    machine.StartTrace();
    const RunResult run = machine.Script("SHOW HLOG");
    EXPECT_EQ(run.output, "\nThe HLOG Log is empty.\n\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(machine.TakeTrace("cevt"), "cevt read 0 length=312 -> 1\n");
}

struct PagingCase {
    const char* catches;
    uint32_t entries;
    std::string answers;
    const char* shape;
};

TEST(ShowHlog, StopsAfterEachScreen) {
    const PagingCase cases[] = {
        // the end of the log is a request, too
        {"a prompt before the screen is full", 4, "", "/1 2 3 4 //"},
        {"the last request not counted", 5, "", "/1 2 3 4 5 ?///"},
        {"a second prompt behind a full last screen", 6, "", "/1 2 3 4 5 6 ?///"},
        {"the screen not counted anew", 7, "", "/1 2 3 4 5 6 ?/7 //"},
        {"no prompt behind the second screen", 11, "", "/1 2 3 4 5 6 ?/7 8 9 10 11 ?///"},
        {"two full screens", 12, "", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?///"},
        // answers
        {"q that goes on", 12, "q", "/1 2 3 4 5 6 ?//"},
        {"Q that goes on", 12, "Q", "/1 2 3 4 5 6 ?//"},
        {"q on the last screen", 5, "q", "/1 2 3 4 5 ?//"},
        {"q behind the last entry", 6, "q", "/1 2 3 4 5 6 ?//"},
        {"c that still stops", 12, "c", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 //"},
        {"C that still stops", 12, "C", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 //"},
        {"c behind the last entry", 5, "c", "/1 2 3 4 5 ?///"},
        {"c on the second screen", 19, "xc", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?/13 14 15 16 17 18 19 //"},
        {"another key taken for one of them", 12, " q", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a newline that isn't an answer", 12, "\nq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a 0 taken for the end", 12, {"\0q", 2}, "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"more than one key read", 12, "xq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a byte of 0xFF taken for c", 12, "\xFFq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
    };
    TestMachine machine;
    for (const PagingCase& c : cases) {
        machine.Write("cevt/hlog", Log(UpTo(c.entries)));
        RunOptions typed;
        typed.input = c.answers;
        const RunResult run = machine.Script("SHOW HLOG", typed);
        EXPECT_EQ(Shape(run.output), c.shape) << c.catches;
        EXPECT_EQ(run.status, 0) << c.catches;
    }
}

// Each listing begins with paging on, and takes no key that another command waits for.
TEST(ShowHlog, PagesEachListingAnew) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    RunOptions typed;
    typed.input = "cq";
    EXPECT_EQ(Shape(machine.Script("SHOW HLOG;SHOW HLOG", typed).output),
              "/1 2 3 4 5 6 ?/7 //1 2 3 4 5 6 ?//");
}

// At the prompt the keys typed ahead go where they were meant: one to the pager, the rest to the next line.
TEST(ShowHlog, LeavesTheNextCommandToTheEditor) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    const std::string output = machine.Type("SHOW HLOG\nqCLEAR HLOG\nEXIT\n").output;
    const std::string listing = output.substr(output.find("SHOW HLOG") + 9);
    EXPECT_EQ(Shape(listing.substr(0, listing.find("brantcli> "))), "/1 2 3 4 5 6 ?/");
    EXPECT_NE(listing.find("brantcli> CLEAR HLOG\nHLOG Log successfully cleared.\n"), std::string::npos);
}

struct FaultCase {
    const char* catches;
    const char* fault;
    uint32_t entries;
    const char* answers;
    const char* shape;
    int status;
};

TEST(ShowHlog, AnswersOfTheDriver) {
    const FaultCase cases[] = {
        // status 3: the same request again
        {"a listing that never ends", "cevt read * 3", 3, "", "/SSSSSS//", 1},
        {"entries that come before", "cevt read 3 3", 9, "", "/1 2 SSSS?/SS//", 1},
        {"paging off", "cevt read 8 3", 9, "c", "/1 2 3 4 5 6 ?/7 SSSSSS//", 1},
        {"the prompt that falls due", "cevt read 7 3", 9, "", "/1 2 3 4 5 6 ?/SSSSSS//", 1},
        {"q among them", "cevt read 3 3", 9, "q", "/1 2 SSSS?//", 0},
        // others
        {"status 2 taken for the end", "cevt read 2 2", 3, "", "/1 !//", 1},
        {"status 4", "cevt read * 4", 3, "", "/!//", 1},
        {"the empty log said as well", "cevt read * 255", 0, "", "/!//", 1},
        {"errno 5", "cevt read 3 -5", 3, "", "/1 2 !//", 1},
        {"errno 1 taken for a failure", "cevt read 2 -1", 3, "", "/1 //", 0},
        {"errno 1 at once", "cevt read * -1", 3, "", "/E//", 0},
        {"errno 3 taken for a failure", "cevt read * -3", 3, "", "/SSSSSS//", 1},
    };
    for (const FaultCase& c : cases) {
        TestMachine machine;
        machine.Write("cevt/hlog", Log(UpTo(c.entries)));
        machine.Fault(c.fault);
        RunOptions typed;
        typed.input = c.answers;
        const RunResult run = machine.Script("SHOW HLOG", typed);
        EXPECT_EQ(Shape(run.output), c.shape) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
    }
}

struct NumbersCase {
    const char* catches;
    std::vector<uint32_t> numbers;
    const char* shape;
};

TEST(ShowHlog, FollowsTheNumbers) {
    const NumbersCase cases[] = {
        {"gaps counted through", {3, 9, 400}, "/3 9 400 //"},
        {"the order of the file", {9, 3, 400, 4}, "/3 4 9 400 //"},
        {"a number shown twice", {5, 5, 6}, "/5 6 //"},
        {"a number of 0 taken for an empty log", {0}, "/0 //"},
        {"signed numbers", {0x7FFFFFFF, 0x80000000, 0xFFFFFFFE}, "/2147483647 -2147483648 -2 //"},
        {"begun again behind the last number", {1, 0xFFFFFFFF}, "/1 -1 //"},
        {"the last number alone taken for an empty log", {0xFFFFFFFF}, "/-1 //"},
        {"a prompt behind the last number", {1, 2, 3, 4, 5, 0xFFFFFFFF}, "/1 2 3 4 5 -1 //"},
    };
    for (const NumbersCase& c : cases) {
        TestMachine machine;
        machine.Write("cevt/hlog", Log(c.numbers));
        const RunResult run = machine.Script("SHOW HLOG");
        EXPECT_EQ(Shape(run.output), c.shape) << c.catches;
        EXPECT_EQ(run.status, 0) << c.catches;
    }
}

TEST(ShowHlog, AsksForTheNumberBehindTheOneThatCame) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log({9, 0x7FFFFFFF, 0xFFFFFFFF}));
    machine.StartTrace();
    machine.Script("SHOW HLOG");
    EXPECT_EQ(machine.TakeTrace("cevt"),
              "cevt read 0 length=312 -> 0\n"
              "cevt read 10 length=312 -> 0\n"
              "cevt read -2147483648 length=312 -> 0\n");
}

// A longer entry is the driver's to refuse; one that just fits is read to its end.
TEST(ShowHlog, EntriesAsLongAsTheBuffer) {
    TestMachine machine;
    const std::string fits(268, 'x');
    const EVT_HEADER header = EventHeader(1, kCaution, 33, 2);
    machine.Write("cevt/hlog", EventEntry(header, fits));
    EXPECT_NE(machine.Script("SHOW HLOG").output.find(" - " + fits.substr(0, 255) + ".\n"),
              std::string::npos);
    machine.Write("cevt/hlog", EventEntry(header, fits + "x"));
    EXPECT_EQ(Shape(machine.Script("SHOW HLOG").output), "/SSSSSS//");
}

TEST(ShowHlog, BlanksWhatATerminalCantShow) {
    TestMachine machine;
    std::string note;
    for (int byte = 1; byte < 256; ++byte) note += static_cast<char>(byte);
    machine.Write("cevt/hlog", EventEntry(EventHeader(1, kCaution, 33, 2), note));
    std::string shown = note;
    for (char& letter : shown) {
        if (static_cast<uint8_t>(letter) < 32 || static_cast<uint8_t>(letter) > 127) letter = ' ';
    }
    EXPECT_NE(machine.Script("SHOW HLOG").output.find("Maintenance Note - " + shown + ".\n"),
              std::string::npos);
}

TEST(ShowHlog, NamesSeveritiesAndClasses) {
    const std::pair<int, const char*> severities[] = {
        {0, "UNKNOWN"},  {1, "UNKNOWN"}, {2, "INFO"},      {3, "INFO"},     {4, "UNKNOWN"},   {5, "UNKNOWN"},
        {6, "REPAIRED"}, {9, "CAUTION"}, {15, "CRITICAL"}, {16, "UNKNOWN"}, {255, "UNKNOWN"},
    };
    const std::pair<int, const char*> classes[] = {
        {12, "UPS"},          {15, "DIAGS"},          {16, "Not defined"},    {21, "Not defined"},
        {31, "Not defined"},  {35, "Not defined"},    {255, "Not defined"},   {256, "Not defined"},
        {290, "Not defined"}, {32768, "Not defined"}, {65535, "Not defined"},
    };
    std::string log, expected;
    uint32_t number = 0;
    const auto add = [&](int severity, const char* severity_name, int event_class, const char* class_name) {
        const std::string event_class_text = std::to_string(event_class);
        log += EventEntry(
            EventHeader(++number, static_cast<uint8_t>(severity), static_cast<uint16_t>(event_class), 7), "");
        expected += std::string(severity_name) + ": " + class_name + " - Unknown Event (Class " +
                    event_class_text + ", Code 7).\n";
    };
    for (const auto& [severity, name] : severities) add(severity, name, 12, "UPS");
    for (const auto& [event_class, name] : classes) add(2, "INFO", event_class, name);

    TestMachine machine;
    machine.Write("cevt/hlog", log);
    RunOptions typed;
    typed.input = "c";
    std::istringstream output(machine.Script("SHOW HLOG", typed).output);
    std::string shown;
    for (std::string line; std::getline(output, line);) {
        if (line.find(" - ") != line.npos) shown += line + "\n";
    }
    EXPECT_EQ(shown, expected);
}

TEST(ShowHlog, TakesNoOtherWord) {
    TestMachine machine;
    machine.StartTrace();
    const RunResult show = machine.Script("SHOW HLOG ALL");
    EXPECT_EQ(show.output, "\nInvalid argument(s)\nUSAGE: SHOW HLOG: Shows the HLOG log.\n\n");
    EXPECT_EQ(show.status, 1);
    const RunResult clear = machine.Script("CLEAR HLOG NOW");
    EXPECT_EQ(clear.output, "\nInvalid argument(s)\nUSAGE: CLEAR HLOG: Clears the HLOG log.\n\n");
    EXPECT_EQ(clear.status, 1);
    EXPECT_EQ(machine.TakeTrace("cevt"), "");
}

TEST(ClearHlog, EmptiesTheLog) {
    TestMachine machine("tr300");
    machine.StartTrace();
    const RunResult run = machine.Script("CLEAR HLOG");
    EXPECT_EQ(run.output, "\nHLOG Log successfully cleared.\n\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(machine.TakeTrace("cevt"), "cevt clear length=56 -> 0\n");
    EXPECT_EQ(machine.Script("SHOW HLOG").output, "\nThe HLOG Log is empty.\n\n");
}

TEST(ClearHlog, IsNotSaidToHaveWorkedWhenItDidNot) {
    for (const char* fault : {"cevt clear 1", "cevt clear 3", "cevt clear -5"}) {
        TestMachine machine("tr300");
        machine.Fault(fault);
        const std::string log = machine.Read("cevt/hlog");
        const RunResult run = machine.Script("CLEAR HLOG");
        EXPECT_EQ(run.output, "\nERROR: Failed to clear HLOG Log.\n\n") << fault;
        EXPECT_EQ(run.status, 1) << fault;
        EXPECT_EQ(machine.Read("cevt/hlog"), log) << fault;
    }
}

// Entries whose every byte but the length is random, and a log of nothing but random bytes.
TEST(ShowHlog, SurvivesARandomLog) {
    std::mt19937 random(20060315);
    const auto bytes = [&](size_t count) {
        std::string text;
        while (text.size() < count) text += static_cast<char>(random());
        return text;
    };
    std::string log;
    for (uint32_t number = 1; number <= 3000; ++number) {
        EVT_HEADER header =
            EventHeader(number, static_cast<uint8_t>(random()), static_cast<uint16_t>(random() % 36),
                        static_cast<uint16_t>(random() % 27));
        log += EventEntry(header, bytes(random() % 269));
    }
    TestMachine machine;
    for (const std::string& damaged : {log, bytes(100000), log.substr(0, log.size() - 1)}) {
        machine.Write("cevt/hlog", damaged);
        const RunResult run = machine.Script("SHOW HLOG");
        EXPECT_EQ(run.errors, "");
        EXPECT_LE(run.status, 1);
    }
}

// What the runs so far have cost, in microseconds of processor time.
int64_t ProcessorTime() {
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto microseconds = [](const timeval& time) {
        return int64_t{time.tv_sec} * 1000000 + time.tv_usec;
    };
    return microseconds(usage.ru_utime) + microseconds(usage.ru_stime);
}

TEST(ShowHlog, CostsTheSameForEachEntryOfALongLog) {
    constexpr int64_t kShort = 2000;
    constexpr int64_t kLong = 20000;
    int64_t cost[2] = {};
    for (const int64_t entries : {kShort, kLong}) {
        TestMachine machine;
        machine.Write("cevt/hlog", EventLog(static_cast<size_t>(entries)));
        machine.StartTrace();
        const int64_t before = ProcessorTime();
        EXPECT_EQ(machine.Script("SHOW HLOG").status, 0);
        cost[entries == kLong] = ProcessorTime() - before;
        const std::string trace = machine.TakeTrace("cevt");
        EXPECT_EQ(std::count(trace.begin(), trace.end(), '\n'), entries + 1);
    }
    EXPECT_LT(cost[1] / kLong, 4 * cost[0] / kShort) << cost[0] << " and " << cost[1] << " us";
}

}  // namespace
