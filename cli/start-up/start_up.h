// The start-up steps that brantcli, savemachine and brantexport share. `program` is the program's name, which
// the messages contain.
#pragma once

// Searches the BIOS area for the maker's signature. Returns 0 if the signature is there; returns 1 if it
// isn't, or if the area can't be mapped. Prints nothing.
int detect_zet_rom();

// Checks that the user is root. Otherwise prints a message and returns false.
bool CheckUser(const char* program = "brantcli");

// Checks that the server has the maker's ROM. Otherwise prints a message and returns false.
bool CheckRom(const char* program = "brantcli");

// Copies the SMBIOS tables and fills smbios_available, the inventory and system_name. Returns true if there
// are no tables. If the tables belong to another line of servers, frees the copy, prints a message and
// returns false.
bool ReadFirmwareTables(const char* program = "brantcli");

// Fills embedded_nics_installed and zthmac from the SMBIOS tables, or from the ROM variable if the tables
// don't contain the NICs.
void FindEmbeddedNics();

// Calls FindEmbeddedNics, and prints a message if the number of NICs is unknown.
void CountEmbeddedNics();
