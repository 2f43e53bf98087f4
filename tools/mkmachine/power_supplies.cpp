#include <vector>

#include "include/power_supply_records.h"
#include "tools/mkmachine/features.h"
#include "tools/mkmachine/models.h"

namespace {

enum class Older { None, Absent, Present };  // what the older record says, if there is one

struct Supply {
    unsigned state;
    bool hot_plug;
    Older older;
};

// clang-format off
const std::vector<Supply> kTr500k2Supplies = {
    {kPresent | kRedundant,           true,  Older::None},
    {kPresent | kFailed | kRedundant, true,  Older::None},
    {kPresent | kFailed,              false, Older::None},
    {kAbsent,                         true,  Older::None},
};
const std::vector<Supply> kTr300Supplies = {
    {kPresent,           true,  Older::Present},
    {kAbsent,            true,  Older::Absent},
    {kAbsent,            false, Older::Present},  // the two records disagree
    {kPresent | kFailed, true,  Older::None},
    {kAbsent,            true,  Older::None},
};
// clang-format on

void AddSupply(MachineBuilder& machine, int index, const Supply& supply) {
    if (supply.older != Older::None) {
        POWERSUPPLYNUMBERS older{};
        older.ucPresent = supply.older == Older::Present;
        machine.Table(kSupplyNumbersTable, index, 0, older);
    }
    machine.Table(kSupplyFeatureTable, index, 0, Feature(index, supply.state, kSupply));

    POWERSUPPLYBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.PsDescriptor.s1.bit_HotPlug = supply.hot_plug;
    machine.Table(kSupplyBasicTable, index, 0, basic);
}

}  // namespace

void AddPowerSupplies(MachineBuilder& machine, ModelId model) {
    if (model == ModelId::Bx20) {  // the enclosure powers a blade
        machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{});
        return;
    }
    const std::vector<Supply>& supplies = model == ModelId::Tr500k2 ? kTr500k2Supplies : kTr300Supplies;
    const auto count = static_cast<uint8_t>(supplies.size());
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{count, 1, 1, 0, count});
    for (size_t i = 0; i < supplies.size(); ++i) AddSupply(machine, static_cast<int>(i), supplies[i]);
}
