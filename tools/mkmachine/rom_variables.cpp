#include "include/rom_variables.h"

#include <cstring>

#include "tools/mkmachine/models.h"

namespace {

struct Settings {
    bool asr_enabled;
    uint8_t asr_minutes;
    const char* asset;
    const char* name;  // at most 14 characters
    bool shutdown;     // automatic, when the environment is abnormal
    uint8_t boot_devices;
    ZTHIPLSTRUCT boot_order;
    uint8_t boot_once;
    NicBoot nics[4];
    uint8_t port_a, port_b,
        virtual_port;     // the interrupt line in the high four bits, the UART in the low three
    uint8_t wake_on_lan;  // bits_WOL
    uint8_t f1_prompt;    // bits_F1
    bool hyper_threading;
    uint8_t bios_port;
    uint8_t bios_baud;
    VERSEVREC versions;
};

// clang-format off
const Settings kTr500k2 = {     // its boot order holds a USB key, code 3, and PXE, code 4
    true, 20, "Rack 4, unit 12", "corvex-db1", true,
    5, {{2, 0, 3, 4, 1, 0xFF, 0xFF, 0xFF}}, 0x00, {kNicBootPxe, kNicBootIscsi},
    0x41, 0x32, 0x07, 1, 1, true, 6, 4,
    {{3, 1, 0}, {3, 2, 0}, {1, 5, 2}, {1, 5, 4}, {2, 0, 0}, {2, 1, 7}, {1, 0, 0},
     {1, 0, 0}, {4, 2, 0}, {4, 3, 0}, {1, 1, 0}, {1, 2, 0}, {0, 9, 0}, {1, 0, 3}},
};
const Settings kTr300 = {       // PXE is code 3; its firmware knows no versions
    false, 10, "", "", false,
    4, {{0, 1, 2, 3, 0xFF, 0xFF, 0xFF, 0xFF}}, 0x02, {kNicBootNone, kNicBootPxe},
    0x53, 0x32, 0x07, 2, 3, false, 1, 1,
    {},
};
const Settings kBx20 = {        // a blade has neither floppy nor CD-ROM
    true, 5, "Enclosure 2, bay 7", "blade-07", true,
    2, {{3, 2, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}}, 0x40, {kNicBootPxe},
    0x41, 0x07, 0x32, 1, 2, true, 0, 0,
    {{1, 0, 0}, {1, 2, 0}, {}, {}, {1, 0, 1}, {1, 0, 1}, {}, {}, {}, {}, {}, {}, {}, {}},
};
// clang-format on

const Settings& SettingsOf(ModelId model) {
    switch (model) {
        case ModelId::Tr500k2: return kTr500k2;
        case ModelId::Tr300: return kTr300;
        default: return kBx20;
    }
}

void AddTexts(MachineBuilder& machine, const Settings& settings) {
    AssetText asset{};
    std::strncpy(asset.asset_text, settings.asset, sizeof asset.asset_text);
    machine.Variable(kAssetVariable, asset);
    ServerName name{};
    std::strncpy(name.first_half, settings.name, sizeof name.first_half - 1);
    machine.Variable(kServerNameVariable, name);
}

void AddTimers(MachineBuilder& machine, const Settings& settings) {
    machine.Asr(settings.asr_enabled);
    machine.Variable(kAsrVariable, ASREVSTRUCT{1, 1, settings.asr_minutes, 0, 0x0CA0, 60});
    const uint8_t shutdown = settings.shutdown;
    machine.Variable(kShutdownVariable, CSMEVSTRUCT{shutdown, {0x20, 0x06, 0x14}, 1, shutdown, 0});
}

void AddBoot(MachineBuilder& machine, const Settings& settings) {
    machine.Variable(kBootOrderVariable, settings.boot_order);
    machine.Variable(kBootCountVariable, BootDeviceCount{settings.boot_devices});
    machine.Variable(kBootOnceVariable, ZTTBT1STRUCT{{settings.boot_once}, 0});
}

void AddNics(MachineBuilder& machine, const Settings& settings) {
    std::string boot(10, '\0');  // a byte a NIC, with room for more NICs than any model has
    NicPxeFlags flags{};
    for (size_t i = 0; i < sizeof settings.nics; ++i) {
        boot[i] = static_cast<char>(settings.nics[i]);
        if (settings.nics[i] == kNicBootPxe) flags.nics.ucData |= static_cast<uint8_t>(1 << i);
    }
    machine.Variable(kNicBootVariable, boot);
    machine.Variable(kNicPxeVariable, flags);
}

void AddConfiguration(MachineBuilder& machine, const Settings& settings) {
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

void AddRomVariables(MachineBuilder& machine, ModelId model) {
    const Settings& settings = SettingsOf(model);
    AddTexts(machine, settings);
    AddTimers(machine, settings);
    AddBoot(machine, settings);
    AddNics(machine, settings);
    AddConfiguration(machine, settings);
    machine.Variable(kVersionsVariable, settings.versions);
}
