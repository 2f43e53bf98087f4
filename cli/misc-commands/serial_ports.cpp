// Two ports must not have the same COM number. So if a command assigns a number that another port has, it
// disables the other port or assigns another number to it.
#include "cli/misc-commands/serial_ports.h"

#include <cstdio>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/misc-commands/rom_store.h"
#include "src/utils/text.h"

namespace {

constexpr char kPortsUnreadable[] = "\nERROR: Failed to read serial port status.";
constexpr char kPortLetters[] = "AB";

SERIALPORT& EmbeddedPort(WOLEVREC& ztsbkt, int port) {
    return port == 0 ? ztsbkt.uart1 : ztsbkt.uart2;
}

// A table of choices is indexed by the COM number; index 0 disables the port. `byte` is the port's new byte
// in the variable: the COM number in the low bits, and the interrupt line that belongs to it in the high
// bits.
struct VirtualChoice {
    const char* word;
    uint8_t byte;
};
// clang-format off
constexpr VirtualChoice kVirtualChoices[] = {
    {"DISABLED", 0x07},
    {"COM1",     0x41},
    {"COM2",     0x32},
};
// clang-format on

struct EmbeddedChoice {
    const char* word;
    uint8_t byte;
    uint8_t other_moves_to;  // if the other embedded port has this number: the number that it gets instead
    const char* on_tr500k2;  // error message on a TR500 K2; null: the choice is valid there
    const char* elsewhere;   // error message on other servers; null: the choice is valid there
};

constexpr char kTr500k2Range[] = "\nERROR: The Corvex TR500K2 only supports COM1, COM2, COM3 or DISABLED.";
constexpr char kPortARange[] = "\nERROR: Port A may only be set to COM1, COM3, COM4 or DISABLED.";
constexpr char kPortBRange[] = "\nERROR: Port B may only be set to COM2, COM3, COM4 or DISABLED.";

// clang-format off
constexpr EmbeddedChoice kEmbeddedChoices[2][5] = {
    {   // port A
        {"DISABLED", 0x07, 0, nullptr,       nullptr},
        {"COM1",     0x41, 2, nullptr,       nullptr},
        {"COM2",     0x32, 1, nullptr,       kPortARange},
        {"COM3",     0x53, 2, nullptr,       nullptr},
        {"COM4",     0x44, 3, kTr500k2Range, nullptr},
    },
    {   // port B
        {"DISABLED", 0x07, 0, nullptr,       nullptr},
        {"COM1",     0x41, 2, nullptr,       kPortBRange},
        {"COM2",     0x32, 1, nullptr,       nullptr},
        {"COM3",     0x53, 1, nullptr,       nullptr},
        {"COM4",     0x34, 3, kTr500k2Range, nullptr},
    },
};
// clang-format on

// Returns whether the byte of each choice contains the COM number that is the choice's index.
template <typename Choice, size_t kCount>
constexpr bool ContainTheirIndexes(const Choice (&choices)[kCount]) {
    for (size_t com = 0; com < kCount; ++com) {
        if ((choices[com].byte & 7) != (com == 0 ? size_t{kUartDisabled} : com)) return false;
    }
    return true;
}
static_assert(ContainTheirIndexes(kVirtualChoices) && ContainTheirIndexes(kEmbeddedChoices[0]) &&
                  ContainTheirIndexes(kEmbeddedChoices[1]),
              "a port would get another number than the requested one");

// If the other embedded port has the number `com`, which `port` is about to get, assigns another number to
// it. Doesn't check whether the virtual port already has that other number.
void MoveOtherPort(WOLEVREC& ztsbkt, int port, int com) {
    const int other = 1 - port;
    SERIALPORT& moved = EmbeddedPort(ztsbkt, other);
    if (moved.s.bits_UART != com) return;

    const int to = kEmbeddedChoices[port][com].other_moves_to;
    std::printf("\nNote: Port %c was already set to COM%d. It has now been assigned COM%d.\n",
                kPortLetters[other], com, to);
    const uint8_t reserved = moved.s.reserved_1;
    moved.ucData = kEmbeddedChoices[other][to].byte;
    moved.s.reserved_1 = reserved & 1;
}

// Disables the virtual port if its number is `com`. The two notes differ in "NOTE" and "Note". Keep the
// difference: scripts may compare them.
void TakeFromVirtualPort(WOLEVREC& ztsbkt, int com) {
    if (ztsbkt.vsp.s.bits_UART1 != com) return;

    std::printf(
        com == 1 ? "\nNOTE: The Virtual serial port was already assigned COM%d.\nIt has now been disabled.\n"
                 : "\nNote: The Virtual serial port was already assigned COM%d.\nIt has now been disabled.\n",
        com);
    ztsbkt.vsp.s.bits_UART1 = kUartDisabled;
}

// Disables the first embedded port whose number is `com`.
void TakeFromEmbeddedPort(WOLEVREC& ztsbkt, int com) {
    for (int port = 0; port < 2; ++port) {
        SERIALPORT& embedded = EmbeddedPort(ztsbkt, port);
        if (embedded.s.bits_UART != com) continue;

        std::printf(
            "\nNOTE: The embedded serial port %c was already assigned COM%d."
            "\nIt has now been disabled.\n",
            kPortLetters[port], com);
        embedded.s.bits_UART = kUartDisabled;
        return;
    }
}

// Returns the printed name of a COM number, or null if the number is invalid.
const char* UartName(unsigned uart) {
    constexpr const char* kNames[] = {nullptr, "COM1", "COM2", "COM3", "COM4", nullptr, nullptr, "disabled"};
    return kNames[uart & 7];
}

}  // namespace

VirtualPortRead ReadVirtualPort(const char*& port) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return VirtualPortRead::Failed;
    port = UartName(ztsbkt.vsp.s.bits_UART1);
    return port != nullptr ? VirtualPortRead::Done : VirtualPortRead::UnknownState;
}

bool ReadEmbeddedPorts(EmbeddedPorts& ports) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return false;
    for (int port = 0; port < 2; ++port) {
        ports.port[port] = UartName(EmbeddedPort(ztsbkt, port).s.bits_UART);
    }
    return true;
}

int do_set_virtual_serial_port(InputLineType* InputLine) {
    if (got_kelm == 0) {
        return Fail("\nERROR: This command requres Kelm which is not present on this system.");
    }
    if (InputLine->NumWords != 4) return InvalidArguments();

    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return Fail(kPortsUnreadable);
    const VirtualChoice* choice = FindWord(kVirtualChoices, InputLine->Words[3]);
    if (choice == nullptr) {
        return Fail("\nERROR: Invalid argument. It must be either COM1, COM2 or DISABLED");
    }
    ztsbkt.vsp.ucData = choice->byte;
    const auto com = static_cast<int>(choice - kVirtualChoices);
    if (com != 0) TakeFromEmbeddedPort(ztsbkt, com);
    if (!WriteVariable(kConfiguration, ztsbkt)) {
        std::printf("\nERROR: Failed to set Virtual serial port config.");
        return 0;
    }
    std::printf("\nSuccessfully set Virtual serial port config to %s.", choice->word);
    return 0;
}

int do_show_vsp(InputLineType* InputLine) {
    if (got_kelm == 0) {
        std::printf("\nThis system does not have an Kelm which is required for the Virtual serial port.");
        return 0;
    }
    if (InputLine->NumWords == 2) return ShowUsage();
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* port = nullptr;
    switch (ReadVirtualPort(port)) {
        case VirtualPortRead::Failed: return Fail("\nERROR: Failed to read Virtual serial port status.");
        case VirtualPortRead::UnknownState:
            return Fail(
                "\nERROR: Kelm Virtual serial port is in an unknown state."
                "\nYou may have to upgrade the Kelm firmware to version 1.55 or later"
                "\nor use KONF to set its initial configuration..");
        case VirtualPortRead::Done: break;
    }
    std::printf("\nVirtual serial port is currently %s.", port);
    return 0;
}

int do_set_embedded_serial_port(InputLineType* InputLine) {
    if (InputLine->NumWords != 5) return InvalidArguments();

    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return Fail(kPortsUnreadable);
    const int port = StartsWith(InputLine->Words[3], "PORTA") ? 0 : 1;
    const char* word = InputLine->Words[4];
    const EmbeddedChoice* choice = FindWord(kEmbeddedChoices[port], word);
    if (choice == nullptr) {
        return Fail("\nERROR: Invalid argument %s. It must be either COM1, COM2, COM3, COM4 or DISABLED",
                    word);
    }
    const char* error = is_tr500k2() ? choice->on_tr500k2 : choice->elsewhere;
    if (error != nullptr) return Fail("%s", error);

    EmbeddedPort(ztsbkt, port).ucData = choice->byte;
    const auto com = static_cast<int>(choice - kEmbeddedChoices[port]);
    if (com != 0) {
        MoveOtherPort(ztsbkt, port, com);
        TakeFromVirtualPort(ztsbkt, com);
    }
    if (!WriteVariable(kConfiguration, ztsbkt)) {
        std::printf("\nERROR: Failed to set Embedded serial port config.");
        return 0;
    }
    std::printf("\nSuccessfully set Embedded serial port %c to %s.", kPortLetters[port], word);
    return 0;
}

int do_show_embedded_serial_port(InputLineType* InputLine) {
    if (InputLine->NumWords > 3) return InvalidArguments();

    EmbeddedPorts ports{};
    if (!ReadEmbeddedPorts(ports)) return Fail("\nERROR: Failed to read embedded serial status.");

    for (int port = 0; port < 2; ++port) {
        const char* text = ports.port[port];
        std::printf("\nEmbedded serial port %c: %s.", kPortLetters[port],
                    text != nullptr ? text : "in an UNKNOWN state");
    }
    return 0;
}
