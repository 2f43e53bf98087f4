// SHOW DIMM: the installed memory modules, from the driver's tables, or from the firmware's where the driver
// has none.

#include "cli/misc-commands/dimm.h"

#include <algorithm>
#include <cstdio>

#include "cli/command/command.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/smbios-commands/inventory.h"
#include "include/memory_records.h"
#include "src/utils/text.h"

namespace {

// Cartridges, and modules of each, that are tried if the driver has no record of the counts. The walk ends at
// the first failed request.
constexpr int kUnknownCount = 20;

// The ranges of a request's index bytes; cartridge 255 is the system board.
constexpr int kMaxModules = 256;
constexpr int kMaxCartridges = 255;

constexpr CodeText kStatuses[] = {
    // by RESMEM_DIMM_STATUS::ulStatus
    {2, "Ok"},
    {5, "DIMM is missing"},
    {6, "DIMM does not match"},
    {7, "DIMM is not supported"},
    {8, "DIMM has bad configuration"},
    {9, "DIMM is degraded"},
};

// A count from the driver, at most `most`. One above INT_MAX turns negative, and the walk then shows nothing.
int Bounded(uint32_t count, int most) {
    return std::min(static_cast<int>(count), most);
}

MemoryCounts ReadCounts() {
    const Reply<RESMEM_CONFIG> memory(kMemoryTable, 0);
    return CountsOf(memory ? &*memory : nullptr);
}

ModuleStatus StatusOf(const RESMEM_DIMM_CONFIG& config, uint32_t status) {
    const RESMEM_DIMM_INFO& info = config.dimmInfo;
    ModuleStatus module{};
    module.cartridge = static_cast<int>(config.ulCartID);
    module.module = static_cast<int>(config.ulModuleID);
    module.present = config.ulPresent == 1;
    module.form_factor = info.ulFormFactor;
    module.memory_type = info.ulMemType;
    module.size = static_cast<int>(info.ulSize);
    module.speed = static_cast<int>(info.ulSpeed);
    module.status = status;
    module.status_text = TextOfCode(kStatuses, status, nullptr);
    return module;
}

void PrintModule(const ModuleStatus& module) {
    std::printf("\nCartridge #:   %d", module.cartridge);
    std::printf("\nModule #:      %d", module.module);
    std::printf("\nPresent:       %s", YesNo(module.present));
    std::printf("\nForm Factor:   %xh", module.form_factor);
    std::printf("\nMemory Type:   %xh", module.memory_type);
    std::printf("\nSize:          %d MB", module.size);
    std::printf("\nSpeed:         %d MHz", module.speed);
    std::printf("\nStatus:");
    if (module.status_text != nullptr) {
        std::printf("        %s\n", module.status_text);
    } else {
        std::printf("        Unknown - 0x%x\n", module.status);
    }
}

}  // namespace

MemoryCounts CountsOf(const RESMEM_CONFIG* memory) {
    if (memory == nullptr) return {kUnknownCount, kUnknownCount};
    return {Bounded(memory->ulNumberModules, kMaxModules),
            Bounded(memory->ulNumberCartridges, kMaxCartridges)};
}

MemoryModules::MemoryModules() {
    const MemoryCounts counts = ReadCounts();
    dimms = counts.dimms;
    carts = counts.carts;
    int cart_start = 0;
    const Reply<CartridgeBeginning> board(kCartridgeTable, kSystemBoardCartridge);
    if (board && board->ulCartID == 0 && board->ulNumModules != 0) {
        cart_start = kSystemBoardCartridge;
        carts = kSystemBoardCartridge + 1;
    }
    cartridge_ = cart_start;
}

MemoryModules::Next MemoryModules::ReadNext(ModuleStatus& module) {
    for (; cartridge_ < carts; ++cartridge_, socket_ = 0) {
        while (socket_ < dimms) {
            const int socket = socket_++;
            const Reply<RESMEM_DIMM_CONFIG> config(kModuleConfigTable, cartridge_, socket);
            if (!config) {
                carts = cartridge_;  // ends the walk
                return Next::End;
            }
            if (config->ulPresent == 0) continue;

            const Reply<RESMEM_DIMM_STATUS> status(kModuleStatusTable, cartridge_, socket);
            if (!status) {
                carts = cartridge_;
                return Next::Failed;
            }
            module = StatusOf(*config, status->ulStatus);
            return Next::Module;
        }
    }
    return Next::End;
}

int do_show_dimm(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    MemoryModules modules;
    std::printf("\nDIMM Configuration");
    std::printf("\n------------------");
    ModuleStatus module;
    int dimms_installed = 0;
    auto next = modules.ReadNext(module);
    for (; next == MemoryModules::Next::Module; next = modules.ReadNext(module)) {
        PrintModule(module);
        ++dimms_installed;
    }
    if (next == MemoryModules::Next::Failed) return Fail("\nERROR: \"SHOW DIMM\" command failed.");

    if (dimms_installed == 0) get_dimminfo_smbios();
    return 0;
}
