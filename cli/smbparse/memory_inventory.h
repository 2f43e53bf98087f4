// Reads from the SMBIOS tables the memory modules, the total memory, and whether the memory has error
// correction.
#pragma once

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

struct ZET_MemModule {        // a socket of the system memory
    int memBoardIndex;        // number of its memory board (cartridge)
    int memModuleIndex;       // number of the socket on that board
    int memModuleSize;        // KiB; 0: the socket is empty
    int memModuleType;        // number of the form factor
    int memModuleTechnology;  // number of the memory type
    int memModuleFrequency;   // MHz; 0: unknown
};

// Fills gMemoryMod, one memory array after another. Returns FALSE if there are no tables or no memory array.
BOOL SmbParseMemRecords();

// Stores the size of the installed system memory in KiB, or UINT_MAX if it needs more than 32 bits. Returns
// FALSE and leaves *pSize unchanged if there are no tables or no memory array.
BOOL SmbGetTotalMemory(unsigned int* pSize);

// Returns TRUE if a memory array of the system memory detects or corrects errors. Returns FALSE if there are
// no tables.
BOOL SmbChkForECCSupported();
