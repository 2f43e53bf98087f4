// The firmware's SMBIOS tables: one private copy, taken at start-up and walked record by record.
// Owner:  this module, from InitSMBIOS to DeinitSMBIOS; records and strings point into its copy.
// Errors: the walk stops at the first record that isn't wholly within the tables; only the last one's strings
//         may be cut short. Lookups print nothing. They leave their out-pointer alone when they find nothing,
//         which is always so without tables.
#pragma once

#include <cstring>
#include <type_traits>

#include "cli/command/state.h"
#include "include/smbios_records.h"
#include "src/utils/bytes.h"

using BOOL = unsigned char;
constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

// Finds the entry point in the BIOS area and copies the tables. Result: FALSE when there is no usable entry
// point (version 2.1 or later), the memory can't be read or there is none to copy to. A BIOS area that can't
// be read is reported.
BOOL InitSMBIOS();
// Frees the copy; harmless without one.
void DeinitSMBIOS();
// TRUE while there is a copy.
BOOL IsSMBIOSAvailable();

// Copies physical memory. offset: its address. buffer: at least size bytes; left as it was on failure.
// Result: FALSE, with a line on standard error, when the memory can't be read.
BOOL ReadPhysMem(unsigned int offset, unsigned int size, unsigned char* buffer);

// Moves *ppRecord to the next record in table order; from null to the first. FALSE at the end.
BOOL SmbGetRecord(unsigned char** ppRecord);
// The same among the records of a type.
BOOL SmbGetRecordOfType(unsigned char byType, unsigned char** ppRecord);

// The wCopy-th record (from 0, in table order) of a type; FALSE when there are fewer.
BOOL SmbGetRecordByType(unsigned char byType, unsigned short wCopy, void** ppRecord);
// The first record with a handle, whatever its type.
BOOL SmbGetRecordByHandle(unsigned short wHandle, void** ppRecord);

// A record's string, numbered from 1. Null for 0, "" for a number that the record lacks.
unsigned char* SmbGetStringByNumber(void* pRecord, unsigned short wString);
// The string that a field of a record names; "" when it names none.
const char* SmbText(void* pRecord, SmbField<uint8_t> field);

// The part of a record that its fields stand in, as long as the record says.
Bytes SmbFormattedArea(const void* pRecord);

// A field of a record.
template <typename Unsigned>
Unsigned SmbRead(const void* pRecord, SmbField<Unsigned> field) {
    return ReadField<Unsigned>(SmbFormattedArea(pRecord), field.offset, field.missing);
}

// An entry of an array in a record: single bytes and bit fields within them, each 0 where the record is too
// short for it.
template <typename Entry>
Entry SmbReadEntry(const void* pRecord, size_t offset) {
    static_assert(std::is_trivially_copyable_v<Entry>, "an entry is plain bytes");
    uint8_t bytes[sizeof(Entry)];
    for (size_t i = 0; i < sizeof bytes; ++i) bytes[i] = SmbRead(pRecord, SmbField<uint8_t>{offset + i});
    Entry entry;
    std::memcpy(&entry, bytes, sizeof entry);
    return entry;
}
