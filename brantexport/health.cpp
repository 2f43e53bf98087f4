// What the health driver tells.
#include "brantexport/health.h"

#include <cstdio>
#include <memory>

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
    char number[24];  // as SHOW DIMM has it
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

// As the firmware's tables have it, which don't tell its status.
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

Json ModulesOfFirmware(Errors& errors) {
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
    const auto told = [&](const Json& value) { return supply.installed ? value : Json(); };
    return {
        {"number", number},
        {"present", supply.present},
        {"condition", told(Word(supply.condition))},
        {"redundant", told(supply.redundant)},
        {"hot_pluggable", told(supply.hot_pluggable)},
    };
}

}  // namespace

Json ExportMemory(Errors& errors) {
    MemoryModules walk;
    ModuleStatus module;
    Json modules = Json::array();
    auto next = walk.ReadNext(module);
    for (; next == MemoryModules::Next::Module; next = walk.ReadNext(module))
        modules.push_back(ModuleOf(module));
    if (next == MemoryModules::Next::Failed) {
        errors.Add("Failed to read the status of a memory module.");
        return nullptr;
    }
    if (!modules.empty()) return modules;
    if (smbios_available != 0) return ModulesOfFirmware(errors);
    errors.Add("Neither the driver nor SMBIOS tells of memory modules.");
    return nullptr;
}

Json ExportFans(Errors& errors) {
    const auto fans = std::make_unique<Fans>();
    Json list = Json::array();
    switch (ReadFans(*fans)) {
        case FansRead::NotSupported: return list;
        case FansRead::All: break;
        default: errors.Add("Failed to read the fans."); return nullptr;
    }
    for (int i = 0; i < fans->NumFans; ++i) list.push_back(FanOf(fans->fans[i], i + 1));
    return list;
}

Json ExportTemperatures(Errors& errors) {
    const auto sensors = std::make_unique<Sensors>();
    Json list = Json::array();
    switch (ReadSensors(*sensors)) {
        case SensorsRead::NotFound: return list;
        case SensorsRead::All: break;
        case SensorsRead::Failed: errors.Add("Failed to read the temperature sensors."); return nullptr;
    }
    for (int i = 0; i < sensors->count; ++i) list.push_back(SensorOf(sensors->sensors[i], i));
    return list;
}

Json ExportPowerSupplies(Errors& errors) {
    SupplyBays bays;
    if (bays.What() == SupplyBays::Found::Refused) {
        errors.Add("No powersupplies were detected.");
        return nullptr;
    }
    Json list = Json::array();
    for (int i = 0; i < bays.Count(); ++i) {
        SupplyStatus supply;
        if (!bays.Read(i, supply)) {
            errors.Add("Failed to read the power supplies.");
            return nullptr;
        }
        list.push_back(SupplyOf(supply, i + 1));
    }
    return list;
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
