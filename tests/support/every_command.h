// The list of all commands, and a simulated machine that can be restored after each run.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// Valid arguments for the commands that need arguments. They are in lower case, because messages must print
// them in upper case.
extern const std::map<std::string, std::string> kArguments;

// Returns every command of the command tree, with the arguments in kArguments.
std::vector<std::string> Commands();

// Returns the names of all models, for parameterized tests.
std::vector<std::string> ModelNames();

constexpr size_t kNoRequest = 1000000;  // in place of the number of a failing request: no request fails

// Returns whether a command writes two variables, or writes a legacy variable if the first one can't be read.
// If such a command fails, it may have made a part of its changes.
bool MayChangePartially(const std::string& command);

using Files = std::map<std::string, std::string>;  // path in the machine directory -> contents of the file

class RestorableMachine : public TestMachine {
  public:
    explicit RestorableMachine(const std::string& model);  // with three events in the log

    // Returns the contents of the files that commands can change.
    Files State() const;
    // Restores these files to their original contents. Returns the contents that they had before the call.
    Files Restore();

    // Returns the trace lines of the requests since the last call, and clears the trace.
    std::vector<std::string> TakeRequests();

  private:
    Files original_;
};
