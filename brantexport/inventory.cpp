#include "brantexport/inventory.h"

#include <algorithm>
#include <cstdio>

#include "cli/command/state.h"
#include "cli/misc-commands/nic.h"
#include "cli/smbios-commands/inventory.h"
#include "cli/smbios_old/smbios.h"
#include "cli/smbparse/memory_inventory.h"
#include "cli/smbparse/processors.h"

namespace {

using smbios::Bios;
using smbios::System;

constexpr char kNoTables[] = "There are no SMBIOS tables.";

Json CachesOf(const ZET_CPU& cpu) {
    Json caches = Json::array();
    for (const ZET_CACHE* cache : gCache_tbl) {
        if (cache == nullptr) break;
        if (cache->cacheUnitIndex != cpu.cpuUnitIndex) continue;
        caches.push_back({{"level", cache->cacheLevelIndex}, {"size_kib", cache->cacheSize}});
    }
    return caches;
}

Json ProcessorOf(const ZET_CPU& cpu) {
    const bool known = cpu.cpucorecount != 0;
    return {
        {"number", cpu.cpuUnitIndex},
        {"name", Text(cpu.cpuName)},
        {"stepping", cpu.cpuStep},
        {"speed_mhz", cpu.cpuSpeed},
        {"bus_mhz", cpu.cpuExtFrequency},
        {"cores", known ? Json(cpu.cpucorecount) : Json()},
        {"threads", known ? Json(cpu.threadcount) : Json()},
        {"socket", cpu.cpuSocketNumber},
        {"status", Word(CpuStatusWord(cpu.cpuStatus))},
        {"caches", CachesOf(cpu)},
    };
}

Json MacAddress(int index) {
    if (index >= kMaxEmbeddedNics) return nullptr;
    const smbios_nic nic = EmbeddedNic(index);
    const uint8_t* mac = nic.nic_mac;
    char text[18];
    std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x", mac[0], mac[1], mac[2], mac[3], mac[4],
                  mac[5]);
    return text;
}

}  // namespace

Json ExportSystem(Errors& errors) {
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
    const auto text = [](const auto& record, auto field) {
        return record ? Text(record.Text(field)) : Json();
    };
    return {
        {"product_name", text(system, System::kProductName)},
        {"serial_number", text(system, System::kSerialNumber)},
        {"rom_version", text(rom, Bios::kVersion)},
        {"rom_date", text(rom, Bios::kDate)},
        {"management_processor", got_kelm != 0},
        {"memory_mib", has_memory ? Json(memoryKiB / 1024) : Json()},
        {"memory_ecc", has_memory ? Json(SmbChkForECCSupported() == TRUE) : Json()},
    };
}

Json ExportProcessors(Errors& errors) {
    if (smbios_available == 0) return errors.Add(kNoTables);
    Json processors = Json::array();
    for (const ZET_CPU* cpu : gCpu_tbl) {
        if (cpu == nullptr) break;
        processors.push_back(ProcessorOf(*cpu));
    }
    if (processors_left_out != 0) errors.Add("There are more processors than the inventory has room for.");
    return processors;
}

Json ExportNics(Errors& errors) {
    if (embedded_nics_installed < 0) return errors.Add("Failed to read embedded NIC status.");
    NicBootStates states{};
    if (!ReadNicBoot(states)) errors.Add("Failed to read NIC status.");
    Json nics = Json::array();
    for (int i = 0; i < embedded_nics_installed; ++i) {
        const bool known = i < kNicBootStates;
        nics.push_back({{"number", i + 1},
                        {"mac_address", MacAddress(i)},
                        {"boot", known ? Word(states.nic[i]) : Json()}});
    }
    return nics;
}
