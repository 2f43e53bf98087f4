#include "cli/fan/fan.h"

#include <cstdio>

#include "cli/command/command.h"
#include "include/health_records.h"
#include "src/utils/text.h"

namespace {

constexpr CodeText kSpeeds[] = {
    {kFanNormal, "NORMAL"},
    {kFanHigh, "HIGH"},
    {kFanOff, "OFF"},
};

void SetPresence(FanStatus& fan, const FANDDATA& legacy) {
    fan.present = legacy.ucPresent != 0;
    fan.redundant = legacy.ucRedundant != 0;
    fan.partner = legacy.ucRedundantPartner;
}

void SetPresence(FanStatus& fan, const COMMONFEATUREINFO& feature) {
    fan.present = feature.DeviceState.s1.bit_PhysicallyPresent != 0;
    fan.redundant = feature.DeviceState.s1.bit_GroupIsRedundant != 0;
    fan.partner = feature.RedGroup.s1.bits_RedundantGroupId;
}

void SetSpeed(FanStatus& fan, const FANBASIC& basic) {
    fan.speed = TextOfCode(kSpeeds, basic.ucSpeedState, "UNKNOWN");
    if (basic.ucSpeedPctIsValid != 0) fan.percent = basic.ucSpeedPct;
    fan.hot_pluggable = basic.FanDescriptor.s1.bit_HotPlug != 0;
}

// The indexes of a row's cells. The cells that have no name here are never printed.
enum Cell {
    kFan = 0,
    kLocation = 1,
    kSpeed = 3,
    kPercent = 4,
    kRedundant = 5,
    kPartner = 6,
    kHotPluggable = 8,
    kPresent = 9,
};

constexpr char kHeading[] =
    "\nFan  Location        Present Speed  of max  Redundant  Partner  Hot-pluggable"
    "\n---  --------        ------- -----  ------  ---------  -------  -------------"
    "\n";
constexpr Column kColumns[] = {
    {kFan, 5},     {kLocation, 16},  {kPresent, 8}, {kSpeed, 7},
    {kPercent, 8}, {kRedundant, 11}, {kPartner, 9}, {kHotPluggable, 14},
};

// Formats a row of the table. Unknown values are printed as "-".
outdata RowOf(const FanStatus& fan, int number) {
    outdata row;
    for (field& cell : row.tdata) SetCell(cell, "-");
    SetCell(row.tdata[kFan], "#%d", number);
    row.tdata[kLocation] = fan.location;
    if (fan.failed && fan.present) {
        for (int cell = kLocation + 1; cell <= kPresent; ++cell) SetCell(row.tdata[cell], "FAILED");
        return row;
    }

    SetCell(row.tdata[kPresent], "%s", YesNo(fan.present));
    SetCell(row.tdata[kRedundant], "%s", YesNo(fan.redundant));
    SetCell(row.tdata[kPartner], "N/A");
    if (fan.redundant) SetCell(row.tdata[kPartner], "%d", fan.partner);
    if (fan.failed) return row;

    if (fan.present) SetCell(row.tdata[kSpeed], "%s", fan.speed);
    SetCell(row.tdata[kPercent], "N/A");
    if (fan.percent) SetCell(row.tdata[kPercent], "%d%%", *fan.percent);
    SetCell(row.tdata[kHotPluggable], "%s", YesNo(fan.hot_pluggable));
    return row;
}

}  // namespace

FanCountRead ReadFanCount(int& count) {
    const Reply<FANHEADER> header(kFanHeaderTable, 0);
    if (!header) return FanCountRead::Failed;
    if (header->ucDataAvailable == 0) return FanCountRead::NotSupported;
    count = header->ucNumSupportedByChassis;
    return FanCountRead::Done;
}

FanRead ReadFan(int index, LegacyFans& legacy_fans, FanStatus& fan) {
    fan = {};
    const std::optional<FANDDATA> legacy = legacy_fans.Read(index);
    {
        const Reply<COMMONFEATUREINFO> feature(kFanFeatureTable, index);
        if (!feature) return FanRead::FeatureFailed;
        if (legacy) {
            SetPresence(fan, *legacy);
        } else {
            SetPresence(fan, *feature);
        }
        fan.location = LocationName(feature->Location, ZoneNames::OfFans);
        fan.failed = feature->DeviceState.s1.bit_PhysicallyFailed != 0;
    }
    if (fan.failed) return FanRead::Done;

    const Reply<FANBASIC> basic(kFanBasicTable, index);
    if (!basic) return FanRead::BasicFailed;
    SetSpeed(fan, *basic);
    return FanRead::Done;
}

int do_show_fans(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    int NumFans = 0;
    switch (ReadFanCount(NumFans)) {
        case FanCountRead::Failed: return Fail("\nERROR: \"SHOW\" FAN command failed");
        case FanCountRead::NotSupported: return Fail("\nERROR: This system does not support fans.");
        case FanCountRead::Done: break;
    }

    outdata out_array[kMaxFans];
    LegacyFans legacy_fans;
    for (int i = 0; i < NumFans; ++i) {
        FanStatus fan;
        switch (ReadFan(i, legacy_fans, fan)) {
            case FanRead::FeatureFailed: return Fail("\nERROR: \"SHOW FAN\" command failed.");
            case FanRead::BasicFailed: return Fail("\nERROR: \"SHOW FAN\" command failed");
            case FanRead::Done: break;
        }
        out_array[i] = RowOf(fan, i + 1);
    }

    std::fputs(kHeading, stdout);
    for (int i = 0; i < NumFans; ++i) PrintRow(out_array[i], kColumns);
    return 0;
}
