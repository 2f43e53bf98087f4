// SHOW SERVER, and other code that uses the SMBIOS inventory: the memory modules of SHOW DIMM, and start-up
// steps.
#pragma once

#include <cstdint>

#include "cli/command/command.h"

// Returns 0 if the product name starts with "corvex", ignoring case, else 1. Prints a message if there is no
// system record.
int detect_corvex();

// Fills system_name and returns 0. Returns 1 if there are no tables. If there is no system record, prints a
// message and returns 1.
int smbios_get_systemname();

// Copies the MAC addresses of the first eight NICs of the OEM NIC record into zthmac. Returns the number of
// embedded NICs, or -1 if there are no tables or no such record. Prints nothing.
int get_embedded_nics_smbios();

// Prints the installed memory modules of gMemoryMod, for SHOW DIMM when the driver has no memory tables.
// Returns 0, or 1 with nothing printed if gMemoryMod is empty.
int get_dimminfo_smbios();

// Returns the word that SHOW SERVER prints for a CpuStatus.
const char* CpuStatusWord(uint8_t status);

// The handler of SHOW SERVER. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_server(InputLineType* InputLine);
