// Writes the data of a server's firmware: the SMBIOS tables, the maker's signature, and the PICL tree.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "mkmachine/firmware_records.h"
#include "mkmachine/machine_builder.h"
#include "mkmachine/smbios_table.h"

constexpr uint16_t kArray = 0x1000;  // handle of the only memory array of a model

// Physical locations of processors and memory modules, as the OEM records state them.
struct ProcessorLocation {
    uint16_t processor;  // handle of the processor's record
    uint8_t socket;      // socket number, from 1, which is the boot processor's
};
struct ModuleLocation {
    uint16_t device;  // handle of the memory device's record
    uint8_t board, socket;
};
struct BladeLocation {
    const char* enclosure;
    const char* bay;
};

// The contents of the SMBIOS tables; each list is in table order. The initializers are the defaults; each
// model assigns the members that differ.
//
// If processors have OEM records, list them from the highest socket to the lowest: the inventory reads the
// records from the last to the first, and numbers such processors in that order.
struct Hardware {
    const char* rom_version = "";
    const char* rom_date = "";
    uint8_t smbios_minor_version = 6;  // the major version is 2
    const char* serial = "";
    uint8_t chassis = kRackMount;
    std::vector<Cache> caches = {};
    std::vector<Processor> processors = {};
    MemoryArray array = {};
    std::vector<MemoryDevice> devices = {};
    // Contents of OEM records. A list may be empty: not all firmware has these records.
    std::vector<smbios_nic> nics = {};
    std::vector<ProcessorLocation> processor_locations = {};
    std::vector<ModuleLocation> module_locations = {};
    std::optional<BladeLocation> blade = {};
    std::vector<MappedPort> ports = {};
};

// Returns the SMBIOS tables.
SmbiosTable TablesOf(const std::string& product_name, const Hardware& hardware);

// Writes the BIOS area, the last 64 KiB below 1 MiB, with the maker's signature.
void AddRomSignature(MachineBuilder& machine);

// Writes the PICL tree, with or without the management processor, Kelm.
enum class Kelm { Absent, Present };
void AddPicl(MachineBuilder& machine, Kelm kelm);
