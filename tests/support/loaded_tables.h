// SMBIOS tables loaded into the test's own process, for tests of the functions that read them.
#pragma once

#include <string>

#include "cli/smbparse/memory_inventory.h"
#include "cli/smbparse/processors.h"
#include "tests/support/test_machine.h"

class LoadedTables {
  public:
    // A machine of their own, in whose memory the tables are put; nothing is loaded yet.
    LoadedTables();
    explicit LoadedTables(const std::string& records) : LoadedTables() { Load(records); }
    ~LoadedTables();

    // Puts records, as they stand in memory, in place of those before, and starts up from them as far as the
    // inventory. Result: whether there are tables then.
    bool Load(const std::string& records);
    // The same with whatever is in the machine's memory by now.
    bool Load();

    TestMachine& Machine() { return machine_; }

  private:
    TestMachine machine_;
};
