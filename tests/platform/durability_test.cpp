// A change to the machine directory is complete or absent, and never lost to another process.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "tests/platform/make_call.h"
#include "tests/support/pattern.h"

namespace {

std::string Write(size_t length, unsigned byte) {
    return "crom write V length=" + std::to_string(length) +
           " data=" + Hexadecimal(std::string(length, static_cast<char>(byte)));
}

}  // namespace

// One process changes the whole variable, the other only its first byte. If a change is lost, the bytes that
// the second process keeps are wrong.
TEST(Durability, TwoProcessesLoseNoChange) {
    constexpr unsigned kChanges = 100;
    TestMachine machine;
    machine.Variable("V", std::string(4, '\0'));
    machine.StartTrace();
    const pid_t other = fork();
    if (other == 0) {
        setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
        Make("open crom");
        for (unsigned i = 0; i < kChanges; ++i) Make(Write(1, 0x5A));
        _exit(0);
    }
    InChild(machine, [] {
        Make("open crom");
        for (unsigned i = 0; i < kChanges; ++i) {
            Make(Write(4, i));
            const std::string kept = Make("crom read V length=4").substr(6);
            ASSERT_EQ(kept, Hexadecimal(std::string(3, static_cast<char>(i)))) << "change " << i;
        }
    });
    waitpid(other, nullptr, 0);

    const std::string whole_lines = ReplaceAll(machine.TakeTrace(), "(open|crom) [^\n]{2,40} -> 0\n", "|");
    EXPECT_EQ(whole_lines, std::string(3 * kChanges + 2, '|')) << "lines of two processes mixed";
}

TEST(Durability, AChangeThatFindsTheDiskFullIsNone) {
    TestMachine machine;
    machine.Write("crom/V", "kept");
    InChild(machine, [] {
        Make("open crom");
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit full = {0, 0};
        setrlimit(RLIMIT_FSIZE, &full);
        EXPECT_EQ(Make(Write(2, 0x5A)), "-1 errno=27");
    });
    EXPECT_EQ(machine.Read("crom/V"), "kept");
    EXPECT_FALSE(std::filesystem::exists(machine.Directory() + "/crom/.new"));
}
