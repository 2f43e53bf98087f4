// Makes calls of the platform abstraction layer, for tests of the simulator. Calls are written as in the
// trace. They run in a child process, because a process reads the faults and opens the trace only once.
#pragma once

#include <functional>
#include <string>

#include "tests/support/test_machine.h"

// Runs `body` in a child process on the machine. The test fails if an expectation in `body` fails or a signal
// ends the child. Appends the child's standard error to the machine's file "stderr".
void InChild(const TestMachine& machine, const std::function<void()>& body);

// Makes a call. Returns its result as in the trace, followed by the bytes that it has stored in the caller's
// buffers: "0 = 01020304".
std::string Make(const std::string& call);

// Makes calls one after another in one child process, and expects that the trace consists of these calls.
// `calls` contains "CALL -> RESULT = REPLY # THE BUG THAT IT DETECTS" for each, separated by ';' or newlines;
// everything except CALL is optional.
void ExpectCalls(TestMachine& machine, const std::string& calls);

// Returns an entry of the event log: a header, then bytes that depend on the entry's number.
std::string LogEntry(uint32_t number, size_t length);
