// How each embedded NIC boots: not at all, by PXE or from an iSCSI disk.
#pragma once

#include "cli/command/command.h"

constexpr int kNicBootStates = 10;  // as many NICs as SHOW NIC knows of
struct NicBootStates {
    const char* nic[kNicBootStates];
};
const char* ReadNicBoot(NicBootStates& states);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_nic(InputLineType* InputLine);
int do_enable_nic_pxe(InputLineType* InputLine);
int do_disable_nic_pxe(InputLineType* InputLine);
int do_enable_nic_iscsi(InputLineType* InputLine);
int do_disable_nic_iscsi(InputLineType* InputLine);
