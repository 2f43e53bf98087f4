#include "mkmachine/rom_settings.h"

#include <algorithm>
#include <cstring>

namespace {

void AddTexts(MachineBuilder& machine, const RomSettings& settings) {
    AssetText asset{};
    std::strncpy(asset.asset_text, settings.asset, sizeof asset.asset_text);
    machine.Variable(kAssetVariable, asset);
    ServerName name{};
    std::strncpy(name.zthls1, settings.name, kServerNameHalf);
    machine.Variable(kServerNameVariable, name);
}

void AddTimers(MachineBuilder& machine, const RomSettings& settings) {
    machine.Asr(settings.asr_enabled);
    machine.Variable(kAsrVariable, ASREVSTRUCT{1, 1, settings.asr_minutes, 0, 0x0CA0, 60});
    const uint8_t shutdown = settings.shutdown;
    machine.Variable(kShutdownVariable, CSMEVSTRUCT{shutdown, {0x20, 0x06, 0x14}, 1, shutdown, 0});
}

void AddBoot(MachineBuilder& machine, const RomSettings& settings) {
    ZTHIPLSTRUCT order;
    std::memset(&order, 0xFF, sizeof order);
    std::copy(settings.boot_order.begin(), settings.boot_order.end(), order.ucPriority);
    machine.Variable(kBootOrderVariable, order);
    const auto devices = static_cast<uint8_t>(settings.boot_order.size());
    machine.Variable(kBootCountVariable, BootDeviceCount{devices});
    machine.Variable(kBootOnceVariable, ZTTBT1STRUCT{{settings.boot_once}, 0});
}

void AddNics(MachineBuilder& machine, const RomSettings& settings) {
    std::string boot(10, '\0');  // one byte for each NIC; no model has more than 10
    NicPxeFlags flags{};
    for (size_t i = 0; i < settings.nics.size(); ++i) {
        boot[i] = static_cast<char>(settings.nics[i]);
        if (settings.nics[i] == kNicBootPxe) flags.nics |= static_cast<uint8_t>(1 << i);
    }
    machine.Variable(kNicBootVariable, boot);
    machine.Variable(kNicPxeVariable, flags);
}

void AddNicAddresses(MachineBuilder& machine, const std::vector<smbios_nic>& nics) {
    smbios_nic entries[8] = {};
    std::copy(nics.begin(), nics.end(), entries);
    machine.Variable(kNicAddressVariable, entries);
}

void AddConfiguration(MachineBuilder& machine, const RomSettings& settings) {
    WOLEVREC configuration{};
    configuration.ucHeader = 1;
    configuration.uart1.ucData = settings.port_a;
    configuration.uart2.ucData = settings.port_b;
    configuration.vsp.ucData = settings.virtual_port;
    configuration.parallel.ucData = 0x71;
    configuration.dma.ucData = 0x43;
    configuration.flags.s.bits_WOL = settings.wake_on_lan & 3;
    configuration.flags.s.bits_PCIUSB = 1;
    configuration.flags2.s.bits_F1 = settings.f1_prompt & 3;
    configuration.flags2.s.bits_FanSpeed = 1;
    configuration.flags2.s.bit_HyperThreading = settings.hyper_threading ? 0 : 1;
    configuration.flags4.s.bits_USB = 1;
    configuration.flags5.s.bit_SERREnabled = 1;
    machine.Variable(kConfigurationVariable, configuration);
    machine.Variable(kBiosPortVariable, BiosPort{settings.bios_port, 0});
    machine.Variable(kBiosBaudVariable, BiosBaud{{settings.bios_baud}, {}});
}

}  // namespace

void AddRomSettings(MachineBuilder& machine, const RomSettings& settings) {
    AddTexts(machine, settings);
    AddTimers(machine, settings);
    AddBoot(machine, settings);
    AddNics(machine, settings);
    if (!settings.nic_addresses.empty()) AddNicAddresses(machine, settings.nic_addresses);
    AddConfiguration(machine, settings);
    machine.Variable(kVersionsVariable, settings.versions);
}
