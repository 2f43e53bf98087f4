// Machine directories that hold what they shouldn't: a request fails, and nothing else happens.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/platform/seam.h"
#include "tests/support/pattern.h"

namespace {

// What stands in a file's place, and what each request that needs the file then comes to.
const struct {
    const char* name;
    void (*put)(const std::string& path);
    const char* result;
} kNonsense[] = {
    {"a directory", [](const std::string& path) { mkdir(path.c_str(), 0755); }, "-1 errno=21"},
    {"a FIFO", [](const std::string& path) { mkfifo(path.c_str(), 0644); }, "-1 errno=19"},
    {"no end", [](const std::string& path) { std::filesystem::create_symlink("/dev/zero", path); },
     "-1 errno=19"},
    {"a loop", [](const std::string& path) { std::filesystem::create_symlink(path, path); }, "-1 errno=40"},
};
const char* const kPlaces[] = {"cdt/351.0.0", "cdt/1503.0.0", "casr/enabled", "crom/A",
                               "cevt/hlog",   "xsvc",         "picl",         "faults"};
constexpr char kOpens[] = "open cdt -> 0; open casr -> 0; open crom -> 0; open cevt -> 0\n";

}  // namespace

TEST(Hostile, WhatIsNoFileFailsTheRequest) {
    for (const auto& [name, put, result] : kNonsense) {
        SCOPED_TRACE(name);
        TestMachine machine;
        for (const char* place : kPlaces) {
            machine.Remove(place);
            put(machine.Directory() + "/" + place);
        }
        const std::string calls = R"(cdt 351.0.0 size=4 cru=0.0 -> R
            cdt 1503.0.0 size=5 cru=1.1 -> R; casr 6 -> R; casr 3 -> R
            crom read A length=4 -> R; crom write A length=1 data=00 -> R
            cevt read 0 length=312 -> R; xsvc open -> R; picl initialize -> 1)";
        ExpectCalls(machine, kOpens + ReplaceAll(calls, "R\\b", result));
        EXPECT_FALSE(MatchWhole(machine.Read("stderr"), "simulated machine: faults: .*\n").empty());

        machine.Remove("trace");
        put(machine.Directory() + "/trace");
        InChild(machine, [] { EXPECT_EQ(Make("open casr"), "0"); });
    }
}

TEST(Hostile, HugeFilesAreReadNoFurtherThanNeeded) {
    TestMachine machine;
    for (const char* place : kPlaces) {
        machine.Write(place, "");
        std::filesystem::resize_file(machine.Directory() + "/" + place, uint64_t{1} << 40);
    }
    ExpectCalls(machine, kOpens + std::string(R"(cdt 351.0.0 size=4 cru=0.0 -> 0 = 00000000
        cdt 1503.0.0 size=5 cru=1.1 -> -1 errno=27; casr 6 -> -1 errno=27
        crom read A length=2 -> 0 = 0000; crom write A length=1 data=01 -> -1 errno=27
        cevt read 0 length=312 -> 1; picl initialize -> 1
        xsvc open -> 0; xsvc map 0xfff0000000 4096 -> 0 = 0000)"));
}
