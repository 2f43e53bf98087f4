#include "brantexport/health.h"

#include <cstdio>
#include <optional>

#include "cli/fan/fan.h"
#include "cli/misc-commands/asr.h"
#include "cli/misc-commands/dimm.h"
#include "cli/misc-commands/power_supply.h"
#include "cli/misc-commands/uid.h"
#include "cli/smbparse/memory_inventory.h"
#include "cli/temp/temp.h"

namespace {

template <typename Value>
Json Known(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

Json ModuleOf(const ModuleStatus& module) {
    char number[24];  // as SHOW DIMM prints it
    std::snprintf(number, sizeof number, "Unknown - 0x%x", module.status);
    return {
        {"cartridge", module.cartridge},
        {"module", module.module},
        {"present", module.present},
        {"form_factor", module.form_factor},
        {"memory_type", module.memory_type},
        {"size_mib", module.size},
        {"speed_mhz", module.speed},
        {"status", Word(module.status_text != nullptr ? module.status_text : number)},
    };
}

// Converts a module of the SMBIOS tables, which don't contain its status.
Json ModuleOf(const ZET_MemModule& module) {
    return {
        {"cartridge", module.memBoardIndex},
        {"module", module.memModuleIndex},
        {"present", true},
        {"form_factor", module.memModuleType},
        {"memory_type", module.memModuleTechnology},
        {"size_mib", module.memModuleSize / 1024},
        {"speed_mhz", module.memModuleFrequency},
        {"status", nullptr},
    };
}

Json ModulesOfSmbios(Errors& errors) {
    Json modules = Json::array();
    for (const ZET_MemModule* module : gMemoryMod) {
        if (module == nullptr) break;
        if (module->memModuleSize != 0) modules.push_back(ModuleOf(*module));
    }
    if (memory_modules_left_out != 0)
        errors.Add("There are more memory modules than the inventory has room for.");
    return modules;
}

Json FanOf(const FanStatus& fan, int number) {
    return {
        {"number", number},
        {"location", Word(fan.location.data)},
        {"present", fan.present},
        {"failed", fan.failed},
        {"speed", fan.present ? Word(fan.speed) : Json()},
        {"speed_percent", Known(fan.percent)},
        {"redundant", fan.redundant},
        {"partner", fan.redundant ? Json(fan.partner) : Json()},
        {"hot_pluggable", fan.failed ? Json() : Json(fan.hot_pluggable)},
    };
}

Json SensorOf(const SensorStatus& sensor, int number) {
    return {
        {"number", number},
        {"location", sensor.present ? Word(sensor.location.data) : Json()},
        {"present", sensor.present},
        {"temperature_celsius", Known(sensor.celsius)},
        {"threshold_celsius", Known(sensor.threshold)},
    };
}

Json SupplyOf(const SupplyStatus& supply, int number) {
    const auto if_installed = [&](const Json& value) { return supply.installed ? value : Json(); };
    return {
        {"number", number},
        {"present", supply.present},
        {"condition", if_installed(Word(supply.condition))},
        {"redundant", if_installed(supply.redundant)},
        {"hot_pluggable", if_installed(supply.hot_pluggable)},
    };
}

}  // namespace

Json ExportMemory(Errors& errors) {
    const MemorySockets sockets = ReadSockets();
    Json modules = Json::array();
    for (int i = 0; i < sockets.Count(); ++i) {
        ModuleStatus module;
        const ModuleRead result = ReadModule(sockets, i, module);
        if (result == ModuleRead::ConfigFailed) break;
        if (result == ModuleRead::StatusFailed) {
            return errors.Add("Failed to read the status of a memory module.");
        }
        if (result == ModuleRead::Done) modules.push_back(ModuleOf(module));
    }
    if (!modules.empty()) return modules;
    if (smbios_available != 0) return ModulesOfSmbios(errors);
    return errors.Add("Neither the driver nor SMBIOS tells of memory modules.");
}

Json ExportFans(Errors& errors) {
    constexpr char kFailed[] = "Failed to read the fans.";
    int count = 0;
    if (ReadFanCount(count) == FanCountRead::Failed) return errors.Add(kFailed);
    Json fans = Json::array();
    LegacyFans legacy_fans;
    for (int i = 0; i < count; ++i) {
        FanStatus fan;
        if (ReadFan(i, legacy_fans, fan) != FanRead::Done) return errors.Add(kFailed);
        fans.push_back(FanOf(fan, i + 1));
    }
    return fans;
}

Json ExportTemperatures(Errors& errors) {
    constexpr char kFailed[] = "Failed to read the temperature sensors.";
    int count = 0;
    if (ReadSensorCount(count) == SensorCountRead::Failed) return errors.Add(kFailed);
    Json sensors = Json::array();
    for (int i = 0; i < count; ++i) {
        SensorStatus sensor;
        if (!ReadSensor(i, sensor)) return errors.Add(kFailed);
        sensors.push_back(SensorOf(sensor, i));
    }
    return sensors;
}

Json ExportPowerSupplies(Errors& errors) {
    int count = 0;
    if (ReadSupplyCount(count) == SupplyCountRead::Failed)
        return errors.Add("No powersupplies were detected.");
    Json supplies = Json::array();
    LegacySupplies legacy_supplies;
    for (int i = 0; i < count; ++i) {
        SupplyStatus supply;
        if (!ReadSupply(i, legacy_supplies, supply)) return errors.Add("Failed to read the power supplies.");
        supplies.push_back(SupplyOf(supply, i + 1));
    }
    return supplies;
}

Json ExportUid(Errors& errors) {
    const char* state = nullptr;
    if (ReadLight(state) != LightRead::Done) errors.Add("Failed to read the unit identification light.");
    return {{"state", Word(state)}};
}

Json ExportAsr(Errors& errors) {
    AsrTimer timer{};
    const bool done = ReadAsrTimer(timer) == AsrRead::Done;
    if (!done) errors.Add("Failed to read ASR status.");
    return {
        {"state", done ? Word(timer.enabled ? "enabled" : "disabled") : Json()},
        {"timeout_minutes", done ? Json(timer.minutes) : Json()},
    };
}
