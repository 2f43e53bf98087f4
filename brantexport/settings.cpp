// The firmware's settings, and the versions of its components.
#include "brantexport/settings.h"

#include "cli/misc-commands/asset_name.h"
#include "cli/misc-commands/boot.h"
#include "cli/misc-commands/serial_bios.h"
#include "cli/misc-commands/serial_ports.h"
#include "cli/misc-commands/switches.h"
#include "cli/misc-commands/versions.h"

#include <cstring>

#include "cli/command/command.h"
#include "cli/command/state.h"

namespace {

Json UpToZero(const char* bytes, size_t size) {
    return Text({bytes, strnlen(bytes, size)});
}

Json ReadAssetText(Errors& errors) {
    AssetText asset;
    if (errors.Add(ReadAsset(asset))) return nullptr;
    return UpToZero(asset.asset_text, sizeof asset.asset_text);
}

Json ReadNameOfServer(Errors& errors) {
    ServerName name;
    if (errors.Add(ReadServerName(name))) return nullptr;
    constexpr size_t kHalf = sizeof name.zthls1 / 2;
    std::string text(name.zthls1, strnlen(name.zthls1, kHalf));
    return Text(text.append(name.zthls1 + kHalf, strnlen(name.zthls1 + kHalf, kHalf)));
}

Json ReadSwitch(Errors& errors, const char* (*read)(bool& enabled)) {
    bool enabled = false;
    if (errors.Add(read(enabled))) return nullptr;
    return EnabledOrDisabled(enabled);
}

Json ReadBootDevices(Errors& errors) {
    BootOrder order;
    if (errors.Add(ReadBootOrder(order))) return nullptr;
    Json devices = Json::array();
    for (int i = 0; i < order.count; ++i) devices.push_back(Word(order.device[i]));
    return devices;
}

Json ReadWord(Errors& errors, const char* (*read)(const char*& word)) {
    const char* word = nullptr;
    return errors.Add(read(word)) ? Json() : Word(word);
}

Json ReadBiosPort(Errors& errors) {
    BiosSerialPort port{};
    if (errors.Add(ReadBiosSerialPort(port))) return nullptr;
    return {
        {"port", Word(port.port != nullptr ? port.port : "disabled")},
        {"baud", port.port != nullptr ? Word(port.baud) : Json()},
    };
}

Json ReadEmbeddedPort(const EmbeddedPorts& ports, int port) {
    return Word(ports.port[port]);
}

Json VersionText(const VERSION& version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
}

}  // namespace

Json ExportSettings(Errors& errors) {
    EmbeddedPorts ports{};
    errors.Add(ReadEmbeddedPorts(ports));
    return {
        {"asset_text", ReadAssetText(errors)},
        {"server_name", ReadNameOfServer(errors)},
        {"automatic_shutdown", ReadSwitch(errors, ReadShutdown)},
        {"boot_order", ReadBootDevices(errors)},
        {"boot_once", ReadWord(errors, ReadBootOnce)},
        {"wake_on_lan", ReadSwitch(errors, ReadWakeOnLan)},
        {"post_f1_prompt", ReadWord(errors, ReadF1Prompt)},
        {"hyper_threading", ReadSwitch(errors, ReadHyperThreading)},
        {"bios_serial_port", ReadBiosPort(errors)},
        {"embedded_serial_port_a", ReadEmbeddedPort(ports, 0)},
        {"embedded_serial_port_b", ReadEmbeddedPort(ports, 1)},
        {"virtual_serial_port", got_kelm != 0 ? ReadWord(errors, ReadVirtualPort) : Json()},
    };
}

Json ExportVersions(Errors& errors) {
    ComponentVersions versions;
    if (errors.Add(ReadVersions(versions))) return nullptr;
    Json list = Json::array();
    for (const ComponentVersion& version : versions.component) {
        if (!versions.told) break;
        list.push_back({
            {"component", Word(version.name)},
            {"baseline", VersionText(version.baseline)},
            {"current", VersionText(version.current)},
        });
    }
    return list;
}
