// The start-up steps that the shell, savemachine and brantexport share: whether the program may run here, and
// what is in this server. `program` is the program's name, for the messages.
#pragma once

// Looks for the maker's signature in the BIOS area. Result: 0 when it is there, 1 when it isn't or when the
// area can't be mapped. Prints nothing.
int detect_zet_rom();

// False, with a message, when the user isn't root.
bool CheckUser(const char* program = "brantcli");

// False, with a message, when the ROM isn't the maker's.
bool CheckRom(const char* program = "brantcli");

// Copies the SMBIOS tables, if there are any, into smbios_available, the inventory and system_name.
// False, with a message and the copy released, when they are those of another line of servers.
bool ReadFirmwareTables(const char* program = "brantcli");

// Both fill embedded_nics_installed and zthmac, from SMBIOS or else from the ROM. CountEmbeddedNics also says
// so when neither knows the NICs.
void FindEmbeddedNics();
void CountEmbeddedNics();
