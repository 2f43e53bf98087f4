// What the bits of a variable come to: each value's text, and all that the serial ports' bits can be.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "cli/brantcli/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "tests/misc-commands/rom_case.h"

namespace {

struct Shown {
    const char* facts;
    const char* command;
    const char* output;
    const char* model = "";
};

#define TAKEN " serial port was already assigned %.\nIt has now been disabled.\n"
#define FIRST "\nSuccessfully set first boot device to "
#define ORDER "\nIPL (Standard Boot Order)\n-------------------------"
#define ONCE "\nOne time boot device is: "

// clang-format off
constexpr Shown kShown[] = {
    {"ZTHLS1=0041", "SHOW NAME", "\nServer name is: Not Set"},
    {"ZTHUV=00", "SHOW VERSIONS", "\nNo version information available"},
    {"ZTSBKT=000000000000fc", "SHOW WOL", "\nWake-On-Lan is currently disabled."},
    {"ZTSBKT=000000000000ff", "SHOW WOL", "\nWake-On-Lan is currently disabled."},
    {"ZTSBKT=00000000000000fc", "SHOW F1", "\nThe POST F1 prompt is currently undefined."},
    {"ZTSBKT=00000000000000fd", "SHOW F1", "\nThe POST F1 prompt is currently enabled."},
    {"ZTSBKT=00000000000000fe", "SHOW F1", "\nThe POST F1 prompt is currently disabled."},
    {"ZTSBKT=00000000000000ff", "SHOW F1", "\nThe POST F1 prompt is currently delayed."},
    {"ZTHCON=02; ZTHBAUD=0c", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to COM2/115200."},
    {"ZTHCON=04; ZTHBAUD=0a", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to COM3/19200."},
    {"ZTHCON=05; ZTHBAUD=0b", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to COM4/57600."},
    {"ZTHCON=06; ZTHBAUD=0d", "SHOW SERIAL BIOS", "\nThe BIOS serial port is currently set to VSP/UNKNOWN."},
    {"ZTSBKT=0000fcff", "SHOW SERIAL EMBEDDED",
     "\nEmbedded serial port A: COM4.\nEmbedded serial port B: disabled."},
    {"ZTSBKT=0000f8fa", "SHOW SERIAL EMBEDDED",
     "\nEmbedded serial port A: in an UNKNOWN state.\nEmbedded serial port B: COM2."},
    {"ZTSBKT=00000000000000000000ff", "SHOW SERIAL VIRTUAL", "\nVirtual serial port is currently disabled."},
    {"ZTSBKT=00000000000000000000fb", "SHOW SERIAL VIRTUAL", "\nVirtual serial port is currently COM3."},
    {"ZTHNIC=0001020304", "SHOW NIC", "\nNIC boot status (4 Embedded NICs):\nNIC1: PXE disabled"
                                      "\nNIC2: PXE enabled\nNIC3: iSCSI enabled\nNIC4: Unknown setting"},
    {"ZTHIPL=00; ZTTBT1=01", "SHOW BOOT", "\nFirst boot device is: CD-ROM." ONCE "Floppy."},
    {"ZTHIPL=01; ZTTBT1=02", "SHOW BOOT", "\nFirst boot device is: Floppy." ONCE "CDROM."},
    {"ZTHIPL=02; ZTTBT1=03", "SHOW BOOT", "\nFirst boot device is: HDD." ONCE "HDD."},
    {"ZTHIPL=03; ZTTBT1=30", "SHOW BOOT", "\nFirst boot device is: PXE." ONCE "KONF."},
    {"ZTHIPL=04; ZTTBT1=40", "SHOW BOOT", "\nFirst boot device is: UNKNOWN." ONCE "PXE."},
    {"ZTHIPL=00; ZTTBT1=31", "SHOW BOOT", "\nFirst boot device is: CD-ROM." ONCE "Not set.", "Corvex TR500 K2"},
    {"ZTHIPL=03; ZTTBT1=00", "SHOW BOOT", "\nFirst boot device is: USBKEY." ONCE "Not set.", "Corvex TR500 K2"},
    {"ZTHIPL=04", "SHOW BOOT", "\nFirst boot device is: PXE." ONCE "Not set.", "Corvex TR500 K2"},
    {"ZTHIPL=05", "SHOW BOOT", "\nFirst boot device is: UNKNOWN." ONCE "Not set.", "Corvex TR500 K2"},
    {"ZTHNIPL=04; ZTHIPL=04030200", "SHOW IPL", ORDER "\n#0\tUNKNOWN\n#1\tPXE\n#2\tHDD\n#3\tCD-ROM"},
    {"ZTHNIPL=05; ZTHIPL=0403", "SHOW IPL", ORDER "\n#0\tPXE\n#1\tUSBKEY\n#2\tCDROM\n#3\tCDROM\n#4\tCDROM"},
    // a list of one device, which only that device's code finds
    {"ZTHNIPL=01; ZTHIPL=00", "SET BOOT FIRST CDROM", FIRST "CDROM."},
    {"ZTHIPL=01", "SET BOOT FIRST floppy", FIRST "FLOPPY."},
    {"ZTHIPL=00", "SET BOOT FIRST CDROM", FIRST "CDROM.", "Corvex TR500 K2"},
    {"ZTHIPL=01", "SET BOOT FIRST FLOPPY", FIRST "FLOPPY.", "Corvex TR500 K2"},
    {"ZTHIPL=02", "SET BOOT FIRST HDD", FIRST "HDD.", "Corvex TR500 K2"},
    {"ZTHIPL=03", "SET BOOT FIRST USBKEY", FIRST "USBKEY.", "Corvex TR500 K2"},
    {"ZTHIPL=04", "SET BOOT FIRST PXE", FIRST "PXE.", "Corvex TR500 K2"},
};
// clang-format on

TEST(RomValues, EachHasItsText) {
    RomShell shell;
    got_kelm = 1;
    embedded_nics_installed = 4;
    for (const Shown& row : kShown) {
        std::strcpy(system_name, row.model);
        SetFacts(shell.machine, row.facts);
        EXPECT_EQ(shell.Run(row.command), row.output) << row.facts;
        EXPECT_EQ(shell.status, 0) << row.facts;
    }
}

// SET SERIAL EMBEDDED in every situation, against its rules. Ports: 0 is A, 1 is B.

// The interrupt lines of the COM numbers; COM4 shares COM1's on port A and COM2's on port B.
int PortByte(int port, int com) {
    const int lines[] = {0, 4, 3, 5, port == 0 ? 4 : 3};
    return com == 0 ? 7 : lines[com] << 4 | com;
}

// Where a port goes that has to make room: 1 and 2 change places, 4 moves down, and from 3 port A goes home
// to 1 and port B to 2.
int NextNumber(int port, int com) {
    return com == 3 ? port + 1 : com == 4 ? 3 : 3 - com;
}

const char* Refusal(bool tr500k2, int port, int com) {
    if (tr500k2) {
        return com == 4 ? "\nERROR: The Corvex TR500K2 only supports COM1, COM2, COM3 or DISABLED." : nullptr;
    }
    if (com != 2 - port) return nullptr;
    return port == 0 ? "\nERROR: Port A may only be set to COM1, COM3, COM4 or DISABLED."
                     : "\nERROR: Port B may only be set to COM2, COM3, COM4 or DISABLED.";
}

// What the command prints of an accepted choice; does to the record what it does.
std::string Set(std::string& record, int port, int com, const std::string& word) {
    std::string text;
    char& other = record[port == 0 ? 3 : 2];
    record[port == 0 ? 2 : 3] = static_cast<char>(PortByte(port, com));
    if (com != 0 && (other & 7) == com) {
        const int next = NextNumber(1 - port, com);
        other = static_cast<char>((other & 8) | PortByte(1 - port, next));
        text += std::string("\nNote: Port ") + "BA"[port] + " was already set to " + word +
                ". It has now been assigned COM" + std::to_string(next) + ".\n";
    }
    if (com != 0 && (record[10] & 7) == com) {
        record[10] = static_cast<char>(record[10] | 7);
        text += std::string(com == 1 ? "\nNOTE" : "\nNote") + ": The Virtual" TAKEN;
        text.replace(text.find('%'), 1, word);
    }
    return text + "\nSuccessfully set Embedded serial port " + "AB"[port] + " to " + word + ".";
}

TEST(RomSerial, EmbeddedInEverySituation) {
    RomShell shell;
    std::mt19937 random(20060314);
    for (int situation = 0; situation < 2 * 2 * 5 * 8 * 8; ++situation) {
        const bool tr500k2 = situation % 2 != 0;
        const int port = situation / 2 % 2, com = situation / 4 % 5;
        std::strcpy(system_name, tr500k2 ? "Corvex TR500 K2" : "Corvex TR500 K21");
        std::string before(13, '\0');
        for (char& byte : before) byte = static_cast<char>(random());
        char& other = before[port == 0 ? 3 : 2];
        other = static_cast<char>((other & ~7) | situation / 20 % 8);
        before[10] = static_cast<char>((before[10] & ~7) | situation / 160);
        shell.machine.Variable("ZTSBKT", before);

        const std::string word = com == 0 ? "DISABLED" : "COM" + std::to_string(com);
        const std::string line = std::string("SET SERIAL EMBEDDED PORT") + "AB"[port] + " " + word;
        const char* refusal = Refusal(tr500k2, port, com);
        std::string after = before;
        const std::string text = refusal != nullptr ? refusal : Set(after, port, com, word);
        ASSERT_EQ(shell.Run(line), text) << system_name << ", " << Hexadecimal(before);
        ASSERT_EQ(Hexadecimal(shell.machine.Read("crom/ZTSBKT")), Hexadecimal(after))
            << line << ", " << Hexadecimal(before);
    }
}

}  // namespace
