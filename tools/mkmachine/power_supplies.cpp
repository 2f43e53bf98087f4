// The driver's records of power supplies.
#include "include/health_records.h"
#include "tools/mkmachine/facts.h"

namespace {

void AddSupply(MachineBuilder& machine, int index, const Supply& supply) {
    if (supply.older != OlderRecord::None) {
        POWERSUPPLYNUMBERS older{};
        older.ucPresent = supply.older == OlderRecord::Present;
        machine.Table(kSupplyNumbersTable, index, 0, older);
    }
    machine.Table(kSupplyFeatureTable, index, 0, Feature(index, supply.state, kPowerSupplyZone));

    POWERSUPPLYBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.PsDescriptor.s1.bit_HotPlug = supply.hot_plug;
    machine.Table(kSupplyBasicTable, index, 0, basic);
}

}  // namespace

void AddPowerSupplies(MachineBuilder& machine, const std::vector<Supply>& supplies) {
    if (supplies.empty()) {
        machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{});
        return;
    }
    const auto count = static_cast<uint8_t>(supplies.size());
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{count, 1, 1, 0, count});
    for (size_t i = 0; i < supplies.size(); ++i) AddSupply(machine, static_cast<int>(i), supplies[i]);
}
