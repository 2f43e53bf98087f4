// The memory modules that SMBIOS knows of, as SHOW DIMM lists them.
#include <cstdio>

#include "cli/command/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "cli/smbparse/smbparse.h"

namespace {

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
