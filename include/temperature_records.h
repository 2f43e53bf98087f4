// The driver's data tables about temperature sensors. Packed and little-endian, as the driver has them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/data_tables.h"

constexpr DataTableType kTemperatureHeaderTable = 251;   // TEMPERATUREHEADER
constexpr DataTableType kTemperatureNumbersTable = 254;  // TEMPERATURENUMBERS
constexpr DataTableType kTemperatureFeatureTable = 256;  // COMMONFEATUREINFO

// A sensor's kind, COMMONFEATUREINFO::ucTypeOf.
enum SensorKind : uint8_t {
    kBasicSensor = 1,
    kTc610 = 2,
    kTc620 = 3,
    kLm75 = 4,
    kMax1617 = 5,  // the only kind that knows whether it is present
};

#pragma pack(push, 1)

struct TEMPERATUREHEADER {
    uint8_t ucNumSupportedByChassis;  // sensors
    uint8_t ucDataAvailable;          // 0: no temperature data
    uint8_t ucMaximum_ucID;
};
using PTEMPERATUREHEADER = TEMPERATUREHEADER*;
static_assert(sizeof(TEMPERATUREHEADER) == 3, "as the driver has it");

struct TEMPERATURENUMBERS {  // degrees Celsius, 0 to 255
    uint8_t ucDataAvailable;
    uint8_t ucTemperatureIsValid;  // nonzero: there is a reading
    uint8_t ucCelciusTemperature;
    uint8_t ucThresholdIsValid;  // nonzero: there is a threshold
    uint8_t ucCelciusThreshold;
    uint8_t ucPrevTempIsValid;
    uint8_t ucPrevTemperature;
};
using PTEMPERATURENUMBERS = TEMPERATURENUMBERS*;
static_assert(sizeof(TEMPERATURENUMBERS) == 7 && offsetof(TEMPERATURENUMBERS, ucCelciusThreshold) == 4,
              "as the driver has it");

#pragma pack(pop)
