// Pieces of a file that mostly follow each other, taken from a large part of it that is read at once.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <vector>

#include "platform/sim/machine_directory.h"

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
