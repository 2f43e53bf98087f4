// One allocation of the process fails: the first, then the second, until a command gets through untouched.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <map>

#include "tests/fault-injection/every_command.h"

namespace {

constexpr int kAsForAFailedRequest = -1;  // 1, or 0 where the command does without

// What is said when there is no memory, and the status then.
const std::map<std::string, int> kMessages = {
    {"ERROR: Could not allocate memory for command.", kAsForAFailedRequest},
    {"ERROR: Could not allocate memory for \"SHOW UID\" command.", 1},
    {"ERROR: Could not allocate memory for \"SET UID\" command.", 1},
    {"ERROR: Could not allocate memory for \"SHOW HLOG\" command.", 1},
    {"ERROR: Could not allocate memory for the command tree.", 1},
    {"Failed to allocate memory for command history.", 0},
};

class ShortOfMemory : public testing::TestWithParam<std::string> {
  protected:
    // Fails the allocations of a script from one on. Result: the first one that it doesn't come to.
    size_t Sweep(RestorableMachine& machine, const std::string& script, size_t failing) {
        const Files as_made = machine.State();
        std::vector<Files> states;
        for (;; ++failing) {
            RunOptions options;
            options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(failing)};
            const RunResult run =
                RunProgram(ProgramPath("brantcli_interposed"), {"-s", script}, machine.Directory(), options);
            states.push_back(machine.Restore());
            if (run.errors.empty()) break;
            ++failures_;

            EXPECT_EQ(run.errors, "allocation failed\n") << script << failing;
            EXPECT_LE(run.status, 1) << script << failing;
            for (const auto& [message, status] : kMessages) {
                if (run.output.find(message) == std::string::npos) continue;
                EXPECT_TRUE(status == kAsForAFailedRequest || run.status == status) << message;
                unseen_.erase(message);
            }
        }
        for (const Files& state : states) {
            EXPECT_TRUE(state == as_made || state == states.back() || ChangesInSteps(script)) << script;
        }
        return failing;
    }
    std::map<std::string, int> unseen_ = kMessages;
    size_t failures_ = 0;
};

TEST_P(ShortOfMemory, EveryCommandComesToAKnownEnd) {
    RestorableMachine machine(GetParam());
    const size_t at_start = Sweep(machine, "", 1);
    for (const std::string& command : Commands()) Sweep(machine, command, at_start - 1);
    std::printf("%zu failed allocations\n", failures_);
    for (const auto& [message, status] : unseen_) ADD_FAILURE() << "never said: " << message;
}

INSTANTIATE_TEST_SUITE_P(Model, ShortOfMemory, testing::ValuesIn(ModelNames()));

// Memory runs out for good during a copy: the first time there is not even memory for an exception.
TEST(SaveMachine, SaysThatMemoryHasRunOutAndLeavesNothingBehind) {
    const TestMachine machine("tr300");
    constexpr size_t kStep = 3;
    for (size_t first = 1;; first += kStep) {
        const TestMachine parent;
        const std::string folder = parent.Directory() + "/casr";
        RunOptions options;
        options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(first) + "+"};
        const RunResult run = RunProgram(ProgramPath("savemachine_interposed"), {folder + "/copy"},
                                         machine.Directory(), options);
        if (run.status == 0) {
            EXPECT_GT(first, 100U) << "hardly anything was allocated";
            break;
        }
        EXPECT_EQ(run.status, 1) << first;
        const char* const message = first == 1 ? "ERROR: out of memory.\n" : "savemachine: out of memory\n";
        EXPECT_NE(run.errors.find(message), run.errors.npos) << run.errors;
        if (first > 1) {
            EXPECT_TRUE(std::filesystem::is_empty(folder)) << first;
        }
    }
}

// Result: what a process never gives back. failing: the request that fails, from 1.
std::string BlocksKept(RestorableMachine& machine, const std::string& script, size_t failing) {
    machine.Write("faults", "request " + std::to_string(failing) + " -5\n");
    RunOptions options;
    options.environment = {"BRANT_COUNT_BLOCKS=1"};
    const RunResult run =
        RunProgram(ProgramPath("brantcli_interposed"), {"-s", script}, machine.Directory(), options);
    machine.Restore();
    return run.errors;
}

TEST(Memory, IsGivenBackByEveryCommandWhicheverRequestFails) {
    RestorableMachine machine(ModelNames().front());
    std::string all;
    for (const std::string& command : Commands()) {
        if (command != "EXIT" && command != "QUIT") all += command + ';';
    }
    const std::string by_none = BlocksKept(machine, "", kNone);
    ASSERT_NE(by_none.find(" blocks"), by_none.npos);

    machine.StartTrace();
    EXPECT_EQ(BlocksKept(machine, all, kNone), by_none);
    const size_t requests = machine.TakeRequests().size();
    machine.Remove("trace");
    EXPECT_GT(requests, 150U) << "hardly a command has asked for anything";
    for (size_t failing = 1; failing <= requests; ++failing) {
        EXPECT_EQ(BlocksKept(machine, all, failing), by_none) << failing;
    }
}

}  // namespace
