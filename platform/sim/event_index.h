// Where the entries of the event log are, by their numbers: made once, and again when the log's file is
// another one, so that a listing costs the same for each entry however long the log is.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <ctime>
#include <vector>

#include "platform/sim/machine_directory.h"

struct EventPlace {
    uint32_t number;
    uint16_t length;  // bytes of the entry
    off_t offset;     // in the file
};

class EventIndex {
  public:
    // Brings the index up to date with the log. Result: 0, or -E. Throws std::bad_alloc.
    int Follow(const Descriptor& log);

    // The entry with the lowest number that is `number` or higher, the first in the file of those that have
    // it; null when there is none. Valid until the next Follow.
    const EventPlace* Find(uint32_t number) const;

  private:
    // What tells one state of the file from another.
    struct Identity {
        dev_t device;
        ino_t inode;
        off_t size;
        timespec written, changed;
        bool operator==(const Identity& other) const;
    };
    int Build(const Descriptor& log, off_t size);

    Identity identity_{};
    bool built_ = false;
    std::vector<EventPlace> places_;  // by number, then by offset
};
