// SHOW HLOG over a driver that answers what no honest one would: this program has the request library of its
// own, which gives the answers of a list and checks what it is asked.

#include <gtest/gtest.h>

#include <cstring>
#include <deque>

#include "cli/eventstr/eventstr.h"
#include "cli/misc-commands/misc_commands.h"
#include "platform/request.h"
#include "tests/misc-commands/listing_shape.h"
#include "tools/mkmachine/events.h"

namespace {

struct Answer {
    int status;
    std::string entry;  // written over the entry of the request
};

std::deque<Answer> answers;
std::vector<int32_t> asked;

}  // namespace

int vxOpenRequest(char*, int) {
    return 0;
}

void vxCloseRequest(int) {}

int vxIoctlRequest(int, int code, void* arg) {
    EXPECT_EQ(code, 81);
    auto* const request = static_cast<EVT_IOCTL_ENTRY*>(arg);
    EXPECT_EQ(request->info.length, 312u);
    EXPECT_EQ(request->info.choice, 2);
    EXPECT_EQ(request->info.match_code, 0);
    EXPECT_EQ(request->Evt.Hdr.wEvtLength, 284);
    char* const entry = static_cast<char*>(arg) + 16;
    EXPECT_EQ(std::string(entry + 2, 294), std::string(294, '\0')) << "what the last entry left";
    asked.push_back(request->info.EvtNumber);

    const Answer answer = answers.empty() ? Answer{1, ""} : answers.front();
    if (!answers.empty()) answers.pop_front();
    std::memcpy(entry, answer.entry.data(), answer.entry.size());
    return answer.status;
}

namespace {

struct Listing {
    std::string output;
    int result;
    std::vector<int32_t> asked;
};

Listing List(const std::vector<Answer>& script) {
    answers.assign(script.begin(), script.end());
    asked.clear();
    InputLineType line{};
    line.NumWords = 2;
    testing::internal::CaptureStdout();
    const int result = do_show_hlog(&line);
    std::fflush(stdout);
    return {testing::internal::GetCapturedStdout(), result, asked};
}

std::string Event(uint32_t number) {
    return EventEntry(EventHeader(number, kCaution, 13, 1), "");
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

struct ScriptCase {
    const char* catches;
    std::vector<Answer> script;
    const char* shape;
    int result;
    std::vector<int32_t> asked;
};

TEST(ScriptedDriver, AnswersThatAnHonestOneDoesNotGive) {
    const Answer small = {3, ""};
    const Answer one = {0, Event(1)}, five = {0, Event(5)}, seven = {0, Event(7)};
    const ScriptCase cases[] = {
        // a number below the one asked for would list for ever
        {"the same entry again", {five, five, seven}, "/5 !", 1, {0, 6}},
        {"an entry from before", {five, one, seven}, "/5 !", 1, {0, 6}},
        {"the log from its beginning", {five, {0, Event(0)}}, "/5 !", 1, {0, 6}},
        {"numbers compared as signed",
         {{0, Event(0x7FFFFFFF)}, {0, Event(0x80000000)}, seven},
         "/2147483647 -2147483648 !",
         1,
         {0, INT32_MIN, INT32_MIN + 1}},
        {"a request behind the last number", {{0, Event(0xFFFFFFFF)}, one}, "/-1 ", 0, {0}},
        // refusals for want of room, each of which repeats the request
        {"an entry skipped behind a refusal", {one, small, seven}, "/1 S7 ", 0, {0, 2, 2, 8}},
        {"the end behind a refusal", {small, {1, ""}}, "/SE", 0, {0, 0}},
        {"five in a row",
         {small, small, small, small, small, one, small},
         "/SSSSS1 ?/S",
         0,
         {0, 0, 0, 0, 0, 0, 2, 2}},
        {"a count that an entry doesn't end",
         {small, small, small, one, small, small, small, five},
         "/SSS1 SS?/S5 ",
         0,
         {0, 0, 0, 0, 2, 2, 2, 2, 6}},
        {"six in a row", {small, small, small, small, small, small, one}, "/SSSSSS", 1, {0, 0, 0, 0, 0, 0}},
        {"another failure behind a refusal", {small, {9, ""}, one}, "/S!", 1, {0, 0}},
    };
    for (const ScriptCase& c : cases) {
        const Listing listing = List(c.script);
        EXPECT_EQ(Shape(listing.output), c.shape) << c.catches;
        EXPECT_EQ(listing.result, c.result) << c.catches;
        EXPECT_EQ(listing.asked, c.asked) << c.catches;
    }
}

TEST(ScriptedDriver, LengthsThatLie) {
    const std::string note(268, 'x');
    for (const uint16_t length : {uint16_t{0}, uint16_t{27}, uint16_t{297}, uint16_t{65535}}) {
        std::string entry = EventEntry(EventHeader(1, kCaution, 33, 1), note);
        std::memcpy(entry.data(), &length, sizeof length);
        const Listing listing = List({{0, entry}});
        EXPECT_EQ(listing.result, 0);
        const std::string shown =
            length < 28 ? ")." : note.substr(0, 255 - std::strlen("HLOG Cleared (")) + ".";
        EXPECT_TRUE(Contains(listing.output, "HLOG Cleared (" + shown + "\n")) << length;
    }
}

// A driver that leaves the length as it was preset means 256 bytes of payload.
TEST(ScriptedDriver, APresetLengthIsTaken) {
    std::string entry = EventEntry(EventHeader(1, kCaution, 33, 1), std::string(268, 'x'));
    const uint16_t preset = 284;
    std::memcpy(entry.data(), &preset, sizeof preset);
    char text[512];
    TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(entry.data()), text, sizeof text);
    EXPECT_EQ(text, "HLOG Cleared (" + std::string(256, 'x') + ")");
}

// Nothing came back with a status of 0: an entry of zeros, number 0, which is below the next one asked for.
TEST(ScriptedDriver, AnAnswerWithoutAnEntry) {
    const Listing listing = List({{0, ""}, {0, ""}});
    EXPECT_TRUE(
        Contains(listing.output, "\nEvent: 0 Added: 00/00/0000 00:00\nUNKNOWN: EVT_CLASS_EMPTY - Empty.\n"));
    EXPECT_EQ(listing.result, 1);
    EXPECT_EQ(listing.asked, (std::vector<int32_t>{0, 1}));
}

}  // namespace
