// Reads the processors and their caches from the SMBIOS tables.
#pragma once

#include <cstdint>

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

enum CpuStatus : uint8_t { kCpuUnknown = 1, kCpuOk = 2, kCpuDegraded = 3, kCpuFailed = 4, kCpuDisabled = 5 };

struct ZET_CPU {                   // a central processor; its socket is populated
    int cpuUnitIndex;              // its index in gCpu_tbl
    char cpuName[256];             // name of the processor family
    int cpuSpeed;                  // MHz
    unsigned int cpuStep;          // stepping, 0 to 15
    uint8_t cpuStatus;             // CpuStatus
    unsigned int cpuExtFrequency;  // bus clock, MHz
    unsigned int cpuSocketNumber;  // socket number as it is printed, usually from 1
    uint8_t cpucorecount;          // 0: unknown; then threadcount is unknown, too
    int8_t threadcount;
};

struct ZET_CACHE {            // an L2 or L3 cache of a processor
    int cacheUnitIndex;       // cpuUnitIndex of its processor
    uint8_t cacheLevelIndex;  // cache level, 1 to 8
    int cacheSize;            // KiB
};

// Fills gCpu_tbl and gCache_tbl, from the last processor record to the first. Returns FALSE if there are no
// tables or no processor record.
BOOL SmbParseProcRecords();
