// What the firmware's SMBIOS inventory tells the user and the rest of the program.
#pragma once

#include "cli/parse/input_line.h"

// The product name of the SMBIOS system record; empty when there is none.
extern char system_name[64];

// SHOW SERVER and SHOW PORTMAP. Result: 0, or 1 on failure.
int do_show_server(InputLineType* InputLine);
int do_show_nic_port_mapping(InputLineType* InputLine);
