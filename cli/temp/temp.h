// The temperature sensors: what the driver's records say of each, and SHOW TEMP, a table with a row for each.
#pragma once

#include <optional>

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"

// What is known of one sensor; of one that isn't present, nothing else.
struct SensorStatus {
    bool present;
    field location;
    std::optional<int> celsius;    // its reading; none when there is no valid one
    std::optional<int> threshold;  // degrees Celsius; likewise
};

constexpr int kMaxSensors = 1 + 255;  // sensor -1, and those that the header counts in a byte

struct Sensors {
    int count = 0;
    // The first is the driver's sensor -1, which the header's count doesn't include.
    SensorStatus sensors[kMaxSensors];
};

enum class SensorsRead { All, Failed, NotFound };

// Reads the sensors. Failed: a record that the driver refused; NotFound: it knows of no sensors. The sensors
// aren't to be used then.
SensorsRead ReadSensors(Sensors& sensors);

// Rounded down, which truncation does for 0 or more. 0 shows as 0, not as 32.
constexpr int Fahrenheit(int celsius) {
    return celsius == 0 ? 0 : 9 * celsius / 5 + 32;
}

// Prints nothing of the table unless every sensor could be read. Result: 0, or 1 on failure.
int do_show_temp(InputLineType* InputLine);
