// The SMBIOS tables of a model.
#include "tools/mkmachine/models.h"

namespace {

constexpr uint16_t kProcInfo = 0xC500;  // handles; of the first two, those of the first record
constexpr uint16_t kDimmLocation = 0xCA00;
constexpr uint16_t kRack = 0xCC00;
constexpr uint16_t kNics = 0xD100;
constexpr uint16_t kPortMap = 0xDE00;

void AddMemory(SmbiosTable& table, const Hardware& hardware) {
    table.Add(MemoryArrayRecord(hardware.array));
    uint32_t installedMiB = 0;
    for (const MemoryDevice& device : hardware.devices) {
        table.Add(MemoryDeviceRecord(device).CutTo(MemoryDeviceLength(hardware.smbios_minor_version)));
        installedMiB += device.size;
    }
    table.Add(MappedAddressRecord(0x1300, hardware.array.handle, installedMiB * 1024));
}

// The maker's record for each populated processor, from the first socket on, and for each memory device; five
// sockets per memory board.
void AddLocations(SmbiosTable& table, const Hardware& hardware) {
    uint8_t socket = 0;
    for (auto processor = hardware.processors.rbegin(); processor != hardware.processors.rend();
         ++processor) {
        if (processor->status == kEmptySocket) continue;
        ++socket;
        table.Add(ProcInfoRecord(static_cast<uint16_t>(kProcInfo + socket), processor->handle, socket));
    }
    uint8_t place = 0;
    for (const MemoryDevice& device : hardware.devices) {
        const auto slot = static_cast<uint8_t>(place / 5 + 1);
        const auto dimm = static_cast<uint8_t>(place % 5 + 1);
        table.Add(
            DimmLocationRecord(static_cast<uint16_t>(kDimmLocation + place), device.handle, slot, dimm));
        ++place;
    }
}

void AddMakersRecords(SmbiosTable& table, const Hardware& hardware) {
    if (hardware.locations == Locations::Told) AddLocations(table, hardware);
    if (hardware.rack) table.Add(RackRecord(kRack, hardware.rack->enclosure, hardware.rack->bay));
    if (!hardware.nics.empty()) table.Add(NicRecord(kNics, hardware.nics));
    if (!hardware.ports.empty()) table.Add(PortMapRecord(kPortMap, hardware.ports));
}

}  // namespace

SmbiosTable TablesOf(const Model& model) {
    const Hardware& hardware = model.hardware;
    SmbiosTable table(hardware.smbios_minor_version);
    table.Add(BiosRecord(hardware.rom_version, hardware.rom_date));
    table.Add(SystemRecord(model.product_name, hardware.serial));
    table.Add(ChassisRecord(hardware.chassis, hardware.serial));
    for (const Processor& processor : hardware.processors) {
        table.Add(ProcessorRecord(processor).CutTo(ProcessorLength(hardware.smbios_minor_version)));
    }
    for (const Cache& cache : hardware.caches) table.Add(CacheRecord(cache));
    AddMemory(table, hardware);
    table.Add(BootRecord(0x2000));
    AddMakersRecords(table, hardware);
    table.Add(EndRecord(0x7F00));
    return table;
}
