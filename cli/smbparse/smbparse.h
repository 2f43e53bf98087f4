// The inventory of processors, caches and memory modules, read from the SMBIOS tables once at start-up. It is
// stored in gCpu_tbl, gCache_tbl and gMemoryMod, whose records are allocated one by one and live until the
// program ends. If a table is full or memory runs out, the record is left out; left-out processors and
// installed memory modules are counted in processors_left_out and memory_modules_left_out.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

enum CpuStatus : uint8_t { kCpuUnknown = 1, kCpuOk = 2, kCpuDegraded = 3, kCpuFailed = 4, kCpuDisabled = 5 };

struct ZET_CPU {                   // a central processor in a populated socket
    int cpuUnitIndex;              // its index in gCpu_tbl
    char cpuName[256];             // the name of its family
    int cpuSpeed;                  // MHz
    unsigned int cpuStep;          // stepping, 0 to 15
    uint8_t cpuStatus;             // CpuStatus
    unsigned int cpuExtFrequency;  // bus clock, MHz
    unsigned int cpuSocketNumber;  // as printed, usually from 1
    uint8_t cpucorecount;          // 0: unknown, and so is threadcount
    int8_t threadcount;
};

struct ZET_CACHE {            // a processor's L2 or L3 cache
    int cacheUnitIndex;       // cpuUnitIndex of its processor
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

// Fills gCpu_tbl and gCache_tbl, from the last processor record to the first. Returns FALSE if there are no
// tables or no processor record.
BOOL SmbParseProcRecords();

// Fills gMemoryMod, array by array. Returns FALSE if there are no tables or no memory array.
BOOL SmbParseMemRecords();

// Stores the installed system memory, in KiB; a sum beyond 32 bits is stored as UINT_MAX. Returns FALSE and
// leaves *pSize unchanged if there are no tables or no memory array.
BOOL SmbGetTotalMemory(unsigned int* pSize);

// Returns TRUE if a memory array of the system memory detects or corrects errors; FALSE without tables.
BOOL SmbChkForECCSupported();

// Parses the first decimal number in the word after the word `pToken`: 2 in "Proc 2" or "PROC #2". Words are
// separated by spaces and TABs, and their case is ignored; only the first word that equals `pToken` is
// considered. Returns FALSE and leaves *piValue unchanged if the word after it is missing or contains no
// digit.
BOOL ParseNumFromString(const char* pStr, const char* pToken, int* piValue);

// Appends a zeroed record to an inventory table and returns it. Returns null if the table is full or memory
// runs out.
template <typename Record, size_t kEntries>
Record* AppendRecord(Record* (&table)[kEntries]) {
    Record** next = std::find(std::begin(table), std::end(table), nullptr);
    if (next == std::end(table)) return nullptr;
    *next = static_cast<Record*>(std::calloc(1, sizeof(Record)));
    return *next;
}
