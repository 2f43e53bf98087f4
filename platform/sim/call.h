// What every call of the seam has in common: one of the machine's faults may take its place, and the
// machine's trace gets a line about it. Both files are looked for once, at the process's first call. A
// machine that has neither never needs a call's words, so they are only put together for one that has.
#pragma once

#include <cerrno>
#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "include/rom_variables.h"
#include "platform/sim/machine_directory.h"

// The longest words that the program has for a call are the write of a ROM variable: its name, and its bytes
// in hexadecimal.
constexpr size_t kSubjectSize = sizeof "crom write " + sizeof EV_IOCTL_STRUCT::EvName;
constexpr size_t kDetailSize = sizeof " length=4294967295 data=" + 2 * sizeof EV_IOCTL_STRUCT::DataBuffer;

// A call in the words of `faults` and `trace`.
struct Call {
    char subject[kSubjectSize] = "";  // what a fault names: "cdt 351.0.0"
    char detail[kDetailSize] = "";    // what else the trace shows of it: " size=4 cru=0.0"
    unsigned long request = 0;        // its place among the process's requests, from 1; 0: it isn't a request

    __attribute__((format(printf, 2, 3))) void SetSubject(const char* format, ...);
    __attribute__((format(printf, 2, 3))) void SetDetail(const char* format, ...);
};

// Whether the machine has faults or is traced.
bool MachineIsWatched();

// The fault that a call meets, if any. Result: whether there is one; *result is then what the call comes to.
bool MeetsFault(const Call& call, int* result);

// Writes a call's line into the trace: for a call that has a result (negative: -E), and for one that has
// none.
void Trace(const Call& call, int result);
void Trace(const Call& call);

// An action's result: 0 or more, or -E. out_of_memory: what it comes to when it finds no memory.
template <typename Action>
int ResultOf(Action action, int out_of_memory) {
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return out_of_memory;
    }
}

// Makes a call: the fault's result or else the action's, which is traced. describe: puts the call into words.
template <typename Describe, typename Action>
int Perform(Describe describe, Action action, int out_of_memory = -ENOMEM) {
    if (!MachineIsWatched()) return ResultOf(action, out_of_memory);
    Call call;
    describe(call);
    int result = 0;
    if (!MeetsFault(call, &result)) result = ResultOf(action, out_of_memory);
    Trace(call, result);
    return result;
}

// Traces a call that has no result and that no fault takes the place of.
template <typename Describe>
void TraceWithoutResult(Describe describe) {
    if (!MachineIsWatched()) return;
    Call call;
    describe(call);
    Trace(call);
}

// Turns a result into what the system's own calls return: -E becomes -1 with errno E.
int Returned(int result);

// The machine's file `faults`: calls that go wrong, one per line, and what they then come to.
class Faults {
  public:
    // Reads the file, if there is one. Each line that can't be read is reported on standard error, as is a
    // file that can't.
    Faults();

    bool Empty() const { return faults_.empty(); }

    // Whether a call goes wrong. subject: the call as a fault names it. request: its place among the
    // process's requests, from 1; 0 for a call that isn't one. *result: then set, 0 or more or -E.
    bool Meets(std::string_view subject, unsigned long request, int* result) const;

  private:
    struct Fault {
        std::string subject;
        int result;
    };
    bool Read(const Descriptor& file);
    bool ReadLine(std::string_view line);

    std::vector<Fault> faults_;  // in file order: the first that fits decides
};
