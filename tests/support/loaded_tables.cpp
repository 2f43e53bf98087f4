#include "tests/support/loaded_tables.h"

#include "cli/command/state.h"
#include "cli/smbios_old/tables.h"
#include "mkmachine/smbios_table.h"
#include "tests/support/program_state.h"

LoadedTables::LoadedTables() {
    setenv("BRANT_MACHINE", machine_.Directory().c_str(), 1);
}

LoadedTables::~LoadedTables() {
    ResetState();
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
    ResetState();
    InitSMBIOS();
    smbios_available = IsSMBIOSAvailable();
    if (smbios_available != 0) {
        SmbParseMemRecords();
        SmbParseProcRecords();
    }
    return smbios_available != 0;
}
