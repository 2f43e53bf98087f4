// SHOW POWERSUPPLY: a block of lines for each bay, printed as soon as the bay has been read.

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

SupplyBays::SupplyBays() {
    const Reply<POWERSUPPLYHEADER> header(kSupplyHeaderTable, 0);
    if (!header) return;
    found_ = header->ucDataAvailable != 0 ? Found::Bays : Found::NoData;
    if (found_ == Found::Bays) num_ps = header->ucNumSupportedByChassis;
}

bool SupplyBays::Read(int index, SupplyStatus& supply) {
    supply = {};
    const std::optional<POWERSUPPLYNUMBERS> older = older_records_.Read(index);
    if (older && older->ucPresent == 0) return true;

    const Reply<COMMONFEATUREINFO> feature(kSupplyFeatureTable, index);
    if (!feature) return false;
    const DEVICE_STATE_FLAGS state = feature->DeviceState;
    supply.present = state.s1.bit_PhysicallyPresent != 0;
    supply.installed = older || supply.present;
    if (!supply.installed) return true;

    const Reply<POWERSUPPLYBASIC> basic(kSupplyBasicTable, index);
    if (!basic) return false;
    supply.redundant = state.s1.bit_GroupIsRedundant != 0;
    supply.condition = Condition(state);
    supply.hot_pluggable = basic->PsDescriptor.s1.bit_HotPlug != 0;
    return true;
}

// Words behind the command are ignored.
int do_show_powersupply(InputLineType* /*InputLine*/) {
    SupplyBays bays;
    if (bays.What() == SupplyBays::Found::Refused) return Fail("\nNo powersupplies were detected.");
    if (bays.What() == SupplyBays::Found::NoData) {
        return Fail(
            "\nNo Power Supply data found."
            "\nThis system may not support powersupply health reporting.");
    }

    for (int i = 0; i < bays.Count(); ++i) {
        std::printf("\nPower supply #%d", i + 1);
        SupplyStatus supply;
        if (!bays.Read(i, supply)) return Fail("\nERROR \"SHOW POWERSUPPLY\" command failed.");
        PrintSupply(supply);
    }
    return 0;
}
