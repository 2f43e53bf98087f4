#include "mkmachine/models/bx20.h"

namespace {

// clang-format off
const std::vector<Fan> kFans = {
    // columns: state, zone, instance, speed, percent, hot-plug, partner, legacy record
    {kPresent | kRedundant, kVirtualZone, 0, kFanNormal, 40, false, 1, false},
};

const std::vector<Sensor> kSensors = {
    // columns: kind, state, zone, instance, reading, threshold
    {kBasicSensor, kPresent, kSystemBoardZone, 0, 27, 65},
    {kLm75,        kPresent, kProcessorZone,   1, 48, 95},
};

const std::vector<Supply> kSupplies = {};

const std::vector<Module> kModules = {
    // columns: present, MiB, MHz, form factor, type, status
    {1, 4096, 667, kFbDimm, kDdr2FullyBuffered, 2},
    {1, 4096, 667, kFbDimm, kDdr2FullyBuffered, 2},
    {0, 0,    0,   kFbDimm, kDdr2FullyBuffered, 4},
    {0, 0,    0,   kFbDimm, kDdr2FullyBuffered, 4},
};

const DriverMemory kDriverMemory = {{}, kModules};

const std::vector<smbios_nic> kNics = {
    {0x00, 3, {0x00, 0x1C, 0x4E, 0x31, 0x07, 0x60}},
    {0x00, 5, {0x00, 0x1C, 0x4E, 0x31, 0x07, 0x62}},
};

const std::vector<MappedPort> kPorts = {  // bays count from 0; slot 2 contains a double-wide mezzanine card
    {0, 0, {1, 0, 15, 0, 0, 0}},
    {0, 1, {2, 0, 15, 0, 0, 0}},
    {1, 2, {1, 0, 1, 0, 0, 0}},
    {1, 3, {2, 0, 1, 0, 0, 0}},
    {2, 4, {1, 0, 2, 0, 0, 1}},
    {2, 5, {2, 0, 2, 0, 0, 1}},
    {2, 6, {3, 0, 2, 16, 0, 1}},
};

const std::vector<Cache> kCaches = {
    // columns: handle, name, level, size
    {0x0700, "Proc 1 L1", 1, 128}, {0x0701, "Proc 1 L2", 2, 6144},
    {0x0702, "Proc 2 L1", 1, 128}, {0x0703, "Proc 2 L2", 2, 6144},
};

const std::vector<Processor> kProcessors = {
    // columns: handle, socket, MHz, cores, threads, caches
    {0x0400, "Proc 1", 2500, 4, 4, 0x0700, 0x0701},
    {0x0401, "Proc 2", 2500, 4, 4, 0x0702, 0x0703},
};

const std::vector<MemoryDevice> kDevices = {
    // columns: handle, array, locator, MiB, MHz, form factor, type
    {0x1100, kArray, "DIMM 1", 4096, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1101, kArray, "DIMM 2", 4096, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1102, kArray, "DIMM 3", 0,    0,   kFbDimm, kDdr2FullyBuffered},
    {0x1103, kArray, "DIMM 4", 0,    0,   kFbDimm, kDdr2FullyBuffered},
};

// clang-format on
Hardware Parts() {
    Hardware hardware;
    hardware.rom_version = "Z31";
    hardware.rom_date = "02/20/2008";
    hardware.serial = "VX8108BX20";
    hardware.chassis = kBlade;
    hardware.caches = kCaches;
    hardware.processors = kProcessors;
    hardware.array = {kArray, 0x01000000, 4};
    hardware.devices = kDevices;
    hardware.nics = kNics;
    hardware.blade = BladeLocation{"Enclosure 2", "7"};
    hardware.ports = kPorts;
    return hardware;
}

RomSettings Settings() {
    RomSettings settings;
    settings.asr_enabled = true;
    settings.asr_minutes = 5;
    settings.asset = "Enclosure 2, bay 7";
    settings.name = "blade-07";
    settings.shutdown = true;
    settings.boot_order = {kBootPxe, kBootHdd};  // the blade has no floppy drive and no CD-ROM
    settings.boot_once = kBootOncePxe;
    settings.nics = {kNicBootPxe};
    settings.port_a = 0x40 | kUartCom1;
    settings.port_b = kUartDisabled;
    settings.virtual_port = 0x30 | kUartCom2;
    settings.wake_on_lan = kWakeOnLanEnabled;
    settings.f1_prompt = kF1Disabled;
    settings.hyper_threading = true;
    settings.versions.tz_baseline = {1, 0, 0};
    settings.versions.tz_current = {1, 2, 0};
    settings.versions.flasko_baseline = settings.versions.flasko_current = {1, 0, 1};
    return settings;
}
// clang-format off

}  // namespace

const Model kBx20 = {
    "bx20", "Corvex BX20",
    kFans, kSensors, kSupplies, kIndicatorBlinking, kDriverMemory, Parts(), Settings(), Kelm::Present,
};
// clang-format on
