// The copy of the SMBIOS tables, for this module's own files.
#pragma once

#include "cli/smbios_old/smbios.h"

extern BOOL fSMBiosInited;         // TRUE: there is a copy
extern SMBIOSEntryPoint EPS;       // the entry point that was found last
extern unsigned char* pSMBTables;  // EPS.wSTLength bytes, then one more that is 0; null without a copy
