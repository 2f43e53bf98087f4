// Tests of SHOW FANS and SHOW TEMP. Each case changes one property of a device, and facts.txt contains the
// device's row of the table. The last test prints tables of maximum length, which contain every zone.

#include <gtest/gtest.h>

#include "include/health_records.h"
#include "mkmachine/models.h"
#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

// Returns the rows of a table, without the heading and the newlines at the end.
std::string Rows(const TestMachine& machine, const char* command) {
    const std::string output = machine.Script(command).output;
    const size_t first = output.find('#');
    return output.substr(first, output.size() - 2 - first);
}

// The three records that describe a fan.
struct Fan {
    bool has_legacy = false;
    FANDDATA legacy{};
    COMMONFEATUREINFO feature{};
    FANBASIC basic{};

    Fan() {
        feature.DeviceState.usDeviceState = kPresent;
        basic.ucSpeedState = 1;
        basic.ucSpeedPctIsValid = 255;
        basic.ucSpeedPct = 50;
    }
    void Legacy(uint8_t present, uint8_t redundant, uint8_t partner) {
        has_legacy = true;
        legacy.ucPresent = present;
        legacy.ucRedundant = redundant;
        legacy.ucRedundantPartner = partner;
    }
};

struct FanCase {
    const char* catches;
    void (*change)(Fan& fan);
};

// clang-format off
constexpr FanCase kFans[] = {
    {"the fan that the other cases change", [](Fan&) {}},
    // cases: all bits are 1 except the one that must be read
    {"hot-plug is read from another bit", [](Fan& f) { f.basic.FanDescriptor.usFanDescriptor = 0xFFFB; }},
    {"redundancy of the shared group is used", [](Fan& f) { f.feature.DeviceState.usDeviceState = 0xFFF9; }},
    {"bits of the group number are lost or shifted",
     [](Fan& f) { f.feature.DeviceState.usDeviceState = 5, f.feature.RedGroup.usRedundancyInfo = 0xFD7F; }},
    {"bits next to the location are read", [](Fan& f) { f.feature.Location.usLocation = 0xFEA3; }},
    // cases: the legacy record differs from the common feature record
    {"presence is not taken from the legacy record (absent)", [](Fan& f) { f.Legacy(0, 0, 9); }},
    {"presence is not taken from the legacy record (present)",
     [](Fan& f) { f.Legacy(255, 2, 200), f.feature.DeviceState.usDeviceState = kAbsent; }},
    {"redundancy is taken from the common feature record",
     [](Fan& f) { f.Legacy(1, 0, 7), f.feature.DeviceState.usDeviceState = kPresent | kRedundant; }},
    {"a failed fan counts as present",
     [](Fan& f) { f.Legacy(0, 1, 3), f.feature.DeviceState.usDeviceState = kPresent | kFailed; }},
    // cases: the speed
    {"an undefined speed state has a name", [](Fan& f) { f.basic.ucSpeedState = 0x83; }},
    {"a percentage is read as a signed byte", [](Fan& f) { f.basic.ucSpeedPct = 255; }},
};
// clang-format on

constexpr int kIndexOfRow0 = 255;  // the index -1, as the driver receives it

struct SensorCase {
    const char* catches;
    uint8_t kind;
    uint16_t state;
    uint16_t location;
    TEMPERATURENUMBERS numbers;
};

// clang-format off
constexpr SensorCase kSensors[] = {
    {"presence is read from another bit",         kMax1617, 0xFFFE, 0x0000, {1, 1, 20, 1, 50, 0, 0}},
    {"an unknown kind can be absent",         0x85,     kAbsent, 0x0000, {1, 1, 20, 1, 50, 0, 0}},
    {"bits next to the location are read", kLm75, kPresent, 0xFEA3, {1, 1, 20, 1, 50, 0, 0}},
    {"only the value 1 means valid",           kLm75,    kPresent, 0x0002, {0, 128, 20, 255, 50, 0, 0}},
    {"the previous temperature is used",    kLm75,    kPresent, 0x0002, {1, 0, 20, 0, 50, 1, 99}},
};
// clang-format on

TEST(HealthTable, ShowsEachFactOfAFanAndOfASensor) {
    TestMachine machine("bx20");
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{0, 1, 0});
    std::string listing;
    for (const FanCase& c : kFans) {
        Fan fan;
        c.change(fan);
        machine.NoTable(kFanDataTable, 0, 0);
        if (fan.has_legacy) machine.Table(kFanDataTable, 0, 0, fan.legacy);
        machine.Table(kFanFeatureTable, 0, 0, fan.feature);
        machine.Table(kFanBasicTable, 0, 0, fan.basic);
        listing += std::string(c.catches) + "\n" + Rows(machine, "show fan");
    }
    for (const SensorCase& c : kSensors) {
        COMMONFEATUREINFO feature{};
        feature.ucTypeOf = c.kind;
        feature.DeviceState.usDeviceState = c.state;
        feature.Location.usLocation = c.location;
        machine.Table(kTemperatureFeatureTable, kIndexOfRow0, 0, feature);
        machine.Table(kTemperatureNumbersTable, kIndexOfRow0, 0, c.numbers);
        listing += std::string(c.catches) + "\n" + Rows(machine, "SHOW TEMP");
    }
    ExpectGolden("health-table/facts.txt", listing);
}

// all_zones.txt contains both tables. The rows have the zones 0 to 31, repeatedly.
TEST(HealthTable, ShowsAsManyFansAndSensorsAsAByteCanCount) {
    TestMachine machine("bx20");
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{255, 255, 0, 0});
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{255, 255, 0});
    for (int i = 0; i < 256; ++i) {
        const COMMONFEATUREINFO feature = Feature(i, kPresent, static_cast<ZoneType>(i % 32));
        machine.Table(kFanFeatureTable, i, 0, feature);
        machine.Table(kFanBasicTable, i, 0, FANBASIC{});
        machine.Table(kTemperatureFeatureTable, (i + 255) % 256, 0, feature);  // row 0: index 255
        machine.Table(kTemperatureNumbersTable, i, 0, TEMPERATURENUMBERS{});
    }
    ExpectGolden("health-table/all_zones.txt", Rows(machine, "SHOW FANS") + Rows(machine, "SHOW TEMP"));
}

}  // namespace
