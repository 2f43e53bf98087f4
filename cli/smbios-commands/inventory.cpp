// Code that uses the SMBIOS inventory: SHOW SERVER, the memory modules of SHOW DIMM, and the start-up steps
// that check the server line, read the product name and count the embedded NICs.
#include "cli/smbios-commands/inventory.h"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"
#include "cli/smbparse/memory_inventory.h"
#include "cli/smbparse/processors.h"
#include "src/utils/text.h"

using smbios::Bios;
using smbios::System;

namespace {

constexpr std::string_view kServerLine = "corvex";

constexpr CodeText kCpuStatuses[] = {
    {kCpuOk, "Ok"},
    {kCpuDegraded, "Degraded"},
    {kCpuFailed, "Failed"},
    {kCpuDisabled, "Disabled"},
};

void PrintSystem(const SmbRecord<System>& system, const SmbRecord<Bios>& rom) {
    std::printf("\nSystem        : %s", system.Text(System::kProductName));
    std::printf("\nSerial No.    : %s", system.Text(System::kSerialNumber));
    std::printf("\nROM version   : %s %s", rom.Text(Bios::kVersion), rom.Text(Bios::kDate));
    std::printf("\nKelm present  : %s", YesNo(got_kelm != 0));
}

void PrintNics() {
    if (embedded_nics_installed == -1) {
        std::printf("\nEmbedded NICs : UNKNOWN");
        return;
    }
    std::printf("\nEmbedded NICs : %d", embedded_nics_installed);
    for (int k = 0; k < kMaxEmbeddedNics && k + 1 <= embedded_nics_installed; ++k) {
        const smbios_nic nic = EmbeddedNic(k);
        const uint8_t* mac = nic.nic_mac;
        std::printf("\n\tNIC%d MAC: %02x:%02x:%02x:%02x:%02x:%02x", k + 1, mac[0], mac[1], mac[2], mac[3],
                    mac[4], mac[5]);
    }
}

// Prints a line for each cache of a processor.
void PrintCaches(int cpuUnitIndex) {
    for (const ZET_CACHE* cache : gCache_tbl) {
        if (cache == nullptr) break;
        if (cache->cacheUnitIndex != cpuUnitIndex) continue;
        std::printf("\n\tLevel%d Cache : %d KBytes", cache->cacheLevelIndex, cache->cacheSize);
    }
}

void PrintProcessor(const ZET_CPU& cpu) {
    std::printf("\n\nProcessor: %d", cpu.cpuUnitIndex);
    std::printf("\n\tName         : %s", cpu.cpuName);
    std::printf("\n\tStepping     : %u", cpu.cpuStep);
    std::printf("\n\tSpeed        : %d MHz", cpu.cpuSpeed);
    std::printf("\n\tBus          : %u MHz", cpu.cpuExtFrequency);
    if (cpu.cpucorecount != 0) {
        std::printf("\n\tCore         : %d", cpu.cpucorecount);
        std::printf("\n\tThread       : %d", cpu.threadcount);
    }
    std::printf("\n\tSocket       : %u", cpu.cpuSocketNumber);
    PrintCaches(cpu.cpuUnitIndex);
    std::printf("\n\tStatus       : %s", CpuStatusWord(cpu.cpuStatus));
}

// Copies the MAC address of `nic` into entry `index` of zthmac. The entry's other bytes don't change.
void StoreMac(int index, const smbios_nic& nic) {
    unsigned char* entry = zthmac + static_cast<size_t>(index) * sizeof nic;
    std::memcpy(entry + offsetof(smbios_nic, nic_mac), nic.nic_mac, sizeof nic.nic_mac);
}

void PrintModule(const ZET_MemModule& module) {
    std::printf("\nCartridge #:    %d", module.memBoardIndex);
    std::printf("\nModule #:       %d", module.memModuleIndex);
    std::printf("\nPresent:        %s", "Yes");
    std::printf("\nForm Factor:    %xh", module.memModuleType);
    std::printf("\nMemory Type:    %xh", module.memModuleTechnology);
    std::printf("\nSize:           %d MB", module.memModuleSize / 1024);
    std::printf("\nSpeed:          %d MHz", module.memModuleFrequency);
    std::printf("\nStatus:         %s", "N/A");
    std::printf("\n");
}

}  // namespace

const char* CpuStatusWord(uint8_t status) {
    return TextOfCode(kCpuStatuses, status, "Unknown");
}

int do_show_server(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();
    if (smbios_available == 0) {
        return Fail("\nThis command requires an SMBIOS which is not available on this sytem.");
    }
    unsigned int memoryKiB = 0;
    if (SmbGetTotalMemory(&memoryKiB) != TRUE) return Fail("\nERROR: Failed to get SMBIOS memory data.");
    const auto system = SmbFirst<System>();
    if (!system) return Fail("\nERROR: Failed to get SMBIOS system data.");
    const auto rom = SmbFirst<Bios>();
    if (!rom) return Fail("\nERROR: Failed to get SMBIOS ROM data.");

    PrintSystem(system, rom);
    PrintNics();
    int processors = 0;
    for (const ZET_CPU* cpu : gCpu_tbl) {
        if (cpu == nullptr) break;
        PrintProcessor(*cpu);
        ++processors;
    }
    if (processors_left_out != 0) std::printf("\n\nNOTE: Processors not shown: %d.", processors_left_out);
    std::printf("\n\nProcessor total  : %d\n", processors);
    std::printf("\nMemory installed : %u MBytes", memoryKiB / 1024);
    std::printf("\nECC supported    : %s", YesNo(SmbChkForECCSupported() == TRUE));
    return 0;
}

int get_dimminfo_smbios() {
    if (smbios_available == 0 || gMemoryMod[0] == nullptr) return 1;
    for (const ZET_MemModule* module : gMemoryMod) {
        if (module == nullptr) break;
        if (module->memModuleSize != 0) PrintModule(*module);
    }
    if (memory_modules_left_out != 0) {
        std::printf("\nNOTE: Memory modules not shown: %d.\n", memory_modules_left_out);
    }
    return 0;
}

// The start-up steps.

int detect_corvex() {
    const auto system = SmbFirst<smbios::System>();
    if (!system) {
        std::printf("\nERROR: Failed to get SMBIOS system data.");
        std::printf("\nThis does not seem to be a VX Corvex Server.");
        return 1;
    }
    const std::string_view product = system.Text(smbios::System::kProductName);
    return strcmpi(product.substr(0, kServerLine.size()), kServerLine) == 0 ? 0 : 1;
}

int smbios_get_systemname() {
    if (smbios_available == 0) return 1;
    const auto system = SmbFirst<smbios::System>();
    if (!system) {
        std::printf("\nERROR: Failed to read system name.");
        return 1;
    }
    TextWriter(system_name, sizeof system_name).Text(system.Text(smbios::System::kProductName));
    return 0;
}

int get_embedded_nics_smbios() {
    if (smbios_available == 0) return -1;
    const auto table = SmbFirst<smbios_nic_table>();
    if (!table) return -1;

    const auto count = static_cast<int>(table.Count(smbios::kNics));
    int empty = 0;
    int stored = 0;
    for (int i = 0; i < count && stored < kMaxEmbeddedNics; ++i) {
        const smbios_nic nic = table.Read(smbios::kNics, static_cast<size_t>(i));
        if (IsEmpty(nic)) {
            ++empty;
            continue;
        }
        StoreMac(stored, nic);
        ++stored;
    }
    return count - empty;
}
