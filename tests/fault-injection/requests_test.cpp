// Fails one request of a command: in the first run the first one, in the second run the second one, and so
// on, until the command completes.
//
// failures.txt contains the status and the output for each kind of failing request, from the first model that
// makes it. The status is 0 instead of 1 in these cases:
// - The command doesn't need the reply: a legacy record (cdt 352, cdt 158), the counts for a listing that
//   also ends without them (cdt 1700, 1702, 1706), or a variable that has a legacy variant (ENABLE PXE).
// - The command prints that a write has failed, but returns 0, such as SET F1, or ignores the failure, such
//   as SET UID.
#include <gtest/gtest.h>

#include <cstdio>
#include <set>

#include "tests/support/every_command.h"
#include "tests/support/golden.h"
#include "tests/support/pattern.h"

namespace {

// Returns the part of a request's trace line that names its kind: "cdt 353" or "crom read ZTHNIC".
std::string KindOf(const std::string& request) {
    return ReplaceAll(request, "(\\.| length=| -> ).*", "");
}

struct Outcome {
    RunResult run;
    std::vector<std::string> requests;  // lines of the trace
    Files state;                        // files of the machine after the run
};

class FailingRequests : public testing::TestWithParam<std::string> {
  protected:
    // Runs a command on the restored machine. `failing` is the number of the failing request, from 1.
    Outcome Run(const std::string& command, size_t failing) {
        machine_.Write("faults", "request " + std::to_string(failing) + (first_ ? " -5\n" : " 7\n"));
        Outcome outcome;
        outcome.run = machine_.Script(command);
        outcome.requests = machine_.TakeRequests();
        outcome.state = machine_.Restore();
        return outcome;
    }
    // Fails one request of a command after another. `at_start` is the number of requests that the program
    // makes before it runs the command.
    void FailEach(const std::string& command, size_t at_start) {
        const Outcome baseline = Run(command, kNoRequest);
        for (size_t i = at_start; i < baseline.requests.size(); ++i) {
            Check(command, Run(command, i + 1), i, baseline.state);
            ++failures_;
        }
    }
    // Checks the outcome of a run in which request `failed` (from 0) failed. `changed` contains the files
    // after the same command without a failure.
    void Check(const std::string& command, const Outcome& outcome, size_t failed, const Files& changed) {
        const std::string what = command + ": " + KindOf(outcome.requests[failed]) + " -> " +
                                 std::to_string(outcome.run.status) + "\n";
        SCOPED_TRACE(what + outcome.run.output);
        EXPECT_NE(golden_.find(what), golden_.npos) << "not in failures.txt";
        EXPECT_EQ(outcome.run.errors, "");  // the sanitizers print their reports here
        if (seen_.insert(what).second) listing_ += what + outcome.run.output;
        if (MayChangePartially(command)) return;

        EXPECT_TRUE(outcome.state == original_ || outcome.state == changed)
            << "a part of the change is in the files";
        const bool ended = outcome.run.status == 0 || outcome.requests.size() == failed + 1;
        EXPECT_TRUE(ended) << "the command made more requests after the failed one";
    }
    RestorableMachine machine_{GetParam()};
    const bool first_ = GetParam() == ModelNames().front();
    const Files original_ = machine_.State();
    const std::string golden_ = GoldenText("fault-injection/failures.txt");
    std::set<std::string> seen_;  // kinds of failing requests, each with the status
    std::string listing_;         // the new contents of failures.txt
    size_t failures_ = 0;
};

TEST_P(FailingRequests, EndEachCommandAsInTheGoldenFile) {
    machine_.StartTrace();
    const size_t at_start = Run("HELP", kNoRequest).requests.size();
    for (size_t failing = 1; failing <= at_start; ++failing) {
        const Outcome outcome = Run("HELP", failing);
        EXPECT_EQ(outcome.run.errors, "") << "request " << failing << " of the start failed";
        EXPECT_EQ(outcome.run.status, 0) << "request " << failing << " of the start failed";
    }
    for (const std::string& command : Commands()) FailEach(command, at_start);
    std::printf("%zu failed requests\n", failures_);
    if (!first_) return;
    ExpectGolden("fault-injection/failures.txt", listing_);
    EXPECT_GT(failures_, 80U) << "expected more requests: has a command ended early?";
}

INSTANTIATE_TEST_SUITE_P(Model, FailingRequests, testing::ValuesIn(ModelNames()));

}  // namespace
