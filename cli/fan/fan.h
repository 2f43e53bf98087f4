// Reads the fans of the chassis. The handler of SHOW FANS prints a table with one row for each.
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
    int partner;  // number of a redundant fan's partner, or of its group if there is no legacy record
    // The members below are not set if the fan has failed.
    const char* speed;           // "NORMAL", "HIGH", "OFF" or "UNKNOWN"; null if not set
    std::optional<int> percent;  // percent of the maximum speed; empty if the driver has no valid value
    bool hot_pluggable;
};

constexpr int kMaxFans = 255;  // FANHEADER contains the number of fans in one byte

using LegacyFans = LegacyRecords<FANDDATA, kFanDataTable>;

enum class FanCountRead { Done, Failed, NotSupported };

// Reads the number of fan positions. Prints a message only if memory runs out (see generic_dtioctl).
FanCountRead ReadFanCount(int& count);

enum class FanRead { Done, FeatureFailed, BasicFailed };

// Reads fan `index`, counted from 0. `fan` is valid only if the result is Done. Prints a message only if
// memory runs out.
FanRead ReadFan(int index, LegacyFans& legacy_fans, FanStatus& fan);

// The handler of SHOW FANS. If any fan can't be read, it prints an error message instead of the table.
// Takes the tokenized line; returns 0, or 1 on failure.
int do_show_fans(InputLineType* InputLine);
