// SHOW DIMM prints the modules of the driver's tables. If these contain none, it prints those of the SMBIOS
// tables.
#include "cli/misc-commands/dimm.h"

#include <algorithm>
#include <cstdio>

#include "cli/command/command.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/smbios-commands/inventory.h"
#include "include/memory_records.h"
#include "src/utils/text.h"

namespace {

// The number of cartridges, and of sockets in each, if the driver has no record of these numbers. The first
// failed request then ends the list.
constexpr int kUnknownCount = 20;

// The maximum numbers of modules and of cartridges: a request contains each index in one byte, and the
// cartridge index 255 means the system board.
constexpr int kMaxModules = 256;
constexpr int kMaxCartridges = 255;

constexpr CodeText kStatuses[] = {
    // codes in RESMEM_DIMM_STATUS::ulStatus
    {2, "Ok"},
    {5, "DIMM is missing"},
    {6, "DIMM does not match"},
    {7, "DIMM is not supported"},
    {8, "DIMM has bad configuration"},
    {9, "DIMM is degraded"},
};

// Limits a count that the driver returned to `most`. A count above INT_MAX becomes negative, and so counts as
// none.
int Bounded(uint32_t count, int most) {
    return std::min(static_cast<int>(count), most);
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

int MemorySockets::Count() const {
    return std::max(dimms, 0) * std::max(carts - cart_start, 0);
}

MemorySockets SocketsOf(const RESMEM_CONFIG* memory) {
    if (memory == nullptr) return {kUnknownCount, kUnknownCount};
    return {Bounded(memory->ulNumberModules, kMaxModules),
            Bounded(memory->ulNumberCartridges, kMaxCartridges), 0, true};
}

MemorySockets ReadSockets() {
    MemorySockets sockets{};
    {
        const Reply<RESMEM_CONFIG> memory(kMemoryTable, 0);
        sockets = SocketsOf(memory ? &*memory : nullptr);
    }
    const Reply<CartridgePrefix> board(kCartridgeTable, kSystemBoardCartridge);
    if (board && board->ulCartID == 0 && board->ulNumModules != 0) {
        sockets.cart_start = kSystemBoardCartridge;
        sockets.carts = kSystemBoardCartridge + 1;
    }
    return sockets;
}

ModuleRead ReadModule(const MemorySockets& sockets, int index, ModuleStatus& module) {
    const int cartridge = sockets.cart_start + index / sockets.dimms;
    const int socket = index % sockets.dimms;
    const Reply<RESMEM_DIMM_CONFIG> config(kModuleConfigTable, cartridge, socket);
    if (!config) return ModuleRead::ConfigFailed;
    if (config->ulPresent == 0) return ModuleRead::Empty;

    const Reply<RESMEM_DIMM_STATUS> status(kModuleStatusTable, cartridge, socket);
    module = StatusOf(*config, status ? status->ulStatus : 0);
    return status ? ModuleRead::Done : ModuleRead::StatusFailed;
}

int do_show_dimm(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const MemorySockets sockets = ReadSockets();
    std::printf("\nDIMM Configuration");
    std::printf("\n------------------");
    int dimms_installed = 0;
    for (int i = 0; i < sockets.Count(); ++i) {
        ModuleStatus module;
        const ModuleRead result = ReadModule(sockets, i, module);
        if (result == ModuleRead::ConfigFailed) break;
        if (result == ModuleRead::StatusFailed) return Fail("\nERROR: \"SHOW DIMM\" command failed.");
        if (result == ModuleRead::Empty) continue;
        PrintModule(module);
        ++dimms_installed;
    }
    if (dimms_installed == 0) get_dimminfo_smbios();
    return 0;
}
