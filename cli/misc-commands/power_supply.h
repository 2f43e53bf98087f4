// Reads the power supplies, one bay after another. The handler of SHOW POWERSUPPLY prints them.
#pragma once

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"
#include "include/health_records.h"

// The state of one bay. Members that were not read are false or null.
struct SupplyStatus {
    bool installed;  // false: the bay is empty, and the members below are not read
    bool present;    // from the common feature record, which may differ from the legacy record
    bool redundant;
    const char* condition;  // "Ok", "DEGRADED" or "FAILED"
    bool hot_pluggable;
};

using LegacySupplies = LegacyRecords<POWERSUPPLYNUMBERS, kSupplyNumbersTable>;

enum class SupplyCountRead { Done, Failed, NoData };

// Reads the number of bays. Prints a message only if memory runs out (see generic_dtioctl).
SupplyCountRead ReadSupplyCount(int& count);

// Reads bay `index`, counted from 0. Returns false if a record can't be read. Prints a message only if memory
// runs out.
bool ReadSupply(int index, LegacySupplies& legacy_supplies, SupplyStatus& supply);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_powersupply(InputLineType* InputLine);
