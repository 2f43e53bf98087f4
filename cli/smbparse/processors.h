// The processors and their caches.
#pragma once

#include <cstdint>

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

// Fills gCpu_tbl and gCache_tbl, from the last processor record to the first. Returns FALSE if there are no
// tables or no processor record.
BOOL SmbParseProcRecords();
