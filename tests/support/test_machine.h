// A simulated machine for one test, and the real program run on it.
#pragma once

#include <string>
#include <vector>

#include "mkmachine/machine_builder.h"

// Whether the programs run in an emulator, where a signal that stops a process stops even the first one of a
// session.
bool Emulated();

struct RunResult {
    std::string output;  // standard output
    std::string errors;  // standard error
    int status = 0;      // exit status; 128 + N when signal N ended it
};

struct RunOptions {
    std::string input = {};  // standard input, all there at once and then at its end
    bool as_root = true;
    std::vector<std::string> environment = {};  // NAME=VALUE, beside the test's own
    // Under the sanitizers, where the search takes as long as the rest of a run; so not in every run.
    bool looks_for_leaks = false;
};

// Bytes as the trace shows them: two lower-case digits each.
std::string Hexadecimal(const std::string& bytes);

// The path of a program that was built beside the tests.
std::string ProgramPath(const char* name);

// The same as words of a shell command.
std::string InShell(const char* name);

// In a child process: becomes a program.
[[noreturn]] void ExecProgram(const std::string& program, const std::vector<std::string>& arguments);

// Runs a program to its end. program: its path. BRANT_MACHINE is machine.
RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const std::string& machine, const RunOptions& options = {});

class TestMachine : public MachineBuilder {
  public:
    // In a directory of its own: the least on which the program starts, the maker's ROM and no embedded NIC.
    TestMachine();
    explicit TestMachine(const std::string& model);  // a machine as mkmachine makes it
    ~TestMachine();                                  // removes it
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    // brantcli -s commands.
    RunResult Script(const std::string& commands, const RunOptions& options = {}) const;
    // brantcli at the prompt, fed with input.
    RunResult Type(const std::string& input) const;

    // A file of the machine, by its path below the directory; "" when it isn't there.
    std::string Read(const std::string& path) const;

    // A line of `faults`.
    void Fault(const std::string& line) { Append("faults", line + "\n"); }

    // Has the requests of every following run recorded, and tells what they were since the last call; only
    // the lines that begin with a text where one is given.
    void StartTrace() { Write("trace", ""); }
    std::string TakeTrace(const std::string& beginning = "");
};
