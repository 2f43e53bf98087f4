// The event logs that mkmachine makes.

#include <gtest/gtest.h>

#include <cstring>
#include <set>

#include "tests/support/test_machine.h"
#include "tools/mkmachine/events.h"

namespace {

std::vector<EVT_HEADER> Headers(const std::string& log) {
    std::vector<EVT_HEADER> headers;
    for (size_t at = 0; at < log.size(); at += headers.back().wEvtLength) {
        EVT_HEADER header{};
        EXPECT_LE(at + sizeof header, log.size());
        std::memcpy(&header, log.data() + at, sizeof header);
        EXPECT_TRUE(header.wEvtLength >= sizeof header && header.wEvtLength <= log.size() - at);
        headers.push_back(header);
    }
    return headers;
}

TEST(EventLogOfAModel, HasEveryEventInOrder) {
    const TestMachine machine("tr300");
    const std::vector<EVT_HEADER> headers = Headers(machine.Read("cevt/hlog"));
    std::set<std::pair<int, int>> events;
    for (size_t i = 0; i < headers.size(); ++i) {
        const uint32_t number = headers[i].dwEvtNumber;  // a copy: it stands at an odd place
        EXPECT_EQ(number, i + 1);
        const EVT_TIME_STAMP& time = headers[i].UpdateTime;
        EXPECT_TRUE(time.bMonth >= 1 && time.bMonth <= 12 && time.bDay >= 1 && time.bDay <= 31);
        events.insert({int{headers[i].wClass}, int{headers[i].wCode}});
    }
    // By class: 1, 1, 12, 18, 1, 2, 2, 4, 1, 9, 1, 20, 3, 6, 7, 3, 6, 3, 1, 2, 23.
    EXPECT_EQ(events.size(), 126u);
}

TEST(EventLogOfAModel, IsTheSameOnEach) {
    const std::string log = TestMachine("tr300").Read("cevt/hlog");
    EXPECT_EQ(TestMachine("tr500k2").Read("cevt/hlog"), log);
    EXPECT_EQ(TestMachine("bx20").Read("cevt/hlog"), log);
}

struct CountCase {
    const char* catches;
    std::vector<std::string> words;
    int status;
    size_t entries;
};

TEST(MakeMachineProgram, MakesAsManyEventsAsAskedFor) {
    const CountCase cases[] = {
        {"none", {"--events", "0"}, 0, 0},
        {"a part", {"--events", "5"}, 0, 5},
        {"more than there are", {"--model", "bx20", "--events", "1000"}, 0, 1000},
        {"no count", {"--events"}, 2, 0},
        {"no number", {"--events", "many"}, 2, 0},
        {"a sign", {"--events", "-1"}, 2, 0},
        {"a number and more", {"--events", "5x"}, 2, 0},
        {"an empty count", {"--events", ""}, 2, 0},
        {"more than can be numbered", {"--events", "99999999999"}, 2, 0},
    };
    for (const CountCase& c : cases) {
        const TestMachine parent;
        const std::string directory = parent.Directory() + "/made";
        std::vector<std::string> words = c.words;
        words.push_back(directory);
        const RunResult run = RunProgram(ProgramPath("mkmachine"), words, parent.Directory());
        EXPECT_EQ(run.status, c.status) << c.catches;
        EXPECT_EQ(Headers(parent.Read("made/cevt/hlog")).size(), c.entries) << c.catches;
    }
}

}  // namespace
