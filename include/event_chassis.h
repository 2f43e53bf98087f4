// Where an event happened: the three bytes that most events begin with.
#pragma once

#include <cstddef>
#include <cstdint>

enum EventChassisType : uint8_t {
    kChassisServer = 1,  // the server itself or, by EVT_CHASSIS::bId, an external chassis of it
    kChassisExternalStorage = 2,
    kChassisInternalStorage = 3,
    kChassisBladeEnclosure = 4,
    kChassisPowerEnclosure = 5,
};

#pragma pack(push, 1)

struct EVT_CHASSIS {
    uint8_t bType;  // an EventChassisType
    uint8_t bId;    // server: 0, or an external chassis' number; storage: slot; enclosure: address, high byte
    uint8_t bPort;  // enclosure: address, low byte; classes 17 to 19: the port or bus
};
using PEVT_CHASSIS = EVT_CHASSIS*;
static_assert(sizeof(EVT_CHASSIS) == 3 && offsetof(EVT_CHASSIS, bPort) == 2);

#pragma pack(pop)

// The kinds of zone: bZoneType, bFanZoneType, bDoorZoneType.
enum EventZoneType : uint8_t {
    kZoneSystem = 0,
    kZoneSystemBoard = 1,
    kZoneIoBoard = 2,
    kZoneCpu = 3,
    kZoneMemory = 4,
    kZoneStorage = 5,
    kZoneRemovableMedia = 6,
    kZonePowerSupply = 7,
    kZoneAmbient = 8,
    kZoneChassis = 9,
    kZoneBridgeBoard = 10,
    kZoneManagementBoard = 11,
    kZoneBackplane = 12,
    kZoneNetworkSlot = 13,
    kZoneBladeSlot = 14,
    kZoneVirtual = 15,
};
