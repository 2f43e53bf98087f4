// Where the entries of the event log are, by their numbers, so that a listing costs the same for each entry
// however long the log is.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <vector>

#include "platform/sim/machine_directory.h"

struct EventPlace {
    uint32_t number;
    uint16_t length;  // bytes of the entry
    off_t offset;     // in the file
};

class EventIndex {
  public:
    // Makes the index of a log, in the place of the one before. Result: 0, or -E with an empty index. Throws
    // std::bad_alloc.
    int Make(const Descriptor& log);

    // The entry with the lowest number that is `number` or higher, the first in the file of those that have
    // it; null when there is none. Valid until the next Make.
    const EventPlace* Find(uint32_t number);

  private:
    int Read(const Descriptor& log, off_t size);

    std::vector<EventPlace> places_;  // by number, then by offset
    size_t next_ = 0;                 // behind the place that was found last: a listing asks for that one
};
