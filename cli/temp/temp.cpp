#include "cli/temp/temp.h"

#include <cstdio>

#include "cli/command/command.h"
#include "include/health_records.h"

namespace {

// Only the MAX1617 tells whether it is present; any other kind is taken to be.
bool IsPresent(const COMMONFEATUREINFO& feature) {
    return feature.ucTypeOf != kMax1617 || feature.DeviceState.s1.bit_PhysicallyPresent != 0;
}

// index: the driver's, from -1 on (255 in the request). False when a record can't be read.
bool ReadSensor(SensorStatus& sensor, int index) {
    sensor = {};
    {
        const Reply<COMMONFEATUREINFO> feature(kTemperatureFeatureTable, index);
        if (!feature) return false;
        sensor.present = IsPresent(*feature);
        if (!sensor.present) return true;
        sensor.location = LocationName(feature->Location, ZoneNames::OfSensors);
    }

    const Reply<TEMPERATURENUMBERS> degrees(kTemperatureNumbersTable, index);
    if (!degrees) return false;
    if (degrees->ucTemperatureIsValid != 0) sensor.celsius = degrees->ucCelciusTemperature;
    if (degrees->ucThresholdIsValid != 0) sensor.threshold = degrees->ucCelciusThreshold;
    return true;
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

// What isn't known shows as " - ".
outdata RowOf(const SensorStatus& sensor) {
    outdata row;
    for (field& cell : row.tdata) SetCell(cell, " - ");
    if (sensor.present) row.tdata[kLocation] = sensor.location;
    if (sensor.celsius) SetDegrees(row.tdata[kTemp], *sensor.celsius);
    if (sensor.threshold) SetDegrees(row.tdata[kThreshold], *sensor.threshold);
    return row;
}

}  // namespace

SensorsRead ReadSensors(Sensors& sensors) {
    {
        const Reply<TEMPERATUREHEADER> header(kTemperatureHeaderTable, 0);
        if (!header) return SensorsRead::Failed;
        if (header->ucDataAvailable == 0) return SensorsRead::NotFound;
        sensors.count = header->ucNumSupportedByChassis + 1;
    }

    for (int i = 0; i < sensors.count; ++i) {
        if (!ReadSensor(sensors.sensors[i], i - 1)) return SensorsRead::Failed;
    }
    return SensorsRead::All;
}

int do_show_temp(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    Sensors sensors;
    switch (ReadSensors(sensors)) {
        case SensorsRead::Failed: return Fail("\nERROR: \"SHOW TEMP\" command failed.");
        case SensorsRead::NotFound: return Fail("\nINFO: No temperature sensors found.");
        case SensorsRead::All: break;
    }

    outdata out_array[kMaxSensors];
    for (int i = 0; i < sensors.count; ++i) out_array[i] = RowOf(sensors.sensors[i]);

    std::fputs(kHeading, stdout);
    for (int i = 0; i < sensors.count; ++i) {
        std::printf("#%-9d", i);
        PrintRow(out_array[i], kColumns);
    }
    return 0;
}
