// The per-device records of the driver's first generation, which say whether a fan or a power supply is
// present. Not every driver offers them for every device; where there is one, it goes before the common
// feature record. To go by the common feature record instead is called the new way.
#pragma once

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "include/data_tables.h"

// One table of such records, for one run of a command.
template <typename Record>
class OlderRecords {
  public:
    explicit OlderRecords(DataTableType table) : table_(table) {}

    // Copies the record of a device, index from 0. False, and *record as it was, when the driver refuses it;
    // from then on the table isn't asked again, and the command goes by the common feature record.
    bool Read(int index, Record* record) {
        if (newway_) return false;
        const Reply<Record> reply(table_, index);
        newway_ = !reply;
        if (reply) *record = *reply;
        return !newway_;
    }

  private:
    DataTableType table_;
    bool newway_ = false;  // an older record has been refused
};
