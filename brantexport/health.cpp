#include "brantexport/health.h"

#include <cstdio>

#include "cli/fan/fan.h"
#include "cli/misc-commands/asr.h"
#include "cli/misc-commands/dimm.h"
#include "cli/misc-commands/power_supply.h"
#include "cli/misc-commands/uid.h"
#include "cli/smbparse/memory_inventory.h"
#include "cli/temp/temp.h"

namespace {

// Writes a module of the driver's tables. `status_failed` is true if its status can't be read.
void WriteModule(Writer& writer, const ModuleStatus& module, bool status_failed) {
    char number[24];  // a status without a name, as SHOW DIMM prints it
    std::snprintf(number, sizeof number, "Unknown - 0x%x", module.status);
    const Value status = Word(module.status_text != nullptr ? module.status_text : number);
    writer.BeginObject();
    writer.Add("cartridge", module.cartridge);
    writer.Add("module", module.module);
    writer.Add("present", module.present);
    writer.Add("form_factor", module.form_factor);
    writer.Add("memory_type", module.memory_type);
    writer.Add("size_mib", module.size);
    writer.Add("speed_mhz", module.speed);
    writer.Add("status", status_failed ? Value() : status);
    writer.EndObject();
}

// Writes a module of the SMBIOS tables, which don't contain its status.
void WriteModule(Writer& writer, const ZET_MemModule& module) {
    writer.BeginObject();
    writer.Add("cartridge", module.memBoardIndex);
    writer.Add("module", module.memModuleIndex);
    writer.Add("present", true);
    writer.Add("form_factor", module.memModuleType);
    writer.Add("memory_type", module.memModuleTechnology);
    writer.Add("size_mib", module.memModuleSize / 1024);
    writer.Add("speed_mhz", module.memModuleFrequency);
    writer.Add("status", {});
    writer.EndObject();
}

void WriteModulesOfSmbios(Writer& writer, Errors& errors) {
    writer.BeginList();
    for (const ZET_MemModule* module : gMemoryMod) {
        if (module == nullptr) break;
        if (module->memModuleSize != 0) WriteModule(writer, *module);
    }
    writer.EndList();
    if (memory_modules_left_out != 0) {
        errors.Add("There are more memory modules than the inventory can contain.");
    }
}

// Reads the modules of the driver's tables, one after another.
class ModuleReader {
  public:
    // Reads the next module. Returns ConfigFailed after the last one. If the driver has counted the sockets,
    // skips those that can't be read. Otherwise the first of these ends the list.
    ModuleRead Next(ModuleStatus& module);

    // Returns whether only some sockets of a cartridge could be read. If none can be read, the cartridge
    // isn't installed.
    bool HasGap() const { return has_gap_; }

  private:
    const MemorySockets sockets_ = ReadSockets();
    int next_ = 0;             // index of the next socket
    bool was_read_ = false;    // a socket of the current cartridge could be read
    bool has_failed_ = false;  // a socket of the current cartridge could not be read
    bool has_gap_ = false;
};

ModuleRead ModuleReader::Next(ModuleStatus& module) {
    while (next_ < sockets_.Count()) {
        if (next_ % sockets_.dimms == 0) was_read_ = has_failed_ = false;
        const ModuleRead result = ReadModule(sockets_, next_++, module);
        const bool failed = result == ModuleRead::ConfigFailed;
        if (failed && !sockets_.are_counted) break;
        (failed ? has_failed_ : was_read_) = true;
        has_gap_ = has_gap_ || (has_failed_ && was_read_);
        if (!failed && result != ModuleRead::Empty) return result;
    }
    return ModuleRead::ConfigFailed;
}

void WriteFan(Writer& writer, const FanStatus& fan, int number) {
    writer.BeginObject();
    writer.Add("number", number);
    writer.Add("location", Word(fan.location.data));
    writer.Add("present", fan.present);
    writer.Add("failed", fan.present ? Value(fan.failed) : Value());
    writer.Add("speed", fan.present ? Word(fan.speed) : Value());
    writer.Add("speed_percent", fan.percent);
    writer.Add("redundant", fan.redundant);
    writer.Add("partner", fan.redundant ? Value(fan.partner) : Value());
    writer.Add("hot_pluggable", fan.failed ? Value() : Value(fan.hot_pluggable));
    writer.EndObject();
}

void WriteSensor(Writer& writer, const SensorStatus& sensor, int number) {
    writer.BeginObject();
    writer.Add("number", number);
    writer.Add("location", sensor.present ? Word(sensor.location.data) : Value());
    writer.Add("present", sensor.present);
    writer.Add("temperature_celsius", sensor.celsius);
    writer.Add("threshold_celsius", sensor.threshold);
    writer.EndObject();
}

void WriteSupply(Writer& writer, const SupplyStatus& supply, int number) {
    writer.BeginObject();
    writer.Add("number", number);
    writer.Add("present", supply.present);
    writer.Add("condition", Word(supply.condition));
    writer.Add("redundant", supply.installed ? Value(supply.redundant) : Value());
    writer.Add("hot_pluggable", supply.installed ? Value(supply.hot_pluggable) : Value());
    writer.EndObject();
}

// Writes a list of `count` parts. `write_part` reads and writes the part with an index from 0, or returns
// false if the part can't be read. The list then lacks the part, and an error contains its name `part`, such
// as "fan", and its number, which is `first` for index 0.
template <typename WritePart>
void WriteParts(Writer& writer, Errors& errors, int count, const char* part, int first,
                WritePart write_part) {
    writer.BeginList();
    for (int i = 0; i < count; ++i) {
        if (write_part(i)) continue;
        char message[64];
        std::snprintf(message, sizeof message, "Failed to read %s %d.", part, first + i);
        errors.Add(message);
    }
    writer.EndList();
}

}  // namespace

void WriteMemory(Writer& writer, Errors& errors) {
    ModuleReader modules;
    ModuleStatus module{};
    ModuleRead result = modules.Next(module);
    if (result != ModuleRead::ConfigFailed) {
        writer.BeginList();
        for (; result != ModuleRead::ConfigFailed; result = modules.Next(module)) {
            const bool status_failed = result == ModuleRead::StatusFailed;
            if (status_failed) errors.Add("Failed to read the status of a memory module.");
            WriteModule(writer, module, status_failed);
        }
        writer.EndList();
    } else if (smbios_available != 0) {
        WriteModulesOfSmbios(writer, errors);
    } else {
        writer.Put(errors.Add("Neither the driver nor SMBIOS lists memory modules."));
    }
    if (modules.HasGap()) errors.Add("Failed to read a memory module.");
}

void WriteFans(Writer& writer, Errors& errors) {
    int count = 0;
    if (ReadFanCount(count) == FanCountRead::Failed)
        return writer.Put(errors.Add("Failed to read the fans."));
    LegacyFans legacy_fans;
    WriteParts(writer, errors, count, "fan", 1, [&](int index) {
        FanStatus fan;
        if (ReadFan(index, legacy_fans, fan) != FanRead::Done) return false;
        WriteFan(writer, fan, index + 1);
        return true;
    });
}

void WriteTemperatures(Writer& writer, Errors& errors) {
    int count = 0;
    if (ReadSensorCount(count) == SensorCountRead::Failed)
        return writer.Put(errors.Add("Failed to read the temperature sensors."));
    WriteParts(writer, errors, count, "temperature sensor", 0, [&](int index) {
        SensorStatus sensor;
        if (!ReadSensor(index, sensor)) return false;
        WriteSensor(writer, sensor, index);
        return true;
    });
}

void WritePowerSupplies(Writer& writer, Errors& errors) {
    int count = 0;
    if (ReadSupplyCount(count) == SupplyCountRead::Failed)
        return writer.Put(errors.Add("No powersupplies were detected."));
    LegacySupplies legacy_supplies;
    WriteParts(writer, errors, count, "power supply", 1, [&](int index) {
        SupplyStatus supply;
        if (!ReadSupply(index, legacy_supplies, supply)) return false;
        WriteSupply(writer, supply, index + 1);
        return true;
    });
}

void WriteUid(Writer& writer, Errors& errors) {
    const char* state = nullptr;
    if (ReadLight(state) != LightRead::Done) errors.Add("Failed to read the unit identification light.");
    writer.BeginObject();
    writer.Add("state", Word(state));
    writer.EndObject();
}

void WriteAsr(Writer& writer, Errors& errors) {
    AsrTimer timer{};
    const bool done = ReadAsrTimer(timer) == AsrRead::Done;
    if (!done) errors.Add("Failed to read ASR status.");
    writer.BeginObject();
    writer.Add("state", done ? Word(EnabledOrDisabled(timer.enabled)) : Value());
    writer.Add("timeout_minutes", done ? Value(timer.minutes) : Value());
    writer.EndObject();
}
