// SHOW PORTMAP: the enclosure bay that each NIC port of a blade is connected to.
#pragma once

#include "cli/command/command.h"

// The handler of SHOW PORTMAP. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_nic_port_mapping(InputLineType* InputLine);
