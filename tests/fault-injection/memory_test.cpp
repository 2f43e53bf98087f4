// Fails one allocation of a process: in the first run the first one, in the second run the second one, and so
// on, until a run has no failing allocation.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <map>

#include "tests/support/every_command.h"

namespace {

constexpr int kAnyStatus = -1;  // 1, or 0 if the command doesn't need the record that could not be read

// Messages about a lack of memory, and the exit status of the commands that print them. If the status is 1,
// the message is the whole output.
const std::map<std::string, int> kMessages = {
    {"ERROR: Could not allocate memory for command.", kAnyStatus},
    {"\nERROR: Could not allocate memory for \"SHOW UID\" command.\n\n", 1},
    {"\nERROR: Could not allocate memory for \"SET UID\" command.\n\n", 1},
    {"\nERROR: Could not allocate memory for \"SHOW HLOG\" command.\n\n", 1},
    {"\nERROR: Could not allocate memory for the command tree.\n", 1},
    {"Failed to allocate memory for command history.", 0},
};

class FailingAllocations : public testing::TestWithParam<std::string> {
  protected:
    // Fails one allocation of a script after another, starting with number `failing`. Returns the first
    // number that the script doesn't reach.
    size_t FailEach(RestorableMachine& machine, const std::string& script, size_t failing) {
        const Files original = machine.State();
        std::vector<Files> states;
        std::vector<std::string> outputs;
        for (;; ++failing) {
            RunOptions options;
            options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(failing)};
            const RunResult run =
                RunProgram(ProgramPath("brantcli_interposed"), {"-s", script}, machine.Directory(), options);
            states.push_back(machine.Restore());
            outputs.push_back(run.output);
            if (run.errors.empty()) break;
            ++failures_;

            SCOPED_TRACE(script + ", allocation " + std::to_string(failing));
            EXPECT_EQ(run.errors, "allocation failed\n");
            EXPECT_LE(run.status, 1);
            for (const auto& [message, status] : kMessages) {
                if (run.output.find(message) == std::string::npos) continue;
                EXPECT_TRUE(status == kAnyStatus || run.status == status)
                    << "status " << run.status << " instead of " << status << " after: " << message;
                if (status == 1) {
                    EXPECT_EQ(run.output, message);
                }
                unseen_.erase(message);
            }
        }
        const bool examines_result = script.rfind("SET UID", 0) != 0;
        for (size_t i = 0; i < states.size(); ++i) {
            EXPECT_TRUE(states[i] == original || states[i] == states.back() || MayChangePartially(script))
                << script << ": a failed allocation left a part of the change in the files";
            EXPECT_TRUE(states[i] == states.back() || outputs[i] != outputs.back() || !examines_result)
                << script << ": reported success without the change";
        }
        return failing;
    }
    std::map<std::string, int> unseen_ = kMessages;
    size_t failures_ = 0;
};

TEST_P(FailingAllocations, AreReportedByEveryCommand) {
    RestorableMachine machine(GetParam());
    const size_t at_start = FailEach(machine, "", 1);
    for (const std::string& command : Commands()) FailEach(machine, command, at_start - 1);
    std::printf("%zu failed allocations\n", failures_);
    for (const auto& [message, status] : unseen_) {
        ADD_FAILURE() << "no failed allocation of any command printed: " << message;
    }
}

INSTANTIATE_TEST_SUITE_P(Model, FailingAllocations, testing::ValuesIn(ModelNames()));

// All allocations fail from a certain one on. If that is the first one, there is no memory even for an
// exception.
TEST(SaveMachine, ReportsALackOfMemoryAndRemovesTheCopy) {
    const TestMachine machine("tr300");
    constexpr size_t kStep = 3;
    for (size_t first = 1;; first += kStep) {
        SCOPED_TRACE("all allocations fail from number " + std::to_string(first));
        const TestMachine parent;
        const std::string folder = parent.Directory() + "/casr";
        RunOptions options;
        options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(first) + "+"};
        const RunResult run = RunProgram(ProgramPath("savemachine_interposed"), {folder + "/copy"},
                                         machine.Directory(), options);
        if (run.status == 0) {
            EXPECT_GT(first, 100U) << "savemachine made fewer allocations than a copy needs";
            break;
        }
        EXPECT_EQ(run.status, 1);
        const char* const message = first == 1 ? "ERROR: out of memory.\n" : "savemachine: out of memory\n";
        EXPECT_NE(run.errors.find(message), run.errors.npos)
            << "expected: " << message << "actual: " << run.errors;
        if (first > 1) {
            EXPECT_TRUE(std::filesystem::is_empty(folder)) << "the incomplete copy is left in " << folder;
        }
    }
}

// Returns the number of blocks that are still allocated when a script ends, as the interposed allocator
// prints it. `failing` is the number of the failing request, from 1.
std::string LeakedBlocks(RestorableMachine& machine, const std::string& script, size_t failing) {
    machine.Write("faults", "request " + std::to_string(failing) + " -5\n");
    RunOptions options;
    options.environment = {"BRANT_COUNT_BLOCKS=1"};
    const RunResult run =
        RunProgram(ProgramPath("brantcli_interposed"), {"-s", script}, machine.Directory(), options);
    machine.Restore();
    return run.errors;
}

TEST(Memory, IsFreedByEveryCommandWhicheverRequestFails) {
    RestorableMachine machine(ModelNames().front());
    std::string all;
    for (const std::string& command : Commands()) {
        if (command != "EXIT" && command != "QUIT") all += command + ';';
    }
    const std::string baseline = LeakedBlocks(machine, "", kNoRequest);
    ASSERT_NE(baseline.find(" blocks"), baseline.npos) << "the allocator reported: " << baseline;

    machine.StartTrace();
    EXPECT_EQ(LeakedBlocks(machine, all, kNoRequest), baseline)
        << "memory is left allocated although no request fails";
    const size_t requests = machine.TakeRequests().size();
    machine.Remove("trace");
    EXPECT_GT(requests, 150U) << "expected more requests: has a command ended early?";
    for (size_t failing = 1; failing <= requests; ++failing) {
        EXPECT_EQ(LeakedBlocks(machine, all, failing), baseline)
            << "memory is left allocated after request " << failing << " failed";
    }
}

}  // namespace
