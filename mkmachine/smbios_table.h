// Builds SMBIOS tables and their entry point (DMTF DSP0134).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "include/smbios_records.h"
#include "mkmachine/machine_builder.h"

// A record under construction. Each call appends a field to it.
class SmbiosRecord {
  public:
    SmbiosRecord(uint8_t type, uint16_t handle);

    SmbiosRecord& Byte(unsigned value) { return Number(value, 1); }
    SmbiosRecord& Word(unsigned value) { return Number(value, 2); }
    SmbiosRecord& Dword(uint32_t value) { return Number(value, 4); }
    SmbiosRecord& Qword(uint64_t value) { return Number(value, 8); }
    // Appends a string field: adds `text` to the record's strings and the number of the string to the fields.
    // An empty string has the number 0 and isn't added.
    SmbiosRecord& Text(const std::string& text);
    // Truncates the formatted area to `length` bytes, as in an older version of the standard.
    SmbiosRecord& TruncateTo(size_t length);

    // Returns the record with its strings, in the format of the tables.
    std::string Bytes() const;

  private:
    SmbiosRecord& Number(uint64_t value, int bytes);

    std::string formatted_;
    std::string strings_;
    int string_count_ = 0;
};

class SmbiosTable {
  public:
    // `minor_version` is the minor version in the entry point; the major version is 2.
    explicit SmbiosTable(uint8_t minor_version = 6) : minor_version_(minor_version) {}

    SmbiosTable& Add(const SmbiosRecord& record);

    const std::string& Bytes() const { return bytes_; }
    // Returns the entry point for these tables when they are stored at the physical address `address`.
    SMBIOSEntryPoint EntryPoint(uint32_t address) const;

  private:
    std::string bytes_;
    size_t largest_record_ = 0;
    unsigned records_ = 0;
    uint8_t minor_version_;
};

// Computes the two checksums of an entry point and stores them in it.
void SetChecksums(SMBIOSEntryPoint& entry);

// The physical addresses at which mkmachine stores the tables and their entry point.
constexpr uint32_t kTablesAddress = 0xE8000;
constexpr uint32_t kEntryPointAddress = 0xF5000;

// Writes tables and their entry point into the physical memory of a machine.
void AddTables(MachineBuilder& machine, const SmbiosTable& table);
