// The system's random numbers, which nobody can predict. std::random_device makes several C functions part of
// the program, each of which costs 1,000 instructions at every start.
#pragma once

#include <array>
#include <cstddef>

class RandomNumbers {
  public:
    // Returns any number of 32 bits. Throws std::system_error if the system has no random numbers.
    unsigned Next();

  private:
    std::array<unsigned, 64> numbers_{};
    size_t next_ = numbers_.size();  // index of the next unused number
};
