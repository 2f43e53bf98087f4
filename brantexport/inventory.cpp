#include "brantexport/inventory.h"

#include <cstdio>

#include "cli/command/state.h"
#include "cli/misc-commands/nic.h"
#include "cli/smbios-commands/inventory.h"
#include "cli/smbios-commands/port_map.h"
#include "cli/smbios_old/smbios.h"
#include "cli/smbparse/memory_inventory.h"
#include "cli/smbparse/processors.h"

namespace {

using smbios::Bios;
using smbios::System;

constexpr char kNoTables[] = "There are no SMBIOS tables.";

// Returns a string of a record, or null if there is no such record.
template <typename Record, typename Field>
Value TextOf(const Record& record, Field field) {
    return record ? Text(record.Text(field)) : Value();
}

void WriteCaches(Writer& writer, const ZET_CPU& cpu) {
    writer.BeginList();
    for (const ZET_CACHE* cache : gCache_tbl) {
        if (cache == nullptr) break;
        if (cache->cacheUnitIndex != cpu.cpuUnitIndex) continue;
        writer.BeginObject();
        writer.Add("level", cache->cacheLevelIndex);
        writer.Add("size_kib", cache->cacheSize);
        writer.EndObject();
    }
    writer.EndList();
}

void WriteProcessor(Writer& writer, const ZET_CPU& cpu) {
    const bool known = cpu.cpucorecount != 0;
    writer.BeginObject();
    writer.Add("number", cpu.cpuUnitIndex);
    writer.Add("name", Text(cpu.cpuName));
    writer.Add("stepping", cpu.cpuStep);
    writer.Add("speed_mhz", cpu.cpuSpeed);
    writer.Add("bus_mhz", cpu.cpuExtFrequency);
    writer.Add("cores", known ? Value(cpu.cpucorecount) : Value());
    writer.Add("threads", known ? Value(cpu.threadcount) : Value());
    writer.Add("socket", cpu.cpuSocketNumber);
    writer.Add("status", Word(CpuStatusWord(cpu.cpuStatus)));
    writer.Key("caches");
    WriteCaches(writer, cpu);
    writer.EndObject();
}

void WriteNic(Writer& writer, int index, const NicBootStates& states) {
    char mac_address[18] = "";
    if (index < kMaxEmbeddedNics) {
        const smbios_nic nic = EmbeddedNic(index);
        const uint8_t* mac = nic.nic_mac;
        std::snprintf(mac_address, sizeof mac_address, "%02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1],
                      mac[2], mac[3], mac[4], mac[5]);
    }
    writer.BeginObject();
    writer.Add("number", index + 1);
    writer.Add("mac_address", index < kMaxEmbeddedNics ? Text(mac_address) : Value());
    writer.Add("boot", index < kNicBootStates ? Word(states.nic[index]) : Value());
    writer.EndObject();
}

}  // namespace

void WriteSystem(Writer& writer, Errors& errors) {
    const auto system = SmbFirst<System>();
    const auto rom = SmbFirst<Bios>();
    unsigned int memoryKiB = 0;
    const bool has_memory = SmbGetTotalMemory(&memoryKiB) == TRUE;
    if (smbios_available == 0) {
        errors.Add(kNoTables);
    } else {
        if (!rom) errors.Add("Failed to get SMBIOS ROM data.");
        if (!has_memory) errors.Add("Failed to get SMBIOS memory data.");
    }
    writer.BeginObject();
    writer.Add("product_name", TextOf(system, System::kProductName));
    writer.Add("serial_number", TextOf(system, System::kSerialNumber));
    writer.Add("rom_version", TextOf(rom, Bios::kVersion));
    writer.Add("rom_date", TextOf(rom, Bios::kDate));
    writer.Add("management_processor", got_kelm != 0);
    writer.Add("memory_mib", has_memory ? Value(memoryKiB / 1024) : Value());
    writer.Add("memory_ecc", has_memory ? Value(SmbChkForECCSupported() == TRUE) : Value());
    writer.EndObject();
}

void WriteProcessors(Writer& writer, Errors& errors) {
    if (smbios_available == 0) return writer.Put(errors.Add(kNoTables));
    writer.BeginList();
    for (const ZET_CPU* cpu : gCpu_tbl) {
        if (cpu == nullptr) break;
        WriteProcessor(writer, *cpu);
    }
    writer.EndList();
    if (processors_left_out != 0) errors.Add("There are more processors than the inventory can contain.");
}

void WriteNics(Writer& writer, Errors& errors) {
    if (embedded_nics_installed < 0) return writer.Put(errors.Add("Failed to read embedded NIC status."));
    NicBootStates states{};
    if (!ReadNicBoot(states)) errors.Add("Failed to read NIC status.");
    writer.BeginList();
    for (int i = 0; i < embedded_nics_installed; ++i) WriteNic(writer, i, states);
    writer.EndList();
}

void WritePortMap(Writer& writer, Errors& errors) {
    PortMap map;
    switch (ReadPortMap(map)) {
        case PortMapRead::NoTables: return writer.Put(errors.Add(kNoTables));
        case PortMapRead::NoRack: return writer.Put({});
        case PortMapRead::NoBayNumber: return writer.Put(errors.Add("Failed to get Enclosure Bay number."));
        case PortMapRead::NoMap: return writer.Put(errors.Add("Failed to get SMBIOS port mapping data."));
        case PortMapRead::Done: break;
    }
    writer.BeginObject();
    writer.Add("table_version", map.version);
    writer.Key("ports");
    writer.BeginList();
    for (int i = 0; i < map.count; ++i) {
        const BladePort& port = map.port[i];
        writer.BeginObject();
        writer.Add("slot", port.slot);
        writer.Add("slot_port", port.slot_port);
        writer.Add("bay", port.bay);
        writer.Add("bay_port", port.bay_port);
        writer.EndObject();
    }
    writer.EndList();
    writer.EndObject();
}
