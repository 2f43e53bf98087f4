// The parts of a machine that the program saves. Each function reads one part of a machine, in the same way
// as the shell's commands, and writes it into the copy. If a part can't be read, it prints a message and
// omits the part. Before the parts of a device can be saved, the device must be open and its directory
// created.
#pragma once

#include "savemachine/machine_copy.h"

void SaveTables(MachineCopy& copy);     // the driver's data tables
void SaveTimer(MachineCopy& copy);      // the automatic server recovery timer's state
void SaveVariables(MachineCopy& copy);  // the ROM variables
void SaveEvents(MachineCopy& copy);     // the event log
void SaveFirmware(MachineCopy& copy);   // the BIOS area and the SMBIOS tables
void SavePicl(MachineCopy& copy);       // the management processor's node
