// Builds SMBIOS tables, record by record, and the entry point that leads to them. Format: DMTF DSP0134.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "include/smbios_records.h"
#include "mkmachine/machine_builder.h"

// One record: its fields in the order in which they stand, each behind the last.
class SmbiosRecord {
  public:
    SmbiosRecord(uint8_t type, uint16_t handle);

    SmbiosRecord& Byte(unsigned value) { return Number(value, 1); }
    SmbiosRecord& Word(unsigned value) { return Number(value, 2); }
    SmbiosRecord& Dword(uint32_t value) { return Number(value, 4); }
    SmbiosRecord& Qword(uint64_t value) { return Number(value, 8); }
    // A string field: adds the text to the record's strings and its number to the fields; 0 for no text.
    SmbiosRecord& Text(const std::string& text);
    // Ends the formatted area after length bytes, as firmware of an older version does.
    SmbiosRecord& CutTo(size_t length);

    // The record as the tables hold it, its string set included.
    std::string Bytes() const;

  private:
    SmbiosRecord& Number(uint64_t value, int bytes);

    std::string formatted_;
    std::string strings_;
    int string_count_ = 0;
};

class SmbiosTable {
  public:
    // minor_version: of version 2, as the entry point tells it.
    explicit SmbiosTable(uint8_t minor_version = 6) : minor_version_(minor_version) {}

    SmbiosTable& Add(const SmbiosRecord& record);

    const std::string& Bytes() const { return bytes_; }
    // The entry point of these tables when they are at a physical address.
    SMBIOSEntryPoint EntryPoint(uint32_t address) const;

  private:
    std::string bytes_;
    size_t largest_record_ = 0;
    unsigned records_ = 0;
    uint8_t minor_version_;
};

// Sets both of an entry point's checksums, the intermediate one first.
void SetChecksums(SMBIOSEntryPoint& entry);

// Where mkmachine puts tables and their entry point.
constexpr uint32_t kTablesAddress = 0xE8000;
constexpr uint32_t kEntryPointAddress = 0xF5000;

// Leaves tables in a machine's physical memory, with the entry point that finds them.
void AddTables(MachineBuilder& machine, const SmbiosTable& table);
