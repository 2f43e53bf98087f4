#include "cli/temp/temp.h"

#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/health-table/locations.h"
#include "cli/health-table/rows.h"
#include "include/temperature_records.h"

namespace {

constexpr ZoneWords kZoneWords = {"SYSTEM_BD", "POWER_SUPPLY_BAY", "EXHAUSTED_AIR"};

enum Cell { kLocation, kTemperature, kThreshold, kCells };

constexpr char kHeading[] =
    "\nSensor   Location              Temp       Threshold"
    "\n------   --------              ----       ---------"
    "\n";

constexpr int kWidths[] = {21, 11, 9};

using Row = outdata<kCells>;

// Rounded down, which truncation does: celsius is 0 or more. 0 shows as 0, not as 32.
constexpr int Fahrenheit(int celsius) {
    return celsius == 0 ? 0 : 9 * celsius / 5 + 32;
}

void SetUnknown(field& cell) {
    SetCell(cell, " - ");
}

void SetDegrees(field& cell, bool valid, int celsius) {
    if (!valid) return SetUnknown(cell);
    SetCell(cell, "%dC/%dF", celsius, Fahrenheit(celsius));
}

// Only the MAX1617 tells whether it is present; any other kind is taken to be.
bool IsPresent(const COMMONFEATUREINFO& feature) {
    return feature.ucTypeOf != kMax1617 || feature.DeviceState.s1.bit_PhysicallyPresent != 0;
}

// Fills a sensor's row. index: the driver's, from -1 on (255 in the request). False when a record can't be
// read.
bool FillRow(Row& row, int index) {
    {
        const Reply<COMMONFEATUREINFO> feature(kTemperatureFeatureTable, index);
        if (!feature) return false;
        if (!IsPresent(*feature)) {
            for (field& cell : row.tdata) SetUnknown(cell);
            return true;
        }
        SetLocation(row.tdata[kLocation], feature->Location, kZoneWords);
    }

    const Reply<TEMPERATURENUMBERS> numbers(kTemperatureNumbersTable, index);
    if (!numbers) return false;
    SetDegrees(row.tdata[kTemperature], numbers->ucTemperatureIsValid != 0, numbers->ucCelciusTemperature);
    SetDegrees(row.tdata[kThreshold], numbers->ucThresholdIsValid != 0, numbers->ucCelciusThreshold);
    return true;
}

}  // namespace

int do_show_temp(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    int sensors = 0;
    {
        const Reply<TEMPERATUREHEADER> header(kTemperatureHeaderTable, 0);
        if (!header) return Fail("\nERROR: \"SHOW TEMP\" command failed.");
        if (header->ucDataAvailable == 0) return Fail("\nINFO: No temperature sensors found.");
        sensors = header->ucNumSupportedByChassis;
    }

    // Row 0 is sensor -1, which the driver has but doesn't count.
    Row out_array[kMaxRows];
    for (int row = 0; row <= sensors; ++row) {
        if (!FillRow(out_array[row], row - 1)) return Fail("\nERROR: \"SHOW TEMP\" command failed.");
    }

    std::fputs(kHeading, stdout);
    for (int row = 0; row <= sensors; ++row) {
        std::printf("#%-9d", row);
        PrintRow(out_array[row], kWidths);
    }
    return 0;
}
