// Records of class 11, the power subsystem: power supplies, power modules, AC line, battery of the clock.
// The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_POWER_SUPPLY_FAILURE {  // 11/1, 11/19: power supply failure
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    uint8_t bPsErrorId;
    char cChassisName[1];  // 11/19: a second string follows
};
using PEVT_POWER_SUPPLY_FAILURE = EVT_POWER_SUPPLY_FAILURE*;
static_assert(sizeof(EVT_POWER_SUPPLY_FAILURE) == 6 && offsetof(EVT_POWER_SUPPLY_FAILURE, cChassisName) == 5);

struct EVT_BATTERY_LOW {  // 11/2, 11/18: clock battery failing
    EVT_CHASSIS Chassis;  // 11/18: a string follows
};
using PEVT_BATTERY_LOW = EVT_BATTERY_LOW*;
static_assert(sizeof(EVT_BATTERY_LOW) == 3);

struct EVT_POWER_MODULE_FAILURE {  // 11/3: power module failure
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    uint8_t bConverter;
    uint8_t bConverterType;  // 1: processor, 2: PCI, 3: I/O
};
using PEVT_POWER_MODULE_FAILURE = EVT_POWER_MODULE_FAILURE*;
static_assert(sizeof(EVT_POWER_MODULE_FAILURE) == 6 &&
              offsetof(EVT_POWER_MODULE_FAILURE, bConverterType) == 5);

struct EVT_POWER_SUPPLY_REMOVED {  // 11/4: power supply removed
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    char cChassisName[1];
};
using PEVT_POWER_SUPPLY_REMOVED = EVT_POWER_SUPPLY_REMOVED*;
static_assert(sizeof(EVT_POWER_SUPPLY_REMOVED) == 5 && offsetof(EVT_POWER_SUPPLY_REMOVED, cChassisName) == 4);

struct EVT_POWER_SUPPLY_INSERTED {  // 11/5: power supply inserted
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    char cChassisName[1];
};
using PEVT_POWER_SUPPLY_INSERTED = EVT_POWER_SUPPLY_INSERTED*;
static_assert(sizeof(EVT_POWER_SUPPLY_INSERTED) == 5 &&
              offsetof(EVT_POWER_SUPPLY_INSERTED, cChassisName) == 4);

struct EVT_POWER_NOT_REDUNDANT {  // 11/6: power supplies not redundant (server or storage system)
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_POWER_NOT_REDUNDANT = EVT_POWER_NOT_REDUNDANT*;
static_assert(sizeof(EVT_POWER_NOT_REDUNDANT) == 4 && offsetof(EVT_POWER_NOT_REDUNDANT, cChassisName) == 3);

struct EVT_INF_POWER_NOT_REDUNDANT {  // 11/6: power supplies not redundant (enclosure)
    EVT_CHASSIS Chassis;
    uint8_t bType;  // 1: enclosure, 2: power module, 3: bus bar, 4: breaker, 5: power subsystem
    char cChassisName[1];
};
using PEVT_INF_POWER_NOT_REDUNDANT = EVT_INF_POWER_NOT_REDUNDANT*;
static_assert(sizeof(EVT_INF_POWER_NOT_REDUNDANT) == 5 &&
              offsetof(EVT_INF_POWER_NOT_REDUNDANT, cChassisName) == 4);

struct EVT_POWER_MODULES_NOT_REDUNDANT {  // 11/7: power modules not redundant
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    uint8_t bConverter;
    uint8_t bConverterType;
    char cChassisName[1];
};
using PEVT_POWER_MODULES_NOT_REDUNDANT = EVT_POWER_MODULES_NOT_REDUNDANT*;
static_assert(sizeof(EVT_POWER_MODULES_NOT_REDUNDANT) == 7 &&
              offsetof(EVT_POWER_MODULES_NOT_REDUNDANT, bConverter) == 4 &&
              offsetof(EVT_POWER_MODULES_NOT_REDUNDANT, bConverterType) == 5 &&
              offsetof(EVT_POWER_MODULES_NOT_REDUNDANT, cChassisName) == 6);

struct EVT_POWER_AC_VOLTAGE {  // 11/8, 11/17: AC power problem
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    uint8_t bError;
    char cChassisName[1];  // 11/17: a second string follows
};
using PEVT_POWER_AC_VOLTAGE = EVT_POWER_AC_VOLTAGE*;
static_assert(sizeof(EVT_POWER_AC_VOLTAGE) == 6 && offsetof(EVT_POWER_AC_VOLTAGE, cChassisName) == 5);

struct EVT_POWER_AC_OVERLOAD {  // 11/9: AC power overload
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    uint8_t bVoltage;
    char cChassisName[1];
};
using PEVT_POWER_AC_OVERLOAD = EVT_POWER_AC_OVERLOAD*;
static_assert(sizeof(EVT_POWER_AC_OVERLOAD) == 6 && offsetof(EVT_POWER_AC_OVERLOAD, cChassisName) == 5);

struct EVT_POWER_SUPPLY_UNPOWERED {  // 11/11: power supply powered down
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    char cChassisName[1];
};
using PEVT_POWER_SUPPLY_UNPOWERED = EVT_POWER_SUPPLY_UNPOWERED*;
static_assert(sizeof(EVT_POWER_SUPPLY_UNPOWERED) == 5 &&
              offsetof(EVT_POWER_SUPPLY_UNPOWERED, cChassisName) == 4);

struct EVT_POWER_SUPPLY_POWERED {  // 11/10: power supply powered up
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    char cChassisName[1];
};
using PEVT_POWER_SUPPLY_POWERED = EVT_POWER_SUPPLY_POWERED*;
static_assert(sizeof(EVT_POWER_SUPPLY_POWERED) == 5 && offsetof(EVT_POWER_SUPPLY_POWERED, cChassisName) == 4);

struct EVT_SYS_POWER_MODULE_FAILURE {  // 11/12: system power module failure
    EVT_CHASSIS Chassis;
    uint8_t bId;
    uint8_t bError;
    char cChassisName[1];
};
using PEVT_SYS_POWER_MODULE_FAILURE = EVT_SYS_POWER_MODULE_FAILURE*;
static_assert(sizeof(EVT_SYS_POWER_MODULE_FAILURE) == 6 &&
              offsetof(EVT_SYS_POWER_MODULE_FAILURE, cChassisName) == 5);

struct EVT_SYS_POWER_MODULE_REMOVED {  // 11/13: system power module removed
    EVT_CHASSIS Chassis;
    uint8_t bId;
    char cChassisName[1];
};
using PEVT_SYS_POWER_MODULE_REMOVED = EVT_SYS_POWER_MODULE_REMOVED*;
static_assert(sizeof(EVT_SYS_POWER_MODULE_REMOVED) == 5 &&
              offsetof(EVT_SYS_POWER_MODULE_REMOVED, cChassisName) == 4);

struct EVT_SYS_POWER_MODULE_INSERTED {  // 11/14: system power module inserted
    EVT_CHASSIS Chassis;
    uint8_t bId;
    char cChassisName[1];
};
using PEVT_SYS_POWER_MODULE_INSERTED = EVT_SYS_POWER_MODULE_INSERTED*;
static_assert(sizeof(EVT_SYS_POWER_MODULE_INSERTED) == 5 &&
              offsetof(EVT_SYS_POWER_MODULE_INSERTED, cChassisName) == 4);

struct EVT_SYS_POWER_MODULE_NOT_REDUNDANT {  // 11/15: system power modules not redundant
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_SYS_POWER_MODULE_NOT_REDUNDANT = EVT_SYS_POWER_MODULE_NOT_REDUNDANT*;
static_assert(sizeof(EVT_SYS_POWER_MODULE_NOT_REDUNDANT) == 4 &&
              offsetof(EVT_SYS_POWER_MODULE_NOT_REDUNDANT, cChassisName) == 3);

struct EVT_SYS_POWER_MODULE_OVERLOAD {  // 11/16: system power module overload
    EVT_CHASSIS Chassis;
    uint8_t bId;
    uint8_t bVoltage;
    char cChassisName[1];
};
using PEVT_SYS_POWER_MODULE_OVERLOAD = EVT_SYS_POWER_MODULE_OVERLOAD*;
static_assert(sizeof(EVT_SYS_POWER_MODULE_OVERLOAD) == 6 &&
              offsetof(EVT_SYS_POWER_MODULE_OVERLOAD, cChassisName) == 5);

struct EVT_SAS_POWER_SUPPLY_FAILURE {  // 11/20: power supply failure in a SAS enclosure
    EVT_CHASSIS Chassis;
    uint8_t bPsId;
    char szPortID[2];
    uint8_t bBox;
    char szChassis_Sun[1];
};
using PEVT_SAS_POWER_SUPPLY_FAILURE = EVT_SAS_POWER_SUPPLY_FAILURE*;
static_assert(sizeof(EVT_SAS_POWER_SUPPLY_FAILURE) == 8 &&
              offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, szChassis_Sun) == 7);

#pragma pack(pop)
