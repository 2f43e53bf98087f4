// The fans of the chassis, and SHOW FANS, which prints a table with one row for each.
#pragma once

#include <optional>

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"
#include "include/health_records.h"

// The state of one fan position of the chassis.
struct FanStatus {
    field location;
    bool present;
    bool failed;
    bool redundant;
    int partner;  // of a redundant fan: its partner's number, or the group's if there is no legacy record
    // The members below are not read if the fan has failed.
    const char* speed;           // "NORMAL", "HIGH", "OFF" or "UNKNOWN"; null if not read
    std::optional<int> percent;  // of maximum speed; empty if the driver has no valid value
    bool hot_pluggable;
};

constexpr int kMaxFans = 255;  // FANHEADER contains their number in a byte

using LegacyFans = LegacyRecords<FANDDATA, kFanDataTable>;

enum class FanCountRead { Done, Failed, NotSupported };

// Reads the number of fan positions. A message is printed only if memory runs out (see generic_dtioctl).
FanCountRead ReadFanCount(int& count);

enum class FanRead { Done, FeatureFailed, BasicFailed };

// Reads fan `index`, from 0. Unless the result is Done, the members of `fan` have no meaning. Prints as
// ReadFanCount does.
FanRead ReadFan(int index, LegacyFans& legacy_fans, FanStatus& fan);

// Prints the table only if every fan can be read. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_fans(InputLineType* InputLine);
