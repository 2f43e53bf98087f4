// What start-up finds out once and commands read, and what it sets up for the whole run.
#pragma once

extern int script_mode;              // 1: the commands come from the command line
extern int smbios_available;         // nonzero: the SMBIOS tables were found
extern int got_kelm;                 // 1: the management processor is on the PCI bus
extern int embedded_nics_installed;  // -1: unknown

// The embedded NICs' addresses: eight entries of 8 bytes, PCI device and function, PCI bus, MAC address.
constexpr int kMaxEmbeddedNics = 8;
constexpr int kNicEntrySize = 8;  // bytes
extern unsigned char zthmac[kMaxEmbeddedNics * kNicEntrySize];

// The command history: a ring of zeroed buffers, and the slot that the next command goes into. What is done
// with it is in cli/parse/history.h.
constexpr int kHistorySlots = 50;
constexpr int kHistorySlotSize = 256;  // bytes
extern char* History[kHistorySlots];
extern int history_index;
