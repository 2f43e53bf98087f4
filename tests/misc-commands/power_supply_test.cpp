// SHOW POWERSUPPLY, as a person and the driver see it.

#include <gtest/gtest.h>

#include "include/health_records.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/features.h"

namespace {

TEST(ShowPowerSupply, ReadsEachBitAmongItsNeighbours) {
    TestMachine machine("bx20");
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{1, 255, 0, 0, 0});
    machine.Table(kSupplyNumbersTable, 0, 0, POWERSUPPLYNUMBERS{255, 0, 0, 0, 0});
    machine.Table(kSupplyFeatureTable, 0, 0, Feature(0, 0xFFF8, kPowerSupplyZone));
    machine.Table(kSupplyBasicTable, 0, 0, POWERSUPPLYBASIC{1, {0xFFFE}});
    EXPECT_EQ(machine.Script("SHOW POWERSUPPLY").output,
              "\nPower supply #1\n\tPresent : No\n\tRedundant: No\n\tCondition: Ok"
              "\n\tHotplug  : Not supported\n\n\n");
}

}  // namespace
