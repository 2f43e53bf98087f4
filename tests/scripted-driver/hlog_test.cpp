// Tests of SHOW HLOG with replies that a correct driver never sends. This test program replaces the request
// library: its functions return the replies of a list and check each request.

#include <gtest/gtest.h>

#include <cstring>
#include <deque>

#include "cli/misc-commands/event_log.h"
#include "mkmachine/events.h"
#include "platform/request.h"
#include "tests/misc-commands/listing_shape.h"

namespace {

struct Reply {
    int status;
    std::string entry;  // replaces the beginning of the entry in the request block
};

std::deque<Reply> replies;       // of the following requests; afterwards, each reply is the end of the log
std::vector<int32_t> requested;  // event numbers

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
    EXPECT_EQ(std::string(entry + 2, 294), std::string(294, '\0'))
        << "the block contains bytes of the last entry";
    requested.push_back(request->info.EvtNumber);

    const Reply reply = replies.empty() ? Reply{1, ""} : replies.front();
    if (!replies.empty()) replies.pop_front();
    std::memcpy(entry, reply.entry.data(), reply.entry.size());
    return reply.status;
}

namespace {

struct Listing {
    std::string output;
    int result;
    std::vector<int32_t> requested;
};

Listing List(const std::vector<Reply>& script) {
    replies.assign(script.begin(), script.end());
    requested.clear();
    InputLineType line{};
    line.NumWords = 2;
    testing::internal::CaptureStdout();
    const int result = do_show_hlog(&line);
    std::fflush(stdout);
    return {testing::internal::GetCapturedStdout(), result, requested};
}

Reply Event(uint32_t number) {
    return {0, EventEntry(EventHeader(number, kCaution, 13, 1), "")};
}

struct ScriptCase {
    const char* catches;
    std::vector<Reply> script;
    const char* shape;  // of the listing, as Shape() writes it
    int result;
    std::vector<int32_t> requested;
};

TEST(ScriptedDriver, WrongRepliesEndTheListingOrAreRequestedAgain) {
    const Reply small = {3, ""}, empty = {0, ""};
    // clang-format off
    const ScriptCase cases[] = {
        // Without the check, an entry numbered below the requested number would make the listing loop forever.
        {"the same entry again", {Event(5), Event(5), Event(7)}, "/5 !", 1, {0, 6}},
        {"an entry numbered below the requested number", {Event(5), Event(1), Event(7)}, "/5 !", 1, {0, 6}},
        {"status 0 without an entry", {empty, empty}, "/0 !", 1, {0, 1}},
        {"numbers compared as signed", {Event(0x7FFFFFFF), Event(0x80000000), Event(7)}, "/2147483647 -2147483648 !", 1, {0, INT32_MIN, INT32_MIN + 1}},
        {"a request after the largest number", {Event(0xFFFFFFFF), Event(1)}, "/-1 ", 0, {0}},
        // Status 3, "buffer too small": the same entry is requested again.
        {"an entry skipped after status 3", {Event(1), small, Event(7)}, "/1 S7 ", 0, {0, 2, 2, 8}},
        {"replies with status 3 counted across an entry", {small, small, small, small, small, small, Event(1), small, small, small, small, small, small}, "/SSSSSS?/1 SSSSS?/S", 0, {0, 0, 0, 0, 0, 0, 0, 2, 2, 2, 2, 2, 2, 2}},
    };
    // clang-format on
    for (const ScriptCase& c : cases) {
        const Listing listing = List(c.script);
        EXPECT_EQ(Shape(listing.output), c.shape) << c.catches;
        EXPECT_EQ(listing.result, c.result) << c.catches;
        EXPECT_EQ(listing.requested, c.requested) << c.catches;
    }
}

}  // namespace
