// Code that the fuzz targets share. A target is a function that libFuzzer calls in one process with one input
// after another. An input fails if a sanitizer reports an error, or if the condition of a Require() is false.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// The fuzz target. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

inline std::string Input(const uint8_t* data, size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

// Removes the first `count` bytes from `input`, or all bytes if it has fewer, and returns them.
inline std::string Take(std::string& input, size_t count) {
    const std::string taken = input.substr(0, count);
    input.erase(0, taken.size());
    return taken;
}

// Returns `bytes` as a little-endian number.
inline unsigned Number(const std::string& bytes) {
    unsigned number = 0;
    for (size_t i = bytes.size(); i > 0; --i) number = number << 8 | static_cast<unsigned char>(bytes[i - 1]);
    return number;
}

// Checks a condition that must hold for every input. If it is false, aborts the process, and libFuzzer
// reports a crash.
inline void Require(bool holds) {
    if (!holds) std::abort();
}
