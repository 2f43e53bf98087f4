// Calls of the platform abstraction layer. The machine's file `faults` contains injected faults: results that
// replace those of calls. Each call appends a line to the file `trace`. Both files are opened at the
// process's first call.
#pragma once

#include <cerrno>
#include <cstddef>
#include <new>

#include "include/rom_variables.h"

// Large enough for the longest subject: a write of a ROM variable, with its name and its bytes in
// hexadecimal.
constexpr size_t kSubjectSize = sizeof "crom write " + sizeof EV_IOCTL_STRUCT::EvName;
constexpr size_t kDetailSize = sizeof " length=4294967295 data=" + 2 * sizeof EV_IOCTL_STRUCT::DataBuffer;

// The description of a call in `faults` and `trace`.
struct Call {
    char subject[kSubjectSize] = "";  // the part that a line of `faults` contains: "cdt 351.0.0"
    char detail[kDetailSize] = "";    // further parts of the trace line: " size=4 cru=0.0"
    unsigned long request = 0;        // number of the request in this process, from 1; 0 for other calls

    __attribute__((format(printf, 2, 3))) void SetSubject(const char* format, ...);
    __attribute__((format(printf, 2, 3))) void SetDetail(const char* format, ...);
};

// Returns whether the machine has faults or a trace. If it has neither, calls aren't described, because
// formatting the descriptions would add a tenth to the cost of a short run.
bool NeedsDescriptions();

// Looks for a fault that replaces the call. Returns whether there is one, and stores its result (0 or more,
// or -errno) in `*result`.
bool FindFault(const Call& call, int* result);

// Append the call's line to the trace. `result` is -errno if the call failed. The second function is for
// calls without a result.
void Trace(const Call& call, int result);
void Trace(const Call& call);

// Runs an action that returns 0 or more, or -errno. Returns `out_of_memory` if it throws std::bad_alloc.
template <typename Action>
int Run(Action action, int out_of_memory) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return out_of_memory;
    }
}

// Makes a call: runs `action`, unless a fault replaces the call, and traces the result. `describe` fills in a
// Call.
template <typename Describe, typename Action>
int Perform(Describe describe, Action action, int out_of_memory = -ENOMEM) {
    if (!NeedsDescriptions()) return Run(action, out_of_memory);
    Call call;
    describe(call);
    int result = 0;
    if (!FindFault(call, &result)) result = Run(action, out_of_memory);
    Trace(call, result);
    return result;
}

// Traces a call that has no result and can't be replaced by a fault.
template <typename Describe>
void TraceWithoutResult(Describe describe) {
    if (!NeedsDescriptions()) return;
    Call call;
    describe(call);
    Trace(call);
}

// Converts a result to the convention of system calls: for -errno, returns -1 and sets errno.
int ReturnValue(int result);
