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

// Measures the records of the copy, for InitSMBIOS. The program comes to each of them some dozen times; to
// find the end of its strings each time took more than all that it reads.
void SmbMeasureRecords();

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

// The part of a record that its fields stand in, as long as the record says.
Bytes SmbFormattedArea(const void* pRecord);

// A record of a type: a pointer that knows how long the formatted area is, and from which only fields of that
// type can be read. When it is null, every field is missing.
template <typename Layout>
class SmbRecord {
  public:
    SmbRecord() = default;
    // pRecord: a record of any type, or null. One of another type becomes null.
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
    // Whether the record is long enough for a field.
    template <typename Unsigned>
    bool Has(SmbField<Layout, Unsigned> field) const {
        return formatted_.size >= field.offset + sizeof(Unsigned);
    }
    uint16_t Handle() const { return ReadField<uint16_t>(formatted_, offsetof(SMBIOS_HEADER, wHandle)); }

    // The string that a field names; "" when it names none.
    const char* Text(SmbString<Layout> field) const {
        const uint8_t number = ReadField<uint8_t>(formatted_, field.offset);
        return number != 0 ? reinterpret_cast<const char*>(SmbGetStringByNumber(record_, number)) : "";
    }

    // How many whole entries the record is long enough for.
    template <typename Entry>
    size_t Count(SmbArray<Layout, Entry> array) const {
        return formatted_.size > array.offset ? (formatted_.size - array.offset) / sizeof(Entry) : 0;
    }
    // An entry, each byte of it 0 where the record is too short for it.
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

// The names that the maker gives to pointers to its records.
using PZTSMBIOS_ZET_PROC_INFO = SmbRecord<ZTSMBIOS_ZET_PROC_INFO>;
using PZTSMBIOS_ZET_RACK_INFO = SmbRecord<ZTSMBIOS_ZET_RACK_INFO>;

// The first record of a type; null when there is none.
template <typename Layout>
SmbRecord<Layout> SmbFirst() {
    void* record = nullptr;
    SmbGetRecordByType(Layout::kType, 0, &record);
    return SmbRecord<Layout>(record);
}

// The first record with a handle; null when there is none, or when it is of another type.
template <typename Layout>
SmbRecord<Layout> SmbWithHandle(uint16_t handle) {
    void* record = nullptr;
    if (handle != kNoHandle) SmbGetRecordByHandle(handle, &record);
    return SmbRecord<Layout>(record);
}

// The records of a type in table order: for (const auto cache : SmbRecords<smbios::Cache>()) ...
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
