#include "brantexport/settings.h"

#include <string>
#include <string_view>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/misc-commands/asset_name.h"
#include "cli/misc-commands/boot.h"
#include "cli/misc-commands/serial_bios.h"
#include "cli/misc-commands/serial_ports.h"
#include "cli/misc-commands/switches.h"
#include "cli/misc-commands/versions.h"
#include "src/utils/bytes.h"
#include "src/utils/text.h"

namespace {

// Returns the string in a field of `size` bytes, which is NUL-terminated unless it fills the field.
std::string_view FieldText(const char* field, size_t size) {
    return ReadText({reinterpret_cast<const uint8_t*>(field), size}, 0);
}

void WriteAsset(Writer& writer, Errors& errors) {
    AssetText asset;
    const bool done = ReadAsset(asset);
    if (!done) errors.Add("Failed to read Asset Text.");
    writer.Add("asset_text", done ? Text(FieldText(asset.asset_text, sizeof asset.asset_text)) : Value());
}

void WriteName(Writer& writer, Errors& errors) {
    ServerName name;
    const bool done = ReadServerName(name);
    if (!done) {
        errors.Add(
            "No Server name seems to have been set, or command failed."
            " Please use \"SET NAME\" to set a server name.");
    }
    constexpr size_t kHalf = sizeof name.zthls1 / 2;
    std::string text(FieldText(name.zthls1, kHalf));
    text += FieldText(name.zthls1 + kHalf, kHalf);
    writer.Add("server_name", done ? Text(text) : Value());
}

void WriteBootOrder(Writer& writer, Errors& errors) {
    writer.Key("boot_order");
    BootOrder order;
    switch (ReadBootOrder(order)) {
        case BootOrderRead::CountFailed:
            return writer.Put(errors.Add("Failed to get number of IPL devices installed."));
        case BootOrderRead::ListFailed: return writer.Put(errors.Add("Failed to get IPL list."));
        case BootOrderRead::Done: break;
    }
    writer.BeginList();
    for (int i = 0; i < order.count; ++i) writer.Put(Word(order.device[i]));
    writer.EndList();
}

void WriteBiosPort(Writer& writer, Errors& errors) {
    writer.Key("bios_serial_port");
    BiosSerialPort port{};
    switch (ReadBiosSerialPort(port)) {
        case BiosSerialPortRead::BaudFailed:
            return writer.Put(errors.Add("Failed to read BIOS serial port baud."));
        case BiosSerialPortRead::PortFailed:
            return writer.Put(errors.Add("Failed to read BIOS serial port status."));
        case BiosSerialPortRead::Done: break;
    }
    const int baud = port.port != nullptr ? DecimalNumber(port.baud) : 0;  // 0: unknown
    writer.BeginObject();
    writer.Add("port", Word(port.port != nullptr ? port.port : "disabled"));
    writer.Add("baud", baud != 0 ? Value(baud) : Value());
    writer.EndObject();
}

Value VirtualPortOf(Errors& errors) {
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
Value SwitchOf(Errors& errors, bool (*read)(bool& enabled), const char* message) {
    bool enabled = false;
    return read(enabled) ? Word(EnabledOrDisabled(enabled)) : errors.Add(message);
}

Value WordOf(Errors& errors, bool (*read)(const char*& word), const char* message) {
    const char* word = nullptr;
    return read(word) ? Word(word) : errors.Add(message);
}

std::string VersionText(const VERSION& version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
}

}  // namespace

void WriteSettings(Writer& writer, Errors& errors) {
    EmbeddedPorts ports{};
    if (!ReadEmbeddedPorts(ports)) errors.Add("Failed to read embedded serial status.");
    writer.BeginObject();
    WriteAsset(writer, errors);
    WriteName(writer, errors);
    writer.Add("automatic_shutdown", SwitchOf(errors, ReadShutdown, "Failed to read EAAS status."));
    WriteBootOrder(writer, errors);
    writer.Add("boot_once", WordOf(errors, ReadBootOnce, "Failed to get next boot device."));
    writer.Add("wake_on_lan", SwitchOf(errors, ReadWakeOnLan, "Failed to read Wake-On-Lan status."));
    writer.Add("post_f1_prompt", WordOf(errors, ReadF1Prompt, "Failed to read POST F1 status."));
    writer.Add("hyper_threading",
               SwitchOf(errors, ReadHyperThreading, "Failed to read hyper-threading status."));
    WriteBiosPort(writer, errors);
    writer.Add("embedded_serial_port_a", Word(ports.port[0]));
    writer.Add("embedded_serial_port_b", Word(ports.port[1]));
    writer.Add("virtual_serial_port", got_kelm != 0 ? VirtualPortOf(errors) : Value());
    writer.EndObject();
}

void WriteVersions(Writer& writer, Errors& errors) {
    ComponentVersions versions;
    if (!ReadVersions(versions)) return writer.Put(errors.Add("Failed to read version information."));
    writer.BeginList();
    for (const ComponentVersion& version : versions.component) {
        if (!versions.known) break;
        writer.BeginObject();
        writer.Add("component", Word(version.name));
        writer.Add("baseline", Text(VersionText(version.baseline)));
        writer.Add("current", Text(VersionText(version.current)));
        writer.EndObject();
    }
    writer.EndList();
}
