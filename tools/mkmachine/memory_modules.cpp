// The driver's records of memory modules.
#include "include/memory_records.h"
#include "tools/mkmachine/facts.h"

namespace {

// index: the driver's. id: the label on the cartridge.
void AddCartridge(MachineBuilder& machine, int index, uint32_t id, const std::vector<Module>& modules) {
    RESMEM_CARTRIDGE_CONFIG cartridge{};
    cartridge.ulCartID = id;
    cartridge.ulNumModules = static_cast<uint32_t>(modules.size());
    machine.Table(kCartridgeTable, index, 0, cartridge);

    for (size_t i = 0; i < modules.size(); ++i) {
        const Module& module = modules[i];
        RESMEM_DIMM_CONFIG config{};
        config.ulCartID = id;
        config.ulModuleID = static_cast<uint32_t>(i + 1);
        config.ulPresent = module.present;
        config.dimmInfo.ulFormFactor = module.form_factor;
        config.dimmInfo.ulMemType = module.type;
        config.dimmInfo.ulSize = module.size;
        config.dimmInfo.ulSpeed = module.speed;
        machine.Table(kModuleConfigTable, index, static_cast<int>(i), config);

        RESMEM_DIMM_STATUS status{};
        status.ulCartID = id;
        status.ulModuleID = config.ulModuleID;
        status.ulStatus = module.status;
        machine.Table(kModuleStatusTable, index, static_cast<int>(i), status);
    }
}

// modules: of each cartridge.
void AddMemory(MachineBuilder& machine, size_t modules, size_t cartridges) {
    RESMEM_CONFIG memory{};
    memory.ulNumberModules = static_cast<uint32_t>(modules);
    memory.ulNumberCartridges = static_cast<uint32_t>(cartridges);
    machine.Table(kMemoryTable, 0, 0, memory);
}

}  // namespace

void AddMemoryModules(MachineBuilder& machine, const DriverMemory& memory) {
    const auto& cartridges = memory.cartridges;
    if (!cartridges.empty()) AddMemory(machine, cartridges[0].size(), cartridges.size());
    for (size_t i = 0; i < cartridges.size(); ++i) {
        AddCartridge(machine, static_cast<int>(i), static_cast<uint32_t>(i + 1), cartridges[i]);
    }
    if (!memory.system_board.empty()) {
        AddMemory(machine, memory.system_board.size(), 0);
        AddCartridge(machine, kSystemBoardCartridge & 255, 0, memory.system_board);
    }
}
