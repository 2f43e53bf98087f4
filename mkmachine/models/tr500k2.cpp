#include "mkmachine/models/tr500k2.h"

namespace {

// clang-format off
const std::vector<Fan> kFans = {
    // columns: state, zone, instance, speed, percent, hot-plug, partner, legacy record
    {kPresent | kRedundant, kSystemZone,        0, kFanNormal,  35,         true,  2, false},
    {kPresent | kRedundant, kSystemZone,        0, kFanNormal,  35,         true,  1, false},
    {kPresent,              kProcessorZone,     1, kFanHigh,    100,        true,  0, false},
    {kPresent | kFailed,    kProcessorZone,     2, kFanOff,     0,          true,  0, false},
    {kPresent,              kProcessorZone,     0, kFanNormal,  40,         false, 0, false},
    {kPresent,              kMemoryZone,        0, kFanOff,     0,          true,  0, false},
    {kPresent,              kIoZone,            0, kOtherSpeed, kNoPercent, false, 0, false},
    {kAbsent,               kScsiBackplaneZone, 0, kFanOff,     kNoPercent, true,  0, false},
    {kAbsent | kFailed,     kPowerSupplyZone,   0, kFanOff,     kNoPercent, false, 0, false},
    {kPresent,              kExhaustZone,       0, kFanHigh,    85,         false, 0, false},
    {kPresent,              kVirtualZone,       0, kFanNormal,  50,         false, 0, false},
};

const std::vector<Sensor> kSensors = {
    // columns: kind, state, zone, instance, reading, threshold
    {kBasicSensor, kPresent, kSystemZone,         0, 24,       60},
    {kBasicSensor, kPresent, kSystemBoardZone,    0, 31,       65},
    {kMax1617,     kPresent, kProcessorZone,      1, 37,       85},
    {kMax1617,     kPresent, kProcessorZone,      2, 40,       85},
    {kMax1617,     kAbsent,  kProcessorZone,      3, 99,       99},
    {kLm75,        kPresent, kProcessorZone,      0, 1,        kInvalid},
    {kLm75,        kAbsent,  kMemoryZone,         0, 0,        70},
    {kTc610,       kPresent, kIoZone,             0, kInvalid, 70},
    {kTc620,       kPresent, kScsiBackplaneZone,  0, kInvalid, kInvalid},
    {kLm75,        kPresent, kRemovableMediaZone, 0, 28,       55},
    {kLm75,        kPresent, kPowerSupplyZone,    0, 45,       0},
    {kBasicSensor, kPresent, kAmbientZone,        0, 21,       42},
    {kBasicSensor, kPresent, kChassisZone,        0, 29,       60},
    {kLm75,        kPresent, kPciBridgeZone,      0, 55,       100},
    {kOtherKind,   kAbsent,  kExhaustZone,        0, 36,       70},
    {kOtherKind,   kPresent, kUnnamedZone,        0, 30,       70},
    {kOtherKind,   kPresent, kVirtualZone,        0, 255,      255},
};

const std::vector<Supply> kSupplies = {
    // columns: state, hot-plug, legacy record
    {kPresent | kRedundant,           true,  LegacyRecord::None},
    {kPresent | kFailed | kRedundant, true,  LegacyRecord::None},
    {kPresent | kFailed,              false, LegacyRecord::None},
    {kAbsent,                         true,  LegacyRecord::None},
};

const std::vector<Module> kCartridge1 = {
    // columns: present, MiB, MHz, form factor, type, status
    {1, 2048, 667, kFbDimm, kDdr2FullyBuffered, 2},
    {1, 2048, 667, kFbDimm, kDdr2FullyBuffered, 2},
    {0, 0,    0,   kFbDimm, kDdr2FullyBuffered, 4},
    {1, 2048, 667, kFbDimm, kDdr2FullyBuffered, 9},
    {1, 1024, 533, kFbDimm, kDdr2FullyBuffered, 3},  // status 3 has no name
};
const std::vector<Module> kCartridge2 = {
    {1, 2048, 667, kFbDimm, kDdr2FullyBuffered, 2},
    {1, 1024, 533, kFbDimm, kDdr2FullyBuffered, 6},
    {1, 4096, 800, kFbDimm, kDdr2FullyBuffered, 7},
    {1, 2048, 667, kFbDimm, kDdr2FullyBuffered, 8},
    {2, 0,    0,   kFbDimm, kDdr2FullyBuffered, 5},  // the driver expects this module, but it is missing
};

const std::vector<smbios_nic> kNics = {
    {0x08, 3, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x10}},
    {0x09, 3, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x11}},
    {},
    {0x08, 5, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x12}},
    {0x09, 5, {0x00, 0x1C, 0x4E, 0x0A, 0x5B, 0x13}},
};

const DriverMemory kDriverMemory = {{kCartridge1, kCartridge2}, {}};

const std::vector<Cache> kCaches = {
    // columns: handle, name, level, size; the second processor has the smaller L3 cache
    {0x0700, "Proc 1 L1", 1, 256}, {0x0701, "Proc 1 L2", 2, 1024}, {0x0702, "Proc 1 L3", 3, 0x8100},
    {0x0703, "Proc 2 L1", 1, 256}, {0x0704, "Proc 2 L2", 2, 1024}, {0x0705, "Proc 2 L3", 3, 0x8080},
};

const std::vector<Processor> kProcessors = {
    // columns: handle, socket, MHz, cores, threads, caches, status
    {0x0403, "Proc 4", 0, 0, 0, kNoHandle, kNoHandle, kNoHandle, kEmptySocket},
    {0x0402, "Proc 3", 0, 0, 0, kNoHandle, kNoHandle, kNoHandle, kEmptySocket},
    {0x0401, "Proc 2", 2933, 4, 8, 0x0703, 0x0704, 0x0705},
    {0x0400, "Proc 1", 2933, 4, 8, 0x0700, 0x0701, 0x0702},
};

const std::vector<MemoryDevice> kDevices = {
    // columns: handle, array, locator, MiB, MHz, form factor, type
    {0x1100, kArray, "Board 1 DIMM 1", 2048, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1101, kArray, "Board 1 DIMM 2", 2048, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1102, kArray, "Board 1 DIMM 3", 0,    0,   kFbDimm, kDdr2FullyBuffered},
    {0x1103, kArray, "Board 1 DIMM 4", 2048, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1104, kArray, "Board 1 DIMM 5", 1024, 533, kFbDimm, kDdr2FullyBuffered},
    {0x1105, kArray, "Board 2 DIMM 1", 2048, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1106, kArray, "Board 2 DIMM 2", 1024, 533, kFbDimm, kDdr2FullyBuffered},
    {0x1107, kArray, "Board 2 DIMM 3", 4096, 800, kFbDimm, kDdr2FullyBuffered},
    {0x1108, kArray, "Board 2 DIMM 4", 2048, 667, kFbDimm, kDdr2FullyBuffered},
    {0x1109, kArray, "Board 2 DIMM 5", 0,    0,   kFbDimm, kDdr2FullyBuffered},
};

// clang-format on
Hardware Parts() {
    Hardware hardware;
    hardware.rom_version = "Z18";
    hardware.rom_date = "06/12/2009";
    hardware.serial = "VX8431T5K2";
    hardware.caches = kCaches;
    hardware.processors = kProcessors;
    hardware.array = {kArray, 0x04000000, 10};
    hardware.devices = kDevices;
    hardware.nics = kNics;
    hardware.processor_locations = {{0x0400, 1}, {0x0401, 2}};
    hardware.module_locations = {{0x1100, 1, 1}, {0x1101, 1, 2}, {0x1102, 1, 3}, {0x1103, 1, 4},
                                 {0x1104, 1, 5}, {0x1105, 2, 1}, {0x1106, 2, 2}, {0x1107, 2, 3},
                                 {0x1108, 2, 4}, {0x1109, 2, 5}};
    return hardware;
}

RomSettings Settings() {
    RomSettings settings;
    settings.asr_enabled = true;
    settings.asr_minutes = 20;
    settings.asset = "Rack 4, unit 12";
    settings.name = "corvex-db1";
    settings.shutdown = true;
    settings.boot_order = {kBootHdd, kBootCdrom, kBootUsbKey, kBootPxeAfterUsbKey, kBootFloppy};
    settings.nics = {kNicBootPxe, kNicBootIscsi};
    settings.port_a = 0x40 | kUartCom1;
    settings.port_b = 0x30 | kUartCom2;
    settings.virtual_port = kUartDisabled;
    settings.wake_on_lan = kWakeOnLanEnabled;
    settings.f1_prompt = kF1Enabled;
    settings.hyper_threading = true;
    settings.bios_port = kBiosPortVirtual;
    settings.bios_baud = kBaud115200;
    VERSEVREC& versions = settings.versions;
    versions.tz_baseline = {3, 1, 0};
    versions.tz_current = {3, 2, 0};
    versions.vetro_baseline = {1, 5, 2};
    versions.vetro_current = {1, 5, 4};
    versions.flasko_baseline = {2, 0, 0};
    versions.flasko_current = {2, 1, 7};
    versions.pw_baseline = {1, 0, 0};
    versions.pw_current = {1, 0, 0};
    versions.sift_baseline = {4, 2, 0};
    versions.sift_current = {4, 3, 0};
    versions.extmod_baseline = {1, 1, 0};
    versions.extmod_current = {1, 2, 0};
    versions.krl_baseline = {0, 9, 0};
    versions.krl_current = {1, 0, 3};
    return settings;
}
// clang-format off

}  // namespace

const Model kTr500k2 = {
    "tr500k2", "Corvex TR500 K2",
    kFans, kSensors, kSupplies, kIndicatorOff, kDriverMemory, Parts(), Settings(), Kelm::Present,
};
// clang-format on
