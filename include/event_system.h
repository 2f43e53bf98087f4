// Records of classes 10, 13, 14, 20, 32 and 33: POST, server recovery, operating system, unrecoverable
// errors, ROM flashes, notes. The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_POST_MESSAGE {  // 10/1: error message of POST
    uint8_t bError;
    char cMessage[1];
};
using PEVT_POST_MESSAGE = EVT_POST_MESSAGE*;
static_assert(sizeof(EVT_POST_MESSAGE) == 2 && offsetof(EVT_POST_MESSAGE, cMessage) == 1);

struct EVT_ASR_LOCKUP {  // 13/2: lockup detected
    char cMessage[1];
};
using PEVT_ASR_LOCKUP = EVT_ASR_LOCKUP*;
static_assert(sizeof(EVT_ASR_LOCKUP) == 1);

struct EVT_OS_CRASH {  // 14/1: kernel panic
    char cMessage[1];
};
using PEVT_OS_CRASH = EVT_OS_CRASH*;
static_assert(sizeof(EVT_OS_CRASH) == 1);

struct EVT_AUTO_SHUTDOWN {  // 14/2: automatic shutdown
    uint8_t bCause;         // bit 7 is set if the shutdown was aborted or initiated by software
};
using PEVT_AUTO_SHUTDOWN = EVT_AUTO_SHUTDOWN*;
static_assert(sizeof(EVT_AUTO_SHUTDOWN) == 1);

struct EVT_OS_FATAL_EXCEPTION {  // 14/3: fatal exception
    uint8_t bException;
    char cCause[1];
};
using PEVT_OS_FATAL_EXCEPTION = EVT_OS_FATAL_EXCEPTION*;
static_assert(sizeof(EVT_OS_FATAL_EXCEPTION) == 2 && offsetof(EVT_OS_FATAL_EXCEPTION, cCause) == 1);

struct EVT_OS_PWR_SHED {  // 14/5: shutdown by power management
    EVT_CHASSIS Chassis;
    uint8_t bZoneId;
    uint8_t bZoneType;  // an EventZoneType
    char cChassisName[1];
};
using PEVT_OS_PWR_SHED = EVT_OS_PWR_SHED*;
static_assert(sizeof(EVT_OS_PWR_SHED) == 6 && offsetof(EVT_OS_PWR_SHED, cChassisName) == 5);

struct EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA {  // 20/3: unrecoverable system error
    uint32_t ulDataLow;
    uint32_t ulDataHigh;
};
using PEVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA = EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA*;
static_assert(sizeof(EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA) == 8 &&
              offsetof(EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA, ulDataHigh) == 4);

struct EVT_ROM_FLASH_OCCURRED {  // 32/1: ROM flashed
    char cText[1];
};
using PEVT_ROM_FLASH_OCCURRED = EVT_ROM_FLASH_OCCURRED*;
static_assert(sizeof(EVT_ROM_FLASH_OCCURRED) == 1);

struct EVT_MAINTENANCE_INFO {  // 33/1: log cleared; 33/2: note
    char cText[1];
};
using PEVT_MAINTENANCE_INFO = EVT_MAINTENANCE_INFO*;
static_assert(sizeof(EVT_MAINTENANCE_INFO) == 1);

struct EVT_HEALTHREQUEST {  // not used by any known event
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_HEALTHREQUEST = EVT_HEALTHREQUEST*;
static_assert(sizeof(EVT_HEALTHREQUEST) == 4 && offsetof(EVT_HEALTHREQUEST, cChassisName) == 3);

struct EVT_EMBEDDED_HEALTH {  // not used by any known event
    uint16_t wAlertID;
    uint16_t wFlags;
    uint16_t wDataValue;
};
using PEVT_EMBEDDED_HEALTH = EVT_EMBEDDED_HEALTH*;
static_assert(sizeof(EVT_EMBEDDED_HEALTH) == 6 && offsetof(EVT_EMBEDDED_HEALTH, wFlags) == 2 &&
              offsetof(EVT_EMBEDDED_HEALTH, wDataValue) == 4);

#pragma pack(pop)
