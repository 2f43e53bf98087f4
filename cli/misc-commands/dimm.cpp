// SHOW DIMM: the installed memory modules, from the driver's tables, or from the firmware's where the driver
// has none.

#include <algorithm>
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "include/memory_records.h"
#include "src/utils/word_table.h"

namespace {

// What a driver that doesn't tell its counts is asked for, until it refuses.
constexpr int kUnknownCount = 20;

// What a request's index bytes can name; cartridge 255 is the system board.
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

void PrintStatus(uint32_t status) {
    std::printf("\nStatus:");
    if (const CodeText* row = FindCode(kStatuses, status)) {
        std::printf("        %s\n", row->text);
    } else {
        std::printf("        Unknown - 0x%x\n", status);
    }
}

void PrintModule(const RESMEM_DIMM_CONFIG& config, uint32_t status) {
    std::printf("\nCartridge #:   %d", static_cast<int>(config.ulCartID));
    std::printf("\nModule #:      %d", static_cast<int>(config.ulModuleID));
    std::printf("\nPresent:       %s", YesNo(config.ulPresent == 1));
    std::printf("\nForm Factor:   %xh", config.dimmInfo.ulFormFactor);
    std::printf("\nMemory Type:   %xh", config.dimmInfo.ulMemType);
    std::printf("\nSize:          %d MB", static_cast<int>(config.dimmInfo.ulSize));
    std::printf("\nSpeed:         %d MHz", static_cast<int>(config.dimmInfo.ulSpeed));
    PrintStatus(status);
}

// Which cartridges to walk, and how many modules of each.
struct Walk {
    int cart_start = 0;
    int carts = kUnknownCount;
    int dimms = kUnknownCount;
};

// A count from the driver, at most `most`. One above INT_MAX turns negative, and the walk then shows nothing.
int Bounded(uint32_t count, int most) {
    return std::min(static_cast<int>(count), most);
}

Walk FindMemory() {
    Walk walk;
    if (const Reply<RESMEM_CONFIG> memory{kMemoryTable, 0}) {
        walk.dimms = Bounded(memory->ulNumberModules, kMaxModules);
        walk.carts = Bounded(memory->ulNumberCartridges, kMaxCartridges);
    }
    const Reply<CartridgeBeginning> board(kCartridgeTable, kSystemBoardCartridge);
    if (board && board->ulCartID == 0 && board->ulNumModules != 0) {
        walk.cart_start = kSystemBoardCartridge;
        walk.carts = kSystemBoardCartridge + 1;
    }
    return walk;
}

enum class Outcome { Shown, Empty, NoSuchModule, Failed };

Outcome ShowModule(int cartridge, int module) {
    const Reply<RESMEM_DIMM_CONFIG> config(kModuleConfigTable, cartridge, module);
    if (!config) return Outcome::NoSuchModule;
    if (config->ulPresent == 0) return Outcome::Empty;

    const Reply<RESMEM_DIMM_STATUS> status(kModuleStatusTable, cartridge, module);
    if (!status) return Outcome::Failed;
    PrintModule(*config, status->ulStatus);
    return Outcome::Shown;
}

// Shows the modules up to the first that the driver refuses. False when a module's status can't be read.
bool ShowModules(const Walk& walk, int* dimms_installed) {
    for (int cartridge = walk.cart_start; cartridge < walk.carts; ++cartridge) {
        for (int module = 0; module < walk.dimms; ++module) {
            switch (ShowModule(cartridge, module)) {
                case Outcome::Shown: ++*dimms_installed; break;
                case Outcome::Empty: break;
                case Outcome::NoSuchModule: return true;
                case Outcome::Failed: return false;
            }
        }
    }
    return true;
}

}  // namespace

int do_show_dimm(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const Walk walk = FindMemory();
    std::printf("\nDIMM Configuration");
    std::printf("\n------------------");
    int dimms_installed = 0;
    if (!ShowModules(walk, &dimms_installed)) return Fail("\nERROR: \"SHOW DIMM\" command failed.");

    if (dimms_installed == 0) get_dimminfo_smbios();
    return 0;
}
