// Power supplies, bay by bay.
#pragma once

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"
#include "include/health_records.h"

// Values that were not read are false or null.
struct SupplyStatus {
    bool installed;  // false: the bay is empty, and the members below have no values
    bool present;    // as the common feature record states it, which may differ from the legacy record
    bool redundant;
    const char* condition;  // "Ok", "DEGRADED" or "FAILED"
    bool hot_pluggable;
};

using LegacySupplies = LegacyRecords<POWERSUPPLYNUMBERS, kSupplyNumbersTable>;

enum class SupplyCountRead { Done, Failed, NoData };

// Reads the number of bays. A message is printed only if memory runs out (see generic_dtioctl).
SupplyCountRead ReadSupplyCount(int& count);

// Reads bay `index`, from 0. Returns false if a record can't be read. Prints as ReadSupplyCount does.
bool ReadSupply(int index, LegacySupplies& legacy_supplies, SupplyStatus& supply);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_powersupply(InputLineType* InputLine);
