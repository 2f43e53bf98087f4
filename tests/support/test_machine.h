// A simulated machine for one test, and functions that run the programs on it.
#pragma once

#include <string>
#include <vector>

#include "mkmachine/machine_builder.h"

// Returns whether the programs run in an emulator. In an emulator, a stop signal also stops the first process
// of a session.
bool Emulated();

struct RunResult {
    std::string output;  // standard output
    std::string errors;  // standard error
    int status = 0;      // exit status, or 128 + N if signal N ended the program
};

struct RunOptions {
    std::string input = {};  // standard input, which then ends
    bool as_root = true;
    std::vector<std::string> environment = {};  // NAME=VALUE, in addition to the test's own
    // Whether to detect leaks under the sanitizers. It is optional, because it takes as long as the rest of a
    // run.
    bool detect_leaks = false;
};

// Returns the bytes in hexadecimal, as in the trace: two lower-case digits for each byte.
std::string Hexadecimal(const std::string& bytes);

// Returns the path of a program that this build has built.
std::string ProgramPath(const char* name);

// Returns the shell command that runs a program that this build has built.
std::string InShell(const char* name);

// Replaces this process, which is a child, with a program.
[[noreturn]] void ExecProgram(const std::string& program, const std::vector<std::string>& arguments);

// Runs the program at the path `program`, with BRANT_MACHINE set to `machine`, and waits until it ends.
RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const std::string& machine, const RunOptions& options = {});

class TestMachine : public MachineBuilder {
  public:
    // Creates a machine with the minimum that brantcli needs to start: the ROM signature, and no embedded
    // NIC.
    TestMachine();
    explicit TestMachine(const std::string& model);  // creates the same machine as mkmachine
    ~TestMachine();                                  // removes the directory
    TestMachine(const TestMachine&) = delete;
    TestMachine& operator=(const TestMachine&) = delete;

    // Runs brantcli -s `commands`.
    RunResult Script(const std::string& commands, const RunOptions& options = {}) const;
    // Runs brantcli and types `input` at its prompt.
    RunResult Type(const std::string& input) const;

    // Returns the contents of a file of the machine, or "" if it doesn't exist.
    std::string Read(const std::string& path) const;

    // Appends a line to the machine's file `faults`.
    void Fault(const std::string& line) { Append("faults", line + "\n"); }

    // Starts the trace, or empties it.
    void StartTrace() { Write("trace", ""); }
    // Returns the lines of the trace that begin with `beginning`, and empties the trace.
    std::string TakeTrace(const std::string& beginning = "");
};
