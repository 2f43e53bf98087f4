// Every command of the shell on a machine that is the same before each run.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// The commands that need arguments, and such as have each do its work.
extern const std::map<std::string, std::string> kArguments;

// The whole tree's commands, with those arguments.
std::vector<std::string> Commands();

// The models by name.
std::vector<std::string> ModelNames();

constexpr size_t kNone = 1000000;  // as the number of the request that fails

// Whether a command changes two variables, or an older one when the first can't be read: what it has done
// by the time it fails may stay.
bool ChangesInSteps(const std::string& command);

using Files = std::map<std::string, std::string>;  // by path below the machine's directory

class RestorableMachine : public TestMachine {
  public:
    explicit RestorableMachine(const std::string& model);  // with three events
    Files State() const;                                   // all that a command can change
    Files Restore();  // the same; from then on it's as after construction

    // The requests of the devices since the trace was last taken, a line of it each.
    std::vector<std::string> TakeRequests();

  private:
    Files made_;
};
