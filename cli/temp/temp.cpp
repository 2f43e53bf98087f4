#include "cli/temp/temp.h"

#include <cstdio>

#include "cli/command/command.h"
#include "include/health_records.h"

namespace {

// Returns whether a sensor is present. Only the sensor kind MAX1617 reports this; other kinds are always
// present.
bool IsPresent(const COMMONFEATUREINFO& feature) {
    return feature.ucTypeOf != kMax1617 || feature.DeviceState.s1.bit_PhysicallyPresent != 0;
}

enum Cell { kLocation = 1, kTemp = 2, kThreshold = 3 };

constexpr char kHeading[] =
    "\nSensor   Location              Temp       Threshold"
    "\n------   --------              ----       ---------"
    "\n";
constexpr Column kColumns[] = {{kLocation, 21}, {kTemp, 11}, {kThreshold, 9}};

void SetDegrees(field& cell, int celsius) {
    SetCell(cell, "%dC/%dF", celsius, Fahrenheit(celsius));
}

// Formats a row of the table, except the sensor's number. Unknown values are printed as " - ".
outdata RowOf(const SensorStatus& sensor) {
    outdata row;
    for (field& cell : row.tdata) SetCell(cell, " - ");
    if (sensor.present) row.tdata[kLocation] = sensor.location;
    if (sensor.celsius) SetDegrees(row.tdata[kTemp], *sensor.celsius);
    if (sensor.threshold) SetDegrees(row.tdata[kThreshold], *sensor.threshold);
    return row;
}

}  // namespace

SensorCountRead ReadSensorCount(int& count) {
    const Reply<TEMPERATUREHEADER> header(kTemperatureHeaderTable, 0);
    if (!header) return SensorCountRead::Failed;
    if (header->ucDataAvailable == 0) return SensorCountRead::NotFound;
    count = header->ucNumSupportedByChassis + 1;
    return SensorCountRead::Done;
}

bool ReadSensor(int index, SensorStatus& sensor) {
    const int driver_index = index - 1;
    sensor = {};
    {
        const Reply<COMMONFEATUREINFO> feature(kTemperatureFeatureTable, driver_index);
        if (!feature) return false;
        sensor.present = IsPresent(*feature);
        if (!sensor.present) return true;
        sensor.location = LocationName(feature->Location, ZoneNames::OfSensors);
    }

    const Reply<TEMPERATURENUMBERS> degrees(kTemperatureNumbersTable, driver_index);
    if (!degrees) return false;
    if (degrees->ucTemperatureIsValid != 0) sensor.celsius = degrees->ucCelciusTemperature;
    if (degrees->ucThresholdIsValid != 0) sensor.threshold = degrees->ucCelciusThreshold;
    return true;
}

int do_show_temp(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    int count = 0;
    switch (ReadSensorCount(count)) {
        case SensorCountRead::Failed: return Fail("\nERROR: \"SHOW TEMP\" command failed.");
        case SensorCountRead::NotFound: return Fail("\nINFO: No temperature sensors found.");
        case SensorCountRead::Done: break;
    }

    outdata out_array[kMaxSensors];
    for (int i = 0; i < count; ++i) {
        SensorStatus sensor;
        if (!ReadSensor(i, sensor)) return Fail("\nERROR: \"SHOW TEMP\" command failed.");
        out_array[i] = RowOf(sensor);
    }

    std::fputs(kHeading, stdout);
    for (int i = 0; i < count; ++i) {
        std::printf("#%-9d", i);
        PrintRow(out_array[i], kColumns);
    }
    return 0;
}
