// What every call of the seam has in common: a fault of the machine may take its place, and the machine's
// trace has a line about it. Both files are looked for once, at the process's first call.
#pragma once

#include <cerrno>
#include <cstddef>
#include <new>

#include "include/rom_variables.h"

// The longest words that the program has for a call are the write of a ROM variable: its name, and its bytes
// in hexadecimal.
constexpr size_t kSubjectSize = sizeof "crom write " + sizeof EV_IOCTL_STRUCT::EvName;
constexpr size_t kDetailSize = sizeof " length=4294967295 data=" + 2 * sizeof EV_IOCTL_STRUCT::DataBuffer;

// A call in the words of `faults` and `trace`.
struct Call {
    char subject[kSubjectSize] = "";  // what a fault names: "cdt 351.0.0"
    char detail[kDetailSize] = "";    // what else the trace shows of it: " size=4 cru=0.0"
    unsigned long request = 0;        // its place among the process's requests, from 1; 0: it isn't a request

    __attribute__((format(printf, 2, 3))) void Subject(const char* format, ...);
    __attribute__((format(printf, 2, 3))) void Detail(const char* format, ...);
};

// The fault that a call meets, if any. Result: whether there is one; *result is then what the call comes to.
bool MeetsFault(const Call& call, int* result);

// Writes a call's line into the trace: for a call that has a result (negative: -E), and for one that has
// none.
void Trace(const Call& call, int result);
void Trace(const Call& call);

// Makes a call: the fault's result or else the action's, which is traced. action: returns 0 or more, or -E.
// out_of_memory: what the call comes to when the action finds no memory.
template <typename Action>
int Perform(const Call& call, Action action, int out_of_memory = -ENOMEM) {
    int result = 0;
    if (!MeetsFault(call, &result)) {
        try {
            result = action();
        } catch (const std::bad_alloc&) {
            result = out_of_memory;
        }
    }
    Trace(call, result);
    return result;
}

// Turns a result into what the system's own calls return: -E becomes -1 with errno E.
int Returned(int result);
