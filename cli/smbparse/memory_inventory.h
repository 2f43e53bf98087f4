// The memory modules, the total memory, and whether it has error correction.
#pragma once

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

struct ZET_MemModule {        // a socket of the system memory
    int memBoardIndex;        // the memory board (cartridge) it is on
    int memModuleIndex;       // its number there
    int memModuleSize;        // KiB; 0: empty
    int memModuleType;        // form factor
    int memModuleTechnology;  // memory type
    int memModuleFrequency;   // MHz; 0: unknown
};

// Fills gMemoryMod, array by array. Returns FALSE if there are no tables or no memory array.
BOOL SmbParseMemRecords();

// Stores the installed system memory, in KiB; a sum beyond 32 bits is stored as UINT_MAX. Returns FALSE and
// leaves *pSize unchanged if there are no tables or no memory array.
BOOL SmbGetTotalMemory(unsigned int* pSize);

// Returns TRUE if a memory array of the system memory detects or corrects errors; FALSE without tables.
BOOL SmbChkForECCSupported();
