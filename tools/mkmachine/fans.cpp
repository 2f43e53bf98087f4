// The driver's records of fans.
#include "tools/mkmachine/facts.h"

namespace {

void AddFan(MachineBuilder& machine, int index, const Fan& fan) {
    const bool redundant = (fan.state & kRedundant) != 0;
    if (fan.older_record) {
        FANDDATA older{};
        older.ucPresent = (fan.state & kPresent) != 0;
        older.ucRedundant = redundant;
        older.ucRedundantPartner = static_cast<uint8_t>(fan.partner);
        machine.Table(kFanDataTable, index, 0, older);
    }

    COMMONFEATUREINFO feature = Feature(index, fan.state, fan.zone, fan.instance);
    feature.RedGroup.s1.bit_RedundantCapable = redundant;
    feature.RedGroup.s1.bits_RedundantGroupId = fan.partner & 31;
    machine.Table(kFanFeatureTable, index, 0, feature);

    FANBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.FanDescriptor.s1.bit_HotPlug = fan.hot_plug;
    basic.ucSpeedStateIsValid = 1;
    basic.ucSpeedState = fan.speed;
    basic.ucSpeedPctIsValid = fan.percent != kNoPercent;
    basic.ucSpeedPct = static_cast<uint8_t>(fan.percent != kNoPercent ? fan.percent : 0);
    machine.Table(kFanBasicTable, index, 0, basic);
}

}  // namespace

void AddFans(MachineBuilder& machine, const std::vector<Fan>& fans) {
    const auto count = static_cast<uint8_t>(fans.size());
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{count, 1, 1, count});
    for (size_t i = 0; i < fans.size(); ++i) AddFan(machine, static_cast<int>(i), fans[i]);
}
