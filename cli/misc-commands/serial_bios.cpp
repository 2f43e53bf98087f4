// The serial port of the BIOS console, and its baud rate.
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "src/utils/word_table.h"

namespace {

constexpr RomVariable<BiosPort> kPort = {kBiosPortVariable, sizeof(BiosPort), 1};
constexpr RomVariable<BiosBaud> kBaud = {kBiosBaudVariable, sizeof(BiosBaud), 1};

struct Port {
    uint8_t code;
    const char* word;   // null: can't be set
    const char* shown;  // null: as a port that is disabled
};
// clang-format off
constexpr Port kPorts[] = {
    {0, "DISABLED", nullptr},
    {1, "COM1",     "COM1"},
    {2, "COM2",     "COM2"},
    {4, nullptr,    "COM3"},
    {5, nullptr,    "COM4"},
    {6, nullptr,    "VSP"},
};
// clang-format on

struct Baud {
    uint8_t code;
    const char* word;
};
// clang-format off
constexpr Baud kBauds[] = {
    {1, "9600"},
    {2, "19200"},
    {3, "57600"},
    {4, "115200"},
};
// clang-format on

}  // namespace

int do_set_bios_serial_port(InputLineType* InputLine) {
    const bool with_baud = InputLine->NumWords == 5;
    if (InputLine->NumWords != 4 && !with_baud) return InvalidArguments();
    const Port* port = FindWord(kPorts, InputLine->Words[3]);
    if (port == nullptr) {
        return Fail("\nERROR: Invalid arguments. It must be either COM1, COM2 or DISABLED.");
    }
    const bool needs_baud = port->code != 0;
    if (needs_baud && !with_baud) {
        return Fail(
            "\nERROR: You must specify the baud rate when assigning the port."
            "\nBaud rate must be either 9600, 19200, 57600 or 115200.");
    }
    const Baud* baud = needs_baud ? FindWord(kBauds, InputLine->Words[4]) : nullptr;
    if (needs_baud && baud == nullptr) {
        return Fail("\nERROR: Invalid baud rate. Baud rate must be either 9600, 19200, 57600 or 115200.");
    }

    // The second is written whatever became of the first.
    RomOutcome stored = StoreVariable(kPort, BiosPort{port->code, 0});
    if (with_baud) {
        const uint8_t code = baud != nullptr ? baud->code : uint8_t{0};
        const RomOutcome baud_stored = StoreVariable(kBaud, BiosBaud{{code}, {}});
        if (baud_stored == RomOutcome::NotWritten) stored = baud_stored;
    }
    if (stored == RomOutcome::NotWritten) return Fail("\nERROR: Failed to set BIOS serial port config.");

    std::printf("\nSuccessfully set BIOS serial port to %s", port->word);
    if (baud != nullptr) std::printf("/%s", baud->word);
    std::printf(".");
    return 0;
}

const char* ReadBiosSerialPort(BiosSerialPort& shown) {
    BiosBaud baud;
    if (!ReadVariable(kBaud, baud)) return "\nERROR: Failed to read BIOS serial port baud.";
    BiosPort port;
    if (!ReadVariable(kPort, port)) return "\nERROR: Failed to read BIOS serial port status.";

    const Port* row = FindCode(kPorts, port.port);
    const Baud* rate = FindCode(kBauds, baud.baud.s.bits_Rate);
    shown.port = row != nullptr ? row->shown : nullptr;
    shown.baud = rate != nullptr ? rate->word : "UNKNOWN";
    return nullptr;
}

int do_show_bios_serial_port(InputLineType* InputLine) {
    if (InputLine->NumWords > 3) return InvalidArguments();

    BiosSerialPort port{};
    if (const char* error = ReadBiosSerialPort(port)) return Fail("%s", error);
    if (port.port == nullptr) return Fail("\nThe BIOS serial port is currently disabled.");

    std::printf("\nThe BIOS serial port is currently set to %s/%s.", port.port, port.baud);
    return 0;
}
