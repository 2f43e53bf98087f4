// The firmware's settings as ROM variables, and the recovery timer's state.
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
    std::vector<uint8_t> boot_order = {};  // of BootDevice, at most 8
    BootOnce boot_once = kBootOnceNone;
    std::vector<NicBoot> nics = {};  // from NIC 1, at most 5
    // Serial ports: the interrupt line in the four high bits, a Uart in the three low bits.
    uint8_t port_a = 0, port_b = 0, virtual_port = 0;
    WakeOnLan wake_on_lan = kWakeOnLanDisabled;
    F1Prompt f1_prompt = kF1Undefined;
    bool hyper_threading = false;
    BiosPortCode bios_port = kBiosPortDisabled;
    BiosBaudRate bios_baud = {};
    VERSEVREC versions = {};
    // Only for firmware without the OEM record of the NICs in its SMBIOS tables; at most 8.
    std::vector<smbios_nic> nic_addresses = {};
};
void AddRomSettings(MachineBuilder& machine, const RomSettings& settings);
