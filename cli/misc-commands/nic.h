// Reads and sets how each embedded NIC boots: not at all, by PXE or from an iSCSI disk.
#pragma once

#include "cli/command/command.h"

constexpr int kNicBootStates = 10;  // SHOW NIC lists the first 10 NICs

struct NicBootStates {
    const char* nic[kNicBootStates];  // "PXE disabled", "PXE enabled", "iSCSI enabled" or "Unknown setting"
};

// Reads how the first NICs boot, whether or not the server has that many. Returns false if the settings can't
// be read. Prints nothing.
bool ReadNicBoot(NicBootStates& states);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_nic(InputLineType* InputLine);
int do_enable_nic_pxe(InputLineType* InputLine);
int do_disable_nic_pxe(InputLineType* InputLine);
int do_enable_nic_iscsi(InputLineType* InputLine);
int do_disable_nic_iscsi(InputLineType* InputLine);
