#include "tests/support/loaded_tables.h"

#include <cstdlib>

#include "cli/brantcli/state.h"
#include "tools/mkmachine/smbios_table.h"

namespace {

template <typename Record, size_t kEntries>
void Clear(Record* (&table)[kEntries]) {
    for (Record*& record : table) {
        std::free(record);
        record = nullptr;
    }
}

}  // namespace

LoadedTables::LoadedTables() {
    setenv("BRANT_MACHINE", machine_.Directory().c_str(), 1);
}

void LoadedTables::Unload() {
    Clear(gCpu_tbl);
    Clear(gCache_tbl);
    Clear(gMemoryMod);
    DeinitSMBIOS();
}

bool LoadedTables::Load(const std::string& records) {
    SMBIOSEntryPoint entry = SmbiosTable().EntryPoint(kTablesAddress);
    entry.wSTLength = static_cast<uint16_t>(records.size());
    SetChecksums(entry);
    machine_.PhysicalMemory(kTablesAddress, records);
    machine_.PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(entry));
    return Load();
}

bool LoadedTables::Load() {
    Unload();
    InitSMBIOS();
    smbios_available = IsSMBIOSAvailable();
    if (smbios_available != 0) {
        SmbParseMemRecords();
        SmbParseProcRecords();
    }
    return smbios_available != 0;
}
