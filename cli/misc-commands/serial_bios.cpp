#include "cli/misc-commands/serial_bios.h"

#include <cstdio>

#include "cli/command/command.h"
#include "cli/misc-commands/rom_store.h"
#include "src/utils/text.h"

namespace {

constexpr RomVariable<BiosPort, sizeof(BiosPort), 1> kPort = {kBiosPortVariable};
constexpr RomVariable<BiosBaud, sizeof(BiosBaud), 1> kBaud = {kBiosBaudVariable};

constexpr char kNotWritten[] = "\nERROR: Failed to set BIOS serial port config.";

struct Port {
    BiosPortCode code;
    const char* word;   // the argument that selects this port; null: no argument does
    const char* shown;  // the name that is printed; null: "disabled" is printed
};
// clang-format off
constexpr Port kPorts[] = {
    {kBiosPortDisabled, "DISABLED", nullptr},
    {kBiosPortCom1,     "COM1",     "COM1"},
    {kBiosPortCom2,     "COM2",     "COM2"},
    {kBiosPortCom3,     nullptr,    "COM3"},
    {kBiosPortCom4,     nullptr,    "COM4"},
    {kBiosPortVirtual,  nullptr,    "VSP"},
};
// clang-format on

struct Baud {
    BiosBaudRate code;
    const char* word;
};
// clang-format off
constexpr Baud kBauds[] = {
    {kBaud9600,   "9600"},
    {kBaud19200,  "19200"},
    {kBaud57600,  "57600"},
    {kBaud115200, "115200"},
};
// clang-format on

bool WritePort(uint8_t code) {
    return WriteVariable(kPort, BiosPort{code, 0});
}

bool WriteBaud(uint8_t code) {
    return WriteVariable(kBaud, BiosBaud{{code}, {}});
}

// `with_baud`: whether the command contains a baud rate. Its value is ignored, and the variable of the baud
// rate is cleared.
int DisablePort(bool with_baud) {
    bool written = WritePort(kBiosPortDisabled);
    if (with_baud) written = WriteBaud(0) && written;
    if (!written) return Fail(kNotWritten);

    std::printf("\nSuccessfully set BIOS serial port to DISABLED.");
    return 0;
}

}  // namespace

int do_set_bios_serial_port(InputLineType* InputLine) {
    const bool with_baud = InputLine->NumWords == 5;
    if (InputLine->NumWords != 4 && !with_baud) return InvalidArguments();
    const Port* port = FindWord(kPorts, InputLine->Words[3]);
    if (port == nullptr) {
        return Fail("\nERROR: Invalid arguments. It must be either COM1, COM2 or DISABLED.");
    }
    if (port->code == kBiosPortDisabled) return DisablePort(with_baud);

    if (!with_baud) {
        return Fail(
            "\nERROR: You must specify the baud rate when assigning the port."
            "\nBaud rate must be either 9600, 19200, 57600 or 115200.");
    }
    const Baud* baud = FindWord(kBauds, InputLine->Words[4]);
    if (baud == nullptr) {
        return Fail("\nERROR: Invalid baud rate. Baud rate must be either 9600, 19200, 57600 or 115200.");
    }
    const bool port_written = WritePort(port->code);
    const bool baud_written = WriteBaud(baud->code);  // written even if the port could not be written
    if (!port_written || !baud_written) return Fail(kNotWritten);

    std::printf("\nSuccessfully set BIOS serial port to %s/%s.", port->word, baud->word);
    return 0;
}

BiosSerialPortRead ReadBiosSerialPort(BiosSerialPort& shown) {
    BiosBaud baud;
    if (!ReadVariable(kBaud, baud)) return BiosSerialPortRead::BaudFailed;
    BiosPort port;
    if (!ReadVariable(kPort, port)) return BiosSerialPortRead::PortFailed;

    const Port* row = FindCode(kPorts, port.port);
    const Baud* rate = FindCode(kBauds, baud.baud.s.bits_Rate);
    shown.port = row != nullptr ? row->shown : nullptr;
    shown.baud = rate != nullptr ? rate->word : "UNKNOWN";
    return BiosSerialPortRead::Done;
}

int do_show_bios_serial_port(InputLineType* InputLine) {
    if (InputLine->NumWords > 3) return InvalidArguments();

    BiosSerialPort port{};
    switch (ReadBiosSerialPort(port)) {
        case BiosSerialPortRead::BaudFailed: return Fail("\nERROR: Failed to read BIOS serial port baud.");
        case BiosSerialPortRead::PortFailed: return Fail("\nERROR: Failed to read BIOS serial port status.");
        case BiosSerialPortRead::Done: break;
    }
    if (port.port == nullptr) return Fail("\nThe BIOS serial port is currently disabled.");

    std::printf("\nThe BIOS serial port is currently set to %s/%s.", port.port, port.baud);
    return 0;
}
