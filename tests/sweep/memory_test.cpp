// One allocation of the process fails: the first, then the second, until a command gets through untouched.
#include <gtest/gtest.h>

#include <set>

#include "tests/sweep/sweep.h"
#include "tools/mkmachine/models.h"

namespace {

// What is said when there is no memory.
const std::set<std::string> kMessages = {
    "ERROR: Could not allocate memory for command.",
    "ERROR: Could not allocate memory for \"SHOW UID\" command.",
    "ERROR: Could not allocate memory for \"SET UID\" command.",
    "ERROR: Could not allocate memory for \"SHOW HLOG\" command.",
    "ERROR: Could not allocate memory for the command tree.",
    "Failed to allocate memory for command history.",
};

class ShortOfMemory : public testing::Test {
  protected:
    // Fails the allocations of a script from one on. Result: the first one that it doesn't come to.
    size_t Sweep(SweptMachine& machine, const std::string& script, size_t failing) {
        const Files as_made = machine.State();
        std::vector<Files> states;
        for (;; ++failing) {
            RunOptions options;
            options.environment = {"BRANT_FAIL_ALLOCATION=" + std::to_string(failing)};
            const RunResult run =
                RunProgram(ProgramPath("brantcli_interposed"), {"-s", script}, machine.Directory(), options);
            states.push_back(machine.State());
            machine.Restore();
            if (run.errors.empty()) break;

            EXPECT_EQ(run.errors, "allocation failed\n") << script << failing;
            EXPECT_LE(run.status, 1) << script << failing;
            for (const std::string& message : kMessages) {
                if (run.output.find(message) != std::string::npos) unseen_.erase(message);
            }
        }
        for (const Files& state : states) {
            EXPECT_TRUE(state == as_made || state == states.back() || ChangesInSteps(script)) << script;
        }
        return failing;
    }
    std::set<std::string> unseen_ = kMessages;
};

TEST_F(ShortOfMemory, EveryCommandComesToAKnownEnd) {
    constexpr bool kEmulated = sizeof BRANT_EMULATOR > 1;  // a start costs ten times as much then
    for (const Model& model : Models()) {
        if (kEmulated && &model != &Models().front()) break;
        SweptMachine machine(model.name);
        const size_t at_start = Sweep(machine, "", 1);
        for (const std::string& command : Commands()) Sweep(machine, command, at_start - 1);
    }
    EXPECT_EQ(unseen_, std::set<std::string>{});
}

}  // namespace
