// Tests of SHOW HLOG and CLEAR HLOG. Each case has its own log and faults.

#include <gtest/gtest.h>

#include <numeric>

#include "mkmachine/events.h"
#include "tests/misc-commands/listing_shape.h"
#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

using Numbers = std::vector<uint32_t>;

// Returns a log whose entries have these numbers.
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
    std::string keys;   // keys that are typed at the prompts
    const char* shape;  // expected output, abbreviated by Shape()
    const char* fault = "";
    int status = 0;
};

TEST(ShowHlog, ListsTheLogScreenByScreen) {
    const ListingCase cases[] = {
        {"no message for an empty log", {}, "", "/E//"},
        // cases: paging; a screen has six requests, including the one that returns the end of the log
        {"a prompt before the screen is full", UpTo(4), "", "/1 2 3 4 //"},
        {"the last request is not counted", UpTo(5), "", "/1 2 3 4 5 ?///"},
        {"a second prompt after a full last screen", UpTo(6), "", "/1 2 3 4 5 6 ?///"},
        {"the count is not reset after a screen", UpTo(12), "", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?///"},
        // cases: keys at the prompt
        {"q does not quit", UpTo(12), "q", "/1 2 3 4 5 6 ?//"},
        {"Q does not quit", UpTo(12), "Q", "/1 2 3 4 5 6 ?//"},
        {"q does not quit on the last screen", UpTo(5), "q", "/1 2 3 4 5 ?//"},
        {"c does not turn paging off", UpTo(12), "c", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 //"},
        {"C does not turn paging off", UpTo(12), "C", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 //"},
        {"Enter is ignored", UpTo(12), "\nq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a NUL byte ends the input", UpTo(12), {"\0q", 2}, "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        {"a byte of 0xFF ends the input", UpTo(12), "\xFFq", "/1 2 3 4 5 6 ?/7 8 9 10 11 12 ?//"},
        // cases: event numbers
        {"entries in the order of the file, or a request for each missing number",
         {9, 3, 400, 4},
         "",
         "/3 4 9 400 //"},
        {"two entries with the same number", {5, 5, 6}, "", "/5 6 //"},
        {"number 0 counts as an empty log", {0}, "", "/0 //"},
        {"numbers are compared as signed",
         {0x7FFFFFFF, 0x80000000, 0xFFFFFFFE},
         "",
         "/2147483647 -2147483648 -2 //"},
        // cases: failures of the driver
        {"status 3 is repeated without end", UpTo(3), "", "/SSSSSS?/SSSSSS//", "cevt read * 3", 1},
        {"status 3 is repeated without end if paging is off", UpTo(3), "c", "/SSSSSS?/SSSSSS//",
         "cevt read * 3", 1},
        {"errno 3 is not treated as status 3, or q is ignored", UpTo(3), "q", "/SSSSSS?E//",
         "cevt read * -3"},
        {"requests with status 3 are not counted for the screen", UpTo(9), "", "/1 2 SSSS?/SSSSSS?/SS//",
         "cevt read 3 3", 1},
        {"status 2 ends the log", UpTo(3), "", "/1 !//", "cevt read 2 2", 1},
        {"a failure counts as an empty log", {}, "", "/!//", "cevt read * 255", 1},
        {"errno 1 does not end the log", UpTo(3), "", "/1 //", "cevt read 2 -1"},
    };
    for (const ListingCase& c : cases) {
        TestMachine machine;
        machine.Write("cevt/hlog", Log(c.log));
        machine.Fault(c.fault);
        const RunResult run = machine.Script("SHOW HLOG", Typed(c.keys));
        EXPECT_EQ(Shape(run.output), c.shape) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
    }
}

TEST(ShowHlog, KeepsNothingForTheNextListing) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    EXPECT_EQ(Shape(machine.Script("SHOW HLOG;SHOW HLOG", Typed("cq")).output),
              "/1 2 3 4 5 6 ?/7 //1 2 3 4 5 6 ?//");
    machine.Fault("cevt read * 3");
    EXPECT_EQ(Shape(machine.Script("SHOW HLOG;SHOW HLOG", Typed("q")).output), "/SSSSSS?E//SSSSSS?/SSSSSS//");
}

// The pager consumes one type-ahead key; the editor reads the rest as the next command.
TEST(ShowHlog, ConsumesOneKeyPerPrompt) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    const std::string output = machine.Type("SHOW HLOG\nqCLEAR HLOG\nEXIT\n").output;
    const std::string listing = output.substr(output.find("SHOW HLOG") + 9);
    EXPECT_EQ(Shape(listing.substr(0, listing.find("brantcli> "))), "/1 2 3 4 5 6 ?/");
    EXPECT_NE(listing.find("brantcli> CLEAR HLOG\nHLOG Log successfully cleared.\n"), std::string::npos);
}

// Reads the output through a pipe, and sends the key only after the whole prompt has arrived. Standard input
// is non-blocking: dd leaves its mode to the open file.
TEST(ShowHlog, WritesThePromptBeforeItWaitsForTheKey) {
    TestMachine machine;
    machine.Write("cevt/hlog", Log(UpTo(7)));
    const std::string shown = machine.Script("SHOW HLOG", Typed("q")).output;
    const size_t until_prompt = shown.size() - 2;
    const std::string script =
        "mkfifo keys; exec 3<>keys; dd count=0 iflag=nonblock status=none <&3; timeout 20 " +
        InShell("brantcli") + " -s 'SHOW HLOG' <&3 | { head -c " + std::to_string(until_prompt) +
        "; echo q >&3; cat; }";
    const std::string command = "cd '" + machine.Directory() + "'; " + script;
    EXPECT_EQ(RunProgram("/bin/sh", {"-c", command}, machine.Directory()).output, shown);
}

// Lists an entry that fills the buffer. The driver rejects a longer entry with status 3.
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

TEST(ShowHlog, PrintsTheUpdateTimeAndReplacesUnprintableCharacters) {
    TestMachine machine;
    std::string note(255, '\0'), shown;
    std::iota(note.begin(), note.end(), '\1');
    for (const char letter : note) shown += letter < ' ' ? ' ' : letter;
    EVT_HEADER header = EventHeader(0x80000000, kRepaired, 33, 2);
    header.InitTime = {19, 99, 10, 11, 12, 13};
    header.UpdateTime = {251, 252, 253, 254, 255, 250};  // numbers that result in the longest lines
    machine.Write("cevt/hlog", EventEntry(header, note));
    EXPECT_EQ(machine.Script("SHOW HLOG").output,
              "\n\nEvent: -2147483648 Added: 253/254/251252 255:250\nREPAIRED: Maintenance Note - " + shown +
                  ".\n\n\n");
}

// Tests the codes that no event in a model's log has.
TEST(ShowHlog, NamesEverySeverityAndClass) {
    constexpr uint16_t kSeverityAndClass[][2] = {
        {0, 12}, {1, 15}, {4, 16}, {5, 35}, {16, 290}, {255, 65535}, {15, 32}, {6, 21}, {6, 22},
        {6, 23}, {6, 24}, {6, 25}, {6, 26}, {6, 27},   {6, 28},      {6, 29},  {6, 30}, {6, 31},
    };
    std::string log;
    uint32_t number = 0;
    for (const auto& [severity, event_class] : kSeverityAndClass) {
        log += EventEntry(EventHeader(++number, static_cast<uint8_t>(severity), event_class, 7), "");
    }
    TestMachine machine;
    machine.Write("cevt/hlog", log);
    ExpectGolden("misc-commands/severities_and_classes.txt", machine.Script("SHOW HLOG", Typed("c")).output);
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
