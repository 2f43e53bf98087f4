// What the firmware's SMBIOS inventory tells the user and the rest of the program.
#pragma once

#include "cli/command/command.h"
#include "cli/command/state.h"

// Whether the machine is of the maker's Corvex line, by its product name. Result: 0 when it is, else 1, with
// a message when there is no system record.
int detect_corvex();

// Fills system_name. Result: 0, or 1 when there are no tables or, with a message, no system record.
int smbios_get_systemname();

// Fills the MAC addresses of zthmac from the maker's NIC record. Result: the number of embedded NICs; -1 when
// SMBIOS doesn't say. Prints nothing.
int get_embedded_nics_smbios();

// Lists the memory modules that SMBIOS knows of, empty sockets left out: what SHOW DIMM shows when the driver
// has no memory tables. Result: 0; 1, with nothing printed, when SMBIOS tells of no socket.
int get_dimminfo_smbios();

// A processor's status, a CpuStatus, as SHOW SERVER calls it.
const char* CpuStatusWord(uint8_t status);

// SHOW SERVER and SHOW PORTMAP. Result: 0, or 1 on failure.
int do_show_server(InputLineType* InputLine);
int do_show_nic_port_mapping(InputLineType* InputLine);
