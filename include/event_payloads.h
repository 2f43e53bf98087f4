// What follows the header of an event-log entry. Which record applies follows from the header's class and
// code. Packed and little-endian, as the firmware has them. A field of type char[1] is a zero-terminated text
// that begins there and runs on past the record.
#pragma once

#include <cstddef>
#include <cstdint>

#pragma pack(push, 1)

struct EVT_CHASSIS {  // where the event happened
    uint8_t bType;  // 1 server, 2 external storage, 3 internal storage, 4 blade enclosure, 5 power enclosure
    uint8_t bId;    // 1: 0 the server itself, else an external chassis; 2, 3: slot; 4, 5: address, high byte
    uint8_t bPort;  // 4, 5: address, low byte
};
using PEVT_CHASSIS = EVT_CHASSIS*;
static_assert(sizeof(EVT_CHASSIS) == 3, "as the firmware has it");

struct EVT_MACH_FAN_FAIL {
    EVT_CHASSIS Chassis;
    uint8_t bFanId;
    uint8_t bFanZoneType;
    char cChassisName[1];
};
using PEVT_MACH_FAN_FAIL = EVT_MACH_FAN_FAIL*;
static_assert(sizeof(EVT_MACH_FAN_FAIL) == 6, "as the firmware has it");

#pragma pack(pop)
