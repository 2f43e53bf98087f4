// Builds SMBIOS records (DMTF DSP0134): standard records with all fields of version 2.6, and OEM
// (vendor-specific) records.
#pragma once

#include <string>
#include <vector>

#include "mkmachine/smbios_table.h"

// Codes of the standard: chassis types, form factors and types of memory devices, error correction of memory
// arrays, the status of a processor socket, details of memory types.
constexpr uint8_t kRackMount = 0x17;
constexpr uint8_t kBlade = 0x1C;
constexpr uint8_t kDimm = 0x09;
constexpr uint8_t kFbDimm = 0x0F;
constexpr uint8_t kDdr2 = 0x13;
constexpr uint8_t kDdr2FullyBuffered = 0x14;
constexpr uint8_t kSingleBitEcc = 5;
constexpr uint8_t kMultiBitEcc = 6;
constexpr uint8_t kEmptySocket = 0;
constexpr uint16_t kSynchronous = 0x0080;

SmbiosRecord BiosRecord(const std::string& version, const std::string& date);
SmbiosRecord SystemRecord(const std::string& product, const std::string& serial);
SmbiosRecord ChassisRecord(uint8_t kind, const std::string& serial);

struct Processor {
    uint16_t handle;
    const char* socket;
    uint16_t speed = 0;  // MHz
    uint8_t cores = 0;
    uint8_t threads = 0;
    uint16_t l1_cache = kNoHandle;
    uint16_t l2_cache = kNoHandle;
    uint16_t l3_cache = kNoHandle;
    uint8_t status = 0x41;  // the socket is populated and the processor enabled; or kEmptySocket
    uint8_t type = smbios::Processor::kCentral;
    uint8_t family = 0xB3;
    uint32_t id = 0x000106A5;  // first part of the processor's ID; the low four bits are the stepping
    uint16_t bus = 1333;       // bus clock in MHz
};
SmbiosRecord ProcessorRecord(const Processor& part);

// Returns the length of the formatted area in version 2.`minor_version` of the standard. `minor_version` is
// at least 3.
constexpr size_t ProcessorLength(uint8_t minor_version) {
    return minor_version < 5 ? 35 : minor_version < 6 ? 40 : 42;
}

struct Cache {
    uint16_t handle;
    const char* name;
    uint8_t level;  // cache level, from 1
    uint16_t size;  // in KiB, or in 64 KiB if bit 15 is set
};
SmbiosRecord CacheRecord(const Cache& part);

struct MemoryArray {
    uint16_t handle = kNoHandle;
    uint32_t capacity = 0;  // KiB
    uint8_t sockets = 0;
    uint8_t error_correction = kMultiBitEcc;
    uint8_t use = smbios::MemoryArray::kSystemMemory;
};
SmbiosRecord MemoryArrayRecord(const MemoryArray& part);

struct MemoryDevice {
    uint16_t handle;
    uint16_t array;
    const char* locator;
    uint16_t size;       // in MiB, or in KiB if bit 15 is set; 0: the socket is empty
    uint16_t speed = 0;  // MHz
    uint8_t form_factor = kDimm;
    uint8_t type = kDdr2;
    uint16_t type_detail = kSynchronous;
};
SmbiosRecord MemoryDeviceRecord(const MemoryDevice& part);

// Returns the length of the formatted area in version 2.`minor_version` of the standard.
constexpr size_t MemoryDeviceLength(uint8_t minor_version) {
    return minor_version < 6 ? 27 : 28;
}

// Returns the record that maps a memory array to the physical addresses from 0 on. `size` is in KiB and isn't
// 0.
SmbiosRecord MappedAddressRecord(uint16_t handle, uint16_t array, uint32_t size);

SmbiosRecord BootRecord(uint16_t handle);
SmbiosRecord EndRecord(uint16_t handle);

// OEM (vendor-specific) records.
SmbiosRecord ProcInfoRecord(uint16_t handle, uint16_t processor, uint8_t socket);
SmbiosRecord DimmLocationRecord(uint16_t handle, uint16_t device, uint8_t slot, uint8_t socket);
SmbiosRecord RackRecord(uint16_t handle, const std::string& enclosure, const std::string& bay);
SmbiosRecord NicRecord(uint16_t handle, const std::vector<smbios_nic>& nics);

struct MappedPort {
    int connector, port;  // position of the entry: indexes of its connector and port
    GBX_PORT_MAP entry;
};
SmbiosRecord PortMapRecord(uint16_t handle, const std::vector<MappedPort>& ports);
