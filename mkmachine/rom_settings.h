// The settings that the firmware stores in ROM variables, and the state of the recovery timer.
#pragma once

#include <cstdint>
#include <vector>

#include "include/rom_variables.h"
#include "include/smbios_records.h"
#include "mkmachine/machine_builder.h"

// The initializers are the defaults; each model assigns the members that differ.
struct RomSettings {
    bool asr_enabled = false;
    uint8_t asr_minutes = 0;
    const char* asset = "";
    const char* name = "";                 // at most 14 characters
    bool shutdown = false;                 // automatic shutdown in an abnormal environment
    std::vector<uint8_t> boot_order = {};  // BootDevice codes, at most 8
    BootOnce boot_once = kBootOnceNone;
    std::vector<NicBoot> nics = {};  // settings of NIC 1, NIC 2 and so on, at most 5
    // Serial ports. The four high bits are the interrupt line, the three low bits a Uart.
    uint8_t port_a = 0, port_b = 0, virtual_port = 0;
    WakeOnLan wake_on_lan = kWakeOnLanDisabled;
    F1Prompt f1_prompt = kF1Undefined;
    bool hyper_threading = false;
    BiosPortCode bios_port = kBiosPortDisabled;
    BiosBaudRate bios_baud = {};
    VERSEVREC versions = {};
    // At most 8. Only for firmware whose SMBIOS tables don't contain the OEM record of the NICs.
    std::vector<smbios_nic> nic_addresses = {};
};
void AddRomSettings(MachineBuilder& machine, const RomSettings& settings);
