// The inventory of processors, caches and memory modules, taken from the SMBIOS tables once at start-up.
// Its tables are gCpu_tbl, gCache_tbl and gMemoryMod. Their records are allocated one by one and stay until
// the program ends; what doesn't fit, or can't be allocated, is left out and, unless it is a cache, counted
// (processors_left_out, memory_modules_left_out).
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

enum CpuStatus : uint8_t { kCpuUnknown = 1, kCpuOk = 2, kCpuDegraded = 3, kCpuFailed = 4, kCpuDisabled = 5 };

struct ZET_CPU {                   // a populated central processor
    int cpuUnitIndex;              // its place in gCpu_tbl
    char cpuName[256];             // of its family
    int cpuSpeed;                  // MHz
    unsigned int cpuStep;          // 0 to 15
    uint8_t cpuStatus;             // CpuStatus
    unsigned int cpuExtFrequency;  // MHz, of the bus
    unsigned int cpuSocketNumber;  // as the user counts
    uint8_t cpucorecount;          // 0: the firmware doesn't say; threadcount is 0 then too
    int8_t threadcount;
};

struct ZET_CACHE {            // a processor's L2 or L3 cache
    int cacheUnitIndex;       // its processor's cpuUnitIndex
    uint8_t cacheLevelIndex;  // 1 to 8
    int cacheSize;            // KiB
};

struct ZET_MemModule {        // a socket of the system memory
    int memBoardIndex;        // the memory board (cartridge) it is on
    int memModuleIndex;       // its number there
    int memModuleSize;        // KiB; 0: empty
    int memModuleType;        // form factor
    int memModuleTechnology;  // memory type
    int memModuleFrequency;   // MHz; 0: unknown
};

// Fills gCpu_tbl and gCache_tbl, from the last processor record to the first.
// Result: FALSE when the tables hold no processor record.
BOOL SmbParseProcRecords();

// Fills gMemoryMod, array by array. Result: FALSE when the tables hold no memory array.
BOOL SmbParseMemRecords();

// The installed system memory. *pSize: KiB. Result: FALSE, with *pSize left alone, as above.
BOOL SmbGetTotalMemory(unsigned int* pSize);

// Whether an array of the system memory corrects errors.
BOOL SmbChkForECCSupported();

// Reads the number in the word that follows pToken in a text of words between blanks, as 2 from "Proc 2".
// Only the first word that equals pToken counts, whatever its case. Result: FALSE, with *piValue left alone,
// when no digit follows it.
BOOL ParseNumFromString(const char* pStr, const char* pToken, int* piValue);

// Adds a zeroed record to an inventory table. Null, with nothing added, when the table is full or there is no
// memory for one.
template <typename Record, size_t kEntries>
Record* AppendRecord(Record* (&table)[kEntries]) {
    Record** place = std::find(std::begin(table), std::end(table), nullptr);
    if (place == std::end(table)) return nullptr;
    *place = static_cast<Record*>(std::calloc(1, sizeof(Record)));
    return *place;
}
