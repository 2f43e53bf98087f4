#include "cli/fan/fan.h"

#include <algorithm>
#include <cstdio>

#include "cli/generic_dtioctl/devices.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/health-table/locations.h"
#include "cli/health-table/rows.h"
#include "cli/parse/handler.h"
#include "include/fan_records.h"

namespace {

constexpr ZoneWords kZoneWords = {"SYSTEM", "POWERSUPPLY_BAY", "EXHAUST"};

// The cells of a row; 2 and 7 are never printed.
enum Cell { kFan, kLocation, kSpeed = 3, kPercent, kRedundant, kPartner, kHotPluggable = 8, kPresent };

const char* SpeedText(uint8_t speed_state) {
    switch (speed_state) {
        case 1: return "NORMAL";
        case 2: return "HIGH";
        case 3: return "OFF";
        default: return "UNKNOWN";
    }
}

void SetPresence(outdata& row, bool present, bool redundant, int partner) {
    SetCell(row.tdata[kPresent], "%s", YesNo(present));
    SetCell(row.tdata[kRedundant], "%s", YesNo(redundant));
    if (redundant) {
        SetCell(row.tdata[kPartner], "%d", partner);
    } else {
        SetCell(row.tdata[kPartner], "N/A");
    }
}

void SetFailed(outdata& row) {
    for (int cell = 2; cell <= kPresent; ++cell) SetCell(row.tdata[cell], "FAILED");
}

void SetSpeed(outdata& row, const FANBASIC& basic, bool present) {
    SetCell(row.tdata[kHotPluggable], "%s", YesNo(basic.FanDescriptor.s1.bit_HotPlug != 0));
    if (present) SetCell(row.tdata[kSpeed], "%s", SpeedText(basic.ucSpeedState));
    if (basic.ucSpeedPctIsValid != 0) {
        SetCell(row.tdata[kPercent], "%d%%", basic.ucSpeedPct);
    } else {
        SetCell(row.tdata[kPercent], "N/A");
    }
}

// Fills the row of fan number index, from 0. newway: whether the driver has turned out to lack the older
// record FANDDATA, which is preferred for presence and redundancy; once set it stays so.
// False, with a message, when a record can't be read.
bool FillRow(outdata& row, int index, bool& newway) {
    bool present = false;
    if (!newway) {
        const Reply<FANDDATA> older(kFanDataTable, index, cdt_fd);
        if (older) {
            present = older->ucPresent != 0;
            SetPresence(row, present, older->ucRedundant != 0, older->ucRedundantPartner);
        } else {
            newway = true;
        }
    }

    SetCell(row.tdata[kFan], "#%d", index + 1);
    const Reply<COMMONFEATUREINFO> feature(kFanFeatureTable, index, cdt_fd);
    if (!feature) {
        std::printf("\nERROR: \"SHOW FAN\" command failed.");
        return false;
    }
    const auto state = feature->DeviceState.s1;
    if (newway) {
        present = state.bit_PhysicallyPresent != 0;
        SetPresence(row, present, state.bit_GroupIsRedundant != 0,
                    feature->RedGroup.s1.bits_RedundantGroupId);
    }
    SetLocation(row.tdata[kLocation], feature->Location, kZoneWords);
    if (state.bit_PhysicallyFailed != 0) {
        if (present) SetFailed(row);
        return true;
    }

    const Reply<FANBASIC> basic(kFanBasicTable, index, cdt_fd);
    if (!basic) {
        std::printf("\nERROR: \"SHOW FAN\" command failed");
        return false;
    }
    SetSpeed(row, *basic, present);
    return true;
}

void PrintRow(const outdata& row) {
    const field* cells = row.tdata;
    std::printf("%-5s", cells[kFan].data);
    std::printf("%-16s", cells[kLocation].data);
    std::printf("%-8s", cells[kPresent].data);
    std::printf("%-7s", cells[kSpeed].data);
    std::printf("%-8s", cells[kPercent].data);
    std::printf("%-11s", cells[kRedundant].data);
    std::printf("%-9s", cells[kPartner].data);
    std::printf("%-14s\n", cells[kHotPluggable].data);
}

}  // namespace

int do_show_fans(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    int fans = 0;
    {
        const Reply<FANHEADER> header(kFanHeaderTable, 0, cdt_fd);
        if (!header) return Fail("\nERROR: \"SHOW\" FAN command failed");
        if (header->ucDataAvailable == 0) return Fail("\nERROR: This system does not support fans.");
        fans = header->ucNumSupportedByChassis;
    }

    outdata out_array[kMaxRows];
    bool newway = false;
    for (int i = 0; i < fans; ++i) {
        for (field& cell : out_array[i].tdata) SetCell(cell, "-");
        if (!FillRow(out_array[i], i, newway)) return 1;
    }

    std::printf("\nFan  Location        Present Speed  of max  Redundant  Partner  Hot-pluggable");
    std::printf("\n---  --------        ------- -----  ------  ---------  -------  -------------");
    std::printf("\n");
    std::for_each(out_array, out_array + fans, PrintRow);
    return 0;
}
