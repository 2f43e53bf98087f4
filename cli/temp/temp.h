// Reads the temperature sensors. The handler of SHOW TEMP prints a table with one row for each.
#pragma once

#include <optional>

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"

// The state of one sensor. If the sensor isn't present, the other members are not set.
struct SensorStatus {
    bool present;
    field location;
    std::optional<int> celsius;    // the current temperature; empty if there is no valid reading
    std::optional<int> threshold;  // the threshold in degrees Celsius; empty if there is none
};

constexpr int kMaxSensors = 1 + 255;  // the sensor with index -1, and those that the header counts in a byte

enum class SensorCountRead { Done, Failed, NotFound };

// Reads the number of sensors, including the one with the driver's index -1. Prints a message only if memory
// runs out (see generic_dtioctl).
SensorCountRead ReadSensorCount(int& count);

// Reads row `index` of the table, counted from 0. This is the sensor with the driver's index `index` - 1.
// Returns false if a record can't be read. Prints a message only if memory runs out.
bool ReadSensor(int index, SensorStatus& sensor);

// Converts degrees Celsius, 0 or more, to Fahrenheit and rounds down. For 0 it returns 0, not 32.
constexpr int Fahrenheit(int celsius) {
    return celsius == 0 ? 0 : 9 * celsius / 5 + 32;
}

// The handler of SHOW TEMP. If any sensor can't be read, it prints an error message instead of the table.
// Takes the tokenized line; returns 0, or 1 on failure.
int do_show_temp(InputLineType* InputLine);
