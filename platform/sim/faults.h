// The machine's file `faults`: calls that fail or return another status, one per line, each with its result.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/machine_directory.h"

class Faults {
  public:
    // Reads the file, if there is one. Reports on standard error each line that can't be parsed, or that the
    // file can't be read.
    Faults();

    bool Empty() const { return faults_.empty(); }

    // Looks for a fault that replaces a call. `subject` is the call in the words of the file. `request` is
    // its number among the process's requests, from 1; 0 if it isn't a request. Returns whether there is a
    // fault, and stores its result (0 or more, or -errno) in `*result`.
    bool Find(std::string_view subject, unsigned long request, int* result) const;

  private:
    struct Fault {
        std::string subject;
        int result;
    };
    bool Read(const Descriptor& file);
    bool ReadLine(std::string_view line);

    std::vector<Fault> faults_;  // in file order: the first that matches applies
};
