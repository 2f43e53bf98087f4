// The named, non-volatile ROM variables in which the firmware keeps its settings: the request block that
// reads or writes one, and the record of each. Little-endian, packed, as the firmware has them.
#pragma once

#include <cstddef>
#include <cstdint>

enum RomRequest : int { kReadVariable = 1, kWriteVariable = 2 };  // the crom device's request codes

struct EV_IOCTL_STRUCT {
    char EvName[256];     // ASCII, zero-terminated, the rest zero
    uint32_t Number;      // always 0
    uint32_t DataLength;  // bytes to read or write, at most 256
    uint8_t DataBuffer[256];
};
static_assert(sizeof(EV_IOCTL_STRUCT) == 520 && offsetof(EV_IOCTL_STRUCT, DataBuffer) == 264,
              "as the driver has it");
