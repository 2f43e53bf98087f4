// The handler of SHOW POWERSUPPLY prints each bay as soon as it has been read.

#include "cli/misc-commands/power_supply.h"

#include <cstdio>

#include "cli/command/command.h"

namespace {

const char* Condition(DEVICE_STATE_FLAGS state) {
    if (state.s1.bit_PhysicallyFailed == 0) return "Ok";
    return state.s1.bit_GroupIsRedundant != 0 ? "DEGRADED" : "FAILED";
}

void PrintSupply(const SupplyStatus& supply) {
    if (!supply.installed) {
        std::printf("\n\tPower Supply not present\n");
        return;
    }
    std::printf("\n\tPresent : %s", YesNo(supply.present));
    std::printf("\n\tRedundant: %s", YesNo(supply.redundant));
    std::printf("\n\tCondition: %s", supply.condition);
    std::printf("\n\tHotplug  : %s\n", supply.hot_pluggable ? "Supported" : "Not supported");
}

}  // namespace

SupplyCountRead ReadSupplyCount(int& count) {
    const Reply<POWERSUPPLYHEADER> header(kSupplyHeaderTable, 0);
    if (!header) return SupplyCountRead::Failed;
    if (header->ucDataAvailable == 0) return SupplyCountRead::NoData;
    count = header->ucNumSupportedByChassis;
    return SupplyCountRead::Done;
}

bool ReadSupply(int index, LegacySupplies& legacy_supplies, SupplyStatus& supply) {
    supply = {};
    const std::optional<POWERSUPPLYNUMBERS> legacy = legacy_supplies.Read(index);
    if (legacy && legacy->ucPresent == 0) return true;

    const Reply<COMMONFEATUREINFO> feature(kSupplyFeatureTable, index);
    if (!feature) return false;
    const DEVICE_STATE_FLAGS state = feature->DeviceState;
    supply.present = state.s1.bit_PhysicallyPresent != 0;
    supply.installed = legacy || supply.present;
    if (!supply.installed) return true;

    const Reply<POWERSUPPLYBASIC> basic(kSupplyBasicTable, index);
    if (!basic) return false;
    supply.redundant = state.s1.bit_GroupIsRedundant != 0;
    supply.condition = Condition(state);
    supply.hot_pluggable = basic->PsDescriptor.s1.bit_HotPlug != 0;
    return true;
}

// Ignores further arguments.
int do_show_powersupply(InputLineType* /*InputLine*/) {
    int num_ps = 0;
    switch (ReadSupplyCount(num_ps)) {
        case SupplyCountRead::Failed: return Fail("\nNo powersupplies were detected.");
        case SupplyCountRead::NoData:
            return Fail(
                "\nNo Power Supply data found."
                "\nThis system may not support powersupply health reporting.");
        case SupplyCountRead::Done: break;
    }

    LegacySupplies legacy_supplies;
    for (int i = 0; i < num_ps; ++i) {
        std::printf("\nPower supply #%d", i + 1);
        SupplyStatus supply;
        if (!ReadSupply(i, legacy_supplies, supply)) {
            return Fail("\nERROR \"SHOW POWERSUPPLY\" command failed.");
        }
        PrintSupply(supply);
    }
    return 0;
}
