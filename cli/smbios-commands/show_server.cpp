// SHOW SERVER: the machine, its NICs, its processors and its memory.
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/command/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "cli/smbparse/smbparse.h"
#include "src/utils/word_table.h"

namespace {

constexpr CodeText kCpuStatuses[] = {
    {kCpuOk, "Ok"},
    {kCpuDegraded, "Degraded"},
    {kCpuFailed, "Failed"},
    {kCpuDisabled, "Disabled"},
};

void PrintSystem(void* system, void* rom) {
    std::printf("\nSystem        : %s", SmbText(system, system_information::kProductName));
    std::printf("\nSerial No.    : %s", SmbText(system, system_information::kSerialNumber));
    std::printf("\nROM version   : %s %s", SmbText(rom, bios::kVersion), SmbText(rom, bios::kDate));
    std::printf("\nKelm present  : %s", YesNo(got_kelm != 0));
}

void PrintNics() {
    if (embedded_nics_installed == -1) {
        std::printf("\nEmbedded NICs : UNKNOWN");
        return;
    }
    std::printf("\nEmbedded NICs : %d", embedded_nics_installed);
    for (int k = 0; k < kMaxEmbeddedNics && k + 1 <= embedded_nics_installed; ++k) {
        const unsigned char* mac = zthmac + k * kNicEntrySize + offsetof(smbios_nic, nic_mac);
        std::printf("\n\tNIC%d MAC: %02x:%02x:%02x:%02x:%02x:%02x", k + 1, mac[0], mac[1], mac[2], mac[3],
                    mac[4], mac[5]);
    }
}

// A line for each cache of a processor.
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
    void* system = nullptr;
    if (SmbGetRecordByType(kSystemInformation, 0, &system) != TRUE) {
        return Fail("\nERROR: Failed to get SMBIOS system data.");
    }
    void* rom = nullptr;
    if (SmbGetRecordByType(kBiosInformation, 0, &rom) != TRUE) {
        return Fail("\nERROR: Failed to get SMBIOS ROM data.");
    }

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
