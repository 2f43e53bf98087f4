#include <vector>

#include "include/memory_records.h"
#include "tools/mkmachine/models.h"

namespace {

constexpr uint32_t kFbDimmFormFactor = 0x0F;   // as SMBIOS numbers form factors
constexpr uint32_t kDdr2FullyBuffered = 0x14;  // as SMBIOS numbers memory types

struct Module {
    uint32_t present;  // 0: an empty socket
    uint32_t size;     // megabytes
    uint32_t speed;    // MHz
    uint32_t status;
};

// clang-format off
const std::vector<Module> kCartridge1 = {
    {1, 2048, 667, 2},
    {1, 2048, 667, 2},
    {0, 0,    0,   4},
    {1, 2048, 667, 9},
    {1, 1024, 533, 3},  // a status that has no text
};
const std::vector<Module> kCartridge2 = {
    {1, 2048, 667, 2},
    {1, 1024, 533, 6},
    {1, 4096, 800, 7},
    {1, 2048, 667, 8},
    {2, 0,    0,   5},  // expected, but gone
};
const std::vector<Module> kSystemBoard = {
    {1, 4096, 667, 2},
    {1, 4096, 667, 2},
    {0, 0,    0,   4},
    {0, 0,    0,   4},
};
// clang-format on

// index: the driver's. id: the cartridge's label.
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
        config.dimmInfo.ulFormFactor = kFbDimmFormFactor;
        config.dimmInfo.ulMemType = kDdr2FullyBuffered;
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

void AddMemory(MachineBuilder& machine, size_t modules, uint32_t cartridges) {
    RESMEM_CONFIG memory{};
    memory.ulNumberModules = static_cast<uint32_t>(modules);
    memory.ulNumberCartridges = cartridges;
    machine.Table(kMemoryTable, 0, 0, memory);
}

}  // namespace

void AddMemoryModules(MachineBuilder& machine, ModelId model) {
    switch (model) {
        case ModelId::Tr500k2:
            AddMemory(machine, kCartridge1.size(), 2);
            AddCartridge(machine, 0, 1, kCartridge1);
            AddCartridge(machine, 1, 2, kCartridge2);
            break;
        case ModelId::Bx20:
            AddMemory(machine, kSystemBoard.size(), 0);
            AddCartridge(machine, kSystemBoardCartridge & 255, 0, kSystemBoard);
            break;
        case ModelId::Tr300: break;  // an older driver, which knows nothing of memory
    }
}
