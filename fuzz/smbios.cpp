// Fuzzes start-up and the inventory commands with SMBIOS tables.
//
// Input: one byte; two bytes, which select the address of the entry point; then the tables. If the first byte
// is even, the target adds a valid entry point. If it is odd, the input contains an entry point before the
// tables, and the target corrects only its anchor and its checksums.
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

constexpr uint32_t kTables = 0x10000;  // physical address of the tables
constexpr size_t kMostTables = UINT16_MAX;

// The number of addresses at which an entry point fits: every 16th byte of the BIOS area, up to the maker's
// signature.
constexpr uint32_t kEntryPointAddresses = (kRomSignatureOffset - sizeof(SMBIOSEntryPoint)) / 16 + 1;

SMBIOSEntryPoint EntryPointFor(bool from_input, std::string& input) {
    SMBIOSEntryPoint entry = SmbiosTable().EntryPoint(kTables);
    if (from_input) {
        const std::string bytes = Take(input, sizeof entry);
        std::memcpy(&entry, bytes.data(), bytes.size());
        std::memcpy(entry.sAnchorString, kEntryPointAnchor, sizeof entry.sAnchorString);
    } else {
        entry.wSTLength = static_cast<uint16_t>(std::min(input.size(), kMostTables));
    }
    SetChecksums(entry);
    return entry;
}

// A range of physical memory. Put() clears the bytes of the previous input before it writes new ones.
class MemoryRange {
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
    void Load(std::string input) {
        const bool from_input = Number(Take(input, 1)) % 2 != 0;
        const uint32_t address = kBiosArea + Number(Take(input, 2)) % kEntryPointAddresses * 16;
        entry_.Put(machine_, address, MachineBuilder::Plain(EntryPointFor(from_input, input)));
        tables_.Put(machine_, kTables, input.substr(0, kMostTables));
    }

  private:
    TestMachine machine_;
    MemoryRange entry_, tables_;
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
    firmware.Load(Input(data, size));
    if (ReadFirmwareTables()) {
        CountEmbeddedNics();
        RunInventoryCommands();
    }
    ResetState();  // frees all memory; otherwise libFuzzer would search for leaks after this input
    return 0;
}
