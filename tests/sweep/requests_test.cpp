// One request of a command fails: the first, then the second, until the command gets through untouched.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/sweep/sweep.h"
#include "tools/mkmachine/models.h"

namespace {

// What is documented to come of a failed request, where it isn't the end of the command with status 1.
enum class Then { GoesOn, HasAnotherWay };
struct Documented {
    const char* command;
    const char* failed;
    Then then;
};
constexpr Documented kDocumented[] = {
    {"SHOW FAN", "cdt 352.", Then::GoesOn},          // an older driver's record
    {"SHOW POWERSUPPLY", "cdt 158.", Then::GoesOn},  // likewise
    {"SHOW DIMM", "cdt 1700.", Then::GoesOn},        // the counts: the walk finds its end
    {"SHOW DIMM", "cdt 1702.", Then::GoesOn},        // the memory comes from the firmware's tables
    {"SHOW DIMM", "cdt 1706.", Then::GoesOn},        // the end of the walk
    {"SET UID", "cdt 1503.", Then::GoesOn},          // what comes of it isn't looked at
    {"SET BOOT FIRST", "crom write", Then::GoesOn},  // reported, with status 0
    {"SET F1", "crom write", Then::GoesOn},
    {"SET SERIAL EMBEDDED", "crom write", Then::GoesOn},
    {"SET SERIAL VIRTUAL", "crom write", Then::GoesOn},
    {"SET SERIAL BIOS", "crom write", Then::HasAnotherWay},   // the port and the rate are two variables
    {"ENABLE PXE", "crom read ZTHNIC", Then::HasAnotherWay},  // the older variable
    {"DISABLE PXE", "crom read ZTHNIC", Then::HasAnotherWay},
};

bool BeginsWith(const std::string& text, const std::string& beginning) {
    return text.compare(0, beginning.size(), beginning) == 0;
}

const Documented* FindDocumented(const std::string& command, const std::string& failed) {
    for (const Documented& row : kDocumented) {
        if (BeginsWith(command, row.command) && BeginsWith(failed, row.failed)) return &row;
    }
    return nullptr;
}

bool IsWrite(const std::string& request) {
    for (const char* write : {"crom write", "casr 3", "casr 4", "cevt clear", "cru=1.1", "cru=1.2"}) {
        if (request.find(write) != std::string::npos) return true;
    }
    return false;
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
        machine_.Write("faults", "request " + std::to_string(failing) + " -5\n");
        Outcome outcome;
        outcome.run = RunProgram(program_, {"-s", command}, machine_.Directory());
        std::istringstream trace(machine_.TakeTrace());
        for (std::string line; std::getline(trace, line);) {
            for (const char* device : {"casr ", "cdt ", "cevt ", "crom "}) {
                if (BeginsWith(line, device)) outcome.requests.push_back(line);
            }
        }
        outcome.state = machine_.State();
        if (outcome.state != as_made_) machine_.Restore();
        return outcome;
    }
    // at_start: requests that the program makes before it runs a command.
    void Sweep(const std::string& command, size_t at_start) {
        std::vector<Outcome> outcomes;
        do {
            outcomes.push_back(Run(command, at_start + outcomes.size() + 1));
        } while (outcomes.back().requests.size() >= at_start + outcomes.size());

        const Outcome untouched = outcomes.back();
        outcomes.pop_back();
        for (const Outcome& outcome : outcomes) {
            auto failed = outcome.requests.begin() + static_cast<std::ptrdiff_t>(at_start);
            failed += &outcome - outcomes.data();
            SCOPED_TRACE(command + ": " + *failed + outcome.run.output);
            Check(command, outcome, failed, untouched);
        }
    }
    void Check(const std::string& command, const Outcome& outcome,
               std::vector<std::string>::const_iterator failed, const Outcome& untouched) {
        EXPECT_EQ(outcome.run.errors, "");  // where the sanitizers report
        EXPECT_LE(outcome.run.status, 1);
        const Documented* const documented = FindDocumented(command, *failed);
        if (documented != nullptr && documented->then == Then::HasAnotherWay) return;

        EXPECT_EQ(outcome.run.status, documented != nullptr ? 0 : 1);
        EXPECT_TRUE(outcome.state == as_made_ || outcome.state == untouched.state) << "half a change";
        if (!IsWrite(*failed)) {
            EXPECT_EQ(std::count_if(failed, outcome.requests.end(), IsWrite), 0) << "written after it";
        }
    }
    SweptMachine machine_{GetParam()};
    // The sanitizers cost ten times a run. What one model alone has is in its family's own tests, under them.
    const std::string program_ =
        ProgramPath(GetParam() == Models().front().name ? "brantcli" : "brantcli_short_of_memory");
    const Files as_made_ = machine_.State();
};

TEST_P(FailingRequests, EndEachCommandWithNothingHalfDone) {
    machine_.StartTrace();
    const size_t at_start = Run("HELP", 0).requests.size();
    for (size_t failing = 1; failing <= at_start; ++failing) {
        const Outcome outcome = Run("HELP", failing);
        EXPECT_EQ(outcome.run.errors, "");
        EXPECT_EQ(outcome.run.status, 0);
    }
    for (const std::string& command : Commands()) Sweep(command, at_start);
}
std::vector<std::string> ModelNames() {
    std::vector<std::string> names;
    for (const Model& model : Models()) names.emplace_back(model.name);
    return names;
}
INSTANTIATE_TEST_SUITE_P(Model, FailingRequests, testing::ValuesIn(ModelNames()));

}  // namespace
