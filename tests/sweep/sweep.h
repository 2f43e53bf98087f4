// Every command of the shell on a machine that is the same before each run.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/test_machine.h"

// The whole tree's commands, with arguments that have each do its work.
std::vector<std::string> Commands();

using Files = std::map<std::string, std::string>;  // by path below the machine's directory

class SweptMachine : public TestMachine {
  public:
    explicit SweptMachine(const std::string& model);  // with three events
    Files State() const;                              // all that a command can change
    void Restore();                                   // to the state after construction

  private:
    Files made_;
};
