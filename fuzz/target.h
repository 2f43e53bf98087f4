// What every fuzz target is: one function that libFuzzer calls with one input after the other, in one
// process. A finding is a sanitizer's report, or a Require that doesn't hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

// Result: 0 always.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

inline std::string Input(const uint8_t* data, size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

// Takes the first count bytes off the input, or what is left of it.
inline std::string Take(std::string& input, size_t count) {
    const std::string taken = input.substr(0, count);
    input.erase(0, taken.size());
    return taken;
}

// The number that bytes are, the lowest first.
inline unsigned Number(const std::string& bytes) {
    unsigned number = 0;
    for (size_t i = bytes.size(); i > 0; --i) number = number << 8 | static_cast<unsigned char>(bytes[i - 1]);
    return number;
}

// What holds whatever the input is.
inline void Require(bool holds) {
    if (!holds) std::abort();
}
