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

void TakePresence(FanStatus& fan, const FANDDATA& older) {
    fan.present = older.ucPresent != 0;
    fan.redundant = older.ucRedundant != 0;
    fan.partner = older.ucRedundantPartner;
}

void TakePresence(FanStatus& fan, const COMMONFEATUREINFO& feature) {
    fan.present = feature.DeviceState.s1.bit_PhysicallyPresent != 0;
    fan.redundant = feature.DeviceState.s1.bit_GroupIsRedundant != 0;
    fan.partner = feature.RedGroup.s1.bits_RedundantGroupId;
}

void TakeSpeed(FanStatus& fan, const FANBASIC& basic) {
    fan.speed = TextOfCode(kSpeeds, basic.ucSpeedState, "UNKNOWN");
    if (basic.ucSpeedPctIsValid != 0) fan.percent = basic.ucSpeedPct;
    fan.hot_pluggable = basic.FanDescriptor.s1.bit_HotPlug != 0;
}

// index: from 0.
FansRead ReadFan(FanStatus& fan, int index, OlderRecords<FANDDATA>& older_records) {
    fan = {};
    const std::optional<FANDDATA> older = older_records.Read(index);
    {
        const Reply<COMMONFEATUREINFO> feature(kFanFeatureTable, index);
        if (!feature) return FansRead::FeatureFailed;
        if (older) {
            TakePresence(fan, *older);
        } else {
            TakePresence(fan, *feature);
        }
        fan.location = LocationName(feature->Location, ZoneNames::OfFans);
        fan.failed = feature->DeviceState.s1.bit_PhysicallyFailed != 0;
    }
    if (fan.failed) return FansRead::All;

    const Reply<FANBASIC> basic(kFanBasicTable, index);
    if (!basic) return FansRead::BasicFailed;
    TakeSpeed(fan, *basic);
    return FansRead::All;
}

// The cells of a row. Those between that aren't named are never printed.
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

// What isn't known shows as "-".
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

FansRead ReadFans(Fans& fans) {
    {
        const Reply<FANHEADER> header(kFanHeaderTable, 0);
        if (!header) return FansRead::HeaderFailed;
        if (header->ucDataAvailable == 0) return FansRead::NotSupported;
        fans.NumFans = header->ucNumSupportedByChassis;
    }

    OlderRecords<FANDDATA> older_records(kFanDataTable);
    for (int i = 0; i < fans.NumFans; ++i) {
        const FansRead result = ReadFan(fans.fans[i], i, older_records);
        if (result != FansRead::All) return result;
    }
    return FansRead::All;
}

int do_show_fans(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    Fans fans;
    switch (ReadFans(fans)) {
        case FansRead::HeaderFailed: return Fail("\nERROR: \"SHOW\" FAN command failed");
        case FansRead::NotSupported: return Fail("\nERROR: This system does not support fans.");
        case FansRead::FeatureFailed: return Fail("\nERROR: \"SHOW FAN\" command failed.");
        case FansRead::BasicFailed: return Fail("\nERROR: \"SHOW FAN\" command failed");
        case FansRead::All: break;
    }

    outdata out_array[kMaxFans];
    for (int i = 0; i < fans.NumFans; ++i) out_array[i] = RowOf(fans.fans[i], i + 1);

    std::fputs(kHeading, stdout);
    for (int i = 0; i < fans.NumFans; ++i) PrintRow(out_array[i], kColumns);
    return 0;
}
