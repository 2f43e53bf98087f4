// Records of class 2, machine environment: heat, fans, side panels.
// The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_MACH_OVERHEAT {  // 2/1, 2/10: overheating
    EVT_CHASSIS Chassis;
    uint8_t bZoneId;
    uint8_t bZoneType;
    uint8_t bTemp;         // degrees Celsius
    char cChassisName[1];  // 2/10: a second string follows
};
using PEVT_MACH_OVERHEAT = EVT_MACH_OVERHEAT*;
static_assert(sizeof(EVT_MACH_OVERHEAT) == 7 && offsetof(EVT_MACH_OVERHEAT, cChassisName) == 6);

struct EVT_MACH_FAN_FAIL {  // 2/2, 2/8: fan failure
    EVT_CHASSIS Chassis;
    uint8_t bFanId;
    uint8_t bFanZoneType;
    char cChassisName[1];  // 2/8: a second string follows
};
using PEVT_MACH_FAN_FAIL = EVT_MACH_FAN_FAIL*;
static_assert(sizeof(EVT_MACH_FAN_FAIL) == 6 && offsetof(EVT_MACH_FAN_FAIL, cChassisName) == 5);

struct EVT_MACH_DOOR_OPEN {  // 2/3, 2/9: side panel removed
    EVT_CHASSIS Chassis;
    uint8_t bDoorId;
    uint8_t bDoorZoneType;
    char cChassisName[1];  // 2/9: a second string follows
};
using PEVT_MACH_DOOR_OPEN = EVT_MACH_DOOR_OPEN*;
static_assert(sizeof(EVT_MACH_DOOR_OPEN) == 6 && offsetof(EVT_MACH_DOOR_OPEN, bDoorZoneType) == 4 &&
              offsetof(EVT_MACH_DOOR_OPEN, cChassisName) == 5);

struct EVT_MACH_FAN_REMOVED {  // 2/4: fan removed
    EVT_CHASSIS Chassis;
    uint8_t bFanId;
    uint8_t bFanZoneType;
    char cChassisName[1];
};
using PEVT_MACH_FAN_REMOVED = EVT_MACH_FAN_REMOVED*;
static_assert(sizeof(EVT_MACH_FAN_REMOVED) == 6 && offsetof(EVT_MACH_FAN_REMOVED, cChassisName) == 5);

struct EVT_MACH_FAN_INSERTED {  // 2/5: fan inserted
    EVT_CHASSIS Chassis;
    uint8_t bFanId;
    uint8_t bFanZoneType;
    char cChassisName[1];
};
using PEVT_MACH_FAN_INSERTED = EVT_MACH_FAN_INSERTED*;
static_assert(sizeof(EVT_MACH_FAN_INSERTED) == 6 && offsetof(EVT_MACH_FAN_INSERTED, cChassisName) == 5);

struct EVT_MACH_FAN_NOT_REDUNDANT {  // 2/6: fans not redundant
    EVT_CHASSIS Chassis;
    uint8_t bFanZoneType;
    char cChassisName[1];
};
using PEVT_MACH_FAN_NOT_REDUNDANT = EVT_MACH_FAN_NOT_REDUNDANT*;
static_assert(sizeof(EVT_MACH_FAN_NOT_REDUNDANT) == 5 &&
              offsetof(EVT_MACH_FAN_NOT_REDUNDANT, cChassisName) == 4);

struct EVT_MACH_FAN_NOT_REDUNDANT_SHARED {  // 2/7: shared fans not redundant
    EVT_CHASSIS Chassis;
    uint8_t bFanZoneType;
    uint8_t bSharedFanZoneType;
    char cChassisName[1];
};
using PEVT_MACH_FAN_NOT_REDUNDANT_SHARED = EVT_MACH_FAN_NOT_REDUNDANT_SHARED*;
static_assert(sizeof(EVT_MACH_FAN_NOT_REDUNDANT_SHARED) == 6 &&
              offsetof(EVT_MACH_FAN_NOT_REDUNDANT_SHARED, cChassisName) == 5);

struct EVT_MACH_SAS_FAN_FAIL {  // 2/11: fan failure in a SAS enclosure
    EVT_CHASSIS Chassis;
    uint8_t bFanId;
    uint8_t bFanZoneType;
    char szPortID[2];
    uint8_t bBox;
    char szChassis_Sun[1];
};
using PEVT_MACH_SAS_FAN_FAIL = EVT_MACH_SAS_FAN_FAIL*;
static_assert(sizeof(EVT_MACH_SAS_FAN_FAIL) == 9 && offsetof(EVT_MACH_SAS_FAN_FAIL, szChassis_Sun) == 8);

struct EVT_MACH_SAS_OVERHEAT {  // 2/12: overheating in a SAS enclosure
    EVT_CHASSIS Chassis;
    uint8_t bSensorId;
    uint8_t bZoneType;
    char szPortID[2];
    uint8_t bBox;
    char szChassis_Sun[1];
};
using PEVT_MACH_SAS_OVERHEAT = EVT_MACH_SAS_OVERHEAT*;
static_assert(sizeof(EVT_MACH_SAS_OVERHEAT) == 9 && offsetof(EVT_MACH_SAS_OVERHEAT, szChassis_Sun) == 8);

#pragma pack(pop)
