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

// Returns the string in a field of `size` bytes, which is NUL-terminated unless it fills the field.
Json FieldText(const char* field, size_t size) {
    return Text({field, strnlen(field, size)});
}

Json AssetTextOf(Errors& errors) {
    AssetText asset;
    if (!ReadAsset(asset)) return errors.Add("Failed to read Asset Text.");
    return FieldText(asset.asset_text, sizeof asset.asset_text);
}

Json ServerNameOf(Errors& errors) {
    ServerName name;
    if (!ReadServerName(name)) {
        return errors.Add(
            "No Server name seems to have been set, or command failed."
            " Please use \"SET NAME\" to set a server name.");
    }
    constexpr size_t kHalf = sizeof name.zthls1 / 2;
    std::string text(name.zthls1, strnlen(name.zthls1, kHalf));
    return Text(text.append(name.zthls1 + kHalf, strnlen(name.zthls1 + kHalf, kHalf)));
}

Json BootOrderOf(Errors& errors) {
    BootOrder order;
    switch (ReadBootOrder(order)) {
        case BootOrderRead::CountFailed: return errors.Add("Failed to get number of IPL devices installed.");
        case BootOrderRead::ListFailed: return errors.Add("Failed to get IPL list.");
        case BootOrderRead::Done: break;
    }
    Json devices = Json::array();
    for (int i = 0; i < order.count; ++i) devices.push_back(Word(order.device[i]));
    return devices;
}

Json BiosPortOf(Errors& errors) {
    BiosSerialPort port{};
    switch (ReadBiosSerialPort(port)) {
        case BiosSerialPortRead::BaudFailed: return errors.Add("Failed to read BIOS serial port baud.");
        case BiosSerialPortRead::PortFailed: return errors.Add("Failed to read BIOS serial port status.");
        case BiosSerialPortRead::Done: break;
    }
    return {
        {"port", Word(port.port != nullptr ? port.port : "disabled")},
        {"baud", port.port != nullptr ? Word(port.baud) : Json()},
    };
}

Json VirtualPortOf(Errors& errors) {
    const char* port = nullptr;
    switch (ReadVirtualPort(port)) {
        case VirtualPortRead::Failed: return errors.Add("Failed to read Virtual serial port status.");
        case VirtualPortRead::UnknownState:
            return errors.Add(
                "Kelm Virtual serial port is in an unknown state."
                " You may have to upgrade the Kelm firmware to version 1.55 or later"
                " or use KONF to set its initial configuration..");
        case VirtualPortRead::Done: break;
    }
    return Word(port);
}

// Returns "enabled" or "disabled".
Json SwitchOf(Errors& errors, bool (*read)(bool& enabled), const char* message) {
    bool enabled = false;
    return read(enabled) ? Json(EnabledOrDisabled(enabled)) : errors.Add(message);
}

Json WordOf(Errors& errors, bool (*read)(const char*& word), const char* message) {
    const char* word = nullptr;
    return read(word) ? Word(word) : errors.Add(message);
}

Json VersionText(const VERSION& version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
}

}  // namespace

Json ExportSettings(Errors& errors) {
    EmbeddedPorts ports{};
    if (!ReadEmbeddedPorts(ports)) errors.Add("Failed to read embedded serial status.");
    return {
        {"asset_text", AssetTextOf(errors)},
        {"server_name", ServerNameOf(errors)},
        {"automatic_shutdown", SwitchOf(errors, ReadShutdown, "Failed to read EAAS status.")},
        {"boot_order", BootOrderOf(errors)},
        {"boot_once", WordOf(errors, ReadBootOnce, "Failed to get next boot device.")},
        {"wake_on_lan", SwitchOf(errors, ReadWakeOnLan, "Failed to read Wake-On-Lan status.")},
        {"post_f1_prompt", WordOf(errors, ReadF1Prompt, "Failed to read POST F1 status.")},
        {"hyper_threading", SwitchOf(errors, ReadHyperThreading, "Failed to read hyper-threading status.")},
        {"bios_serial_port", BiosPortOf(errors)},
        {"embedded_serial_port_a", Word(ports.port[0])},
        {"embedded_serial_port_b", Word(ports.port[1])},
        {"virtual_serial_port", got_kelm != 0 ? VirtualPortOf(errors) : Json()},
    };
}

Json ExportVersions(Errors& errors) {
    ComponentVersions versions;
    if (!ReadVersions(versions)) return errors.Add("Failed to read version information.");
    Json list = Json::array();
    if (!versions.known) return list;
    for (const ComponentVersion& version : versions.component) {
        list.push_back({
            {"component", Word(version.name)},
            {"baseline", VersionText(version.baseline)},
            {"current", VersionText(version.current)},
        });
    }
    return list;
}
