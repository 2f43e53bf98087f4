// How the event log is read: by an index of its entries, so that a listing costs the same for each entry
// however long the log is, and in large pieces.
#pragma once

#include <sys/types.h>

#include <cstddef>
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

// Pieces of a file that mostly follow each other, taken from a large part of it that is read at once.
class FileWindow {
  public:
    // Copies a piece of the file, of at most 64 KiB. Result: false with errno set, EIO when the file ends
    // before the piece does. Throws std::bad_alloc.
    bool Read(const Descriptor& file, off_t offset, void* piece, size_t size);

    // Forgets the bytes that were read: the file may have others by now.
    void Clear() { filled_ = 0; }

  private:
    std::vector<char> bytes_;
    off_t begin_ = 0;    // its place in the file
    size_t filled_ = 0;  // bytes that have been read
};
