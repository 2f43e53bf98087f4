// The records of the copied SMBIOS tables: the walk over them, and the lookups by type, by handle and by
// string number. Records and strings are pointers into the copy (tables.h).
//
// The walk ends before a record whose formatted area extends beyond the tables; only the strings of the last
// record may be truncated. Lookups print nothing. A lookup that finds nothing leaves its out-pointer
// unchanged. If there are no tables, no lookup finds anything.
#pragma once

#include <cstring>
#include <type_traits>

#include "cli/command/state.h"
#include "include/smbios_records.h"
#include "src/utils/bytes.h"

using BOOL = unsigned char;
constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

// Fills smb_record_sizes, for InitSMBIOS(). A run visits each record about a dozen times, and finding the end
// of its strings on every visit would take longer than reading its fields.
void SmbMeasureRecords();

// Moves *ppRecord to the next record in table order; from null to the first record. Returns FALSE at the end.
BOOL SmbGetRecord(unsigned char** ppRecord);
// Moves *ppRecord to the next record of type `byType`. Returns FALSE at the end.
BOOL SmbGetRecordOfType(unsigned char byType, unsigned char** ppRecord);

// Finds record number `wCopy` (from 0, in table order) of a type. Returns FALSE if there are fewer.
BOOL SmbGetRecordByType(unsigned char byType, unsigned short wCopy, void** ppRecord);
// Finds the first record with the handle `wHandle`, of any type.
BOOL SmbGetRecordByHandle(unsigned short wHandle, void** ppRecord);

// Returns a record's string number `wString`, counted from 1. Returns null for number 0, and "" if the record
// has fewer strings.
unsigned char* SmbGetStringByNumber(void* pRecord, unsigned short wString);

// Returns a record's formatted area, which contains its fields. Its size is the length in the record's
// header.
Bytes SmbFormattedArea(const void* pRecord);

// A record of one type: a pointer and the length of the formatted area. Only fields of that type can be read
// from it. If the pointer is null (a null record), every field is missing.
template <typename Layout>
class SmbRecord {
  public:
    SmbRecord() = default;
    // `pRecord`: a record, or null. If it is of another type, the result is a null record.
    explicit SmbRecord(void* pRecord) {
        if (pRecord == nullptr) return;
        const Bytes formatted = SmbFormattedArea(pRecord);
        if (formatted.data[offsetof(SMBIOS_HEADER, byType)] != Layout::kType) return;
        record_ = pRecord;
        formatted_ = formatted;
    }
    explicit operator bool() const { return record_ != nullptr; }

    template <typename Unsigned>
    Unsigned Read(SmbField<Layout, Unsigned> field) const {
        return ReadField<Unsigned>(formatted_, field.offset, field.missing);
    }
    // Returns whether the record is long enough for `field`.
    template <typename Unsigned>
    bool Has(SmbField<Layout, Unsigned> field) const {
        return formatted_.size >= field.offset + sizeof(Unsigned);
    }
    uint16_t Handle() const { return ReadField<uint16_t>(formatted_, offsetof(SMBIOS_HEADER, wHandle)); }

    // Returns the string whose number is in `field`, or "" for number 0.
    const char* Text(SmbString<Layout> field) const {
        const uint8_t number = ReadField<uint8_t>(formatted_, field.offset);
        return number != 0 ? reinterpret_cast<const char*>(SmbGetStringByNumber(record_, number)) : "";
    }

    // Returns the number of complete entries in the record.
    template <typename Entry>
    size_t Count(SmbArray<Layout, Entry> array) const {
        return formatted_.size > array.offset ? (formatted_.size - array.offset) / sizeof(Entry) : 0;
    }
    // Returns an entry. Bytes beyond the record's end are 0.
    template <typename Entry>
    Entry Read(SmbArray<Layout, Entry> array, size_t index) const {
        static_assert(std::is_trivially_copyable_v<Entry> && alignof(Entry) == 1, "an entry is plain bytes");
        const size_t start = array.offset + index * sizeof(Entry);
        uint8_t bytes[sizeof(Entry)];
        for (size_t i = 0; i < sizeof bytes; ++i) bytes[i] = ReadField<uint8_t>(formatted_, start + i);
        Entry entry;
        std::memcpy(&entry, bytes, sizeof entry);
        return entry;
    }

  private:
    void* record_ = nullptr;
    Bytes formatted_ = {nullptr, 0};
};

// Pointers to OEM (vendor-specific) records, by their documented names.
using PZTSMBIOS_ZET_PROC_INFO = SmbRecord<ZTSMBIOS_ZET_PROC_INFO>;
using PZTSMBIOS_ZET_RACK_INFO = SmbRecord<ZTSMBIOS_ZET_RACK_INFO>;

// Returns the first record of a type, or a null record.
template <typename Layout>
SmbRecord<Layout> SmbFirst() {
    void* record = nullptr;
    SmbGetRecordByType(Layout::kType, 0, &record);
    return SmbRecord<Layout>(record);
}

// Returns the first record with a handle. Returns a null record if there is none, or if it is of another
// type.
template <typename Layout>
SmbRecord<Layout> SmbWithHandle(uint16_t handle) {
    void* record = nullptr;
    if (handle != kNoHandle) SmbGetRecordByHandle(handle, &record);
    return SmbRecord<Layout>(record);
}

// Iterates over the records of a type in table order:
//     for (const auto cache : SmbRecords<smbios::Cache>()) ...
template <typename Layout>
class SmbRecords {
  public:
    class Iterator {
      public:
        explicit Iterator(unsigned char* record) : record_(record) {}
        SmbRecord<Layout> operator*() const { return SmbRecord<Layout>(record_); }
        Iterator& operator++() {
            if (SmbGetRecordOfType(Layout::kType, &record_) != TRUE) record_ = nullptr;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return record_ != other.record_; }

      private:
        unsigned char* record_;
    };
    Iterator begin() const { return ++Iterator(nullptr); }
    Iterator end() const { return Iterator(nullptr); }
};
