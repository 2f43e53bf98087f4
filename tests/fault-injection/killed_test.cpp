// Kills a modifying command before its first interposed system call, then before its second, and so on until
// the command completes.
#include <gtest/gtest.h>

#include <csignal>

#include "tests/support/every_command.h"
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

// Returns a pattern for the output of a command that completes: the system calls in order, then the command's
// message. The new file is synced before it replaces the old one, and the directory is synced before the
// command reports success. An empty file is created without a write.
std::string CallsInOrder(const Change& change) {
    return std::string("unlink .new\nopen .new\n(write .new\n)*fsync .new\nrename ") + change.file +
           "\nfsync " + change.device + "\n\\s*" + change.report;
}

// Runs the command with a setting NAME=VALUE for interposed/changes.cpp.
RunResult RunChange(const RestorableMachine& machine, const Change& change, const std::string& setting) {
    RunOptions options;
    options.environment = {setting};
    return RunProgram(ProgramPath("brantcli_interposed"), {"-s", change.command}, machine.Directory(),
                      options);
}

// Runs the command. `kill_at` is the number, from 1, of the system call before which it is killed; 0 if it
// isn't killed.
RunResult RunChange(const RestorableMachine& machine, const Change& change, size_t kill_at) {
    return RunChange(machine, change, "BRANT_KILL_AT=" + std::to_string(kill_at));
}

}  // namespace

TEST(KilledCommand, LeavesACompleteChangeOrNone) {
    RestorableMachine machine("tr500k2");
    const Files original = machine.State();
    size_t kills = 0;
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.command);
        const RunResult baseline = RunChange(machine, change, 0);
        const Files changed = machine.State();
        EXPECT_TRUE(Contains(baseline.output, CallsInOrder(change)))
            << "expected the calls\n"
            << CallsInOrder(change) << "\nactual output:\n"
            << baseline.output;
        EXPECT_TRUE(changed != original) << "the command has changed no file";
        for (size_t kill_at = 1;; ++kill_at, ++kills) {
            machine.Restore();
            const RunResult killed = RunChange(machine, change, kill_at);
            if (killed.status != 128 + SIGKILL) break;

            SCOPED_TRACE("killed after this output:\n" + killed.output);
            Files left = machine.State();
            left.erase(std::string(change.device) + "/.new");
            const bool reported = killed.output.find(change.report) != std::string::npos;
            EXPECT_TRUE(left == changed || left == original) << "a part of the change is in the files";
            EXPECT_TRUE(left == changed || !reported) << "the command reported success without the change";
            RunChange(machine, change, 0);
            EXPECT_TRUE(machine.State() == changed)
                << "after the kill, the same command fails or leaves .new";
        }
        machine.Restore();
        RunChange(machine, change, "BRANT_NO_SYNC=");
        EXPECT_TRUE(machine.State() == original) << "changed without a sync, or .new is left";
    }
    EXPECT_GE(kills, 4u * 5) << "each of the 4 commands makes at least 5 system calls";
    std::printf("%zu kills\n", kills);
}
