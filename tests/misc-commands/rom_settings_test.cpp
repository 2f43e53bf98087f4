// What each family's commands do when nothing fails, and what they refuse.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/command/state.h"
#include "cli/misc-commands/misc_commands.h"
#include "tests/misc-commands/rom_shell.h"
#include "tests/support/expected_run.h"

namespace {

struct RomCase {
    const char* model;
    const char* catches;   // the fault that the row is there for
    const char* facts;     // as SetFacts takes them
    const char* commands;  // the script: separated by ';'
    const char* output;    // without the line ends of dispatcher and program behind it; '~' is a zero byte
    int status;
    const char* requests;    // as Requests gives them
    const char* after = "";  // "NAME=bytes" for each variable that the row cares about
};

constexpr char kTr300[] = "tr300", kTr500k2[] = "tr500k2";
#define ASR_RANGE "\nERROR: Timeout must be 5, 10, 15, 20 or 30 minutes."
#define NAME_NOTE "\nNOTE: On some servers the name may be split in two depending on length"
#define NO_PXE "\nERROR: PXE boot is not supported on this server or it may have been disabled by KONF."
#define ORDER "\nIPL (Standard Boot Order)\n-------------------------"
#define NIC "0100000000000000"  // an address that makes a NIC present
#define MOVED(nic) "\nPXE boot was already enabled for NIC" nic ". It has now been disabled."
#define NO_WORD(what, first) "\nERROR: Failed to " what ". Please specify either " first ", NIC2...NIC5\n"
#define NO_NICS "\nERROR: brantcli didn't detect any embedded NICs."
#define NO_NICS_SHOWN "\nbrantcli didn't detect any embedded NICs."

#define TAKEN(port, com) " serial port" port " was already assigned " com ".\nIt has now been disabled.\n"

// clang-format off
constexpr RomCase kRows[] = {
    // the recovery timer
    {kTr300, "state and minutes mixed up", "ZTHCPR=0203140405060708", "ENABLE ASR;SHOW ASR;DISABLE ASR;SHOW ASR;DISABLE ASR",
     "\nSuccessfully enabled ASR timer.\n\nASR timeout is 20 minutes.\nASR is currently enabled.\n"
     "\nSuccessfully disabled ASR timer.\n\nASR timeout is 20 minutes.\nASR is currently disabled.\n"
     "\nSuccessfully disabled ASR timer.", 0, "casr 4; casr 6; read ZTHCPR 8; casr 3; casr 6; read ZTHCPR 8; casr 3",
     "ZTHCPR=0203140405060708"},
    {kTr300, "the other seven bytes lost, or a number left out", "ZTHCPR=0203140405060708",
     "SET ASR 10MIN;SET ASR 15;SET ASR 20;SET ASR 30", "\nSuccessfully set ASR timeout to 10 minutes.\n"
     "\nSuccessfully set ASR timeout to 15 minutes.\n\nSuccessfully set ASR timeout to 20 minutes.\n"
     "\nSuccessfully set ASR timeout to 30 minutes.", 0,
     "read ZTHCPR 8; write ZTHCPR 8 02030a0405060708; read ZTHCPR 8; write ZTHCPR 8 02030f0405060708; "
     "read ZTHCPR 8; write ZTHCPR 8 0203140405060708; read ZTHCPR 8; write ZTHCPR 8 02031e0405060708"},
    {kTr300, "a number that wraps to an allowed one", "", "SET ASR 12;SET ASR TEN;SET ASR 4294967301",
     ASR_RANGE "\n" ASR_RANGE "\n" ASR_RANGE, 1, ""},
    // name, automatic shutdown
    {kTr300, "a half one character too long or too short, or zeros left out", "",
     "SET NAME abcdefghijklmnOPQRSTUVWXYZ12;SHOW NAME;SET NAME abcdefghijklmnOPQRSTUVWXYZ123;"
     "SET NAME \"My Server\";SHOW NAME",
     NAME_NOTE "\nSuccessfully set new server name: abcdefghijklmnOPQRSTUVWXYZ12\n"
     "\nServer name is: abcdefghijklmn~OPQRSTUVWXYZ12~\n"
     "\nERROR: Max length of server name is 28 characters.\n" NAME_NOTE
     "\nSuccessfully set new server name: My Server\n\nServer name is: My Server~~~~~~~~~~~~~~~~~~~~~", 0,
     "write ZTHLS1 30 6162636465666768696a6b6c6d6e004f505152535455565758595a313200; read ZTHLS1 30; "
     "write ZTHLS1 30 4d7920536572766572000000000000000000000000000000000000000000; read ZTHLS1 30"},
    {kTr300, "a bit kept of a byte that is the command's, or a byte changed that isn't", "ZTHCSM=06112233445566",
     "DISABLE EAAS;SHOW EAAS;ENABLE EAAS;SHOW EAAS",
     "\nSuccessfully disabled EAAS.\n\nEAAS is currently disabled.\n\nSuccessfully enabled EAAS.\n"
     "\nEAAS is currently enabled.", 0, "read ZTHCSM 7; write ZTHCSM 7 00112233445566; read ZTHCSM 7; "
     "read ZTHCSM 7; write ZTHCSM 7 01112233445566; read ZTHCSM 7", "ZTHCSM=01112233445566"},
    // boot devices
    {kTr300, "a code of another row, or the old flags kept", "ZTTBT1=02ff", "set boot once floppy;"
     "SET BOOT ONCE CDROM;SET BOOT ONCE HDD;SET BOOT ONCE PXE;SET BOOT ONCE KONF",
     "\nSuccessfully set next boot to FLOPPY.\n\nSuccessfully set next boot to CDROM.\n"
     "\nSuccessfully set next boot to HDD.\n\nSuccessfully set next boot to PXE.\n"
     "\nSuccessfully set next boot to KONF.", 0, "write ZTTBT1 2 0100; write ZTTBT1 2 0200; "
     "write ZTTBT1 2 0300; write ZTTBT1 2 4000; write ZTTBT1 2 3000", "ZTTBT1=3000"},
    {kTr300, "a device of the other list let through", "", "SET BOOT ONCE USBKEY;SET BOOT FIRST KONF",
     "\nERROR: Invalid boot device entered.\n\nERROR: Invalid boot device entered.", 1, ""},
    {kTr300, "entries rotated instead of swapped", "ZTHNIPL=03; ZTHIPL=000302ffeeddccbb",
     "SET BOOT FIRST HDD;SET BOOT FIRST HDD;SHOW IPL",
     "\nSuccessfully set first boot device to HDD.\n\nSuccessfully set first boot device to HDD.\n"
     ORDER "\n#0\tHDD\n#1\tPXE\n#2\tCD-ROM", 0, "read ZTHNIPL 1; read ZTHIPL 8; "
     "write ZTHIPL 8 020300ffeeddccbb; read ZTHNIPL 1; read ZTHIPL 8; write ZTHIPL 8 020300ffeeddccbb; "
     "read ZTHNIPL 1; read ZTHIPL 8", "ZTHIPL=020300ffeeddccbb"},
    {kTr300, "an entry past the installed ones taken", "ZTHNIPL=03; ZTHIPL=0001020304050607",
     "SET BOOT FIRST PXE;SET BOOT FIRST USBKEY", NO_PXE "\n"
     "\nERROR: USB boot is not supported on this system by brantcli.", 1,
     "read ZTHNIPL 1; read ZTHIPL 8; read ZTHNIPL 1", "ZTHIPL=0001020304050607"},
    {kTr300, "an empty list searched", "ZTHNIPL=00", "SHOW IPL;SET BOOT FIRST USBKEY",
     "\nNo IPL devices installed.\nERROR: No bootable devices found.", 1,
     "read ZTHNIPL 1; read ZTHIPL 8; read ZTHNIPL 1"},
    {kTr300, "nine entries searched or shown, or four names only", "ZTHNIPL=ff; ZTHIPL=0001020004050102",
     "SET BOOT FIRST PXE;SHOW IPL", NO_PXE "\n" ORDER "\n#0\tCDROM\n#1\tFloppy\n#2\tHDD\n#3\tCDROM\n#4\tPXE"
     "\n#5\tUNKNOWN\n#6\tFloppy\n#7\tHDD", 0, "read ZTHNIPL 1; read ZTHIPL 8; read ZTHNIPL 1; read ZTHIPL 8"},
    {kTr500k2, "the names chosen by the number of devices alone", "ZTHNIPL=02; ZTHIPL=0304", "SHOW IPL",
     ORDER "\n#0\tUSBKEY\n#1\tPXE", 0, "read ZTHNIPL 1; read ZTHIPL 8"},
    // NICs
    {kTr300, "PXE left on two NICs", "ZTHMAC=" NIC NIC NIC "; ZTHNIC=01000155667788", "ENABLE PXE NIC2",
     MOVED("1") MOVED("3") "\nSuccessfully enabled NIC2 PXE support.", 0,
     "read ZTHNIC 100; write ZTHNIC 3 000100", "ZTHNIC=00010055667788"},
    {kTr300, "iSCSI or a NIC that isn't there taken for PXE", "ZTHMAC=" NIC NIC "; ZTHNIC=020001",
     "ENABLE PXE NIC2;ENABLE PXE NIC2;DISABLE PXE NIC1",
     "\nSuccessfully enabled NIC2 PXE support.\n\nSuccessfully enabled NIC2 PXE support.\n"
     "\nSuccessfully disabled NIC1 PXE support.", 0, "read ZTHNIC 100; write ZTHNIC 2 0201; "
     "read ZTHNIC 100; write ZTHNIC 2 0201; read ZTHNIC 2; write ZTHNIC 2 0001", "ZTHNIC=000101"},
    {kTr300, "the upper bits lost", "ZTHMAC=" NIC NIC "; -ZTHNIC; ZTHPXE=e1778899", "disable pxe nic1;enable pxe nic2",
     "\nSuccessfully disabled NIC1 PXE support.\n\nSuccessfully enabled NIC2 PXE support.", 0,
     "read ZTHNIC 2 -> 1; read ZTHPXE 10; write ZTHPXE 1 e0; "
     "read ZTHNIC 100 -> 1; read ZTHPXE 10; write ZTHPXE 1 e2", "ZTHPXE=e2778899"},
    {kTr300, "all disabled, or more told than the first, or the NIC's own", "ZTHMAC=" NIC NIC NIC NIC NIC
     "; -ZTHNIC; ZTHPXE=1e", "DISABLE PXE NIC3;ENABLE PXE NIC5;ENABLE PXE NIC5",
     "\nSuccessfully disabled NIC3 PXE support.\n" MOVED("2") "\nSuccessfully enabled NIC5 PXE support.\n"
     "\nSuccessfully enabled NIC5 PXE support.", 0, "read ZTHNIC 5 -> 1; read ZTHPXE 10; write ZTHPXE 1 1a; "
     "read ZTHNIC 100 -> 1; read ZTHPXE 10; write ZTHPXE 1 10; "
     "read ZTHNIC 100 -> 1; read ZTHPXE 10; write ZTHPXE 1 10"},
    {kTr300, "another NIC touched", "ZTHMAC=" NIC NIC NIC NIC NIC "; ZTHNIC=0102010299aabbccddeeff",
     "ENABLE ISCSI NIC5;DISABLE ISCSI NIC1", "\nSuccessfully enabled NIC5 iSCSI support.\n"
     "\nSuccessfully disabled NIC1 iSCSI support.", 0, "read ZTHNIC 10; write ZTHNIC 10 0102010202aabbccddee; "
     "read ZTHNIC 10; write ZTHNIC 10 0002010202aabbccddee", "ZTHNIC=0002010202aabbccddeeff"},
    {kTr300, "the checks in another order", "ZTHMAC=00", "ENABLE PXE NIC6;DISABLE PXE NIC0;ENABLE ISCSI NIC12;"
     "DISABLE ISCSI \"nic1\";ENABLE PXE NIC1;DISABLE ISCSI NIC1",
     NO_WORD("enable PXE", "NIC1") NO_WORD("disable PXE", "NIC") NO_WORD("enable iSCSI", "NIC1")
     NO_WORD("disable iSCSI", "NIC") NO_NICS "\n" NO_NICS, 1, "read ZTHNIC 10; read ZTHNIC 10; read ZTHNIC 10"},
    {kTr300, "a NIC past the last", "ZTHMAC=" NIC NIC, "DISABLE PXE NIC3;ENABLE ISCSI NIC3",
     "\nERROR: This sytem only has 2 embedded NICs.\n\nERROR: This sytem only has 2 embedded NICs.", 1,
     "read ZTHNIC 10"},
    {kTr300, "an unknown number of NICs taken for some", "-ZTHMAC; ZTHNIC=01", "DISABLE PXE NIC1;SHOW NIC",
     "\nFailed to read embedded NIC status.\nThis system may not have any embedded NICs installed.\n\n" NO_NICS
     "\n\nNIC boot status (UNKNOWN number of Embedded NICs):" NO_NICS_SHOWN, 0,
     "read ZTHNIC 10"},
    // the bits of the configuration, versions
    {kTr300, "a neighbour of the two bits or the last byte touched", "ZTSBKT=00112233445cfc778899aabbcc",
     "ENABLE WOL;SHOW WOL;DISABLE WOL", "\nSuccessfully enabled Wake-On-Lan support.\n"
     "\nWake-On-Lan is currently enabled.\n\nSuccessfully disabled Wake-On-Lan support.", 0,
     "read ZTSBKT 13; write ZTSBKT 12 00112233445cfd778899aabb; read ZTSBKT 13; read ZTSBKT 13; "
     "write ZTSBKT 12 00112233445cfe778899aabb", "ZTSBKT=00112233445cfe778899aabbcc"},
    {kTr300, "a code of another row", "ZTSBKT=00112233445566fd8899aabbcc", "set f1 delayed;set f1 disabled;set f1 enabled",
     "\nSuccessfully set the POST F1 prompt to DELAYED.\n\nSuccessfully set the POST F1 prompt to DISABLED.\n"
     "\nSuccessfully set the POST F1 prompt to ENABLED.", 0, "read ZTSBKT 13; write ZTSBKT 12 "
     "00112233445566ff8899aabb; read ZTSBKT 13; write ZTSBKT 12 00112233445566fe8899aabb; "
     "read ZTSBKT 13; write ZTSBKT 12 00112233445566fd8899aabb", "ZTSBKT=00112233445566fd8899aabbcc"},
    {kTr300, "a quoted word's letter case passed over", "", "SET F1 \"delayed\"", "\nERROR: Invalid argument(s)\n"
     "USAGE: SET F1 [ ENABLED | DELAYED | DISABLED ]: Sets the POST F1 prompt configuration.", 1, "read ZTSBKT 13"},
    {kTr300, "the bit upside down, or twelve bytes written", "ZTSBKT=00112233445566778899aabbcc",
     "DISABLE HT;SHOW HT;ENABLE HT;SHOW HT",
     "\nSuccessfully disabled processor hyper-threading.\n\nProcessor hyper-threading is currently disabled.\n"
     "\nSuccessfully enabled processor hyper-threading.\n\nProcessor hyper-threading is currently enabled.", 0,
     "read ZTSBKT 13; write ZTSBKT 13 00112233445566f78899aabbcc; read ZTSBKT 13; "
     "read ZTSBKT 13; write ZTSBKT 13 00112233445566778899aabbcc; read ZTSBKT 13"},
    {kTr300, "a component with another one's version",
     "ZTHUV=000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f20212223242526272829ff",
     "SHOW VERSIONS IN FULL", "\nVersion Information:"
     "\n    TZ: Baseline - 0.1.2\n        Current  - 3.4.5\n Vetro: Baseline - 6.7.8\n        Current  - 9.10.11"
     "\n FLASKO: Baseline - 12.13.14\n         Current  - 15.16.17"
     "\n Plex Warden: Baseline - 18.19.20\n              Current  - 21.22.23"
     "\n Sift Tool: Baseline - 24.25.26\n            Current  - 27.28.29\n Ext. Mod: Baseline - 30.31.32"
     "\n           Current  - 33.34.35\n KRL: Baseline - 36.37.38\n      Current  - 39.40.41", 0, "read ZTHUV 42"},
    // serial ports
    {kTr300, "a rate of another row", "", "SET SERIAL BIOS COM1 9600;SET SERIAL BIOS COM2 19200;"
     "SET SERIAL BIOS COM1 57600;SET SERIAL BIOS COM2 115200",
     "\nSuccessfully set BIOS serial port to COM1/9600.\n\nSuccessfully set BIOS serial port to COM2/19200.\n"
     "\nSuccessfully set BIOS serial port to COM1/57600.\n"
     "\nSuccessfully set BIOS serial port to COM2/115200.", 0, "write ZTHCON 1 01; write ZTHBAUD 1 01; "
     "write ZTHCON 1 02; write ZTHBAUD 1 02; write ZTHCON 1 01; write ZTHBAUD 1 03; "
     "write ZTHCON 1 02; write ZTHBAUD 1 04"},
    {kTr300, "a rate left behind, or written without being given", "ZTHCON=0177; ZTHBAUD=0477",
     "SET SERIAL BIOS DISABLED;SET SERIAL BIOS DISABLED NONSENSE;SHOW SERIAL BIOS",
     "\nSuccessfully set BIOS serial port to DISABLED.\n\nSuccessfully set BIOS serial port to DISABLED.\n"
     "\nThe BIOS serial port is currently disabled.", 1, "write ZTHCON 1 00; write ZTHCON 1 00; "
     "write ZTHBAUD 1 00; read ZTHBAUD 10; read ZTHCON 2", "ZTHCON=0077; ZTHBAUD=0077"},
    {kTr300, "a port or a rate that is none let through", "",
     "SET SERIAL BIOS COM3 9600;SET SERIAL BIOS COM2 2400;SET SERIAL BIOS COM1",
     "\nERROR: Invalid arguments. It must be either COM1, COM2 or DISABLED.\n"
     "\nERROR: Invalid baud rate. Baud rate must be either 9600, 19200, 57600 or 115200.\n"
     "\nERROR: You must specify the baud rate when assigning the port."
     "\nBaud rate must be either 9600, 19200, 57600 or 115200.", 1, ""},
    {kTr300, "the rate not written after the port's failed write", "!crom write ZTHCON 1", "SET SERIAL BIOS COM1 9600",
     "\nERROR: Failed to set BIOS serial port config.", 1, "write ZTHCON 1 01 -> 1; write ZTHBAUD 1 01"},
    {kTr500k2, "both embedded ports disabled", "ZTSBKT=0000a1c100000000000032aabb", "set serial virtual com1",
     "\nNOTE: The embedded" TAKEN(" A", "COM1") "\nSuccessfully set Virtual serial port config to COM1.", 0,
     "read ZTSBKT 13; write ZTSBKT 12 0000a7c100000000000041aa", "ZTSBKT=0000a7c100000000000041aabb"},
    {kTr500k2, "port B's interrupt line lost", "ZTSBKT=000041fa000000000000f8aabb", "SET SERIAL VIRTUAL COM2",
     "\nNOTE: The embedded" TAKEN(" B", "COM2") "\nSuccessfully set Virtual serial port config to COM2.", 0,
     "read ZTSBKT 13; write ZTSBKT 12 000041ff00000000000032aa"},
    {kTr500k2, "a disabled port taken from another", "ZTSBKT=00000707000000000000f8aabb", "SET SERIAL VIRTUAL DISABLED",
     "\nSuccessfully set Virtual serial port config to DISABLED.", 0,
     "read ZTSBKT 13; write ZTSBKT 12 0000070700000000000007aa"},
    {kTr500k2, "a word of the embedded ports, or an unknown state let through", "ZTSBKT=00",
     "SET SERIAL VIRTUAL COM3;SHOW SERIAL VIRTUAL",
     "\nERROR: Invalid argument. It must be either COM1, COM2 or DISABLED\n"
     "\nERROR: Kelm Virtual serial port is in an unknown state.\n"
     "You may have to upgrade the Kelm firmware to version 1.55 or later\n"
     "or use KONF to set its initial configuration..", 1, "read ZTSBKT 13; read ZTSBKT 13", "ZTSBKT=00"},
    {kTr300, "a port set or shown that isn't there", "", "SET SERIAL VIRTUAL;SHOW SERIAL VIRTUAL 1",
     "\nERROR: This command requres Kelm which is not present on this system.\n"
     "\nThis system does not have an Kelm which is required for the Virtual serial port.", 0, ""},
    {kTr300, "the lengths, or the order of the notes", "ZTSBKT=00005b0700000000000043aabb",
     "set serial embedded portb com3", "\nNote: Port A was already set to COM3. It has now been assigned COM1.\n"
     "\nNote: The Virtual" TAKEN("", "COM3") "\nSuccessfully set Embedded serial port B to COM3.", 0,
     "read ZTSBKT 13; write ZTSBKT 12 0000495300000000000047aa", "ZTSBKT=0000495300000000000047aabb"},
    {kTr300, "a word that is none let through", "", "SET SERIAL EMBEDDED PORTA COM5",
     "\nERROR: Invalid argument COM5. It must be either COM1, COM2, COM3, COM4 or DISABLED", 1,
     "read ZTSBKT 13"},
};
// clang-format on

TEST(RomSettings, ChangeWhatTheyAreToldAndNoMore) {
    for (const RomCase& row : kRows) {
        SCOPED_TRACE(std::string(row.model) + ": " + row.commands + ": " + row.catches);
        TestMachine machine(row.model);
        SetFacts(machine, row.facts);
        machine.StartTrace();

        RunResult result = machine.Script(row.commands);
        std::replace(result.output.begin(), result.output.end(), '\0', '~');
        EXPECT_EQ(result.output, std::string(row.output) + "\n\n");
        EXPECT_EQ(result.errors, "");
        EXPECT_EQ(result.status, row.status);
        EXPECT_EQ(Requests(machine.TakeTrace()), row.requests);
        for (const std::string& item : Items(row.after)) {
            const std::string name = item.substr(0, item.find('='));
            EXPECT_EQ(name + "=" + Hexadecimal(machine.Read("crom/" + name)), item);
        }
    }
}

TEST(RomSettings, AssetTextFillsAllOfItsBytes) {
    RomShell shell;
    InputLineType line{};
    line.NumWords = 3;
    std::string longer(300, 'A');
    line.Words[2] = longer.data();
    EXPECT_EQ(do_set_asset(&line), 0);
    EXPECT_EQ(shell.Run("SHOW ASSET IN FULL"), "\nAsset: '" + longer.substr(0, 255) + "'");
    EXPECT_EQ(shell.Run("SET ASSET \"Rack 4\""), "\nSuccessfully set Asset Text.");
    EXPECT_EQ(shell.machine.Read("crom/ZTSCAT"), "Rack 4" + std::string(249, '\0'));
    shell.Run("SET ASSET rack4");
    EXPECT_EQ(shell.Run("SHOW ASSET"), "\nAsset: 'RACK4'");
    EXPECT_EQ(shell.status, 0);
}

TEST(RomSettings, MoreNicsThanBytesAndOneAndNone) {
    RomShell shell;
    shell.machine.Variable("ZTHNIC", std::string(120, '\1'));
    embedded_nics_installed = 120;
    const std::string shown = shell.Run("SHOW NIC");
    EXPECT_EQ(shown.substr(0, 37), "\nNIC boot status (120 Embedded NICs):");
    EXPECT_EQ(shown.substr(shown.rfind('\n')), "\nNIC10: PXE enabled");
    shell.Run("ENABLE PXE NIC1");
    EXPECT_EQ(shell.machine.Read("crom/ZTHNIC"), '\1' + std::string(99, '\0') + std::string(20, '\1'));
    shell.Run("DISABLE PXE NIC1");
    EXPECT_EQ(shell.machine.Read("crom/ZTHNIC"), std::string(100, '\0') + std::string(20, '\1'));
    embedded_nics_installed = 1;
    shell.Run("ENABLE PXE NIC1");
    EXPECT_EQ(shell.Run("SHOW NIC"), "\nNIC boot status (1 Embedded NIC):\nNIC1: PXE enabled");
    embedded_nics_installed = 0;
    EXPECT_EQ(shell.Run("SHOW NIC"), "\nNIC boot status (0 Embedded NICs):" NO_NICS_SHOWN);
}

}  // namespace
