// The firmware's SMBIOS tables: one private copy, made at start-up. This module owns it, from InitSMBIOS() to
// DeinitSMBIOS().
#pragma once

#include "cli/smbios_old/smbios.h"

// Searches a copy of the BIOS area for the entry point (version 2.1 or later) and copies the tables. Returns
// FALSE if there is no valid entry point, the tables are empty, physical memory can't be read or memory runs
// out. Prints a message only if physical memory can't be read.
BOOL InitSMBIOS();
// Frees the copy, if there is one. Doesn't change EPS.
void DeinitSMBIOS();
// Returns TRUE while there is a copy.
BOOL IsSMBIOSAvailable();

// Copies `size` bytes of physical memory from address `offset` to `buffer`. If they can't be mapped, prints a
// line on standard error and returns FALSE with `buffer` unchanged.
BOOL ReadPhysMem(unsigned int offset, unsigned int size, unsigned char* buffer);
