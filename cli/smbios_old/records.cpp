// The walk over the copy, and the lookups that it serves.
#include <algorithm>
#include <cstring>

#include "cli/smbios_old/tables.h"

namespace {

size_t BytesFrom(const unsigned char* place) {
    return static_cast<size_t>(pSMBTables + EPS.wSTLength - place);
}

bool BeginsRecord(const unsigned char* place) {
    const size_t left = BytesFrom(place);
    if (left < sizeof(SMBIOS_HEADER)) return false;
    const size_t formatted = SmbFormattedArea(place).size;
    return formatted >= sizeof(SMBIOS_HEADER) && formatted <= left;
}

// A record's strings with a zero behind each, without the zero that closes the set. A set that the tables'
// end cuts reaches up to there, where InitSMBIOS left a zero: in either case one follows the last byte.
Bytes StringSet(const unsigned char* record) {
    const unsigned char* start = record + SmbFormattedArea(record).size;
    const size_t left = BytesFrom(start);
    for (size_t i = 1; i < left; ++i) {
        if (start[i - 1] == 0 && start[i] == 0) return {start, i};
    }
    return {start, left};
}

}  // namespace

Bytes SmbFormattedArea(const void* pRecord) {
    const auto* record = static_cast<const unsigned char*>(pRecord);
    return {record, record[offsetof(SMBIOS_HEADER, byLength)]};
}

BOOL SmbGetRecord(unsigned char** ppRecord) {
    if (pSMBTables == nullptr) return FALSE;
    unsigned char* next = pSMBTables;
    if (*ppRecord != nullptr) {
        const Bytes strings = StringSet(*ppRecord);
        const size_t closed = std::min(strings.size + 1, BytesFrom(strings.data));
        next += strings.data + closed - pSMBTables;
    }
    if (!BeginsRecord(next)) return FALSE;
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
    } while (SmbRead(pSaveState, kRecordHandle) != wHandle);
    *ppRecord = pSaveState;
    return TRUE;
}

unsigned char* SmbGetStringByNumber(void* pRecord, unsigned short wString) {
    if (wString == 0) return nullptr;
    auto* record = static_cast<unsigned char*>(pRecord);
    const Bytes set = StringSet(record);
    size_t offset = 0;
    for (; wString > 1 && offset < set.size; --wString) {
        offset += std::strlen(reinterpret_cast<const char*>(set.data) + offset) + 1;
    }
    return record + SmbFormattedArea(record).size + std::min(offset, set.size);
}

const char* SmbText(void* pRecord, SmbField<uint8_t> field) {
    const unsigned char* text = SmbGetStringByNumber(pRecord, SmbRead(pRecord, field));
    return text != nullptr ? reinterpret_cast<const char*>(text) : "";
}
