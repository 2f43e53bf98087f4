// Records of class 3, main memory. bSlot 0 is the system board, whose memory has no slot.
// The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_MAIN_MEMORY {  // 3/1, 3/2, 3/10: corrected or uncorrectable errors of one module or bank
    uint8_t bSlot;
    uint8_t bModule;  // 3/10: a bank letter
    char cSerialNumber[1];
};
using PEVT_MAIN_MEMORY = EVT_MAIN_MEMORY*;
static_assert(sizeof(EVT_MAIN_MEMORY) == 3 && offsetof(EVT_MAIN_MEMORY, cSerialNumber) == 2);

struct _evtSingleEntry {  // one of several modules that may have caused an error
    uint8_t bModule;
    uint8_t bSlot;
};
using EVT_MEM_SINGLE = _evtSingleEntry;
using PEVT_MEM_SINGLE = EVT_MEM_SINGLE*;
static_assert(sizeof(EVT_MEM_SINGLE) == 2 && offsetof(EVT_MEM_SINGLE, bSlot) == 1);

struct EVT_MAIN_MEMORY_MULTI {  // 3/3: uncorrectable error; several modules may have caused it
    uint8_t bResolution;        // number of valid entries in mm
    EVT_MEM_SINGLE mm[4];
    char cSerialNumber[1];  // comma-separated, one for each entry of mm
};
using PEVT_MAIN_MEMORY_MULTI = EVT_MAIN_MEMORY_MULTI*;
static_assert(sizeof(EVT_MAIN_MEMORY_MULTI) == 10 && offsetof(EVT_MAIN_MEMORY_MULTI, cSerialNumber) == 9);

struct EVT_MAIN_MEMORY_USER_ACTION {  // 3/4: board or cartridge removed, inserted, locked or unlocked
    uint8_t bSlot;
    uint8_t bAction;            // 0: removed, 1: inserted, 2: unlocked, 3: locked
    uint8_t bCartridgeOrBoard;  // 1: cartridge, 0: board
};
using PEVT_MAIN_MEMORY_USER_ACTION = EVT_MAIN_MEMORY_USER_ACTION*;
static_assert(sizeof(EVT_MAIN_MEMORY_USER_ACTION) == 3 &&
              offsetof(EVT_MAIN_MEMORY_USER_ACTION, bCartridgeOrBoard) == 2);

struct EVT_MAIN_MEMORY_HW_STATUS {  // 3/5: state of a cartridge
    uint8_t bSlot;
    uint8_t bStatus;
};
using PEVT_MAIN_MEMORY_HW_STATUS = EVT_MAIN_MEMORY_HW_STATUS*;
static_assert(sizeof(EVT_MAIN_MEMORY_HW_STATUS) == 2 && offsetof(EVT_MAIN_MEMORY_HW_STATUS, bStatus) == 1);

struct EVT_MAIN_MEMORY_CONFIG_ERR {  // 3/6: configuration error
    uint8_t bSlot;
    uint8_t bModule;
    uint8_t bCartridgeOrBoard;  // 1: cartridge, 0: board
};
using PEVT_MAIN_MEMORY_CONFIG_ERR = EVT_MAIN_MEMORY_CONFIG_ERR*;
static_assert(sizeof(EVT_MAIN_MEMORY_CONFIG_ERR) == 3 &&
              offsetof(EVT_MAIN_MEMORY_CONFIG_ERR, bCartridgeOrBoard) == 2);

struct EVT_MAIN_MEMORY_CONFIG_CHG {  // 3/7: memory added or removed
    uint8_t bSlot;
    uint8_t bAction;  // 0: added, 1: removed
    uint32_t ulSize;  // megabytes
};
using PEVT_MAIN_MEMORY_CONFIG_CHG = EVT_MAIN_MEMORY_CONFIG_CHG*;
static_assert(sizeof(EVT_MAIN_MEMORY_CONFIG_CHG) == 6 && offsetof(EVT_MAIN_MEMORY_CONFIG_CHG, ulSize) == 2);

struct EVT_MAIN_MEMORY_SPARE_ENGAGED {  // 3/8, 3/11: online spare in use, for a module or bank
    uint8_t bSlot;
    uint8_t bModule;  // 3/11: a bank letter
};
using PEVT_MAIN_MEMORY_SPARE_ENGAGED = EVT_MAIN_MEMORY_SPARE_ENGAGED*;
static_assert(sizeof(EVT_MAIN_MEMORY_SPARE_ENGAGED) == 2 &&
              offsetof(EVT_MAIN_MEMORY_SPARE_ENGAGED, bModule) == 1);

struct EVT_MAIN_MEMORY_MIRROR_ENGAGED {  // 3/9, 3/12: mirror in use, for a module or bank
    uint8_t bSlot;
    uint8_t bModule;  // 3/12: a bank letter
};
using PEVT_MAIN_MEMORY_MIRROR_ENGAGED = EVT_MAIN_MEMORY_MIRROR_ENGAGED*;
static_assert(sizeof(EVT_MAIN_MEMORY_MIRROR_ENGAGED) == 2 &&
              offsetof(EVT_MAIN_MEMORY_MIRROR_ENGAGED, bModule) == 1);

struct EVT_MAIN_MEMORY_CONFIGURATION {  // not used by any known event
    uint8_t bConfig;
};
using PEVT_MAIN_MEMORY_CONFIGURATION = EVT_MAIN_MEMORY_CONFIGURATION*;
static_assert(sizeof(EVT_MAIN_MEMORY_CONFIGURATION) == 1);

struct EVT_MAIN_MEMORY_BOARD_FAILURE {  // 3/17: board failure
    uint8_t bSlot;
};
using PEVT_MAIN_MEMORY_BOARD_FAILURE = EVT_MAIN_MEMORY_BOARD_FAILURE*;
static_assert(sizeof(EVT_MAIN_MEMORY_BOARD_FAILURE) == 1);

struct EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG {  // 3/18: error that the ROM's memory test found
    uint8_t bBoard;                        // 0: no board is named
    uint8_t bModule;
    uint8_t bBank;
    struct {
        uint8_t bNotIsolated : 1;  // 1: the faulty module is one of several
        uint8_t bReserved : 7;
    } flags;
    char szSerialNumber[1];  // a second string follows: the spare-part number
};
using PEVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG = EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG*;
static_assert(sizeof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG) == 5 &&
              offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, flags) == 3 &&
              offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, szSerialNumber) == 4);

#pragma pack(pop)
