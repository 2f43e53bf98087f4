// Tests of the commands for serial ports: those of the BIOS console, the embedded ports and the virtual port.
#include <gtest/gtest.h>

#include <cstring>

#include "cli/command/state.h"
#include "tests/misc-commands/rom_shell.h"
#include "tests/support/golden.h"

namespace {

// Sets each embedded port to each number, on both kinds of servers, while the number belongs to no port, to
// the other embedded port or to the virtual port. embedded_ports.txt contains the variable before the
// command, the output, and the variable after the command.
TEST(SerialPorts, EmbeddedPortsGetEveryNumber) {
    constexpr size_t kNoPort = 0, kPortA = 2, kPortB = 3, kVirtual = 10;  // offsets in the variable
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
