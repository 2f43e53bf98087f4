// The inventory of processors, caches and memory modules, read from the SMBIOS tables once at start-up. It is
// stored in gCpu_tbl, gCache_tbl and gMemoryMod, whose records are allocated one by one and live until the
// program ends. If a table is full or memory runs out, the record is left out; left-out processors and
// installed memory modules are counted in processors_left_out and memory_modules_left_out.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"

// Parses the first decimal number in the word after the word `pToken`: 2 in "Proc 2" or "PROC #2". Words are
// separated by spaces and TABs, and their case is ignored; only the first word that equals `pToken` is
// considered. Returns FALSE and leaves *piValue unchanged if the word after it is missing or contains no
// digit.
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
