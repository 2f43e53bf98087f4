// What start-up learns from the firmware: whether it runs on the maker's servers at all, and what is in this
// one.
#pragma once

// False, with a message, when the ROM isn't the maker's.
bool CheckRom();

// Copies the SMBIOS tables, if there are any, into smbios_available, the inventory and system_name.
// False, with a message and the copy released, when they are those of another line of servers.
bool ReadFirmwareTables();

// Fills embedded_nics_installed and zthmac, from SMBIOS or else from the ROM; what neither knows is reported.
void CountEmbeddedNics();
