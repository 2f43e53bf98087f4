// Tests of an event log that changes, and of a long one. calls.txt tests the other requests.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <random>

#include "platform/request.h"
#include "tests/platform/make_call.h"

// Changes the log while a listing reads it: overwrites it, or replaces it with another file.
TEST(Devices, ListTheCurrentLog) {
    TestMachine machine;
    InChild(machine, [&] {
        Make("open cevt");
        uint32_t next = 1;  // each log begins with a different number
        const auto expect_next = [&next](const char* catches) {
            char path[] = "/dev/zethealth/cevt";
            const int second = vxOpenRequest(path, kReadWrite);
            EXPECT_GE(second, 0) << "a closed descriptor isn't reused";
            vxCloseRequest(second);
            const std::string call = "cevt read " + std::to_string(next) + " length=56";
            EXPECT_EQ(Make(call), "0 = " + Hexadecimal(LogEntry(next, 40))) << catches;
            ++next;
        };
        for (int i = 0; i < 22; ++i) {
            const bool renamed = i == 1;
            machine.Write(renamed ? "cevt/.new" : "cevt/hlog",
                          LogEntry(next, 40) + LogEntry(next + 1, 40) + LogEntry(next + 2, 40));
            if (renamed) {
                std::filesystem::rename(machine.Directory() + "/cevt/.new",
                                        machine.Directory() + "/cevt/hlog");
            }
            expect_next(renamed ? "the file before it was replaced"
                                : "the contents before they were overwritten");
            if (i < 3) usleep(60000);  // so that the file is old enough for its index to be kept
            expect_next("an old log");
            expect_next("an old log");
        }
        machine.Remove("cevt/hlog");
        EXPECT_EQ(Make("cevt read 1 length=56"), "1") << "a removed log should have no entries";
    });
}

TEST(Devices, ListALongLogByNumber) {
    constexpr uint32_t kNumbers = 3000;
    std::mt19937 random(81);
    std::string log;
    std::map<uint32_t, std::string> first_of;  // each number, in ascending order
    for (uint32_t i = 0; i < kNumbers; ++i) {
        const auto number = static_cast<uint32_t>(random() % kNumbers);
        const std::string entry = LogEntry(number, static_cast<unsigned>(28 + random() % 300));
        first_of.emplace(number, entry);
        log += entry;
    }
    TestMachine machine;
    machine.Write("cevt/hlog", log + "\x1d" + std::string(27, '\0'));  // the last entry is one byte too short
    usleep(60000);  // so that the file is old enough for its index to be kept
    InChild(machine, [&] {
        Make("open cevt");
        for (const auto& [number, entry] : first_of) {
            const std::string result = Make("cevt read " + std::to_string(number) + " length=344");
            ASSERT_EQ(result, "0 = " + Hexadecimal(entry)) << number;
        }
    });
}
