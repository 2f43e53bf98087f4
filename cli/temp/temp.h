// The temperature sensors, and SHOW TEMP, which prints a table with one row for each.
#pragma once

#include <optional>

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"

// The state of one sensor. If it isn't present, the other members have no values.
struct SensorStatus {
    bool present;
    field location;
    std::optional<int> celsius;    // the reading; empty if there is no valid one
    std::optional<int> threshold;  // degrees Celsius; empty if there is no valid one
};

constexpr int kMaxSensors = 1 + 255;  // the driver's sensor -1, and those that its header counts in a byte

enum class SensorCountRead { Done, Failed, NotFound };

// Reads the number of sensors, including the driver's sensor -1. A message is printed only if memory runs out
// (see generic_dtioctl).
SensorCountRead ReadSensorCount(int& count);

// Reads row `index` of the table, from 0; this is the driver's sensor `index` - 1. Returns false if a record
// can't be read. Prints as ReadSensorCount does.
bool ReadSensor(int index, SensorStatus& sensor);

// Converts degrees Celsius, 0 or more, and rounds down. 0 results in 0, not 32.
constexpr int Fahrenheit(int celsius) {
    return celsius == 0 ? 0 : 9 * celsius / 5 + 32;
}

// Prints the table only if every sensor can be read. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_temp(InputLineType* InputLine);
