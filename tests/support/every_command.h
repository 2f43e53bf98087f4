// The list of all commands, and a simulated machine that can be restored after each run.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// Commands that need arguments, each with valid arguments.
extern const std::map<std::string, std::string> kArguments;

// Returns every command of the command tree, with the arguments of kArguments.
std::vector<std::string> Commands();

// Returns the names of all models, for parameterized tests.
std::vector<std::string> ModelNames();

constexpr size_t kNoRequest = 1000000;  // as the number of the failing request: no request fails

// Returns whether a command writes two variables, or a legacy variable if the first one can't be read. If
// such a command fails, one of its changes may remain.
bool MayChangePartially(const std::string& command);

using Files = std::map<std::string, std::string>;  // path in the machine directory -> contents

class RestorableMachine : public TestMachine {
  public:
    explicit RestorableMachine(const std::string& model);  // the event log has three events

    // Returns the files that commands can change.
    Files State() const;
    // Restores these files to their contents after construction. Returns their contents before.
    Files Restore();

    // Returns the trace lines of the devices' requests since the last call, and clears the trace.
    std::vector<std::string> TakeRequests();

  private:
    Files original_;
};
