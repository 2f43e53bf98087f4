// The driver's data tables of memory modules. All records are packed and little-endian.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/data_tables.h"

constexpr DataTableType kMemoryTable = 1700;        // RESMEM_CONFIG
constexpr DataTableType kCartridgeTable = 1702;     // RESMEM_CARTRIDGE_CONFIG
constexpr DataTableType kModuleConfigTable = 1706;  // RESMEM_DIMM_CONFIG
constexpr DataTableType kModuleStatusTable = 1707;  // RESMEM_DIMM_STATUS

// The cartridge number of the memory on the system board. The request contains it in one byte, as 255.
constexpr int kSystemBoardCartridge = -1;

#pragma pack(push, 1)

struct RESMEM_CONFIG {
    uint32_t ulNumberModules;  // number of modules in each cartridge
    uint32_t ulNumberCartridges;
    uint32_t ulSupportsHotPlug;
    uint32_t ulSupportsRAID;
    uint32_t ulSupportsOnlineSpare;
    uint32_t ulSupportsSingleBoardMirrored;
    uint32_t ulConfiguredForRAID;
    uint32_t ulConfiguredForOnlineSpare;
    uint32_t ulConfiguredForSingleBoardMirrored;
    uint32_t ulSupportsHotAdd;
    uint32_t ulConfiguredForHotAdd;
    uint32_t ulSupportsHotRemove;
    uint32_t ulConfiguredForHotRemove;
    uint32_t ulSupportsVerify;
    uint32_t ulConfiguredForVerify;
    uint32_t ulSupportsDelayAdd;
    uint32_t ulConfiguredForDelayAdd;
    uint32_t ulSupportsRIVRate;
    uint32_t ulConfiguredForRIVRate;
    uint32_t ulSupportsAlarmQuiet;
    uint32_t ulConfiguredForAlarmQuiet;
    uint32_t ulSupportsAdvancedEcc;
    uint32_t ulConfiguredForAdvancedEcc;
    uint32_t ulSupportsDualBoardMirrored;
    uint32_t ulConfiguredForDualBoardMirrored;
    uint32_t ulSupportsMirrored;
    uint32_t ulConfiguredForMirrored;
};
using PRESMEM_CONFIG = RESMEM_CONFIG*;
static_assert(sizeof(RESMEM_CONFIG) == 108 && offsetof(RESMEM_CONFIG, ulNumberCartridges) == 4 &&
                  offsetof(RESMEM_CONFIG, ulSupportsRAID) == 12 &&
                  offsetof(RESMEM_CONFIG, ulSupportsSingleBoardMirrored) == 20 &&
                  offsetof(RESMEM_CONFIG, ulConfiguredForOnlineSpare) == 28 &&
                  offsetof(RESMEM_CONFIG, ulSupportsHotAdd) == 36 &&
                  offsetof(RESMEM_CONFIG, ulSupportsHotRemove) == 44 &&
                  offsetof(RESMEM_CONFIG, ulSupportsVerify) == 52 &&
                  offsetof(RESMEM_CONFIG, ulSupportsDelayAdd) == 60 &&
                  offsetof(RESMEM_CONFIG, ulSupportsRIVRate) == 68 &&
                  offsetof(RESMEM_CONFIG, ulSupportsAlarmQuiet) == 76 &&
                  offsetof(RESMEM_CONFIG, ulSupportsAdvancedEcc) == 84 &&
                  offsetof(RESMEM_CONFIG, ulSupportsDualBoardMirrored) == 92 &&
                  offsetof(RESMEM_CONFIG, ulSupportsMirrored) == 100,
              "as the driver has it");

struct RESMEM_CARTRIDGE_CONFIG {
    uint32_t ulCartID;
    uint32_t ulNumModules;
    uint32_t ulNumLEDs;
    char partName[128];
    uint32_t ulMemorySizeOS;
    uint32_t ulMemorySizeResilient;
    uint32_t ulMemorySizeTotal;
};
using PRESMEM_CARTRIDGE_CONFIG = RESMEM_CARTRIDGE_CONFIG*;
static_assert(sizeof(RESMEM_CARTRIDGE_CONFIG) == 152 &&
                  offsetof(RESMEM_CARTRIDGE_CONFIG, ulMemorySizeOS) == 140 &&
                  offsetof(RESMEM_CARTRIDGE_CONFIG, ulMemorySizeTotal) == 148,
              "as the driver has it");

// The part of RESMEM_CARTRIDGE_CONFIG that the program requests: the leading fields, with partName truncated
// to 96 bytes.
struct CartridgePrefix {
    uint32_t ulCartID;
    uint32_t ulNumModules;
    uint32_t ulNumLEDs;
    char partName[96];
};
static_assert(sizeof(CartridgePrefix) == 108 &&
                  offsetof(CartridgePrefix, partName) == offsetof(RESMEM_CARTRIDGE_CONFIG, partName),
              "a prefix of the record");

struct KEY_DIMM_SDRAM {  // the bytes of the module's presence-detect (SPD) data that identify it
    uint8_t ucSpdByte2;
    uint8_t ucSpdByte3;
    uint8_t ucSpdByte4;
    uint8_t ucSpdByte5;
    uint8_t ucSpdByte9;
    uint8_t ucSpdByte10;
    uint8_t ucSpdByte13;
    uint8_t ucSpdByte14;
    uint8_t ucSpdByte31;
    uint8_t rawZetPartNumber[6];
    uint8_t ucSupportedCAS;
    uint8_t ucReserved[18];
};
static_assert(sizeof(KEY_DIMM_SDRAM) == 34 && offsetof(KEY_DIMM_SDRAM, ucSpdByte3) == 1 &&
                  offsetof(KEY_DIMM_SDRAM, ucSpdByte5) == 3 && offsetof(KEY_DIMM_SDRAM, ucSpdByte10) == 5 &&
                  offsetof(KEY_DIMM_SDRAM, ucSpdByte14) == 7 &&
                  offsetof(KEY_DIMM_SDRAM, rawZetPartNumber) == 9 &&
                  offsetof(KEY_DIMM_SDRAM, ucReserved) == 16,
              "as the driver has it");

struct KEY_INFO {
    uint32_t ulKeySize;  // in bytes
    union {
        uint8_t ucKey[34];
        KEY_DIMM_SDRAM keyDimmSdram;
    };
};
static_assert(sizeof(KEY_INFO) == 38 && offsetof(KEY_INFO, ucKey) == 4, "as the driver has it");

struct RESMEM_DIMM_INFO {
    KEY_INFO keyBytes;
    uint32_t ulFormFactor;
    uint32_t ulMemType;
    uint32_t ulSize;   // megabytes
    uint32_t ulSpeed;  // MHz
    uint32_t ulTechnology;
    uint32_t ulBanks;
    uint32_t ulWidth;
    uint32_t ulEcc;
    uint32_t ulCASLatency;
    char partNumber[32];
    uint32_t ulValidSPD;
    uint8_t spd[256];
};
static_assert(sizeof(RESMEM_DIMM_INFO) == 366 && offsetof(RESMEM_DIMM_INFO, ulFormFactor) == 38 &&
                  offsetof(RESMEM_DIMM_INFO, ulMemType) == 42 && offsetof(RESMEM_DIMM_INFO, ulSize) == 46 &&
                  offsetof(RESMEM_DIMM_INFO, ulSpeed) == 50 && offsetof(RESMEM_DIMM_INFO, ulBanks) == 58 &&
                  offsetof(RESMEM_DIMM_INFO, ulEcc) == 66 && offsetof(RESMEM_DIMM_INFO, partNumber) == 74 &&
                  offsetof(RESMEM_DIMM_INFO, spd) == 110,
              "as the driver has it");

struct RESMEM_DIMM_CONFIG {
    uint32_t ulCartID;    // the number on the cartridge's label
    uint32_t ulModuleID;  // the number on the socket's label
    uint32_t ulNumLEDs;
    uint32_t ulPresent;  // 0: the socket is empty
    RESMEM_DIMM_INFO dimmInfo;
};
using PRESMEM_DIMM_CONFIG = RESMEM_DIMM_CONFIG*;
static_assert(sizeof(RESMEM_DIMM_CONFIG) == 382 && offsetof(RESMEM_DIMM_CONFIG, ulModuleID) == 4 &&
                  offsetof(RESMEM_DIMM_CONFIG, ulPresent) == 12 &&
                  offsetof(RESMEM_DIMM_CONFIG, dimmInfo) == 16,
              "as the driver has it");

struct RESMEM_LED_STATUS {
    uint8_t ucType;
    uint8_t ucColor;
    uint8_t ucState;
    uint8_t ucRef;
};
static_assert(sizeof(RESMEM_LED_STATUS) == 4 && offsetof(RESMEM_LED_STATUS, ucColor) == 1 &&
                  offsetof(RESMEM_LED_STATUS, ucState) == 2,
              "as the driver has it");

struct RESMEM_DIMM_STATUS {
    uint32_t ulCartID;
    uint32_t ulModuleID;
    uint32_t ulBankID;
    uint32_t ulStatus;  // 2: no error; 5 to 9: errors that have names
    uint32_t reserved[8];
    uint32_t ulNumLEDEntry;
    RESMEM_LED_STATUS LEDStatus[1];
};
using PRESMEM_DIMM_STATUS = RESMEM_DIMM_STATUS*;
static_assert(sizeof(RESMEM_DIMM_STATUS) == 56 && offsetof(RESMEM_DIMM_STATUS, ulModuleID) == 4 &&
                  offsetof(RESMEM_DIMM_STATUS, ulStatus) == 12 &&
                  offsetof(RESMEM_DIMM_STATUS, ulNumLEDEntry) == 48 &&
                  offsetof(RESMEM_DIMM_STATUS, LEDStatus) == 52,
              "as the driver has it");

#pragma pack(pop)
