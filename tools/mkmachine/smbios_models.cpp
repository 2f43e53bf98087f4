// The SMBIOS tables of each model.
#include <vector>

#include "tools/mkmachine/firmware_records.h"
#include "tools/mkmachine/models.h"

namespace {

constexpr uint16_t kArray = 0x1000;  // handles
constexpr uint16_t kProcInfo = 0xC500;
constexpr uint16_t kDimmLocation = 0xCA00;
constexpr uint16_t kRack = 0xCC00;
constexpr uint16_t kNics = 0xD100;
constexpr uint16_t kPortMap = 0xDE00;

constexpr uint8_t kEmptySocket = 0;  // a processor's status

struct Hardware {
    const char* rom_version;
    const char* rom_date;
    const char* serial;
    uint8_t chassis;
    std::vector<Cache> caches;
    std::vector<Processor> processors;
    MemoryArray array;
    std::vector<MemoryDevice> devices;
};

// clang-format off
const Hardware kTr500k2 = {  // the second processor has the smaller L3 cache
    "Z18", "06/12/2009", "VX8431T5K2", kRackMount,
    {{0x0700, "Proc 1 L1", 1, 256}, {0x0701, "Proc 1 L2", 2, 1024}, {0x0702, "Proc 1 L3", 3, 0x8100},
     {0x0703, "Proc 2 L1", 1, 256}, {0x0704, "Proc 2 L2", 2, 1024}, {0x0705, "Proc 2 L3", 3, 0x8080}},
    {{0x0400, "Proc 1", 2933, 4, 8, 0x0700, 0x0701, 0x0702},
     {0x0401, "Proc 2", 2933, 4, 8, 0x0703, 0x0704, 0x0705},
     {0x0402, "Proc 3", 0, 0, 0, kNoHandle, kNoHandle, kNoHandle, kEmptySocket},
     {0x0403, "Proc 4", 0, 0, 0, kNoHandle, kNoHandle, kNoHandle, kEmptySocket}},
    {kArray, 0x04000000, 10},
    {{0x1100, kArray, "Board 1 DIMM 1", 2048, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1101, kArray, "Board 1 DIMM 2", 2048, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1102, kArray, "Board 1 DIMM 3", 0,    0,   kFbDimm, kDdr2FullyBuffered},
     {0x1103, kArray, "Board 1 DIMM 4", 2048, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1104, kArray, "Board 1 DIMM 5", 1024, 533, kFbDimm, kDdr2FullyBuffered},
     {0x1105, kArray, "Board 2 DIMM 1", 2048, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1106, kArray, "Board 2 DIMM 2", 1024, 533, kFbDimm, kDdr2FullyBuffered},
     {0x1107, kArray, "Board 2 DIMM 3", 4096, 800, kFbDimm, kDdr2FullyBuffered},
     {0x1108, kArray, "Board 2 DIMM 4", 2048, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1109, kArray, "Board 2 DIMM 5", 0,    0,   kFbDimm, kDdr2FullyBuffered}},
};
const Hardware kTr300 = {  // firmware that doesn't tell cores
    "Z07", "11/03/2006", "VX6447T300", kRackMount,
    {{0x0700, "Proc 1 L1", 1, 64}, {0x0701, "Proc 1 L2", 2, 4096}},
    {{0x0400, "Proc 1", 2333, 0, 0, 0x0700, 0x0701},
     {0x0401, "Proc 2", 0, 0, 0, kNoHandle, kNoHandle, kNoHandle, kEmptySocket}},
    {kArray, 0x00800000, 4, 5},
    {{0x1100, kArray, "SLOT 0 DIMM 1", 1024, 533},
     {0x1101, kArray, "SLOT 0 DIMM 2", 512,  533},
     {0x1102, kArray, "SLOT 0 DIMM 3", 0},
     {0x1103, kArray, "SLOT 0 DIMM 4", 0}},
};
const Hardware kBx20 = {
    "Z31", "02/20/2008", "VX8108BX20", kBlade,
    {{0x0700, "Proc 1 L1", 1, 128}, {0x0701, "Proc 1 L2", 2, 6144},
     {0x0702, "Proc 2 L1", 1, 128}, {0x0703, "Proc 2 L2", 2, 6144}},
    {{0x0400, "Proc 1", 2500, 4, 4, 0x0700, 0x0701},
     {0x0401, "Proc 2", 2500, 4, 4, 0x0702, 0x0703}},
    {kArray, 0x01000000, 4},
    {{0x1100, kArray, "DIMM 1", 4096, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1101, kArray, "DIMM 2", 4096, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1102, kArray, "DIMM 3", 0,    0,   kFbDimm, kDdr2FullyBuffered},
     {0x1103, kArray, "DIMM 4", 0,    0,   kFbDimm, kDdr2FullyBuffered}},
};

const std::vector<smbios_nic> kTr500k2Nics = {
    {0x08, 3, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x10}},
    {0x09, 3, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x11}},
    {},
    {0x08, 5, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x12}},
    {0x09, 5, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x13}},
};
const std::vector<smbios_nic> kBx20Nics = {
    {0x00, 3, {0x00, 0x1C, 0x4E, 0x31, 0x07, 0x60}},
    {0x00, 5, {0x00, 0x1C, 0x4E, 0x31, 0x07, 0x62}},
};
const std::vector<MappedPort> kBx20Ports = {  // bay offsets from 0; the mezzanine in slot 2 is double-wide
    {0, 0, {1, 0, 15, 0, 0, 0}},
    {0, 1, {2, 0, 15, 0, 0, 0}},
    {1, 2, {1, 0, 1, 0, 0, 0}},
    {1, 3, {2, 0, 1, 0, 0, 0}},
    {2, 4, {1, 0, 2, 0, 0, 1}},
    {2, 5, {2, 0, 2, 0, 0, 1}},
    {2, 6, {3, 0, 2, 16, 0, 1}},
};
// clang-format on

const Hardware& HardwareOf(ModelId model) {
    switch (model) {
        case ModelId::Tr500k2: return kTr500k2;
        case ModelId::Tr300: return kTr300;
        default: return kBx20;
    }
}

void AddMemory(SmbiosTable& table, const Hardware& hardware) {
    table.Add(MemoryArrayRecord(hardware.array));
    uint32_t installedMiB = 0;
    for (const MemoryDevice& device : hardware.devices) {
        table.Add(MemoryDeviceRecord(device));
        installedMiB += device.size;
    }
    table.Add(MappedAddressRecord(0x1300, hardware.array.handle, installedMiB * 1024));
}

// The maker's record for each populated processor and each memory device; five sockets a memory board.
void AddLocations(SmbiosTable& table, const Hardware& hardware) {
    uint8_t socket = 0;
    for (const Processor& processor : hardware.processors) {
        if (processor.status == kEmptySocket) continue;
        ++socket;
        table.Add(ProcInfoRecord(static_cast<uint16_t>(kProcInfo + socket), processor.handle, socket));
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

void AddMakersRecords(SmbiosTable& table, const Hardware& hardware, ModelId model) {
    switch (model) {
        case ModelId::Tr500k2:
            AddLocations(table, hardware);
            table.Add(NicRecord(kNics, kTr500k2Nics));
            break;
        case ModelId::Tr300: break;
        case ModelId::Bx20:
            table.Add(RackRecord(kRack, "Enclosure 2", "7"));
            table.Add(NicRecord(kNics, kBx20Nics));
            table.Add(PortMapRecord(kPortMap, kBx20Ports));
            break;
    }
}

}  // namespace

SmbiosTable TablesOf(const Model& model) {
    const Hardware& hardware = HardwareOf(model.id);
    SmbiosTable table;
    table.Add(BiosRecord(hardware.rom_version, hardware.rom_date));
    table.Add(SystemRecord(model.product_name, hardware.serial));
    table.Add(ChassisRecord(hardware.chassis, hardware.serial));
    for (const Processor& processor : hardware.processors) table.Add(ProcessorRecord(processor));
    for (const Cache& cache : hardware.caches) table.Add(CacheRecord(cache));
    AddMemory(table, hardware);
    table.Add(BootRecord(0x2000));
    AddMakersRecords(table, hardware, model.id);
    table.Add(EndRecord(0x7F00));
    return table;
}
