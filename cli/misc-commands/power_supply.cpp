// SHOW POWERSUPPLY: a block of lines for each bay, printed as soon as the bay has been read.

#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/health-table/older_records.h"
#include "cli/misc-commands/misc_commands.h"
#include "include/power_supply_records.h"

namespace {

const char* Condition(bool failed, bool group_is_redundant) {
    if (!failed) return "Ok";
    return group_is_redundant ? "DEGRADED" : "FAILED";
}

void PrintSupply(DEVICE_STATE_FLAGS state, PSDESCRIPTOR descriptor) {
    const bool present = state.s1.bit_PhysicallyPresent != 0;
    const bool failed = state.s1.bit_PhysicallyFailed != 0;
    const bool redundant = state.s1.bit_GroupIsRedundant != 0;
    std::printf("\n\tPresent : %s", YesNo(present));
    std::printf("\n\tRedundant: %s", YesNo(redundant));
    std::printf("\n\tCondition: %s", Condition(failed, redundant));
    std::printf("\n\tHotplug  : %s\n", descriptor.s1.bit_HotPlug != 0 ? "Supported" : "Not supported");
}

void PrintNotPresent() {
    std::printf("\n\tPower Supply not present\n");
}

// Shows bay number index, from 0. False when a record of it can't be read.
bool ShowBay(int index, OlderRecords<POWERSUPPLYNUMBERS>& older_records) {
    std::printf("\nPower supply #%d", index + 1);

    POWERSUPPLYNUMBERS older{};
    const bool newway = !older_records.Read(index, &older);
    if (!newway && older.ucPresent == 0) {
        PrintNotPresent();
        return true;
    }

    const Reply<COMMONFEATUREINFO> feature(kSupplyFeatureTable, index);
    if (!feature) return false;
    if (newway && feature->DeviceState.s1.bit_PhysicallyPresent == 0) {
        PrintNotPresent();
        return true;
    }

    const Reply<POWERSUPPLYBASIC> basic(kSupplyBasicTable, index);
    if (!basic) return false;
    PrintSupply(feature->DeviceState, basic->PsDescriptor);
    return true;
}

}  // namespace

// Words behind the command are ignored.
int do_show_powersupply(InputLineType* /*InputLine*/) {
    int num_ps = 0;
    {
        const Reply<POWERSUPPLYHEADER> header(kSupplyHeaderTable, 0);
        if (!header) return Fail("\nNo powersupplies were detected.");
        if (header->ucDataAvailable == 0) {
            return Fail(
                "\nNo Power Supply data found."
                "\nThis system may not support powersupply health reporting.");
        }
        num_ps = header->ucNumSupportedByChassis;
    }

    OlderRecords<POWERSUPPLYNUMBERS> older_records(kSupplyNumbersTable);
    for (int i = 0; i < num_ps; ++i) {
        if (!ShowBay(i, older_records)) return Fail("\nERROR \"SHOW POWERSUPPLY\" command failed.");
    }
    return 0;
}
