// A simulated machine for one test, and functions that run the programs on it.
#pragma once

#include <string>
#include <vector>

#include "mkmachine/machine_builder.h"

// Returns whether the programs run in an emulator. There, a stop signal also stops the first process of a
// session.
bool Emulated();

struct RunResult {
    std::string output;  // standard output
    std::string errors;  // standard error
    int status = 0;      // exit status; 128 + N if signal N ended it
};

struct RunOptions {
    std::string input = {};  // standard input; then end of file
    bool as_root = true;
    std::vector<std::string> environment = {};  // NAME=VALUE, in addition to the test's own
    // Detect leaks, under the sanitizers. This takes as long as the rest of a run, so it is optional.
    bool detect_leaks = false;
};

// Returns bytes in hexadecimal as in the trace: two lower-case digits each.
std::string Hexadecimal(const std::string& bytes);

// Returns the path of a built program.
std::string ProgramPath(const char* name);

// Returns the command that runs a built program in a shell.
std::string InShell(const char* name);

// Replaces this process, a child, by a program.
[[noreturn]] void ExecProgram(const std::string& program, const std::vector<std::string>& arguments);

// Runs the program at the path `program`, with BRANT_MACHINE set to `machine`, and waits for its end.
RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const std::string& machine, const RunOptions& options = {});

class TestMachine : public MachineBuilder {
  public:
    // Creates a machine with the minimum that brantcli needs to start: a ROM signature, and no embedded NIC.
    TestMachine();
    explicit TestMachine(const std::string& model);  // a machine as mkmachine creates it
    ~TestMachine();                                  // removes the directory
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    // Runs brantcli -s `commands`.
    RunResult Script(const std::string& commands, const RunOptions& options = {}) const;
    // Runs brantcli with `input` at its prompt.
    RunResult Type(const std::string& input) const;

    // Returns the contents of a file of the machine; "" if there is no such file.
    std::string Read(const std::string& path) const;

    // Adds a line to `faults`.
    void Fault(const std::string& line) { Append("faults", line + "\n"); }

    // Starts the trace, or empties it.
    void StartTrace() { Write("trace", ""); }
    // Returns the lines of the trace that begin with `beginning`, and empties the trace.
    std::string TakeTrace(const std::string& beginning = "");
};
