// SHOW PORTMAP: the enclosure bay that each NIC port of a blade is connected to.
#pragma once

#include "cli/command/command.h"

// A row of the listing.
struct BladePort {
    int slot;       // 0: the system board
    int slot_port;  // its number in the slot
    int bay;
    int bay_port;
};

struct PortMap {
    int version;  // of the firmware's table
    int count;
    BladePort port[32];
};

// NoRack: the server isn't a blade.
enum class PortMapRead { Done, NoTables, NoRack, NoBayNumber, NoMap };

// Reads the ports that are connected. Prints nothing.
PortMapRead ReadPortMap(PortMap& map);

// The handler of SHOW PORTMAP. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_nic_port_mapping(InputLineType* InputLine);
