// Power supplies, bay by bay.
#pragma once

#include "cli/command/command.h"
#include "cli/health-table/health_table.h"
#include "include/health_records.h"

struct SupplyStatus {
    bool installed;  // false: the bay is empty, and nothing else is known of it
    bool present;    // by the common feature record, which may differ from what the older one says
    bool redundant;
    const char* condition;  // "Ok", "DEGRADED" or "FAILED"; null
    bool hot_pluggable;
};

class SupplyBays {
  public:
    enum class Found { Refused, NoData, Bays };

    SupplyBays();  // reads the header
    Found What() const { return found_; }
    int Count() const { return num_ps; }  // 0 unless bays were found

    // Reads a bay, index from 0, in ascending order. False when the driver refuses a record of it.
    bool Read(int index, SupplyStatus& supply);

  private:
    Found found_ = Found::Refused;
    int num_ps = 0;
    OlderRecords<POWERSUPPLYNUMBERS> older_records_{kSupplyNumbersTable};
};

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_powersupply(InputLineType* InputLine);
