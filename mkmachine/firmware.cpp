#include "mkmachine/firmware.h"

#include "include/smbios_records.h"

namespace {

constexpr char kPiclWithKelm[] =
    "picl\n"
    "  platform\n"
    "    obp-device vendor-id=0x8086 device-id=0x25d8\n"
    "      obp-device vendor-id=0x8086 device-id=0x2690\n"
    "      obp-device vendor-id=0x8086 device-id=0x244e\n"
    "        obp-device vendor-id=0x1002 device-id=0x515e\n"
    "        obp-device vendor-id=0x1c4e device-id=0x6d19\n";
constexpr char kPiclWithoutKelm[] =
    "picl\n"
    "  platform\n"
    "    obp-device vendor-id=0x8086 device-id=0x25d8\n"
    "      obp-device vendor-id=0x1002 device-id=0x515e\n";

// Handles of OEM records. The handles of the processors' records count up from kProcInfo + 1, those of the
// memory modules' records from kDimmLocation.
constexpr uint16_t kProcInfo = 0xC500;
constexpr uint16_t kDimmLocation = 0xCA00;
constexpr uint16_t kRack = 0xCC00;
constexpr uint16_t kNics = 0xD100;
constexpr uint16_t kPortMap = 0xDE00;

void AddMemory(SmbiosTable& table, const Hardware& hardware) {
    table.Add(MemoryArrayRecord(hardware.array));
    uint32_t installedMiB = 0;
    for (const MemoryDevice& device : hardware.devices) {
        table.Add(MemoryDeviceRecord(device).TruncateTo(MemoryDeviceLength(hardware.smbios_minor_version)));
        installedMiB += device.size;
    }
    table.Add(MappedAddressRecord(0x1300, hardware.array.handle, installedMiB * 1024));
}

void AddLocations(SmbiosTable& table, const Hardware& hardware) {
    uint16_t handle = kProcInfo;
    for (const ProcessorLocation& location : hardware.processor_locations) {
        table.Add(ProcInfoRecord(++handle, location.processor, location.socket));
    }
    handle = kDimmLocation;
    for (const ModuleLocation& location : hardware.module_locations) {
        table.Add(DimmLocationRecord(handle++, location.device, location.board, location.socket));
    }
}

void AddOemRecords(SmbiosTable& table, const Hardware& hardware) {
    AddLocations(table, hardware);
    if (hardware.blade) table.Add(RackRecord(kRack, hardware.blade->enclosure, hardware.blade->bay));
    if (!hardware.nics.empty()) table.Add(NicRecord(kNics, hardware.nics));
    if (!hardware.ports.empty()) table.Add(PortMapRecord(kPortMap, hardware.ports));
}

}  // namespace

void AddRomSignature(MachineBuilder& machine) {
    std::string area_end(kBiosAreaSize - kRomSignatureOffset, '\0');
    area_end.replace(0, kRomSignatureSize, kRomSignature);
    machine.PhysicalMemory(kBiosArea + kRomSignatureOffset, area_end);
}

void AddPicl(MachineBuilder& machine, Kelm kelm) {
    machine.Write("picl", kelm == Kelm::Present ? kPiclWithKelm : kPiclWithoutKelm);
}

SmbiosTable TablesOf(const std::string& product_name, const Hardware& hardware) {
    SmbiosTable table(hardware.smbios_minor_version);
    table.Add(BiosRecord(hardware.rom_version, hardware.rom_date));
    table.Add(SystemRecord(product_name, hardware.serial));
    table.Add(ChassisRecord(hardware.chassis, hardware.serial));
    for (const Processor& processor : hardware.processors) {
        table.Add(ProcessorRecord(processor).TruncateTo(ProcessorLength(hardware.smbios_minor_version)));
    }
    for (const Cache& cache : hardware.caches) table.Add(CacheRecord(cache));
    AddMemory(table, hardware);
    table.Add(BootRecord(0x2000));
    AddOemRecords(table, hardware);
    table.Add(EndRecord(0x7F00));
    return table;
}
