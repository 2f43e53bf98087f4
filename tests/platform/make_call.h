// Calls of the platform abstraction layer, for tests of the simulator. They are written as in the trace, and
// made in a child process, because a process reads the faults and opens the trace only once.
#pragma once

#include <functional>
#include <string>

#include "tests/support/test_machine.h"

// Runs `body` in a child process on the machine. The test fails if an expectation of `body` does, or if a
// signal ends the child. Appends the child's standard error to the machine's file "stderr".
void InChild(const TestMachine& machine, const std::function<void()>& body);

// Makes a call. Returns its result as in the trace, followed by the bytes that it stored in its caller's
// buffers: "0 = 01020304".
std::string Make(const std::string& call);

// Makes calls one after another in one child, and expects a trace that consists of these lines. `calls`
// contains "CALL -> RESULT = REPLY # THE DEFECT THAT IT CATCHES" for each, separated by ';' or newlines; all
// but CALL is optional.
void ExpectCalls(TestMachine& machine, const std::string& calls);

// Returns an event log entry: a header, then bytes that depend on its number.
std::string LogEntry(uint32_t number, size_t length);
