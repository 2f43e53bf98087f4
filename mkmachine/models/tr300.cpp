#include "mkmachine/models/tr300.h"

namespace {

// clang-format off
const std::vector<Fan> kFans = {
    // columns: state, zone, instance, speed, percent, hot-plug, partner, legacy record
    {kPresent | kRedundant, kSystemBoardZone,    0, kFanNormal,  45,         false, 2, true},
    {kPresent | kRedundant, kSystemBoardZone,    0, kFanNormal,  45,         false, 1, true},
    {kPresent,              kProcessorZone,      1, kFanHigh,    90,         false, 0, true},
    {kPresent | kRedundant, kIoZone,             0, kFanNormal,  kNoPercent, false, 3, false},
    {kAbsent,               kRemovableMediaZone, 0, kFanOff,     kNoPercent, false, 0, false},
};

const std::vector<Sensor> kSensors = {
    // columns: kind, state, zone, instance, reading, threshold
    {kBasicSensor, kPresent, kSystemBoardZone, 0, 26, 60},
    {kBasicSensor, kPresent, kAmbientZone,     0, 22, 42},
    {kMax1617,     kPresent, kProcessorZone,   1, 43, 90},
    {kMax1617,     kAbsent,  kProcessorZone,   2, 0,  90},
};

const std::vector<Supply> kSupplies = {
    // columns: state, hot-plug, legacy record
    {kPresent,           true,  LegacyRecord::Present},
    {kAbsent,            true,  LegacyRecord::Absent},
    {kAbsent,            false, LegacyRecord::Present},  // the two records contradict each other
    {kPresent | kFailed, true,  LegacyRecord::None},
    {kAbsent,            true,  LegacyRecord::None},
};

const DriverMemory kDriverMemory = {};

const std::vector<Cache> kCaches = {
    // columns: handle, name, level, size
    {0x0700, "Proc 1 L1", 1, 64}, {0x0701, "Proc 1 L2", 2, 4096},
};

const std::vector<Processor> kProcessors = {  // this version of SMBIOS has no numbers of cores and threads
    // columns: handle, socket, MHz, cores, threads, caches, status
    {0x0400, "Proc 1", 2333, 2, 2, 0x0700, 0x0701},
    {0x0401, "Proc 2", 0, 0, 0, kNoHandle, kNoHandle, kNoHandle, kEmptySocket},
};

const std::vector<MemoryDevice> kDevices = {
    // columns: handle, array, locator, MiB, MHz, form factor, type
    {0x1100, kArray, "SLOT 0 DIMM 1", 1024, 533, kDimm, kDdr2},
    {0x1101, kArray, "SLOT 0 DIMM 2", 512,  533, kDimm, kDdr2},
    {0x1102, kArray, "SLOT 0 DIMM 3", 0,    0,   kDimm, kDdr2},
    {0x1103, kArray, "SLOT 0 DIMM 4", 0,    0,   kDimm, kDdr2},
};

// clang-format on
Hardware Parts() {
    Hardware hardware;
    hardware.rom_version = "Z07";
    hardware.rom_date = "11/03/2006";
    hardware.smbios_minor_version = 4;
    hardware.serial = "VX6447T300";
    hardware.caches = kCaches;
    hardware.processors = kProcessors;
    hardware.array = {kArray, 0x00800000, 4, kSingleBitEcc};
    hardware.devices = kDevices;
    return hardware;
}

RomSettings Settings() {  // the firmware stores no versions
    RomSettings settings;
    settings.asr_minutes = 10;
    settings.boot_order = {kBootCdrom, kBootFloppy, kBootHdd, kBootPxe};
    settings.boot_once = kBootOnceCdrom;
    settings.nics = {kNicBootNone, kNicBootPxe};
    settings.port_a = 0x50 | kUartCom3;
    settings.port_b = 0x30 | kUartCom2;
    settings.virtual_port = kUartDisabled;
    settings.f1_prompt = kF1Delayed;
    settings.bios_port = kBiosPortCom1;
    settings.bios_baud = kBaud9600;
    settings.nic_addresses = {{0x00, 2, {0x00, 0x1C, 0x4E, 0x14, 0x30, 0x2A}},
                              {0x01, 2, {0x00, 0x1C, 0x4E, 0x14, 0x30, 0x2B}}};
    return settings;
}
// clang-format off

}  // namespace

const Model kTr300 = {
    "tr300", "Corvex TR300",
    kFans, kSensors, kSupplies, kIndicatorOn, kDriverMemory, Parts(), Settings(), Kelm::Absent,
};
// clang-format on
