// One request of a command fails: the first, then the second, until the command gets through untouched.
//
// failures.txt holds the status and the output for each kind of request, as the first model gives them. The
// status is 1 but where the command does without: an older driver's record (cdt 352, cdt 158), the counts of
// a walk that finds its end by itself (cdt 1700, 1702, 1706), a variable that has an older twin (ENABLE PXE,
// DISABLE PXE); and 0, too, of changes that only report a failed write, or not even that (SET UID).
#include <gtest/gtest.h>

#include <cstdio>
#include <set>

#include "tests/fault-injection/every_command.h"
#include "tests/support/golden.h"
#include "tests/support/pattern.h"

namespace {

// What a request of the trace has in common with others of its kind: "cdt 353", "crom read ZTHNIC".
std::string KindOf(const std::string& request) {
    return ReplaceAll(request, "(\\.| length=| -> ).*", "");
}

struct Outcome {
    RunResult run;
    std::vector<std::string> requests;  // as the trace tells them
    Files state;                        // of the machine afterwards
};

class FailingRequests : public testing::TestWithParam<std::string> {
  protected:
    // Runs a command on the machine as it was made. failing: the request that fails, from 1.
    Outcome Run(const std::string& command, size_t failing) {
        machine_.Write("faults", "request " + std::to_string(failing) + (first_ ? " -5\n" : " 7\n"));
        Outcome outcome;
        outcome.run = machine_.Script(command);
        outcome.requests = machine_.TakeRequests();
        outcome.state = machine_.Restore();
        return outcome;
    }
    // Fails each request of a command. at_start: requests that the program makes before it runs a command.
    void Sweep(const std::string& command, size_t at_start) {
        const Outcome untouched = Run(command, kNone);
        for (size_t i = at_start; i < untouched.requests.size(); ++i) {
            Check(command, Run(command, i + 1), i, untouched.state);
            ++failures_;
        }
    }
    void Check(const std::string& command, const Outcome& outcome, size_t failed, const Files& done) {
        const std::string what = command + ": " + KindOf(outcome.requests[failed]) + " -> " +
                                 std::to_string(outcome.run.status) + "\n";
        EXPECT_TRUE(stored_.find(what) != std::string::npos) << "not in failures.txt: " << what;
        EXPECT_EQ(outcome.run.errors, "") << what;  // where the sanitizers report
        if (told_.insert(what).second) listing_ += what + outcome.run.output;
        if (ChangesInSteps(command)) return;

        EXPECT_TRUE(outcome.state == as_made_ || outcome.state == done) << "half a change: " << what;
        const bool ended = outcome.run.status == 0 || outcome.requests.size() == failed + 1;
        EXPECT_TRUE(ended) << "more asked for: " << what;
    }
    RestorableMachine machine_{GetParam()};
    const bool first_ = GetParam() == ModelNames().front();
    const Files as_made_ = machine_.State();
    const std::string stored_ = GoldenText("fault-injection/failures.txt");
    std::set<std::string> told_;  // kinds of failure
    std::string listing_;         // what came of them
    size_t failures_ = 0;
};

TEST_P(FailingRequests, EndEachCommandAsStoredWithNothingHalfDone) {
    machine_.StartTrace();
    const size_t at_start = Run("HELP", kNone).requests.size();
    for (size_t failing = 1; failing <= at_start; ++failing) {
        const Outcome outcome = Run("HELP", failing);
        EXPECT_EQ(outcome.run.errors, "");
        EXPECT_EQ(outcome.run.status, 0);
    }
    for (const std::string& command : Commands()) Sweep(command, at_start);
    std::printf("%zu failed requests\n", failures_);
    if (!first_) return;
    ExpectGolden("fault-injection/failures.txt", listing_);
    EXPECT_GT(failures_, 80U) << "hardly a command has asked for anything";
}

INSTANTIATE_TEST_SUITE_P(Model, FailingRequests, testing::ValuesIn(ModelNames()));

}  // namespace
