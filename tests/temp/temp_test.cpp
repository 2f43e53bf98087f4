// SHOW TEMP, as a person and the driver see it.

#include <gtest/gtest.h>

#include "include/health_records.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/features.h"

namespace {

constexpr int kBeforeTheFirst = 255;  // the driver's index of row 0

std::string Table(const std::string& rows) {
    return "\nSensor   Location              Temp       Threshold"
           "\n------   --------              ----       ---------\n" +
           rows + "\n\n";
}

struct FactCase {
    const char* catches;
    uint8_t kind;
    uint16_t state;
    uint16_t location;
    TEMPERATURENUMBERS numbers;
    const char* row;
};

// clang-format off
constexpr FactCase kFacts[] = {
    {"presence from another bit",         kMax1617, 0xFFFE, 0x0000, {1, 1, 20, 1, 50, 0, 0},
     "#0         -                    -          -       \n"},
    {"an unknown kind that may be absent", 255,     kAbsent, 0x0000, {1, 1, 20, 1, 50, 0, 0},
     "#0        SYSTEM_BD            20C/68F    50C/122F \n"},
    {"bits beside the location read into it", kLm75, kPresent, 0xFFE3, {1, 1, 20, 1, 50, 0, 0},
     "#0        CPU#31               20C/68F    50C/122F \n"},
    {"validity that is only 1",           kLm75,    kPresent, 0x0002, {0, 128, 20, 255, 50, 0, 0},
     "#0        I/O_ZONE             20C/68F    50C/122F \n"},
    {"the previous temperature taken",    kLm75,    kPresent, 0x0002, {1, 0, 20, 0, 50, 1, 99},
     "#0        I/O_ZONE              -          -       \n"},
};
// clang-format on

TEST(ShowTemp, OneFactEach) {
    TestMachine machine("bx20");
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{0, 1, 0});
    for (const FactCase& c : kFacts) {
        COMMONFEATUREINFO feature{};
        feature.ucTypeOf = c.kind;
        feature.DeviceState.usDeviceState = c.state;
        feature.Location.usLocation = c.location;
        machine.Table(kTemperatureFeatureTable, kBeforeTheFirst, 0, feature);
        machine.Table(kTemperatureNumbersTable, kBeforeTheFirst, 0, c.numbers);
        EXPECT_EQ(machine.Script("SHOW TEMP").output, Table(c.row)) << c.catches;
    }
}

}  // namespace
