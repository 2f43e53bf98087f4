#include "cli/fan/fan.h"

#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/health-table/locations.h"
#include "cli/health-table/older_records.h"
#include "cli/health-table/rows.h"
#include "include/fan_records.h"
#include "src/utils/word_table.h"

namespace {

constexpr ZoneWords kZoneWords = {"SYSTEM", "POWERSUPPLY_BAY", "EXHAUST"};

enum Cell { kFan, kLocation, kPresent, kSpeed, kPercent, kRedundant, kPartner, kHotPluggable, kCells };

constexpr char kHeading[] =
    "\nFan  Location        Present Speed  of max  Redundant  Partner  Hot-pluggable"
    "\n---  --------        ------- -----  ------  ---------  -------  -------------"
    "\n";

constexpr int kWidths[] = {5, 16, 8, 7, 8, 11, 9, 14};

using Row = outdata<kCells>;

constexpr CodeText kSpeeds[] = {
    {kFanNormal, "NORMAL"},
    {kFanHigh, "HIGH"},
    {kFanOff, "OFF"},
};

// What either generation of records says.
struct Presence {
    bool present;
    bool redundant;
    int partner;  // only of a redundant fan
};

Presence PresenceOf(const FANDDATA& older) {
    return {older.ucPresent != 0, older.ucRedundant != 0, older.ucRedundantPartner};
}

// The redundancy group stands in for the partner.
Presence PresenceOf(const COMMONFEATUREINFO& feature) {
    const auto state = feature.DeviceState.s1;
    return {state.bit_PhysicallyPresent != 0, state.bit_GroupIsRedundant != 0,
            feature.RedGroup.s1.bits_RedundantGroupId};
}

void SetPresence(Row& row, const Presence& presence) {
    SetCell(row.tdata[kPresent], "%s", YesNo(presence.present));
    SetCell(row.tdata[kRedundant], "%s", YesNo(presence.redundant));
    if (presence.redundant) {
        SetCell(row.tdata[kPartner], "%d", presence.partner);
    } else {
        SetCell(row.tdata[kPartner], "N/A");
    }
}

// Every cell but the fan's number and its location.
void SetFailed(Row& row) {
    for (int cell = kPresent; cell < kCells; ++cell) SetCell(row.tdata[cell], "FAILED");
}

void SetSpeed(Row& row, const FANBASIC& basic, bool present) {
    SetCell(row.tdata[kHotPluggable], "%s", YesNo(basic.FanDescriptor.s1.bit_HotPlug != 0));
    if (present) SetCell(row.tdata[kSpeed], "%s", TextOfCode(kSpeeds, basic.ucSpeedState, "UNKNOWN"));
    if (basic.ucSpeedPctIsValid != 0) {
        SetCell(row.tdata[kPercent], "%d%%", basic.ucSpeedPct);
    } else {
        SetCell(row.tdata[kPercent], "N/A");
    }
}

// Fills the row of fan number index, from 0. Result: null, or what to say about a record that can't be read.
const char* FillRow(Row& row, int index, OlderRecords<FANDDATA>& older_records) {
    for (field& cell : row.tdata) SetCell(cell, "-");
    SetCell(row.tdata[kFan], "#%d", index + 1);

    FANDDATA older{};
    const bool newway = !older_records.Read(index, &older);
    Presence presence{};
    DEVICE_STATE_FLAGS state{};
    {
        const Reply<COMMONFEATUREINFO> feature(kFanFeatureTable, index);
        if (!feature) return "\nERROR: \"SHOW FAN\" command failed.";
        presence = newway ? PresenceOf(*feature) : PresenceOf(older);
        state = feature->DeviceState;
        SetLocation(row.tdata[kLocation], feature->Location, kZoneWords);
    }
    SetPresence(row, presence);
    if (state.s1.bit_PhysicallyFailed != 0) {
        if (presence.present) SetFailed(row);
        return nullptr;
    }

    const Reply<FANBASIC> basic(kFanBasicTable, index);
    if (!basic) return "\nERROR: \"SHOW FAN\" command failed";
    SetSpeed(row, *basic, presence.present);
    return nullptr;
}

}  // namespace

int do_show_fans(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    int NumFans = 0;
    {
        const Reply<FANHEADER> header(kFanHeaderTable, 0);
        if (!header) return Fail("\nERROR: \"SHOW\" FAN command failed");
        if (header->ucDataAvailable == 0) return Fail("\nERROR: This system does not support fans.");
        NumFans = header->ucNumSupportedByChassis;
    }

    Row out_array[kMaxRows];
    OlderRecords<FANDDATA> older_records(kFanDataTable);
    for (int i = 0; i < NumFans; ++i) {
        if (const char* error = FillRow(out_array[i], i, older_records)) return Fail("%s", error);
    }

    std::fputs(kHeading, stdout);
    for (int i = 0; i < NumFans; ++i) PrintRow(out_array[i], kWidths);
    return 0;
}
