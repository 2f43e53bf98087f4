// Tests that a change to the machine directory is complete or absent, and never lost because of another
// process.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "src/utils/standard_streams.h"
#include "tests/platform/make_call.h"
#include "tests/support/pattern.h"

static int syncs = 0;  // number of calls until fsync() fails; below 1: it never fails
extern "C" int fsync(int) {
    errno = EIO;
    return --syncs == 0 ? -1 : 0;
}

namespace {

std::string Write(size_t length, unsigned byte) {
    return "crom write V length=" + std::to_string(length) +
           " data=" + Hexadecimal(std::string(length, static_cast<char>(byte)));
}

// Starts one process after another. Each changes the first byte of the variable and is killed at a random
// moment. Never returns.
[[noreturn]] void ChangeAndBeKilled(const TestMachine& machine) {
    setpgid(0, 0);
    setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
    std::mt19937 random(std::random_device{}());
    for (;;) {
        const pid_t victim = fork();
        if (victim == 0) {
            Make("open crom");
            for (;;) Make(Write(1, 0x5A));
        }
        usleep(static_cast<useconds_t>(random() % 3000));
        kill(victim, SIGKILL);
        waitpid(victim, nullptr, 0);
    }
}

}  // namespace

// One process changes the whole variable, the others only its first byte and keep the rest. If a change is
// lost, the rest is wrong.
TEST(Durability, ProcessesLoseNoChangeEvenIfTheyAreKilled) {
    constexpr unsigned kChanges = 200;
    TestMachine machine;
    machine.Variable("V", std::string(4, '\0'));
    machine.StartTrace();
    const pid_t others = fork();
    if (others == 0) ChangeAndBeKilled(machine);
    InChild(machine, [] {
        Make("open crom");
        for (unsigned i = 0; i < kChanges; ++i) {
            ASSERT_EQ(Make(Write(4, i)), "0") << "change " << i;
            const std::string kept = Make("crom read V length=4").substr(6);
            ASSERT_EQ(kept, Hexadecimal(std::string(3, static_cast<char>(i)))) << "change " << i;
        }
    });
    kill(-others, SIGKILL);
    waitpid(others, nullptr, 0);

    const std::string rest = ReplaceAll(machine.TakeTrace(), "(open|crom) [^\n]{2,40} -> 0\n", "");
    EXPECT_EQ(rest, "") << "the trace contains mixed lines of several processes";
}

TEST(Durability, AChangeThatCannotBeSyncedFailsWithoutAReply) {
    TestMachine machine;
    machine.Write("cdt/1503.0.0", "kept");
    InChild(machine, [&] {
        Make("open cdt");
        syncs = 1;
        EXPECT_EQ(Make("cdt 1503.0.0 size=2 cru=1.1"), "-1 errno=5") << "the new file wasn't synced";
        EXPECT_EQ(machine.Read("cdt/1503.0.0"), "kept");
        syncs = 2;
        EXPECT_EQ(Make("cdt 1503.0.0 size=2 cru=1.1"), "-1 errno=5") << "the directory wasn't synced";
    });
    EXPECT_EQ(machine.Read("cdt/1503.0.0"), "k\1pt");
}

TEST(Durability, AChangeOnAFullDiskFailsAndKeepsTheFile) {
    TestMachine machine;
    machine.Write("crom/V", "kept");
    InChild(machine, [] {
        Make("open crom");
        IgnoreWriteSignals();
        const rlimit full = {0, 0};
        setrlimit(RLIMIT_FSIZE, &full);
        EXPECT_EQ(Make(Write(2, 0x5A)), "-1 errno=27");
    });
    EXPECT_EQ(machine.Read("crom/V"), "kept");
    EXPECT_FALSE(std::filesystem::exists(machine.Directory() + "/crom/.new")) << "the new file is left";
}
