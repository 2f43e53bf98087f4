// Loads SMBIOS tables in the test's own process, for tests of the functions that read them.
#pragma once

#include <string>

#include "cli/smbparse/memory_inventory.h"
#include "cli/smbparse/processors.h"
#include "tests/support/test_machine.h"

class LoadedTables {
  public:
    // Creates a simulated machine for the tables. Doesn't load any tables yet.
    LoadedTables();
    explicit LoadedTables(const std::string& records) : LoadedTables() { Load(records); }
    ~LoadedTables();

    // Writes the records to the machine's memory, replaces earlier ones, and runs the start-up steps up to
    // the inventory. Returns whether tables are available.
    bool Load(const std::string& records);
    // Runs the start-up steps with the current contents of the machine's memory.
    bool Load();

    TestMachine& Machine() { return machine_; }

  private:
    TestMachine machine_;
};
