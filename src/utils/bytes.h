// Bytes from outside, with their count, and the one way of reading numbers from them.
#pragma once

#include <cstddef>
#include <cstdint>

struct Bytes {
    const uint8_t* data;
    size_t size;
};

// A little-endian field of 1, 2 or 4 bytes; `missing` unless all of it lies within the bytes.
template <typename Unsigned>
constexpr Unsigned ReadField(Bytes bytes, size_t offset, Unsigned missing = 0) {
    if (offset > bytes.size || bytes.size - offset < sizeof(Unsigned)) return missing;
    Unsigned value = 0;
    for (size_t i = sizeof(Unsigned); i-- > 0;) {
        value = static_cast<Unsigned>(static_cast<uint64_t>(value) << 8 | bytes.data[offset + i]);
    }
    return value;
}
