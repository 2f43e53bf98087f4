// The store of ROM variables, by name, over the crom device. A command that changes a variable reads it into
// a copy, changes the bits that it owns in the copy, and writes the copy's first bytes back. After a failed
// read it writes nothing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "include/rom_variables.h"

// Reads a variable. ev_name_string: at most 255 characters. return_buffer: length bytes, at most 256; left
// as it was on failure. Result: 0, or 1 on failure. Prints nothing.
int get_ev(const char* ev_name_string, unsigned char* return_buffer, int length);

// Writes the first length bytes of a variable, at most 256. Result: 0, or 1 on failure. Prints nothing.
int set_ev(const char* ev_name_string, const unsigned char* buffer, int length);

// A variable as one family of commands uses it: how many bytes of its record are asked for, and how many go
// back. Both are the record's first.
template <typename Record, size_t kRead = sizeof(Record), size_t kWritten = kRead>
struct RomVariable {
    static_assert(std::is_trivially_copyable_v<Record> &&
                      sizeof(Record) <= sizeof EV_IOCTL_STRUCT::DataBuffer,
                  "a variable is plain bytes, and one request carries all of them");
    static_assert(kRead <= sizeof(Record), "the record has no room for what is read");
    static_assert(kWritten <= kRead, "bytes would be written that were not read");

    const char* name;
};

// The system configuration, which several commands share. All but those of hyper-threading leave its last
// byte to the firmware.
constexpr RomVariable<WOLEVREC, sizeof(WOLEVREC), offsetof(WOLEVREC, flags5)> kConfiguration = {
    kConfigurationVariable};
constexpr RomVariable<WOLEVREC> kWholeConfiguration = {kConfigurationVariable};

// Reads a variable into `copy`, at most `most` bytes. Returns false if it can't be read; `copy` is then
// unchanged.
template <typename Record, size_t kRead, size_t kWritten>
bool ReadVariableOver(const RomVariable<Record, kRead, kWritten>& variable, Record& copy,
                      size_t most = kRead) {
    const size_t length = std::min(most, kRead);
    return get_ev(variable.name, reinterpret_cast<unsigned char*>(&copy), static_cast<int>(length)) == 0;
}

// Clears `copy`, then reads a variable into it as ReadVariableOver does.
template <typename Record, size_t kRead, size_t kWritten>
bool ReadVariable(const RomVariable<Record, kRead, kWritten>& variable, Record& copy, size_t most = kRead) {
    copy = Record{};
    return ReadVariableOver(variable, copy, most);
}

// Writes a variable, at most `most` bytes. Returns false if it can't be written.
template <typename Record, size_t kRead, size_t kWritten>
bool WriteVariable(const RomVariable<Record, kRead, kWritten>& variable, const Record& record,
                   size_t most = kWritten) {
    const size_t length = std::min(most, kWritten);
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    return set_ev(variable.name, bytes, static_cast<int>(length)) == 0;
}
