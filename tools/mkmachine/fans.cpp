#include <vector>

#include "include/fan_records.h"
#include "tools/mkmachine/features.h"
#include "tools/mkmachine/models.h"

namespace {

constexpr uint8_t kOtherSpeed = 0;
constexpr int kNoPercent = -1;

struct Fan {
    unsigned state;  // bits of State
    Zone zone;
    unsigned instance;  // of the zone
    uint8_t speed;      // a FanSpeed, or another
    int percent;        // of maximum, or kNoPercent
    bool hot_plug;
    unsigned partner;  // and redundancy group
    bool older_record;
};

// clang-format off
const std::vector<Fan> kTr500k2Fans = {
    {kPresent | kRedundant, kSystem,  0, kFanNormal,  35,         true,  2, false},
    {kPresent | kRedundant, kSystem,  0, kFanNormal,  35,         true,  1, false},
    {kPresent,              kCpu,     1, kFanHigh,    100,        true,  0, false},
    {kPresent | kFailed,    kCpu,     2, kFanOff,     0,          true,  0, false},
    {kPresent,              kCpu,     0, kFanNormal,  40,         false, 0, false},
    {kPresent,              kMemory,  0, kFanOff,     0,          true,  0, false},
    {kPresent,              kIo,      0, kOtherSpeed, kNoPercent, false, 0, false},
    {kAbsent,               kScsi,    0, kFanOff,     kNoPercent, true,  0, false},
    {kAbsent | kFailed,     kSupply,  0, kFanOff,     kNoPercent, false, 0, false},
    {kPresent,              kExhaust, 0, kFanHigh,    85,         false, 0, false},
    {kPresent,              kVirtual, 0, kFanNormal,  50,         false, 0, false},
};
const std::vector<Fan> kTr300Fans = {
    {kPresent | kRedundant, kSystemBoard, 0, kFanNormal,  45,         false, 2, true},
    {kPresent | kRedundant, kSystemBoard, 0, kFanNormal,  45,         false, 1, true},
    {kPresent,              kCpu,         1, kFanHigh,    90,         false, 0, true},
    {kPresent | kRedundant, kIo,          0, kFanNormal,  kNoPercent, false, 3, false},
    {kAbsent,               kMedia,       0, kFanOff,     kNoPercent, false, 0, false},
};
const std::vector<Fan> kBx20Fans = {  // the enclosure's own fans cool a blade
    {kPresent | kRedundant, kVirtual, 0, kFanNormal, 40, false, 1, false},
};
// clang-format on

const std::vector<Fan>& FansOf(ModelId model) {
    switch (model) {
        case ModelId::Tr500k2: return kTr500k2Fans;
        case ModelId::Tr300: return kTr300Fans;
        default: return kBx20Fans;
    }
}

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

void AddFans(MachineBuilder& machine, ModelId model) {
    const std::vector<Fan>& fans = FansOf(model);
    const auto count = static_cast<uint8_t>(fans.size());
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{count, 1, 1, count});
    for (size_t i = 0; i < fans.size(); ++i) AddFan(machine, static_cast<int>(i), fans[i]);
}
