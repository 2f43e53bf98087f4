// SHOW HLOG over a driver that answers what no honest one would: this program has the request library of its
// own, which gives the answers of a list and checks what it is asked.

#include <gtest/gtest.h>

#include <cstring>
#include <deque>

#include "cli/misc-commands/event_log.h"
#include "mkmachine/events.h"
#include "platform/request.h"
#include "tests/misc-commands/listing_shape.h"

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

Answer Event(uint32_t number) {
    return {0, EventEntry(EventHeader(number, kCaution, 13, 1), "")};
}

struct ScriptCase {
    const char* catches;
    std::vector<Answer> script;
    const char* shape;
    int result;
    std::vector<int32_t> asked;
};

TEST(ScriptedDriver, AnswersThatAnHonestOneDoesNotGive) {
    const Answer small = {3, ""}, empty = {0, ""};
    // clang-format off
    const ScriptCase cases[] = {
        // a number below the one asked for would list for ever
        {"the same entry again", {Event(5), Event(5), Event(7)}, "/5 !", 1, {0, 6}},
        {"an entry from before", {Event(5), Event(1), Event(7)}, "/5 !", 1, {0, 6}},
        {"a success that brings no entry", {empty, empty}, "/0 !", 1, {0, 1}},
        {"numbers compared as signed", {Event(0x7FFFFFFF), Event(0x80000000), Event(7)}, "/2147483647 -2147483648 !", 1, {0, INT32_MIN, INT32_MIN + 1}},
        {"a request behind the last number", {Event(0xFFFFFFFF), Event(1)}, "/-1 ", 0, {0}},
        // refusals for want of room, each of which repeats the request
        {"an entry skipped behind a refusal", {Event(1), small, Event(7)}, "/1 S7 ", 0, {0, 2, 2, 8}},
        {"refusals counted across an entry", {small, small, small, small, small, Event(1), small}, "/SSSSS1 ?/S", 0, {0, 0, 0, 0, 0, 0, 2, 2}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) {
        const Listing listing = List(c.script);
        EXPECT_EQ(Shape(listing.output), c.shape) << c.catches;
        EXPECT_EQ(listing.result, c.result) << c.catches;
        EXPECT_EQ(listing.asked, c.asked) << c.catches;
    }
}

}  // namespace
