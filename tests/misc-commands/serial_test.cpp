// Tests of the commands for serial ports: those of the BIOS console, the embedded ports and the virtual port.
#include <gtest/gtest.h>

#include <cstring>

#include "cli/command/state.h"
#include "tests/misc-commands/rom_shell.h"
#include "tests/support/golden.h"

namespace {

#define TAKEN(port, com) " serial port" port " was already assigned " com ".\nIt has now been disabled.\n"
#define MOVED "\nNote: Port A was already set to COM3. It has now been assigned COM1.\n"
#define RATES "9600, 19200, 57600 or 115200."
#define UNKNOWN                                                                                             \
    "\nERROR: Kelm Virtual serial port is in an unknown state."                                             \
    "\nYou may have to upgrade the Kelm firmware to version 1.55 or later\nor use KONF to set its initial " \
    "configuration.."
#define PORTS(a, b) "\nEmbedded serial port A: " a ".\nEmbedded serial port B: " b "."

// clang-format off
const std::vector<RomRow> kRows = {
    {kOrdinary, "an invalid port or baud rate is accepted", "",
     {Fails("SET SERIAL BIOS COM3 9600", "\nERROR: Invalid arguments. It must be either COM1, COM2 or DISABLED."),
      Fails("SET SERIAL BIOS COM2 2400", "\nERROR: Invalid baud rate. Baud rate must be either " RATES),
      Fails("SET SERIAL BIOS COM1", "\nERROR: You must specify the baud rate when assigning the port."
                                    "\nBaud rate must be either " RATES)}},
    {kOrdinary, "the baud rate is not written if writing the port fails", "!crom write ZTHCON 1",
     {Fails("SET SERIAL BIOS COM1 9600", "\nERROR: Failed to set BIOS serial port config.", "write ZTHCON 1 01 -> 1; write ZTHBAUD 1 01"),
      Fails("SET SERIAL BIOS DISABLED 1", "\nERROR: Failed to set BIOS serial port config.", "write ZTHCON 1 00 -> 1; write ZTHBAUD 1 00")}},
    {kFull, "both embedded ports are disabled, or other bits are changed", "ZTSBKT=0000a1c100000000000032aabb",
     {{"set serial virtual com1", "\nNOTE: The embedded" TAKEN(" A", "COM1") "\nSuccessfully set Virtual serial port config to COM1.",
       "read ZTSBKT 13; write ZTSBKT 12 0000a7c100000000000041aa"}}},
    {kFull, "the interrupt line of port B is changed", "ZTSBKT=000041fa000000000000f8aabb",
     {{"SET SERIAL VIRTUAL COM2", "\nNOTE: The embedded" TAKEN(" B", "COM2") "\nSuccessfully set Virtual serial port config to COM2.",
       "read ZTSBKT 13; write ZTSBKT 12 000041ff00000000000032aa"}}},
    {kFull, "a number that only the embedded ports can have is accepted", "",
     {Fails("SET SERIAL VIRTUAL COM3", "\nERROR: Invalid argument. It must be either COM1, COM2 or DISABLED", "read ZTSBKT 13")}},
    {kOrdinary, "a port that doesn't exist is set or shown", "",
     {Fails("SET SERIAL VIRTUAL", "\nERROR: This command requres Kelm which is not present on this system."),
      {"SHOW SERIAL VIRTUAL 1", "\nThis system does not have an Kelm which is required for the Virtual serial port."}}},
    {kOrdinary, "the notes are in another order, or the interrupt line is wrong", "ZTSBKT=0000530700000000000043aabb",
     {{"set serial embedded portb com3", MOVED "\nNote: The Virtual" TAKEN("", "COM3") "\nSuccessfully set Embedded serial port B to COM3.",
       "read ZTSBKT 13; write ZTSBKT 12 0000415300000000000047aa"}}},
    {kOrdinary, "the virtual port is disabled if the moved port gets its number", "ZTSBKT=0000530700000000000041aabb",
     {{"SET SERIAL EMBEDDED PORTB COM3", MOVED "\nSuccessfully set Embedded serial port B to COM3.",
       "read ZTSBKT 13; write ZTSBKT 12 0000415300000000000041aa"}}},
    {kOrdinary, "an invalid number is accepted", "",
     {Fails("SET SERIAL EMBEDDED PORTA COM5", "\nERROR: Invalid argument COM5. It must be either COM1, COM2, COM3, COM4 or DISABLED", "read ZTSBKT 13")}},
};

const std::vector<Shown> kShown = {
    {"ZTHCON=02; ZTHBAUD=0c", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to COM2/115200."},
    {"ZTHCON=04; ZTHBAUD=0a", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to COM3/19200."},
    {"ZTHCON=05; ZTHBAUD=0b", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to COM4/57600."},
    {"ZTHCON=06; ZTHBAUD=0d", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to VSP/UNKNOWN."},
    {"ZTHCON=03; ZTHBAUD=01", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently disabled.", 1},
    {"ZTHCON=07; ZTHBAUD=01", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently disabled.", 1},
    {"ZTSBKT=0000fcff", "SHOW SERIAL EMBEDDED", PORTS("COM4", "disabled")},
    {"ZTSBKT=0000f8fa", "SHOW SERIAL EMBEDDED", PORTS("in an UNKNOWN state", "COM2")},
    {"ZTSBKT=0000f5fe", "SHOW SERIAL EMBEDDED", PORTS("in an UNKNOWN state", "in an UNKNOWN state")},
    {"ZTSBKT=00000000000000000000ff", "SHOW SERIAL VIRTUAL", "\nVirtual serial port is currently disabled."},
    {"ZTSBKT=00000000000000000000fb", "SHOW SERIAL VIRTUAL", "\nVirtual serial port is currently COM3."},
    {"ZTSBKT=00000000000000000000f8", "SHOW SERIAL VIRTUAL", UNKNOWN, 1},
    {"ZTSBKT=00000000000000000000fd", "SHOW SERIAL VIRTUAL", UNKNOWN, 1},
    {"ZTSBKT=00000000000000000000fe", "SHOW SERIAL VIRTUAL", UNKNOWN, 1},
};
// clang-format on

TEST(SerialPorts, GetANumberThatAnotherPortLoses) {
    ExpectRows(kRows);
}

TEST(SerialPorts, ShowNamesOfTheirBits) {
    ExpectShown("", kShown);
}

// Sets each embedded port to each number on both kinds of servers, while no port, the other embedded port or
// the virtual port has that number. embedded_ports.txt contains the variable, the output, and the variable
// afterwards.
TEST(SerialPorts, EmbeddedPortsGetEveryNumber) {
    constexpr size_t kNoPort = 0, kPortA = 2, kPortB = 3, kVirtual = 10;  // bytes of the variable
    RomShell shell;
    std::string listing;
    const auto set = [&](const std::string& command, size_t holder, int number) {
        std::string before(13, '\xF8');
        before[holder] = static_cast<char>(before[holder] | number);
        shell.machine.Variable("ZTSBKT", before);
        listing += std::string(system_name) + ": " + command + "\n" + Hexadecimal(before);
        listing += shell.Run(command) + "\n";
        listing += Hexadecimal(shell.machine.Read("crom/ZTSBKT")) + "\n\n";
    };
    for (const char* model : {"Corvex TR500 K2", "Corvex TR500 K21"}) {
        std::strcpy(system_name, model);
        for (const char* choice : {"COM1", "COM2", "COM3", "COM4", "DISABLED"}) {
            const int number = choice[0] == 'C' ? choice[3] - '0' : 7;
            for (const size_t holder : {kNoPort, kPortB, kVirtual}) {
                set(std::string("SET SERIAL EMBEDDED PORTA ") + choice, holder, number);
            }
            for (const size_t holder : {kNoPort, kPortA, kVirtual}) {
                set(std::string("SET SERIAL EMBEDDED PORTB ") + choice, holder, number);
            }
        }
    }
    ExpectGolden("misc-commands/embedded_ports.txt", listing);
}

}  // namespace
