// Reads and writes ROM variables through the crom device. A command that changes a variable reads it into a
// copy, changes only its own bits of the copy, and writes the copy's leading bytes back. If the read fails,
// it writes nothing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "include/rom_variables.h"

// Reads the first `length` bytes (at most 256) of the variable with the name `ev_name_string` (at most 255
// characters). Returns 0, or 1 on failure, with `return_buffer` unchanged. Prints nothing.
int get_ev(const char* ev_name_string, unsigned char* return_buffer, int length);

// Writes the first `length` bytes (at most 256) of a variable. Returns 0, or 1 on failure. Prints nothing.
int set_ev(const char* ev_name_string, const unsigned char* buffer, int length);

// A variable as a family of commands uses it: the commands read the first `kRead` bytes of its record and
// write the first `kWritten` bytes.
template <typename Record, size_t kRead = sizeof(Record), size_t kWritten = kRead>
struct RomVariable {
    static_assert(std::is_trivially_copyable_v<Record> &&
                      sizeof(Record) <= sizeof EV_IOCTL_STRUCT::DataBuffer,
                  "a variable is plain bytes, which fit into one request");
    static_assert(kRead <= sizeof(Record), "more bytes would be read than the record has");
    static_assert(kWritten <= kRead, "bytes would be written that were not read");

    const char* name;
};

// The system configuration, which several commands share. Only the hyper-threading commands read and write
// its last byte; the other commands don't write it.
constexpr RomVariable<WOLEVREC, sizeof(WOLEVREC), offsetof(WOLEVREC, flags5)> kConfiguration = {
    kConfigurationVariable};
constexpr RomVariable<WOLEVREC> kWholeConfiguration = {kConfigurationVariable};

// Reads a variable, at most `most` bytes, into `copy`. Returns false, with `copy` unchanged, if the variable
// can't be read.
template <typename Record, size_t kRead, size_t kWritten>
bool ReadVariableOver(const RomVariable<Record, kRead, kWritten>& variable, Record& copy,
                      size_t most = kRead) {
    const size_t length = std::min(most, kRead);
    return get_ev(variable.name, reinterpret_cast<unsigned char*>(&copy), static_cast<int>(length)) == 0;
}

// Clears `copy`, then reads a variable into it like ReadVariableOver().
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
