// What start-up finds out once and commands read: every variable that outlives a command, in one place.
#pragma once

#include "include/smbios_records.h"

struct ZET_CPU;  // cli/smbparse/smbparse.h
struct ZET_CACHE;
struct ZET_MemModule;

extern int script_mode;  // 1: the commands come from the command line
extern int got_kelm;     // 1: the management processor is on the PCI bus

// The health driver's four devices, open from start-up to the end of the run; -1 when one isn't.
extern int cdt_fd;   // data tables
extern int cevt_fd;  // the event log
extern int casr_fd;  // the automatic server recovery timer
extern int crom_fd;  // ROM variables

// The embedded NICs: how many there are, and the entries of the first eight, as their ROM variable has them.
constexpr int kMaxEmbeddedNics = 8;
extern int embedded_nics_installed;  // -1: unknown
extern unsigned char zthmac[kMaxEmbeddedNics * sizeof(smbios_nic)];
// Returns a copy of entry `index` of zthmac, 0 to 7.
smbios_nic EmbeddedNic(int index);

// The private copy of the SMBIOS tables.
extern unsigned char fSMBiosInited;  // TRUE: there is a copy
extern SMBIOSEntryPoint EPS;         // the entry point that was found last
extern unsigned char* pSMBTables;    // EPS.wSTLength bytes, then one more that is 0; null without a copy
extern uint16_t* smb_record_sizes;   // by the record's place in the copy; behind the last record a 0

// The inventory taken from it. A table is filled from its first entry on, without gaps; the first null ends
// its used part.
extern int smbios_available;  // nonzero: the SMBIOS tables were found
extern char system_name[64];  // the product name of the system record; empty when there is none
extern ZET_CPU* gCpu_tbl[11];
extern ZET_CACHE* gCache_tbl[21];  // processor by processor, L2 before L3
extern ZET_MemModule* gMemoryMod[64];
extern int processors_left_out;      // populated, but not in gCpu_tbl: it was full, or memory was short
extern int memory_modules_left_out;  // installed, but not in gMemoryMod, as above

// Whether system_name is that of the one server that can boot from a USB key. It numbers its boot devices and
// restricts its embedded serial ports in ways of its own.
bool is_tr500k2();

// The command history: a ring of buffers in one block of memory, which begins at the first, and the slot that
// the next command goes into. What is done with it is in cli/terminal/history.h.
constexpr int kHistorySlots = 50;
constexpr int kHistorySlotSize = 256;  // bytes
extern char* History[kHistorySlots];
extern int history_index;
