// An index of the event log, so that the cost of reading an entry doesn't depend on the length of the log.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/sim/machine_directory.h"

struct IndexedEvent {
    uint32_t number;
    uint16_t length;  // size of the entry in bytes
    off_t offset;     // offset of the entry in the file
};

class EventIndex {
  public:
    // Rebuilds the index from a log. Returns 0, or -errno with an incomplete index. Throws std::bad_alloc.
    int Build(const Descriptor& log);

    // Lower bound: returns the entry with the smallest number >= `number` (the first in the file if several
    // share it), or null if there is none. Valid until the next Build().
    const IndexedEvent* Find(uint32_t number) const;

  private:
    int ReadEntries(const Descriptor& log);
    off_t AddEntries(std::string_view chunk, off_t offset, off_t log_size);

    std::vector<IndexedEvent> events_;  // sorted by number, then by offset
};
