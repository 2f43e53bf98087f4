// The firmware's tables: start-up and the inventory commands on tables that may hold anything.
//
// Input: one byte, then the tables. An even byte puts a good entry point in front of them; after an odd one
// the input's own entry point comes first, of which only the anchor and the checksums are mended.
#include <algorithm>
#include <cstring>

#include "cli/brantcli/firmware.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "fuzz/target.h"
#include "tests/support/loaded_tables.h"
#include "tools/mkmachine/smbios_table.h"

namespace {

constexpr uint32_t kTables = 0x10000;  // physical address
constexpr size_t kMostTables = UINT16_MAX;

SMBIOSEntryPoint EntryPointFor(bool own, std::string& input) {
    SMBIOSEntryPoint entry = SmbiosTable().EntryPoint(kTables);
    if (own) {
        const std::string bytes = Take(input, sizeof entry);
        std::memcpy(&entry, bytes.data(), bytes.size());
        std::memcpy(entry.sAnchorString, kEntryPointAnchor, sizeof entry.sAnchorString);
    } else {
        entry.wSTLength = static_cast<uint16_t>(std::min(input.size(), kMostTables));
    }
    SetChecksums(entry);
    return entry;
}

void RunInventoryCommands() {
    detect_corvex();
    smbios_get_systemname();
    CountEmbeddedNics();
    InputLineType line{};
    line.NumWords = 2;
    do_show_server(&line);
    do_show_nic_port_mapping(&line);
    get_dimminfo_smbios();
    unsigned int size_kib = 0;
    SmbGetTotalMemory(&size_kib);
    SmbChkForECCSupported();
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static LoadedTables loaded;
    std::string input = Input(data, size);
    const std::string flavour = Take(input, 1);
    const SMBIOSEntryPoint entry = EntryPointFor(!flavour.empty() && flavour[0] % 2 != 0, input);

    input.resize(kMostTables);  // what the last input left there would otherwise be part of this one
    loaded.Machine().PhysicalMemory(kTables, input);
    loaded.Machine().PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(entry));
    Require(CheckRom());
    loaded.Load();
    RunInventoryCommands();
    LoadedTables::Unload();  // now: what an input leaves behind costs a search for leaks
    return 0;
}
