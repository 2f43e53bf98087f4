// Adds the driver's records of fans, temperature sensors, power supplies, the unit identification light and
// memory modules.
#pragma once

#include <cstdint>
#include <vector>

#include "include/data_tables.h"
#include "include/health_records.h"
#include "mkmachine/machine_builder.h"

enum State : unsigned { kAbsent = 0, kPresent = 1, kFailed = 2, kRedundant = 4 };  // DEVICE_STATE_FLAGS

constexpr auto kUnnamedZone = static_cast<ZoneType>(12);  // the driver has no name for this code

// Returns the common feature record of a fan, a temperature sensor or a power supply. `index` is the device's
// index within its family; -1 is valid (ucId is `index` + 1). `state` has bits of State; `instance` is 0 to
// 31.
inline COMMONFEATUREINFO Feature(int index, unsigned state, ZoneType zone, unsigned instance = 0) {
    COMMONFEATUREINFO feature{};
    feature.ucDataAvailable = 1;
    feature.DeviceState.usDeviceState = static_cast<uint16_t>(state);
    feature.ucId = static_cast<uint8_t>(index + 1);
    feature.Location.s1.bits_ZoneType = zone & 31u;
    feature.Location.s1.bits_InstanceOfZoneType = instance & 31;
    return feature;
}

constexpr uint8_t kOtherSpeed = 0;  // the driver has no name for this code
constexpr int kNoPercent = -1;

struct Fan {
    unsigned state;  // bits of State
    ZoneType zone;
    unsigned instance;  // number within the zone
    uint8_t speed;      // a FanSpeed, or kOtherSpeed
    int percent;        // percent of the maximum speed, or kNoPercent
    bool hot_plug;
    unsigned partner;    // number of the redundant partner; also used as the redundancy group
    bool legacy_record;  // whether the fan also has a record in the driver's legacy table (FANDDATA)
};
void AddFans(MachineBuilder& machine, const std::vector<Fan>& fans);

constexpr uint8_t kOtherKind = 0;  // a sensor kind other than those of SensorKind
constexpr int kInvalid = -1;       // value of a reading or threshold that doesn't exist

struct Sensor {
    uint8_t kind;  // a SensorKind, or kOtherKind
    unsigned state;
    ZoneType zone;
    unsigned instance;  // number within the zone
    int reading;        // degrees Celsius, or kInvalid
    int threshold;      // degrees Celsius, or kInvalid
};
// Adds the sensors. The driver sends the index of the first sensor as 255, and doesn't include this sensor in
// its count.
void AddTemperatures(MachineBuilder& machine, const std::vector<Sensor>& sensors);

// Whether a power supply has a record in the driver's legacy table (POWERSUPPLYNUMBERS), and whether the
// record states that it is present.
enum class LegacyRecord { None, Absent, Present };

struct Supply {
    unsigned state;
    bool hot_plug;
    LegacyRecord legacy_record;
};
void AddPowerSupplies(MachineBuilder& machine, const std::vector<Supply>& supplies);

// Adds the unit identification light.
void AddIndicators(MachineBuilder& machine, IndicatorState uid);

struct Module {
    uint32_t present;           // 0: the socket is empty
    uint32_t size;              // MiB
    uint32_t speed;             // MHz
    uint8_t form_factor, type;  // SMBIOS codes
    uint32_t status;
};

// The memory modules that the driver reports. Both lists are empty if the driver has no memory tables.
struct DriverMemory {
    std::vector<std::vector<Module>> cartridges;  // labelled from 1; all have as many sockets as the first
    std::vector<Module> system_board;
};
void AddMemoryModules(MachineBuilder& machine, const DriverMemory& memory);
