// Calls of the platform seam, for tests of the stand-in: made in a child process, because a process looks for
// the machine's faults and its trace only once, and written as the trace shows them.
#pragma once

#include <functional>
#include <string>

#include "tests/support/test_machine.h"

// Runs body in a child whose machine is this one. What body expects in vain fails the test, as does a child
// that a signal ends. What it prints on standard error goes into the machine's file "stderr".
void InChild(const TestMachine& machine, const std::function<void()>& body);

// Makes a call. Result: what the trace shows of its result, then what it stored in its caller's buffers:
// "0 = 01020304".
std::string Make(const std::string& call);

// Makes calls one after the other in one child, and expects a trace of just these lines. calls: "CALL ->
// RESULT = REPLY # WHAT IT CATCHES", separated by ';' or on lines of their own; only CALL is needed.
void ExpectCalls(TestMachine& machine, const std::string& calls);
