#include "mkmachine/firmware_records.h"

namespace {

constexpr char kMaker[] = "VX";
constexpr unsigned kUnsupported = 0xFF;      // number of a release that isn't supported
constexpr unsigned kSafe = 3;                // state of a part of the chassis: no problem
constexpr unsigned kNoErrorRecord = 0xFFFE;  // handle that means that errors aren't recorded

}  // namespace

SmbiosRecord BiosRecord(const std::string& version, const std::string& date) {
    SmbiosRecord record(smbios::Bios::kType, 0x0000);
    record.Text(kMaker).Text(version);
    record.Word(0xF000);  // segment of the BIOS
    record.Text(date);
    record.Byte(0x3F);         // ROM size, as the number of 64 KiB blocks minus 1: 4 MiB
    record.Qword(0x00019880);  // PCI, upgradeable, shadowed, boots from CD, boot device selectable
    record.Byte(0x03);         // more features: ACPI, USB legacy
    record.Byte(0x05);         // more features: BIOS boot specification, targeted content distribution
    for (int i = 0; i < 4; ++i) record.Byte(kUnsupported);  // release numbers of the BIOS and the controller
    return record;
}

SmbiosRecord SystemRecord(const std::string& product, const std::string& serial) {
    SmbiosRecord record(smbios::System::kType, 0x0100);
    record.Text(kMaker).Text(product).Text("").Text(serial);
    record.Qword(0x11DD3A7B62C51E40).Qword(0x5A0C9F37E8D41B86);  // UUID
    record.Byte(6);                                              // woken up by the power switch
    record.Text("").Text("Corvex");
    return record;
}

SmbiosRecord ChassisRecord(uint8_t kind, const std::string& serial) {
    SmbiosRecord record(3, 0x0300);
    record.Text(kMaker).Byte(kind).Text("").Text(serial).Text("");
    for (int i = 0; i < 3; ++i) record.Byte(kSafe);  // last boot: chassis, power supplies, cooling
    record.Byte(3);                                  // no security lock
    record.Dword(0);
    record.Byte(0).Byte(0);  // height and number of power cords: not specified
    record.Byte(0).Byte(0);  // no contained elements
    return record;
}

SmbiosRecord ProcessorRecord(const Processor& part) {
    SmbiosRecord record(smbios::Processor::kType, part.handle);
    record.Text(part.socket).Byte(part.type).Byte(part.family).Text("Intel");
    record.Dword(part.id).Dword(0xBFEBFBFF);  // processor ID: signature, feature flags
    record.Text("").Byte(0x8C);               // no version string; voltage 1.2 V
    record.Word(part.bus).Word(part.speed).Word(part.speed).Byte(part.status);
    record.Byte(0x15);  // socket type
    record.Word(part.l1_cache).Word(part.l2_cache).Word(part.l3_cache);
    record.Text("").Text("").Text("");
    record.Byte(part.cores).Byte(part.cores).Byte(part.threads);
    record.Word(0x0004);  // 64-bit processor
    record.Word(part.family);
    return record;
}

SmbiosRecord CacheRecord(const Cache& part) {
    SmbiosRecord record(smbios::Cache::kType, part.handle);
    record.Text(part.name);
    record.Word(0x0180U | (part.level - 1U));  // enabled, internal, write back
    record.Word(part.size).Word(part.size);
    record.Word(0x0020).Word(0x0020);  // supported and current type: synchronous
    record.Byte(0);                    // speed unknown
    record.Byte(5).Byte(5).Byte(7);    // single-bit ECC, unified, 8-way
    return record;
}

SmbiosRecord MemoryArrayRecord(const MemoryArray& part) {
    SmbiosRecord record(smbios::MemoryArray::kType, part.handle);
    record.Byte(3);  // located on the system board
    record.Byte(part.use).Byte(part.error_correction);
    record.Dword(part.capacity).Word(kNoErrorRecord).Word(part.sockets);
    return record;
}

SmbiosRecord MemoryDeviceRecord(const MemoryDevice& part) {
    SmbiosRecord record(smbios::MemoryDevice::kType, part.handle);
    record.Word(part.array).Word(kNoErrorRecord);
    record.Word(72).Word(64);  // width in bits, with and without error correction
    record.Word(part.size).Byte(part.form_factor);
    record.Byte(0);  // the module isn't part of a set
    record.Text(part.locator).Text("");
    record.Byte(part.type).Word(part.type_detail).Word(part.speed);
    record.Text("").Text("").Text("").Text("");
    record.Byte(0);  // rank unknown
    return record;
}

SmbiosRecord MappedAddressRecord(uint16_t handle, uint16_t array, uint32_t size) {
    SmbiosRecord record(19, handle);
    record.Dword(0).Dword(size - 1).Word(array).Byte(1);
    return record;
}

SmbiosRecord BootRecord(uint16_t handle) {
    SmbiosRecord record(32, handle);
    for (int i = 0; i < 6; ++i) record.Byte(0);
    record.Byte(0);  // status of the last boot: no error
    return record;
}

SmbiosRecord EndRecord(uint16_t handle) {
    return SmbiosRecord(127, handle);
}

SmbiosRecord ProcInfoRecord(uint16_t handle, uint16_t processor, uint8_t socket) {
    SmbiosRecord record(ZTSMBIOS_ZET_PROC_INFO::kType, handle);
    record.Word(processor).Byte(socket).Byte(socket == 1).Byte(0xFF).Byte(socket);
    return record;
}

SmbiosRecord DimmLocationRecord(uint16_t handle, uint16_t device, uint8_t slot, uint8_t socket) {
    return SmbiosRecord(ZTSMBIOS_ZET_DIMM_LOCATION_INFO::kType, handle).Word(device).Byte(slot).Byte(socket);
}

SmbiosRecord RackRecord(uint16_t handle, const std::string& enclosure, const std::string& bay) {
    SmbiosRecord record(ZTSMBIOS_ZET_RACK_INFO::kType, handle);
    record.Text("Rack 4").Text(enclosure).Text("Corvex BX Enclosure").Text(bay).Byte(16).Byte(9);
    return record;
}

SmbiosRecord NicRecord(uint16_t handle, const std::vector<smbios_nic>& nics) {
    SmbiosRecord record(smbios_nic_table::kType, handle);
    for (const smbios_nic& nic : nics) {
        record.Byte(nic.nic_devfcn).Byte(nic.nic_bus);
        for (const uint8_t byte : nic.nic_mac) record.Byte(byte);
    }
    return record;
}

SmbiosRecord PortMapRecord(uint16_t handle, const std::vector<MappedPort>& ports) {
    GBX_CONNECTOR_ENTRY connectors[4] = {};
    for (const MappedPort& port : ports) connectors[port.connector].PortMap[port.port] = port.entry;
    SmbiosRecord record(SMBIOS_NIC_PORT_MAP_INFO::kType, handle);
    record.Word(1);
    for (const char byte : MachineBuilder::Plain(connectors)) record.Byte(static_cast<uint8_t>(byte));
    return record;
}
