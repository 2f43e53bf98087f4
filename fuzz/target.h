// Shared code of the fuzz targets. A target is one function, which libFuzzer calls with one input after
// another in the same process. An input fails if a sanitizer reports an error or if a Require() is false.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

inline std::string Input(const uint8_t* data, size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

// Removes the first `count` bytes from `input`, or all if it has fewer, and returns them.
inline std::string Take(std::string& input, size_t count) {
    const std::string taken = input.substr(0, count);
    input.erase(0, taken.size());
    return taken;
}

// Returns the little-endian number that the bytes contain.
inline unsigned Number(const std::string& bytes) {
    unsigned number = 0;
    for (size_t i = bytes.size(); i > 0; --i) number = number << 8 | static_cast<unsigned char>(bytes[i - 1]);
    return number;
}

// Ends the process with a crash, which libFuzzer reports, if a condition that must hold for every input is
// false.
inline void Require(bool holds) {
    if (!holds) std::abort();
}
