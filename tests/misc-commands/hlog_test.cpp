// SHOW HLOG and CLEAR HLOG on machines whose log and faults are made for the case.

#include <gtest/gtest.h>

#include <numeric>

#include "mkmachine/events.h"
#include "tests/misc-commands/listing_shape.h"
#include "tests/support/pattern.h"
#include "tests/support/test_machine.h"

namespace {

using Numbers = std::vector<uint32_t>;

std::string Log(const Numbers& numbers) {
    std::string log;
    for (const uint32_t number : numbers) log += EventEntry(EventHeader(number, kCaution, 13, 1), "");
    return log;
}

Numbers UpTo(uint32_t last) {
    Numbers numbers(last);
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

RunOptions Typed(const std::string& keys) {
    RunOptions options;
    options.input = keys;
    return options;
}

struct ListingCase {
    const char* catches;
    Numbers log;
    std::string answers;  // to the prompt
    const char* shape;
    const char* fault = "";
    int status = 0;
};

TEST(ShowHlog, ListsTheLogScreenByScreen) {
    const ListingCase cases[] = {
        {"nothing said of an empty log", {}, "", "/E//"},
        // six requests a screen; the one that finds the end of the log is one of them
        {"a prompt before the screen is full", UpTo(4), "", "/1 2 3 4 //"},
        {"the last request not counted", UpTo(5), "", "/1 2 3 4 5 ?///"},
        {"a second prompt behind a full last screen", UpTo(6), "", "/1 2 3 4 5 6 ?///"},
        {"the screen not counted anew", UpTo(12), "", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?///"},
        // answers
        {"q that goes on", UpTo(12), "q", "/1 2 3 4 5 6 ?//"},
        {"Q that goes on", UpTo(12), "Q", "/1 2 3 4 5 6 ?//"},
        {"q on the last screen taken for another key", UpTo(5), "q", "/1 2 3 4 5 ?//"},
        {"c that still stops", UpTo(12), "c", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 //"},
        {"C that still stops", UpTo(12), "C", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 //"},
        {"Enter passed over", UpTo(12), "\nq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a zero byte taken for the end", UpTo(12), {"\0q", 2}, "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a byte of 0xFF taken for the end", UpTo(12), "\xFFq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        // numbers
        {"the order of the file, or gaps counted through", {9, 3, 400, 4}, "", "/3 4 9 400 //"},
        {"a number shown twice", {5, 5, 6}, "", "/5 6 //"},
        {"number 0 taken for an empty log", {0}, "", "/0 //"},
        {"signed numbers", {0x7FFFFFFF, 0x80000000, 0xFFFFFFFE}, "", "/2147483647 -2147483648 -2 //"},
        {"begun again behind the last number", {1, 2, 3, 4, 5, 0xFFFFFFFF}, "", "/1 2 3 4 5 -1 //"},
        // the driver's failures
        {"too small a buffer for ever", UpTo(3), "", "/SSSSSS?/SSSSSS//", "cevt read * 3", 1},
        {"the same without paging", UpTo(3), "c", "/SSSSSS?/SSSSSS//", "cevt read * 3", 1},
        {"errno 3 not taken for too small, or q passed over", UpTo(3), "q", "/SSSSSS?E//", "cevt read * -3"},
        {"refusals not counted for the screen", UpTo(9), "", "/1 2 SSSS?/SSSSSS?/SS//", "cevt read 3 3", 1},
        {"status 2 taken for the end", UpTo(3), "", "/1 !//", "cevt read 2 2", 1},
        {"a failure taken for an empty log", {}, "", "/!//", "cevt read * 255", 1},
        {"errno 1 not taken for the end", UpTo(3), "", "/1 //", "cevt read 2 -1"},
    };
    for (const ListingCase& c : cases) {
        TestMachine machine;
        machine.Write("cevt/hlog", Log(c.log));
        machine.Fault(c.fault);
        const RunResult run = machine.Script("SHOW HLOG", Typed(c.answers));
        EXPECT_EQ(Shape(run.output), c.shape) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
    }
}

// Each listing begins with paging on, and takes no key that another command waits for.
TEST(ShowHlog, PagesEachListingAnew) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    EXPECT_EQ(Shape(machine.Script("SHOW HLOG;SHOW HLOG", Typed("cq")).output),
              "/1 2 3 4 5 6 ?/7 //1 2 3 4 5 6 ?//");
}

// Of the keys typed ahead the pager takes one; the rest is the next command.
TEST(ShowHlog, LeavesTheNextCommandToTheEditor) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    const std::string output = machine.Type("SHOW HLOG\nqCLEAR HLOG\nEXIT\n").output;
    const std::string listing = output.substr(output.find("SHOW HLOG") + 9);
    EXPECT_EQ(Shape(listing.substr(0, listing.find("brantcli> "))), "/1 2 3 4 5 6 ?/");
    EXPECT_NE(listing.find("brantcli> CLEAR HLOG\nHLOG Log successfully cleared.\n"), std::string::npos);
}

// Someone who reads through a pipe, and answers only once all of the prompt has come.
TEST(ShowHlog, ShowsThePromptBeforeItWaitsForTheKey) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    const std::string shown = machine.Script("SHOW HLOG", Typed("q")).output;
    const size_t until_prompt = shown.size() - 2;
    const std::string script = "mkfifo keys; exec 3<>keys; timeout 20 " + InShell("brantcli") +
                               " -s 'SHOW HLOG' <&3 | { head -c " + std::to_string(until_prompt) +
                               "; echo q >&3; cat; }";
    const std::string command = "cd '" + machine.Directory() + "'; " + script;
    EXPECT_EQ(RunProgram("/bin/sh", {"-c", command}, machine.Directory()).output, shown);
}

// A longer entry is the driver's to refuse; one that just fits is read to its end.
TEST(ShowHlog, ReadsAnEntryAsLongAsTheBuffer) {
    TestMachine machine;
    const std::string fits(268, 'x');
    const EVT_HEADER header = EventHeader(1, kCaution, 33, 2);
    machine.Write("cevt/hlog", EventEntry(header, fits));
    EXPECT_NE(machine.Script("SHOW HLOG").output.find(" - " + fits.substr(0, 255) + ".\n"),
              std::string::npos);
    machine.Write("cevt/hlog", EventEntry(header, fits + "x"));
    EXPECT_EQ(Shape(machine.Script("SHOW HLOG").output), "/SSSSSS?/SSSSSS//");
}

TEST(ShowHlog, PrintsTheLastUpdateAndBlanksWhatATerminalCantShow) {
    TestMachine machine;
    std::string note(255, '\0'), shown;
    std::iota(note.begin(), note.end(), '\1');
    for (const char letter : note) shown += letter < ' ' ? ' ' : letter;
    EVT_HEADER header = EventHeader(1, kCaution, 33, 2);
    header.InitTime = {19, 99, 10, 11, 12, 13};
    header.UpdateTime = {20, 6, 3, 15, 14, 7};
    machine.Write("cevt/hlog", EventEntry(header, note));
    EXPECT_EQ(machine.Script("SHOW HLOG").output,
              "\n\nEvent: 1 Added: 03/15/2006 14:07\nCAUTION: Maintenance Note - " + shown + ".\n\n\n");
}

// The severities and classes that no event of a model's log has.
TEST(ShowHlog, NamesEverySeverityAndClass) {
    const struct {
        uint8_t severity;
        uint16_t first_class, last_class;
        const char* words;
    } rows[] = {
        {0, 12, 12, "UNKNOWN: UPS"},
        {1, 15, 15, "UNKNOWN: DIAGS"},
        {4, 16, 16, "UNKNOWN: Not defined"},
        {5, 35, 35, "UNKNOWN: Not defined"},
        {16, 290, 290, "UNKNOWN: Not defined"},
        {255, 65535, 65535, "UNKNOWN: Not defined"},
        {15, 32, 32, "CRITICAL: System Revision"},
        {6, 21, 31, "REPAIRED: Not defined"},
    };
    std::string log, expected;
    uint32_t number = 0;
    for (const auto& [severity, first_class, last_class, words] : rows) {
        for (unsigned event_class = first_class; event_class <= last_class; ++event_class) {
            log += EventEntry(EventHeader(++number, severity, static_cast<uint16_t>(event_class), 7), "");
            expected += words + std::string("\n");
        }
    }
    TestMachine machine;
    machine.Write("cevt/hlog", log);
    const std::string output = machine.Script("SHOW HLOG").output;
    std::string shown;
    for (const Match& event : MatchAll(output, "\n(.*) - Unknown Event")) shown += event[1] + "\n";
    EXPECT_EQ(shown, expected);
}

TEST(ClearHlog, EmptiesTheLog) {
    TestMachine machine("tr300");
    machine.StartTrace();
    const RunResult run = machine.Script("CLEAR HLOG;SHOW HLOG");
    EXPECT_EQ(run.output, "\nHLOG Log successfully cleared.\n\nThe HLOG Log is empty.\n\n");
    EXPECT_EQ(machine.TakeTrace("cevt"), "cevt clear length=56 -> 0\ncevt read 0 length=312 -> 1\n");
    EXPECT_EQ(machine.Read("cevt/hlog"), "");
}

}  // namespace
