#include "cli/smbios_old/smbios.h"

#include <algorithm>
#include <cstring>

namespace {

// Returns the number of bytes from `start` to the end of the tables.
size_t BytesFrom(const unsigned char* start) {
    return static_cast<size_t>(pSMBTables + EPS.wSTLength - start);
}

// Returns whether a record starts at `start`: whether the tables contain a header and the whole formatted
// area there.
bool BeginsRecord(const unsigned char* start) {
    const size_t left = BytesFrom(start);
    if (left < sizeof(SMBIOS_HEADER)) return false;
    const size_t formatted = SmbFormattedArea(start).size;
    return formatted >= sizeof(SMBIOS_HEADER) && formatted <= left;
}

unsigned char* StringsOf(unsigned char* record) {
    return record + SmbFormattedArea(record).size;
}

// Returns the size of a record's strings including their NULs, without the NUL that ends the set. A truncated
// set extends to the end of the tables, where InitSMBIOS appended a NUL; so a NUL always follows.
size_t SizeOfStrings(const unsigned char* strings) {
    const size_t left = BytesFrom(strings);
    size_t size = 0;
    do {
        size += std::strlen(reinterpret_cast<const char*>(strings) + size) + 1;
    } while (size < left && strings[size] != 0);
    return std::min(size, left);
}

// Returns the size of a record with its string set: the distance to the next record.
size_t Measure(unsigned char* record) {
    unsigned char* strings = StringsOf(record);
    const unsigned char* end = strings + std::min(SizeOfStrings(strings) + 1, BytesFrom(strings));
    return static_cast<size_t>(end - record);
}

// Returns the stored result of Measure(); 0 at the end of the walk.
uint16_t& SizeOf(const unsigned char* record) {
    return smb_record_sizes[record - pSMBTables];
}

}  // namespace

void SmbMeasureRecords() {
    unsigned char* record = pSMBTables;
    for (; BeginsRecord(record); record += SizeOf(record)) {
        SizeOf(record) = static_cast<uint16_t>(Measure(record));
    }
    SizeOf(record) = 0;
}

Bytes SmbFormattedArea(const void* pRecord) {
    const auto* record = static_cast<const unsigned char*>(pRecord);
    return {record, record[offsetof(SMBIOS_HEADER, byLength)]};
}

BOOL SmbGetRecord(unsigned char** ppRecord) {
    if (pSMBTables == nullptr) return FALSE;
    unsigned char* next = *ppRecord != nullptr ? *ppRecord + SizeOf(*ppRecord) : pSMBTables;
    if (SizeOf(next) == 0) return FALSE;
    *ppRecord = next;
    return TRUE;
}

BOOL SmbGetRecordOfType(unsigned char byType, unsigned char** ppRecord) {
    unsigned char* record = *ppRecord;
    do {
        if (SmbGetRecord(&record) != TRUE) return FALSE;
    } while (record[offsetof(SMBIOS_HEADER, byType)] != byType);
    *ppRecord = record;
    return TRUE;
}

BOOL SmbGetRecordByType(unsigned char byType, unsigned short wCopy, void** ppRecord) {
    unsigned char* pSaveState = nullptr;
    do {
        if (SmbGetRecordOfType(byType, &pSaveState) != TRUE) return FALSE;
    } while (wCopy-- > 0);
    *ppRecord = pSaveState;
    return TRUE;
}

BOOL SmbGetRecordByHandle(unsigned short wHandle, void** ppRecord) {
    unsigned char* pSaveState = nullptr;
    do {
        if (SmbGetRecord(&pSaveState) != TRUE) return FALSE;
    } while (ReadField<uint16_t>(SmbFormattedArea(pSaveState), offsetof(SMBIOS_HEADER, wHandle)) != wHandle);
    *ppRecord = pSaveState;
    return TRUE;
}

unsigned char* SmbGetStringByNumber(void* pRecord, unsigned short wString) {
    if (wString == 0) return nullptr;
    unsigned char* strings = StringsOf(static_cast<unsigned char*>(pRecord));
    const size_t size = SizeOfStrings(strings);
    size_t offset = 0;
    for (; wString > 1 && offset < size; --wString) {
        offset += std::strlen(reinterpret_cast<const char*>(strings) + offset) + 1;
    }
    return strings + std::min(offset, size);
}
