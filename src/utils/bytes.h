// Bytes from outside, with their count, and the one way of reading numbers and texts from them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

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

// The same, of bytes that count as zero past their end: what there is of a field that is cut is read.
template <typename Unsigned>
constexpr Unsigned ReadPaddedField(Bytes bytes, size_t offset) {
    size_t there = offset < bytes.size ? std::min(bytes.size - offset, sizeof(Unsigned)) : 0;
    Unsigned value = 0;
    while (there-- > 0) {
        value = static_cast<Unsigned>(static_cast<uint64_t>(value) << 8 | bytes.data[offset + there]);
    }
    return value;
}

// Copies the packed record that begins at `bytes`, which contain all of it.
template <typename Record>
Record CopyOf(const uint8_t* bytes) {
    static_assert(std::is_trivially_copyable_v<Record>, "a record is plain bytes");
    Record record;
    std::memcpy(&record, bytes, sizeof record);
    return record;
}

// The text that begins at an offset: up to its terminating zero or, when it has none, to the end of the
// bytes. Empty past the end. Looks at nothing behind the zero.
inline std::string_view ReadText(Bytes bytes, size_t offset) {
    if (offset >= bytes.size) return {};
    const char* text = reinterpret_cast<const char*>(bytes.data + offset);
    const size_t room = bytes.size - offset;
    const void* end = std::memchr(text, 0, room);
    return {text, end != nullptr ? static_cast<size_t>(static_cast<const char*>(end) - text) : room};
}
