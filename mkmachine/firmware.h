// What firmware stores in memory, and the PICL tree.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "mkmachine/firmware_records.h"
#include "mkmachine/machine_builder.h"
#include "mkmachine/smbios_table.h"

constexpr uint16_t kArray = 0x1000;  // the handle of a model's only memory array

// Physical locations of parts, as OEM records state them.
struct ProcessorLocation {
    uint16_t processor;  // the handle of its record
    uint8_t socket;      // from 1, the socket of the boot processor
};
struct ModuleLocation {
    uint16_t device;  // the handle of its record
    uint8_t board, socket;
};
struct BladeLocation {
    const char* enclosure;
    const char* bay;
};

// The contents of the SMBIOS tables; each list is in table order. The initializers are the defaults; each
// model assigns the members that differ. List processors that have locations from the highest socket to the
// lowest: the inventory reads the records from the last to the first and numbers such processors in that
// order.
struct Hardware {
    const char* rom_version = "";
    const char* rom_date = "";
    uint8_t smbios_minor_version = 6;  // of version 2
    const char* serial = "";
    uint8_t chassis = kRackMount;
    std::vector<Cache> caches = {};
    std::vector<Processor> processors = {};
    MemoryArray array = {};
    std::vector<MemoryDevice> devices = {};
    // OEM records. Firmware may have none of them.
    std::vector<smbios_nic> nics = {};
    std::vector<ProcessorLocation> processor_locations = {};
    std::vector<ModuleLocation> module_locations = {};
    std::optional<BladeLocation> blade = {};
    std::vector<MappedPort> ports = {};
};

// Returns the SMBIOS tables.
SmbiosTable TablesOf(const std::string& product_name, const Hardware& hardware);

// Writes the last 64 KiB below 1 MiB, with the maker's signature in them.
void AddRomSignature(MachineBuilder& machine);

// Writes the PICL tree, which shows whether the server has a management processor.
enum class Kelm { Absent, Present };
void AddPicl(MachineBuilder& machine, Kelm kelm);
