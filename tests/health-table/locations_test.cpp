// The tables of fans and sensors at their longest, with every zone in them.

#include <gtest/gtest.h>

#include <cstdio>

#include "include/health_records.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/features.h"

namespace {

struct ZoneNames {
    const char *fans, *sensors;
};

constexpr int kZones = 32;

// clang-format off
constexpr ZoneNames kNames[kZones] = {  // what is left out has no name
    {"SYSTEM", "SYSTEM_BD"},            {"SYSTEM", "SYSTEM_BD"},
    {"I/O_ZONE", "I/O_ZONE"},           {"PROCESSOR_ZONE", "PROCESSOR_ZONE"},
    {"MEMORY_BD", "MEMORY_BD"},         {"SCSI_BACKPLANE_ZONE", "SCSI_BACKPLANE_ZONE"},
    {"REMOVABLE_MEDIA", "REMOVABLE_MEDIA"}, {"POWERSUPPLY_BAY", "POWER_SUPPLY_BAY"},
    {"AMBIENT", "AMBIENT"},             {"CHASSIS_ZONE", "CHASSIS_ZONE"},
    {"PCI_BRIDGE_CARD", "PCI_BRIDGE_CARD"}, {"EXHAUST", "EXHAUSTED_AIR"},
    {}, {}, {},                         {"VIRTUAL", "VIRTUAL"},
};
// clang-format on

// Row number row of a table whose rows go through the zones in turn.
std::string Row(const char* format, int row, const char* zone) {
    char text[120];
    std::snprintf(text, sizeof text, format, row, zone != nullptr ? zone : "NOT_SUPPORTED");
    return text;
}

TEST(HealthTable, ShowsEveryFanAndSensorThatAByteCanCount) {
    TestMachine machine("bx20");
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{255, 255, 0, 0});
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{255, 255, 0});
    std::string fans, sensors;
    for (int i = 0; i < 256; ++i) {
        const COMMONFEATUREINFO feature = Feature(i, kPresent, static_cast<ZoneType>(i % kZones));
        machine.Table(kFanFeatureTable, i, 0, feature);
        machine.Table(kFanBasicTable, i, 0, FANBASIC{});
        machine.Table(kTemperatureFeatureTable, (i + 255) % 256, 0, feature);  // row 0 is index 255
        machine.Table(kTemperatureNumbersTable, i, 0, TEMPERATURENUMBERS{});

        const ZoneNames& names = kNames[i % kZones];
        fans +=
            Row("#%-4d%-16sYes     UNKNOWNN/A     No         N/A      No            \n", i + 1, names.fans);
        sensors += Row("#%-9d%-21s -          -       \n", i, names.sensors);
    }
    fans.resize(fans.rfind("#256"));

    const std::string shown_fans = machine.Script("SHOW FANS").output;
    EXPECT_EQ(shown_fans.substr(shown_fans.find('#')), fans + "\n\n");
    const std::string shown_sensors = machine.Script("SHOW TEMP").output;
    EXPECT_EQ(shown_sensors.substr(shown_sensors.find('#')), sensors + "\n\n");
}

}  // namespace
