// SHOW FANS, as a person and the driver see it.

#include <gtest/gtest.h>

#include "include/health_records.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/features.h"

namespace {

constexpr char kHeading[] =
    "\nFan  Location        Present Speed  of max  Redundant  Partner  Hot-pluggable"
    "\n---  --------        ------- -----  ------  ---------  -------  -------------\n";

std::string Table(const std::string& rows) {
    return kHeading + rows + "\n\n";
}

// One fan, and the three records that tell of it.
struct Fan {
    bool older_offered = false;
    FANDDATA older{};
    COMMONFEATUREINFO feature = Feature(0, kPresent, kSystemZone);
    FANBASIC basic{};

    Fan() {
        basic.ucSpeedState = 1;
        basic.ucSpeedPctIsValid = 255;
        basic.ucSpeedPct = 50;
    }
    void Older(uint8_t present, uint8_t redundant, uint8_t partner) {
        older_offered = true;
        older.ucPresent = present;
        older.ucRedundant = redundant;
        older.ucRedundantPartner = partner;
    }
};

void PutFan(TestMachine& machine, int index, const Fan& fan) {
    machine.NoTable(kFanDataTable, index, 0);
    if (fan.older_offered) machine.Table(kFanDataTable, index, 0, fan.older);
    machine.Table(kFanFeatureTable, index, 0, fan.feature);
    machine.Table(kFanBasicTable, index, 0, fan.basic);
}

struct FactCase {
    const char* catches;
    void (*change)(Fan& fan);
    const char* row;
};

// clang-format off
constexpr FactCase kFacts[] = {
    {"the fan that the others differ from", [](Fan&) {},
     "#1   SYSTEM          Yes     NORMAL 50%     No         N/A      No            \n"},
    // one bit among its neighbours
    {"hot-plug from another bit", [](Fan& f) { f.basic.FanDescriptor.usFanDescriptor = 0xFFFB; },
     "#1   SYSTEM          Yes     NORMAL 50%     No         N/A      No            \n"},
    {"the shared group taken for the fan's", [](Fan& f) { f.feature.DeviceState.usDeviceState = 0xFFF9; },
     "#1   SYSTEM          Yes     NORMAL 50%     No         N/A      No            \n"},
    {"a group number cut or shifted",
     [](Fan& f) { f.feature.DeviceState.usDeviceState = 5, f.feature.RedGroup.usRedundancyInfo = 0xFD7F; },
     "#1   SYSTEM          Yes     NORMAL 50%     Yes        21       No            \n"},
    {"bits beside the location read into it", [](Fan& f) { f.feature.Location.usLocation = 0xFFE3; },
     "#1   CPU#31          Yes     NORMAL 50%     No         N/A      No            \n"},
    // the older record against the common one
    {"a fan absent by the older record alone", [](Fan& f) { f.Older(0, 0, 9); },
     "#1   SYSTEM          No      -      50%     No         N/A      No            \n"},
    {"a fan present by the older record alone",
     [](Fan& f) { f.Older(255, 2, 200), f.feature.DeviceState.usDeviceState = kAbsent; },
     "#1   SYSTEM          Yes     NORMAL 50%     Yes        200      No            \n"},
    {"redundancy from the common record",
     [](Fan& f) { f.Older(1, 0, 7), f.feature.DeviceState.usDeviceState = kPresent | kRedundant; },
     "#1   SYSTEM          Yes     NORMAL 50%     No         N/A      No            \n"},
    {"a failed fan taken for present",
     [](Fan& f) { f.Older(0, 1, 3), f.feature.DeviceState.usDeviceState = kPresent | kFailed; },
     "#1   SYSTEM          No      -      -       Yes        3        -             \n"},
    // speed
    {"a speed state above the known ones", [](Fan& f) { f.basic.ucSpeedState = 255; },
     "#1   SYSTEM          Yes     UNKNOWN50%     No         N/A      No            \n"},
    {"a percentage wider than signed bytes", [](Fan& f) { f.basic.ucSpeedPct = 255; },
     "#1   SYSTEM          Yes     NORMAL 255%    No         N/A      No            \n"},
};
// clang-format on

TEST(ShowFans, OneFactEach) {
    TestMachine machine("bx20");
    for (const FactCase& c : kFacts) {
        Fan fan;
        c.change(fan);
        PutFan(machine, 0, fan);
        EXPECT_EQ(machine.Script("show fan").output, Table(c.row)) << c.catches;
    }
}

}  // namespace
