// The fans: what the driver's records say of each, and SHOW FANS, a table with a row for each.
#pragma once

#include <optional>

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"

// What is known of the fan in one of the chassis's positions.
struct FanStatus {
    field location;
    bool present;
    bool failed;
    bool redundant;
    int partner;  // of a redundant fan: the other's number, or their group's where the driver tells only that
    // Of a fan that has failed these aren't read.
    const char* speed;           // "NORMAL", "HIGH", "OFF" or "UNKNOWN"; null
    std::optional<int> percent;  // of maximum speed; none when the driver doesn't tell
    bool hot_pluggable;
};

constexpr int kMaxFans = 255;  // the header counts them in a byte

struct Fans {
    int NumFans = 0;  // positions of the chassis
    FanStatus fans[kMaxFans];
};

enum class FansRead { All, HeaderFailed, NotSupported, FeatureFailed, BasicFailed };

// Reads the fans of the chassis. Any result but All: which record the driver refused, or that it knows of no
// fans; the fans aren't to be used then.
FansRead ReadFans(Fans& fans);

// Prints nothing of the table unless every fan could be read. Result: 0, or 1 on failure.
int do_show_fans(InputLineType* InputLine);
