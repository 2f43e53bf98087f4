// The inventory of processors, caches and memory modules, which is read from the SMBIOS tables once, at
// start-up. It is stored in gCpu_tbl, gCache_tbl and gMemoryMod. Their records are allocated one by one and
// live until the program ends. If a table is full or memory runs out, a record is omitted; the omitted
// processors and installed memory modules are counted in processors_left_out and memory_modules_left_out.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

// Parses the first decimal number in the word that follows the word `pToken`: 2 in "Proc 2" or "PROC #2".
// Spaces and TABs separate words, and case is ignored. If `pToken` occurs several times, only the first
// occurrence counts. Returns FALSE and leaves *piValue unchanged if no word follows it, or if that word
// contains no digit.
BOOL ParseNumFromString(const char* pStr, const char* pToken, int* piValue);

// Appends a zeroed record to an inventory table and returns it. Returns null if the table is full or memory
// runs out.
template <typename Record, size_t kEntries>
Record* AppendRecord(Record* (&table)[kEntries]) {
    Record** next = std::find(std::begin(table), std::end(table), nullptr);
    if (next == std::end(table)) return nullptr;
    *next = static_cast<Record*>(std::calloc(1, sizeof(Record)));
    return *next;
}
