// Tests of machine directories with links, special files and huge files, which another user may have created.
// Requests fail, and nothing outside the directory is read or written.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "tests/platform/make_call.h"
#include "tests/support/pattern.h"

namespace {

// Each case replaces files with something other than a regular file, and contains the result of each request
// that needs a file.
const struct {
    const char* name;
    void (*create)(const std::string& path);
    const char* result;
} kOtherTypes[] = {
    {"a directory", [](const std::string& path) { mkdir(path.c_str(), 0755); }, "-1 errno=21"},
    {"a FIFO", [](const std::string& path) { mkfifo(path.c_str(), 0644); }, "-1 errno=19"},
    {"a link to a file that every request accepts",
     [](const std::string& path) {
         std::ofstream(path + ".target") << "1\n";
         std::filesystem::create_symlink(path + ".target", path);
     },
     "-1 errno=40"},
};
const char* const kFiles[] = {"cdt/351.0.0", "cdt/1503.0.0", "casr/enabled", "crom/A",
                              "cevt/hlog",   "xsvc",         "picl",         "faults"};
constexpr char kOpens[] = "open cdt -> 0; open casr -> 0; open crom -> 0; open cevt -> 0\n";

}  // namespace

TEST(Hostile, OnlyRegularFilesAreReadOrWritten) {
    for (const auto& [name, create, result] : kOtherTypes) {
        SCOPED_TRACE(name);
        TestMachine machine;
        for (const char* file : kFiles) {
            machine.Remove(file);
            create(machine.Directory() + "/" + file);
        }
        const std::string calls = R"(cdt 351.0.0 size=4 cru=0.0 -> R
            cdt 1503.0.0 size=5 cru=1.1 -> R; casr 6 -> R; casr 3 -> R
            crom read A length=4 -> R; crom write A length=1 data=00 -> R
            cevt read 0 length=312 -> R; cevt clear length=56 -> R; xsvc open -> R; picl initialize -> 1)";
        ExpectCalls(machine, kOpens + ReplaceAll(calls, "R\\b", result));
        const char* const reasons = "simulated machine: faults: .*\nsimulated machine: xsvc: .*\n";
        EXPECT_FALSE(MatchWhole(machine.Read("stderr"), reasons).empty()) << machine.Read("stderr");
        EXPECT_FALSE(
            is_regular_file(symlink_status(std::filesystem::path(machine.Directory()) / "cevt/hlog")));

        machine.Remove("trace");
        create(machine.Directory() + "/trace");
        InChild(machine, [] { EXPECT_EQ(Make("open casr"), "0"); });
        const std::string target = machine.Read("trace.target");
        EXPECT_TRUE(target.empty() || target == "1\n") << "the link was followed";
    }
}

TEST(Hostile, NoLinkToADeviceDirectoryIsFollowed) {
    TestMachine machine;
    machine.Asr(true);
    machine.Write("cdt/1503.0.0", "\1\1");
    machine.Variable("A", std::string("A"));
    const std::string requests[][2] = {{"cdt", "cdt 1503.0.0 size=5 cru=1.2"},
                                       {"casr", "casr 3"},
                                       {"crom", "crom write A length=1 data=00"},
                                       {"cevt", "cevt clear length=56"},
                                       {"cevt", "cevt read 0 length=312"}};
    for (const auto& [device, request] : requests) {
        InChild(machine, [&, device = device, request = request] {
            const std::string path = machine.Directory() + "/" + device;
            EXPECT_EQ(Make("open " + device), "0");
            std::filesystem::rename(path, path + ".real");
            std::filesystem::create_directory_symlink(path + ".real", path);
            EXPECT_EQ(Make(request), "-1 errno=20")
                << "the directory was replaced by a link after it was opened";
            EXPECT_EQ(Make("open " + device), "-1 errno=20") << device;
            std::filesystem::remove(path);
            std::filesystem::rename(path + ".real", path);
        });
    }
    EXPECT_EQ(machine.Read("cdt/1503.0.0") + machine.Read("casr/enabled") + machine.Read("crom/A"),
              "\1\1"
              "1\nA")
        << "a request has changed a file of the linked directory";
}

// The second name may be that of another user's file, and every run would append to it.
TEST(Hostile, ATraceWithASecondNameIsNotWritten) {
    TestMachine machine;
    machine.Write("kept", "kept\n");
    std::filesystem::create_hard_link(machine.Directory() + "/kept", machine.Directory() + "/trace");
    InChild(machine, [] { EXPECT_EQ(Make("open casr"), "0"); });
    EXPECT_EQ(machine.Read("kept"), "kept\n");
    EXPECT_EQ(machine.Read("stderr"), "simulated machine: trace: Too many links\n");
}

TEST(Hostile, HugeFilesAreNotReadWhole) {
    TestMachine machine;
    for (const char* file : kFiles) {
        machine.Write(file, "");
        std::filesystem::resize_file(machine.Directory() + "/" + file, uint64_t{1} << 40);
    }
    ExpectCalls(machine, kOpens + std::string(R"(cdt 351.0.0 size=4 cru=0.0 -> 0 = 00000000
        cdt 1503.0.0 size=5 cru=1.1 -> -1 errno=27; casr 6 -> -1 errno=27
        crom read A length=2 -> 0 = 0000; crom write A length=1 data=01 -> -1 errno=27
        cevt read 0 length=312 -> 1; picl initialize -> 1
        xsvc open -> 0; xsvc map 0xfff0000000 4096 -> 0 = 0000)"));
}
