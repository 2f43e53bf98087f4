// What the bits of a variable come to.
#include <gtest/gtest.h>

#include <cstring>

#include "cli/command/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "tests/misc-commands/rom_shell.h"
#include "tests/support/stored.h"

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
    {"ZTHIPL=00; ZTTBT1=31", "SHOW BOOT", "\nFirst boot device is: CDROM." ONCE "Not set.", "Corvex TR500 K2"},
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

// Each embedded port set to each choice, on either kind of server, while nobody, the other embedded port or
// the virtual one has that number: embedded_ports.txt holds the variable, the output and the variable
// afterwards.
TEST(RomSerial, AnEmbeddedPortTakesItsNumberFromTheOthers) {
    constexpr size_t kNobody = 0, kPortA = 2, kPortB = 3, kVirtual = 10;  // bytes of the variable
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
            for (const size_t holder : {kNobody, kPortB, kVirtual}) {
                set(std::string("SET SERIAL EMBEDDED PORTA ") + choice, holder, number);
            }
            for (const size_t holder : {kNobody, kPortA, kVirtual}) {
                set(std::string("SET SERIAL EMBEDDED PORTB ") + choice, holder, number);
            }
        }
    }
    ExpectStored("misc-commands/embedded_ports.txt", listing);
}

}  // namespace
