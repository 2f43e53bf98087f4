// The machine's file `faults`. Each line contains an injected fault: a call, and the result that replaces the
// call's own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/machine_directory.h"

class Faults {
  public:
    // Reads the file, if there is one. Prints a message on standard error for each line that can't be parsed,
    // or if the file can't be read.
    Faults();

    bool Empty() const { return faults_.empty(); }

    // Looks for a fault that replaces a call. `subject` describes the call, as in the file. `request` is the
    // request's number in this process, from 1; it is 0 for other calls. Returns whether there is such a
    // fault, and stores its result (0 or more, or -errno) in `*result`.
    bool Find(std::string_view subject, unsigned long request, int* result) const;

  private:
    struct Fault {
        std::string subject;
        int result;
    };
    bool Read(const Descriptor& file);
    bool ReadLine(std::string_view line);

    std::vector<Fault> faults_;  // in the order of the file: the first one that matches a call applies
};
