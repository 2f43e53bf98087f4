// Reads numbers and strings from untrusted bytes, never beyond their end.
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

// Returns the little-endian field of 1, 2 or 4 bytes at `offset`. Bytes after the end count as 0.
template <typename Unsigned>
constexpr Unsigned ReadPaddedField(Bytes bytes, size_t offset) {
    size_t available = offset < bytes.size ? std::min(bytes.size - offset, sizeof(Unsigned)) : 0;
    Unsigned value = 0;
    while (available-- > 0) {
        value = static_cast<Unsigned>(static_cast<uint64_t>(value) << 8 | bytes.data[offset + available]);
    }
    return value;
}

// Returns the little-endian field of 1, 2 or 4 bytes at `offset`, or `missing` if part of it is after the
// end.
template <typename Unsigned>
constexpr Unsigned ReadField(Bytes bytes, size_t offset, Unsigned missing = 0) {
    if (offset > bytes.size || bytes.size - offset < sizeof(Unsigned)) return missing;
    return ReadPaddedField<Unsigned>(bytes, offset);
}

// Returns a copy of the packed record at `bytes`, which must contain the whole record.
template <typename Record>
Record CopyOf(const uint8_t* bytes) {
    static_assert(std::is_trivially_copyable_v<Record>, "a record is plain bytes");
    Record record;
    std::memcpy(&record, bytes, sizeof record);
    return record;
}

// Returns the string at `offset`: up to its NUL terminator, or up to the end of the bytes if there is none.
// Returns an empty string if `offset` is at or after the end.
inline std::string_view ReadText(Bytes bytes, size_t offset) {
    if (offset >= bytes.size) return {};
    const char* text = reinterpret_cast<const char*>(bytes.data + offset);
    const size_t available = bytes.size - offset;
    const void* end = std::memchr(text, 0, available);
    return {text, end != nullptr ? static_cast<size_t>(static_cast<const char*>(end) - text) : available};
}
