// Records of classes 4 to 9: cache, processors, buses, expansion slots.
// The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_CACHE_ACCEL_PARITY_ERROR {  // 4/1: parity error of an accelerator's cache
    uint8_t bSocket;
};
using PEVT_CACHE_ACCEL_PARITY_ERROR = EVT_CACHE_ACCEL_PARITY_ERROR*;
static_assert(sizeof(EVT_CACHE_ACCEL_PARITY_ERROR) == 1);

struct EVT_CPU_CORRECTABLE {  // 5/1: correctable processor errors
    uint8_t bSocket;
    uint8_t bSlot;
    uint8_t bType;
};
using PEVT_CPU_CORRECTABLE = EVT_CPU_CORRECTABLE*;
static_assert(sizeof(EVT_CPU_CORRECTABLE) == 3 && offsetof(EVT_CPU_CORRECTABLE, bType) == 2);

struct EVT_CPU_UNCORRECTABLE {  // 5/2: uncorrectable processor error
    uint8_t bSocket;
    uint8_t bSlot;
    uint8_t bType;
};
using PEVT_CPU_UNCORRECTABLE = EVT_CPU_UNCORRECTABLE*;
static_assert(sizeof(EVT_CPU_UNCORRECTABLE) == 3 && offsetof(EVT_CPU_UNCORRECTABLE, bType) == 2);

struct EVT_HOST_BUS_UNCORRECTABLE {  // 6/1: host bus error
    uint8_t bError;                  // 0: address parity, 1: data parity
};
using PEVT_HOST_BUS_UNCORRECTABLE = EVT_HOST_BUS_UNCORRECTABLE*;
static_assert(sizeof(EVT_HOST_BUS_UNCORRECTABLE) == 1);

struct EVT_INTERMODULE_BUS_UNCORRECTABLE {  // 6/2: intermodule bus error
    uint32_t ulError;
};
using PEVT_INTERMODULE_BUS_UNCORRECTABLE = EVT_INTERMODULE_BUS_UNCORRECTABLE*;
static_assert(sizeof(EVT_INTERMODULE_BUS_UNCORRECTABLE) == 4);

struct EVT_EISA_BUS {  // 7/1-4: EISA bus errors
    uint8_t bSlot;
};
using PEVT_EISA_BUS = EVT_EISA_BUS*;
static_assert(sizeof(EVT_EISA_BUS) == 1);

struct EVT_PCI_BUS {  // 8/1: PCI bus error
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    uint8_t bBus;
    uint8_t bDevice;
    uint8_t bFunction;
};
using PEVT_PCI_BUS = EVT_PCI_BUS*;
static_assert(sizeof(EVT_PCI_BUS) == 7 && offsetof(EVT_PCI_BUS, bFunction) == 6);

struct EVT_EXPANSION_SLOT {  // 9/1-9: slot lever, slot power, adapter failure
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
};
using PEVT_EXPANSION_SLOT = EVT_EXPANSION_SLOT*;
static_assert(sizeof(EVT_EXPANSION_SLOT) == 4 && offsetof(EVT_EXPANSION_SLOT, bSlot) == 3);

struct EVT_EXPANSION_SLOT_CONFIG_ERR {  // not used by any known event
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    uint8_t bError;
};
using PEVT_EXPANSION_SLOT_CONFIG_ERR = EVT_EXPANSION_SLOT_CONFIG_ERR*;
static_assert(sizeof(EVT_EXPANSION_SLOT_CONFIG_ERR) == 5 &&
              offsetof(EVT_EXPANSION_SLOT_CONFIG_ERR, bError) == 4);

#pragma pack(pop)
