// Where an event happened: the three bytes that most events begin with.
#pragma once

#include <cstddef>
#include <cstdint>

#pragma pack(push, 1)

struct EVT_CHASSIS {
    uint8_t bType;  // 1 server, 2 external storage, 3 internal storage, 4 blade enclosure, 5 power enclosure
    uint8_t bId;    // 1: 0 the server itself, else an external chassis; 2, 3: slot; 4, 5: address, high byte
    uint8_t bPort;  // 4, 5: address, low byte
};
using PEVT_CHASSIS = EVT_CHASSIS*;
static_assert(sizeof(EVT_CHASSIS) == 3 && offsetof(EVT_CHASSIS, bPort) == 2);

#pragma pack(pop)

// The kinds of zone (bZoneType) that the choice of a text depends on; elsewhere a kind only prints as a word.
enum EventZoneType : uint8_t { kNetworkSlot = 13, kBladeSlot = 14 };
