// What the firmware leaves in physical memory, and what the system makes of the PCI bus.
#pragma once

#include "tools/mkmachine/machine_builder.h"

// The last 64 KiB below 1 MiB, with the maker's signature in them.
void AddRomSignature(MachineBuilder& machine);
