// The pieces of a machine, each read as the shell's commands read it and written as a machine directory has
// it. What the machine refuses is reported and left out. Pieces of a device need the device open and its
// folder made.
#pragma once

#include "savemachine/machine_copy.h"

void SaveTables(MachineCopy& copy);     // the driver's data tables
void SaveTimer(MachineCopy& copy);      // the automatic server recovery timer's state
void SaveVariables(MachineCopy& copy);  // the ROM variables
void SaveEvents(MachineCopy& copy);     // the event log
void SaveFirmware(MachineCopy& copy);   // the BIOS area and the SMBIOS tables
void SavePicl(MachineCopy& copy);       // the management processor's node
