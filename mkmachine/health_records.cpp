#include "mkmachine/health_records.h"

#include "include/memory_records.h"

namespace {

void AddFan(MachineBuilder& machine, int index, const Fan& fan) {
    const bool redundant = (fan.state & kRedundant) != 0;
    if (fan.legacy_record) {
        FANDDATA legacy{};
        legacy.ucPresent = (fan.state & kPresent) != 0;
        legacy.ucRedundant = redundant;
        legacy.ucRedundantPartner = static_cast<uint8_t>(fan.partner);
        machine.Table(kFanDataTable, index, 0, legacy);
    }

    COMMONFEATUREINFO feature = Feature(index, fan.state, fan.zone, fan.instance);
    feature.RedGroup.s1.bit_RedundantCapable = redundant;
    feature.RedGroup.s1.bits_RedundantGroupId = fan.partner & 31;
    machine.Table(kFanFeatureTable, index, 0, feature);

    FANBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.FanDescriptor.s1.bit_HotPlug = fan.hot_plug;
    basic.ucSpeedStateIsValid = 1;
    basic.ucSpeedState = fan.speed;
    basic.ucSpeedPctIsValid = fan.percent != kNoPercent;
    basic.ucSpeedPct = static_cast<uint8_t>(fan.percent != kNoPercent ? fan.percent : 0);
    machine.Table(kFanBasicTable, index, 0, basic);
}

void AddSensor(MachineBuilder& machine, int index, const Sensor& sensor) {
    const int driver_index = index & 255;
    COMMONFEATUREINFO feature = Feature(index, sensor.state, sensor.zone, sensor.instance);
    feature.ucTypeOf = sensor.kind;
    machine.Table(kTemperatureFeatureTable, driver_index, 0, feature);

    TEMPERATURENUMBERS numbers{};
    numbers.ucDataAvailable = 1;
    numbers.ucTemperatureIsValid = sensor.reading != kInvalid;
    numbers.ucCelciusTemperature = static_cast<uint8_t>(sensor.reading);
    numbers.ucThresholdIsValid = sensor.threshold != kInvalid;
    numbers.ucCelciusThreshold = static_cast<uint8_t>(sensor.threshold);
    machine.Table(kTemperatureNumbersTable, driver_index, 0, numbers);
}

void AddSupply(MachineBuilder& machine, int index, const Supply& supply) {
    if (supply.legacy_record != LegacyRecord::None) {
        POWERSUPPLYNUMBERS legacy{};
        legacy.ucPresent = supply.legacy_record == LegacyRecord::Present;
        machine.Table(kSupplyNumbersTable, index, 0, legacy);
    }
    machine.Table(kSupplyFeatureTable, index, 0, Feature(index, supply.state, kPowerSupplyZone));

    POWERSUPPLYBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.PsDescriptor.s1.bit_HotPlug = supply.hot_plug;
    machine.Table(kSupplyBasicTable, index, 0, basic);
}

}  // namespace

void AddFans(MachineBuilder& machine, const std::vector<Fan>& fans) {
    const auto count = static_cast<uint8_t>(fans.size());
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{count, 1, 1, count});
    for (size_t i = 0; i < fans.size(); ++i) AddFan(machine, static_cast<int>(i), fans[i]);
}

void AddTemperatures(MachineBuilder& machine, const std::vector<Sensor>& sensors) {
    const auto counted = static_cast<uint8_t>(sensors.size() - 1);
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{counted, 1, counted});
    for (size_t i = 0; i < sensors.size(); ++i) AddSensor(machine, static_cast<int>(i) - 1, sensors[i]);
}

void AddPowerSupplies(MachineBuilder& machine, const std::vector<Supply>& supplies) {
    if (supplies.empty()) {
        machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{});
        return;
    }
    const auto count = static_cast<uint8_t>(supplies.size());
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{count, 1, 1, 0, count});
    for (size_t i = 0; i < supplies.size(); ++i) AddSupply(machine, static_cast<int>(i), supplies[i]);
}

void AddIndicators(MachineBuilder& machine, IndicatorState uid) {
    machine.Table(kIndicatorHeaderTable, 0, 0, INDCHEADER{1, 1, 1});

    INDCBASIC light{};
    light.ucDataAvailable = 1;
    light.ucCurrState = uid;
    light.IndcDescriptor.s1.bit_SWCtrl = 1;
    machine.Table(kIndicatorControlTable, 0, 0, light);
}

namespace {

// Adds the records of a cartridge. `index` is the number that the driver uses, `id` the number on the
// cartridge's label.
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

// Adds the record that contains the number of cartridges and the number of modules in each.
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
