// Tests of SHOW POWERSUPPLY, SHOW UID, SET UID and SHOW DIMM: values at their limits, and the sockets that
// SHOW DIMM requests.

#include <gtest/gtest.h>

#include <algorithm>

#include "include/health_records.h"
#include "include/memory_records.h"
#include "mkmachine/models.h"
#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

// In each record, the bits that the command doesn't read are the opposite of those that it reads. The second
// bay is empty. The third bay has no legacy record, and the fourth has no records.
TEST(ShowPowerSupply, ReadsOnlyItsBits) {
    TestMachine machine("bx20");
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{255, 255, 0, 0, 0});
    machine.Table(kSupplyNumbersTable, 1, 0, POWERSUPPLYNUMBERS{0, 255, 255, 255, 255});
    machine.Table(kSupplyNumbersTable, 0, 0, POWERSUPPLYNUMBERS{255, 0, 0, 0, 0});
    machine.Table(kSupplyFeatureTable, 0, 0, Feature(0, 0xFFF8, kPowerSupplyZone));
    machine.Table(kSupplyBasicTable, 0, 0, POWERSUPPLYBASIC{1, {0xFFFE}});
    COMMONFEATUREINFO third{};
    third.DeviceState.usDeviceState = kPresent | kFailed | kRedundant;
    machine.Table(kSupplyFeatureTable, 2, 0, third);
    machine.Table(kSupplyBasicTable, 2, 0, POWERSUPPLYBASIC{0, {1}});
    ExpectGolden("misc-commands/power_supplies.txt", machine.Script("SHOW POWERSUPPLY").output);
}

constexpr char kControlFile[] = "cdt/1503.0.0";

TEST(SetUid, ChangesTheState) {
    TestMachine machine("tr300");
    const std::string before("\0\1\0\0\1", 5);  // the light is on, and an earlier request has failed
    machine.Write(kControlFile, before);
    machine.Table(kIndicatorHeaderTable, 0, 0, INDCHEADER{1, 255, 0});
    EXPECT_EQ(machine.Script("SET UID OFF").output, "\nUID is now off.\n\n");
    machine.StartTrace();
    EXPECT_EQ(machine.Script("SHOW UID;SET UID ON;SHOW UID").output,
              "\nUID is currently off.\n\nUID is now on.\n\nUID is currently on.\n\n");
    EXPECT_EQ(machine.TakeTrace("cdt"),
              "cdt 1503.0.0 size=5 cru=1.4 -> 0\ncdt 1500.0.0 size=3 cru=0.0 -> 0\n"
              "cdt 1503.0.0 size=5 cru=1.1 -> 0\ncdt 1503.0.0 size=5 cru=1.4 -> 0\n");
    EXPECT_EQ(machine.Read(kControlFile), before);
}

constexpr int kBoardIndex = 255;

TEST(ShowDimm, PrintsLargeNumbersAsSignedOrHexadecimal) {
    TestMachine machine("bx20");
    RESMEM_DIMM_CONFIG config{};
    config.ulCartID = config.ulModuleID = 0xFFFFFFFF;
    config.ulPresent = 0x100;
    config.dimmInfo.ulFormFactor = config.dimmInfo.ulMemType = 0xFFFFFFFF;
    config.dimmInfo.ulSize = config.dimmInfo.ulSpeed = 0x80000000;
    machine.Table(kModuleConfigTable, kBoardIndex, 0, config);
    RESMEM_DIMM_STATUS status{};
    status.ulStatus = 0xFFFFFF02;
    machine.Table(kModuleStatusTable, kBoardIndex, 0, status);
    machine.NoTable(kModuleConfigTable, kBoardIndex, 1);
    ExpectGolden("misc-commands/dimm.txt", machine.Script("SHOW DIMM").output);
}

struct WalkCase {
    const char* catches;
    bool has_counts;                // whether the driver has a record with the two counts
    uint32_t modules, cartridges;   // the two counts
    RESMEM_CARTRIDGE_CONFIG board;  // record of the system board
    int requested;                  // number of sockets that are requested; all are empty
    const char* last;               // the last socket that is requested
};

// clang-format off
constexpr WalkCase kWalks[] = {
    {"cartridges are read, too",              true,  2,          3,          {0, 256, 0, {}, 0, 0, 0}, 2, "1706.255.1"},
    {"the board is ignored without counts",   false, 0,          0,          {0, 5, 0, {}, 0, 0, 0}, 20,  "1706.255.19"},
    {"a board without modules is read",       true,  2,          3,          {0, 0, 0, {}, 0, 0, 0}, 6,   "1706.2.1"},
    {"another cartridge is the board",        true,  2,          3,          {256, 2, 0, {}, 0, 0, 0}, 6, "1706.2.1"},
    {"other counts if there is no record",    false, 0,          0,          {1, 2, 0, {}, 0, 0, 0}, 400, "1706.19.19"},
    {"a socket of no cartridge is read",      true,  2,          0,          {1, 2, 0, {}, 0, 0, 0}, 0,   ""},
    {"a count below 0 is used",               true,  0x80000000, 1,          {1, 2, 0, {}, 0, 0, 0}, 0,   ""},
    {"the module index wraps",                true,  0x7FFFFFFF, 1,          {1, 2, 0, {}, 0, 0, 0}, 256, "1706.0.255"},
    {"the board is read as a cartridge",      true,  1,          0x7FFFFFFF, {1, 2, 0, {}, 0, 0, 0}, 255, "1706.254.0"},
};
// clang-format on

void AddEmptySockets(TestMachine& machine, int cartridge, int count) {
    for (int i = 0; i < count; ++i) machine.Table(kModuleConfigTable, cartridge, i, RESMEM_DIMM_CONFIG{});
}

TEST(ShowDimm, RequestsTheSocketsThatTheDriverCounts) {
    TestMachine machine("tr300");
    AddEmptySockets(machine, 0, 256);
    for (int i = 1; i < 256; ++i) AddEmptySockets(machine, i, i <= 20 || i == kBoardIndex ? 20 : 2);
    for (const WalkCase& c : kWalks) {
        RESMEM_CONFIG memory{};
        memory.ulNumberModules = c.modules;
        memory.ulNumberCartridges = c.cartridges;
        machine.NoTable(kMemoryTable, 0, 0);
        if (c.has_counts) machine.Table(kMemoryTable, 0, 0, memory);
        machine.Table(kCartridgeTable, kBoardIndex, 0, c.board);
        machine.StartTrace();
        const RunResult run = machine.Script("SHOW DIMM");
        const std::string trace = machine.TakeTrace("cdt 1706");
        EXPECT_EQ(std::count(trace.begin(), trace.end(), '\n'), c.requested) << c.catches;
        EXPECT_NE(run.output.find("Status:         N/A"), std::string::npos)
            << c.catches << ": the SMBIOS modules are not listed:\n"
            << run.output;
        if (c.requested > 0) {
            EXPECT_EQ(trace.find(c.last, trace.rfind("1706")), trace.rfind("1706")) << c.catches;
        }
    }
}

}  // namespace
