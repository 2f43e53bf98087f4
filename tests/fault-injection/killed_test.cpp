// A change is killed before one of its system calls: the first, then the second, until it gets through.
#include <gtest/gtest.h>

#include <csignal>

#include "tests/fault-injection/every_command.h"
#include "tests/support/pattern.h"

namespace {

struct Change {
    const char* command;
    const char* device;
    const char* file;
    const char* report;
};
constexpr Change kChanges[] = {
    {"SET NAME web7", "crom", "ZTHLS1", "Successfully set new server name: web7"},
    {"DISABLE ASR", "casr", "enabled", "Successfully disabled ASR timer."},
    {"SET UID ON", "cdt", "1503.0.0", "UID is now on."},
    {"CLEAR HLOG", "cevt", "hlog", "HLOG Log successfully cleared."},
};

// A file is made beside the one it replaces, and is on disk before it does; what has replaced it is on disk
// before the change is reported. A log that is cleared has no bytes to be written.
std::string InOrder(const Change& change) {
    return std::string("unlink .new\nopen .new\n(write .new\n)*fsync .new\nrename ") + change.file +
           "\nfsync " + change.device + "\n\\s*" + change.report;
}

RunResult Make(const RestorableMachine& machine, const Change& change, size_t end_at) {
    RunOptions options;
    options.environment = {"BRANT_END_AT=" + std::to_string(end_at)};
    return RunProgram(ProgramPath("brantcli_interposed"), {"-s", change.command}, machine.Directory(),
                      options);
}

}  // namespace

TEST(Killed, AChangeIsCompleteOrAbsentAndCompleteOnceReported) {
    RestorableMachine machine("tr500k2");
    const Files as_made = machine.State();
    size_t kills = 0;
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.command);
        const RunResult untouched = Make(machine, change, 0);
        const Files made = machine.State();
        EXPECT_TRUE(Contains(untouched.output, InOrder(change))) << untouched.output;
        EXPECT_TRUE(made != as_made);
        for (size_t end_at = 1;; ++end_at, ++kills) {
            machine.Restore();
            const RunResult killed = Make(machine, change, end_at);
            if (killed.status != 128 + SIGKILL) break;

            Files left = machine.State();
            left.erase(std::string(change.device) + "/.new");
            const bool reported = killed.output.find(change.report) != std::string::npos;
            EXPECT_TRUE(left == made || (left == as_made && !reported)) << "killed after\n" << killed.output;
            Make(machine, change, 0);
            EXPECT_TRUE(machine.State() == made) << "what a killed program left is in the way, or stays";
        }
        machine.Restore();
    }
    EXPECT_GE(kills, 4u * 5);
    std::printf("%zu kills\n", kills);
}
