// The firmware's tables: start-up and the inventory commands on tables that may hold anything.
//
// Input: one byte; two bytes, the entry point's place; then the tables. An even byte puts a good entry point
// in front of them; after an odd one the input's own entry point comes first, of which only the anchor and
// the checksums are mended.
#include <algorithm>
#include <cstring>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/smbios-commands/inventory.h"
#include "cli/smbios-commands/port_map.h"
#include "cli/start-up/start_up.h"
#include "fuzz/target.h"
#include "include/smbios_records.h"
#include "mkmachine/smbios_table.h"
#include "tests/support/loaded_tables.h"
#include "tests/support/program_state.h"

namespace {

constexpr uint32_t kTables = 0x10000;  // physical address
constexpr size_t kMostTables = UINT16_MAX;

// An entry point may begin at every 16th byte of the BIOS area, up to the maker's signature.
constexpr uint32_t kPlaces = (kRomSignatureOffset - sizeof(SMBIOSEntryPoint)) / 16 + 1;

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

// A piece of physical memory. What the last input left there would otherwise be part of the next one.
class Piece {
  public:
    void Put(TestMachine& machine, uint32_t address, const std::string& bytes) {
        if (size_ != 0) machine.PhysicalMemory(address_, std::string(size_, '\0'));
        machine.PhysicalMemory(address, bytes);
        address_ = address;
        size_ = bytes.size();
    }

  private:
    uint32_t address_ = 0;
    size_t size_ = 0;
};

class Firmware {
  public:
    Firmware() {
        setenv("BRANT_MACHINE", machine_.Directory().c_str(), 1);
        Require(CheckRom() && OpenDevices());
    }
    void Hold(std::string input) {
        const bool own = Number(Take(input, 1)) % 2 != 0;
        const uint32_t place = kBiosArea + Number(Take(input, 2)) % kPlaces * 16;
        entry_.Put(machine_, place, MachineBuilder::Plain(EntryPointFor(own, input)));
        tables_.Put(machine_, kTables, input.substr(0, kMostTables));
    }

  private:
    TestMachine machine_;
    Piece entry_, tables_;
};

void RunInventoryCommands() {
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
    static Firmware firmware;
    firmware.Hold(Input(data, size));
    if (ReadFirmwareTables()) {
        CountEmbeddedNics();
        RunInventoryCommands();
    }
    ResetState();  // now: what an input leaves behind costs a search for leaks
    return 0;
}
