// The Corvex BX20: a blade, cooled and powered by its enclosure.
#include "tools/mkmachine/models.h"

namespace {

// clang-format off
const std::vector<Fan> kFans = {
    // state, zone, instance, speed, percent, hot-plug, partner, older record
    {kPresent | kRedundant, kVirtual, 0, kFanNormal, 40, false, 1, false},
};

const std::vector<Sensor> kSensors = {
    // kind, state, zone, instance, reading, threshold
    {kBasicSensor, kPresent, kSystemBoard, 0, 27, 65},
    {kLm75,        kPresent, kCpu,         1, 48, 95},
};

const std::vector<Supply> kSupplies = {};

const std::vector<Module> kModules = {
    // present, megabytes, MHz, status
    {1, 4096, 667, 2},
    {1, 4096, 667, 2},
    {0, 0,    0,   4},
    {0, 0,    0,   4},
};

const DriverMemory kDriverMemory = {{}, kModules};

const std::vector<smbios_nic> kNics = {
    {0x00, 3, {0x00, 0x1C, 0x4E, 0x31, 0x07, 0x60}},
    {0x00, 5, {0x00, 0x1C, 0x4E, 0x31, 0x07, 0x62}},
};

const std::vector<MappedPort> kPorts = {  // bay offsets from 0; the mezzanine in slot 2 is double-wide
    {0, 0, {1, 0, 15, 0, 0, 0}},
    {0, 1, {2, 0, 15, 0, 0, 0}},
    {1, 2, {1, 0, 1, 0, 0, 0}},
    {1, 3, {2, 0, 1, 0, 0, 0}},
    {2, 4, {1, 0, 2, 0, 0, 1}},
    {2, 5, {2, 0, 2, 0, 0, 1}},
    {2, 6, {3, 0, 2, 16, 0, 1}},
};

const Hardware kHardware = {
    "Z31", "02/20/2008", 6, "VX8108BX20", kBlade,
    {{0x0700, "Proc 1 L1", 1, 128}, {0x0701, "Proc 1 L2", 2, 6144},
     {0x0702, "Proc 2 L1", 1, 128}, {0x0703, "Proc 2 L2", 2, 6144}},
    {{0x0400, "Proc 1", 2500, 4, 4, 0x0700, 0x0701},
     {0x0401, "Proc 2", 2500, 4, 4, 0x0702, 0x0703}},
    {kArray, 0x01000000, 4},
    {{0x1100, kArray, "DIMM 1", 4096, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1101, kArray, "DIMM 2", 4096, 667, kFbDimm, kDdr2FullyBuffered},
     {0x1102, kArray, "DIMM 3", 0,    0,   kFbDimm, kDdr2FullyBuffered},
     {0x1103, kArray, "DIMM 4", 0,    0,   kFbDimm, kDdr2FullyBuffered}},
    kNics, Locations::NotTold, RackPlace{"Enclosure 2", "7"}, kPorts,
};

const RomSettings kSettings = {
    true, 5,  // recovery timer: runs, minutes
    "Enclosure 2, bay 7", "blade-07",  // asset, name
    true,  // automatic shutdown
    2, {{3, 2, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},  // boot devices: count, order; no floppy, no CD-ROM
    0x40,  // the device of the next start alone
    {kNicBootPxe},  // NICs, from NIC 1
    0x41, 0x07, 0x32,  // serial ports A, B and virtual
    1, 2, true,  // wake on LAN, F1 prompt, hyper-threading
    0, 0,  // BIOS console: port, baud rate
    {{1, 0, 0}, {1, 2, 0}, {}, {}, {1, 0, 1}, {1, 0, 1}, {}, {}, {}, {}, {}, {}, {}, {}},
};

}  // namespace

const Model kBx20 = {
    "bx20", "Corvex BX20",
    kFans, kSensors, kSupplies, kIndicatorBlinking, kDriverMemory, kHardware, kSettings, Kelm::Present,
};
// clang-format on
