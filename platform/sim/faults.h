// The machine's file `faults`: calls that go wrong, one per line, and what they then come to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/machine_directory.h"

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
