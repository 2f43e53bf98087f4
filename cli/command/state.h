// The program's state: the variables that start-up fills and commands read, and the command history.
//
// Only these modules have other state that lasts from one command to the next:
// - cli/command/command.h: the command line and the node that it names
// - cli/parse/command_tree: the tree, which doesn't change after start-up
// - cli/terminal: the terminal settings to restore, and whether the next TAB or ESC can be the second of a
//   pair
// - src/utils: the page size, and the original mode of standard output
// The tests' ResetState() resets all of this except the mode of standard output, which no test changes in its
// own process.
#pragma once

#include "include/smbios_records.h"

struct ZET_CPU;  // declared in cli/smbparse/processors.h and memory_inventory.h
struct ZET_CACHE;
struct ZET_MemModule;

extern int script_mode;  // 1: the commands come from the program's arguments
extern int got_kelm;     // 1: the management processor is on the PCI bus

// The health driver's four devices, open from start-up to the end of the run; -1 if closed.
extern int cdt_fd;   // data tables
extern int cevt_fd;  // the event log
extern int casr_fd;  // the automatic server recovery timer
extern int crom_fd;  // ROM variables

// The embedded NICs: their number, and the entries of the first eight in the format of the ROM variable
// ZTHMAC.
constexpr int kMaxEmbeddedNics = 8;
extern int embedded_nics_installed;  // -1: the number is unknown
extern unsigned char zthmac[kMaxEmbeddedNics * sizeof(smbios_nic)];
// Returns a copy of entry `index` of zthmac, 0 to 7.
smbios_nic EmbeddedNic(int index);

// The private copy of the SMBIOS tables.
extern unsigned char fSMBiosInited;  // TRUE: the tables have been copied
extern SMBIOSEntryPoint EPS;         // the entry point that was found last
extern unsigned char* pSMBTables;    // EPS.wSTLength bytes and a NUL; null if there is no copy
extern uint16_t* smb_record_sizes;   // size of each record in bytes, in table order; the list ends with a 0

// The inventory that was read from the SMBIOS tables. Each array is used from its first element on, up to the
// first null pointer.
extern int smbios_available;  // nonzero: the SMBIOS tables were found
extern char system_name[64];  // the product name of the system record; empty when there is none
extern ZET_CPU* gCpu_tbl[11];
extern ZET_CACHE* gCache_tbl[21];  // caches in the order of their processors, L2 before L3
extern ZET_MemModule* gMemoryMod[64];
extern int processors_left_out;      // processors without an entry: the table or memory was full
extern int memory_modules_left_out;  // installed modules without an entry

// Returns whether system_name is "Corvex TR500 K2". This server can boot from a USB key, numbers its boot
// devices differently, and restricts its embedded serial ports more than others.
bool is_tr500k2();

// The command history, a ring of buffers; cli/terminal/history.h declares its functions. History[0] points to
// one block of memory that contains all buffers. history_index is the slot for the next command.
constexpr int kHistorySlots = 50;
constexpr int kHistorySlotSize = 256;  // in bytes
extern char* History[kHistorySlots];
extern int history_index;
