// Tests of all commands for ROM settings. The golden files contain the settings of each model, the value of
// each variable after each modifying command, and the output for unusual settings, arguments and faults.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "cli/misc-commands/asset_name.h"
#include "mkmachine/models.h"
#include "tests/misc-commands/rom_shell.h"
#include "tests/support/expected_run.h"
#include "tests/support/golden.h"

namespace {

constexpr char kShows[] =
    "SHOW ASR; SHOW ASSET; SHOW BOOT; SHOW EAAS; SHOW F1; SHOW HT; SHOW IPL; SHOW NAME; SHOW NIC; SHOW WOL; "
    "SHOW VERSIONS; SHOW SERIAL BIOS; SHOW SERIAL EMBEDDED; SHOW SERIAL VIRTUAL";

// Runs each command of a list, as Items() splits it. Returns the status of each, its output with '~' for each
// NUL, and its requests.
std::string Runs(TestMachine& machine, const char* commands) {
    std::string listing;
    for (const std::string& command : Items(commands)) {
        machine.StartTrace();
        const RunResult run = machine.Script(command);
        listing += command + " -> " + std::to_string(run.status) + run.output + run.errors;
        listing += Requests(machine.TakeTrace()) + "\n";
    }
    std::replace(listing.begin(), listing.end(), '\0', '~');
    return listing;
}

TEST(RomListings, ShowTheSettingsOfEachModel) {
    std::string listing;
    for (const Model& model : Models()) {
        TestMachine machine(model.name);
        listing += "---- " + std::string(model.name) + "\n" + Runs(machine, kShows);
    }
    ExpectGolden("misc-commands/settings_shown.txt", listing);
}

// The modifying commands and their arguments, except those of the embedded serial ports (serial_test.cpp).
struct Changes {
    const char* command;
    const char* values;  // a list of arguments, for Items()
};
constexpr Changes kChanges[] = {
    {"SET", "NAME web7; ASSET \"Rack 4\""},
    {"SET ASR", "\" +5\"; 10MIN; 15; 20; 30"},
    {"SET BOOT ONCE", "FLOPPY; CDROM; HDD; KONF; PXE"},
    {"SET BOOT FIRST", "FLOPPY; CDROM; HDD; USBKEY; PXE"},
    {"SET F1", "ENABLED; DISABLED; DELAYED"},
    {"SET SERIAL BIOS", "COM1 9600; COM2 19200; COM1 57600; COM2 115200; DISABLED; DISABLED 9600"},
    {"SET SERIAL VIRTUAL", "COM1; COM2; DISABLED"},
    {"ENABLE", "EAAS; HT; WOL"},
    {"DISABLE", "EAAS; HT; WOL"},
    {"ENABLE PXE", "NIC1; NIC2; NIC3; NIC4; NIC5"},
    {"DISABLE PXE", "NIC1; NIC2; NIC3; NIC4; NIC5"},
    {"ENABLE ISCSI", "NIC1; NIC2; NIC3; NIC4; NIC5"},
    {"DISABLE ISCSI", "NIC1; NIC2; NIC3; NIC4; NIC5"},
};

// The values of the variables before each command. In the first run all bits are 0, the boot order contains a
// USB key, the NICs have their new variable, and the commands are in lower case. In the second run all bits
// are 1, the boot order has no USB key, and the NICs have only their legacy variable.
#define ZEROS "0000000000000000000000000000"
#define ONES "ffffffffffffffffffffffffffff"
struct Before {
    const char* model;
    const char* facts;
};
constexpr Before kBefore[] = {
    {"tr500k2",
     "ZTHCPR=" ZEROS "; ZTSCAT=00; ZTHCSM=" ZEROS "; ZTHLS1=00; ZTTBT1=0000; ZTHNIPL=05; "
     "ZTHIPL=0004030102050607; ZTHNIC=0102010200000102000000; ZTSBKT=" ZEROS "; ZTHCON=0000; ZTHBAUD=0000"},
    {"tr300", "ZTHCPR=" ONES "; ZTSCAT=ff; ZTHCSM=" ONES "; ZTHLS1=ff; ZTTBT1=ffff; ZTHNIPL=04; "
              "ZTHIPL=03020100ffffffff; ZTHMAC=" NIC NIC NIC NIC NIC "; -ZTHNIC; ZTHPXE=ff; ZTSBKT=" ONES
              "; ZTHCON=ffff; ZTHBAUD=ffff"},
};

// Runs a command that changes settings. Returns its output, its requests and the new value of every variable
// that it wrote; returns "" if the command fails.
std::string Outcome(TestMachine& machine, const std::string& command) {
    machine.StartTrace();
    const RunResult run = machine.Script(command);
    if (run.status != 0) return "";

    const std::string requests = Requests(machine.TakeTrace());
    std::string outcome = command + run.output + run.errors + requests + "\n";
    for (const std::string& request : Items(requests)) {
        if (request.rfind("write ", 0) != 0) continue;
        const std::string name = request.substr(6, request.find(' ', 6) - 6);
        outcome += name + " " + Hexadecimal(machine.Read("crom/" + name)) + "\n";
    }
    return outcome;
}

TEST(RomListings, ChangeTheSettings) {
    std::string listing;
    for (const Before& before : kBefore) {
        TestMachine machine(before.model);
        AddPicl(machine, Kelm::Present);
        listing += "---- " + std::string(before.model) + " with " + before.facts + "\n";
        for (const Changes& changes : kChanges) {
            for (const std::string& value : Items(changes.values)) {
                SetFacts(machine, before.facts);
                std::string command = std::string(changes.command) + " " + value;
                if (&before == kBefore)
                    std::transform(command.begin(), command.end(), command.begin(), tolower);
                listing += Outcome(machine, command);
            }
        }
    }
    ExpectGolden("misc-commands/settings_changed.txt", listing);
}

struct Case {
    const char* model;
    const char* catches;   // the bug that would change the output
    const char* facts;     // changes of the machine, for SetFacts()
    const char* commands;  // a list of commands, for Items()
};
#define NICS5 "ZTHMAC=" NIC NIC NIC NIC NIC
// clang-format off
constexpr Case kCases[] = {
    // cases: the boot order and the one-time boot device
    {kOrdinary, "a device that only the other command knows, or in lower case, is accepted", "", "SET BOOT ONCE USBKEY; SET BOOT FIRST KONF; SET BOOT FIRST \"hdd\""},
    {kOrdinary, "USBKEY is accepted on a server without it", "", "SET BOOT FIRST USBKEY"},
    {kOrdinary, "the status of a failed write is 1", "ZTHNIPL=02; ZTHIPL=0001; !crom write ZTHIPL 1", "SET BOOT FIRST FLOPPY"},
    {kOrdinary, "an entry after those of the installed devices is used", "ZTHNIPL=03; ZTHIPL=0001020304050607", "set boot first pxe"},
    {kOrdinary, "an empty list is searched, or is a failure of SHOW IPL", "ZTHNIPL=00", "SHOW IPL; SET BOOT FIRST USBKEY"},
    {kOrdinary, "more or fewer than eight entries are used, or only four names, or the last of equal entries", "ZTHNIPL=ff; ZTHIPL=0001000004050102",
     "SET BOOT FIRST PXE; SHOW IPL; SET BOOT FIRST HDD; SET BOOT FIRST FLOPPY"},
    {kOrdinary, "a device has the name of another one, or the flags are read", "ZTHIPL=00; ZTTBT1=01ff", "SHOW BOOT"},
    {kOrdinary, "a device has the name of another one", "ZTHIPL=01; ZTTBT1=03", "SHOW BOOT"},
    {kOrdinary, "a device has the name of another one", "ZTHIPL=03; ZTTBT1=30", "SHOW BOOT"},
    {kOrdinary, "a code without a device has a name", "ZTHIPL=04; ZTTBT1=31", "SHOW BOOT"},
    {kOrdinary, "the names are those of a boot order with a USB key", "ZTHNIPL=04; ZTHIPL=04030200", "SHOW IPL"},
    {kOrdinary, "the names are those of a boot order without a USB key", "ZTHNIPL=05; ZTHIPL=0403", "SHOW IPL"},
    {kFull, "the names are those of the other servers", "ZTHIPL=00; ZTTBT1=00", "SHOW BOOT"},
    {kFull, "the names are those of the other servers", "ZTHNIPL=02; ZTHIPL=0304", "SHOW BOOT; SHOW IPL"},
    {kFull, "the names are those of the other servers", "ZTHIPL=04", "SHOW BOOT"},
    {kFull, "only some bits of a code are compared, or it is signed", "ZTHIPL=81; ZTTBT1=82", "SHOW BOOT"},
    // cases: the NICs
    {kOrdinary, "PXE remains enabled on two NICs, or an unknown setting is changed", "ZTHMAC=" NIC NIC NIC NIC "; ZTHNIC=01000103667788", "ENABLE PXE NIC2"},
    {kOrdinary, "iSCSI, or PXE of a NIC that doesn't exist, is disabled", "ZTHMAC=" NIC NIC "; ZTHNIC=020001", "ENABLE PXE NIC2; ENABLE PXE NIC2; DISABLE PXE NIC1"},
    {kOrdinary, "DISABLE clears all flags, or ENABLE prints more than the lowest one", NICS5 "; -ZTHNIC; ZTHPXE=1e", "DISABLE PXE NIC3; ENABLE PXE NIC5"},
    {kOrdinary, "a note for a higher flag, although the lowest is that of the NIC", NICS5 "; -ZTHNIC; ZTHPXE=12", "ENABLE PXE NIC2"},
    {kOrdinary, "a failed write of the legacy variable, or the flag of a NIC that doesn't exist, is ignored", "-ZTHNIC; ZTHPXE=10; !crom write ZTHPXE 1", "enable pxe nic1; DISABLE PXE NIC2"},
    {kOrdinary, "a variable that can't be read is written", "-ZTHNIC; -ZTHPXE", "ENABLE PXE NIC1; DISABLE PXE NIC1; ENABLE ISCSI NIC6"},
    {kOrdinary, "the checks are made in another order", "ZTHMAC=00",
     "ENABLE PXE NIC6; DISABLE PXE NIC0; ENABLE ISCSI NIC12; DISABLE ISCSI \"nic1\"; ENABLE PXE NIC1; DISABLE ISCSI NIC1"},
    {kOrdinary, "a NIC after the last one is accepted", "ZTHMAC=" NIC NIC, "DISABLE PXE NIC3; ENABLE ISCSI NIC3"},
    {kOrdinary, "NICs are used although their number is unknown", "-ZTHMAC; ZTHNIC=01", "DISABLE PXE NIC1; SHOW NIC"},
    {kOrdinary, "an unknown setting has a name", NICS5 "; ZTHNIC=0001020381", "SHOW NIC"},
    // cases: the serial ports
    {kOrdinary, "an invalid port or baud rate is accepted", "", "SET SERIAL BIOS COM3 9600; SET SERIAL BIOS VSP 9600; SET SERIAL BIOS COM2 96000; SET SERIAL BIOS COM1"},
    {kOrdinary, "the baud rate is not written if writing the port fails", "!crom write ZTHCON 1", "SET SERIAL BIOS COM1 9600; SET SERIAL BIOS DISABLED 1"},
    {kFull, "both embedded ports are disabled, or other bits are changed", "ZTSBKT=0000a1c100000000000032aabb", "set serial virtual com1"},
    {kFull, "the interrupt line of port B is changed", "ZTSBKT=000041fa000000000000f8aabb", "SET SERIAL VIRTUAL COM2"},
    {kFull, "a number that only the embedded ports can have is accepted", "", "SET SERIAL VIRTUAL COM3"},
    {kOrdinary, "a port that doesn't exist is set or shown", "", "SET SERIAL VIRTUAL; SHOW SERIAL VIRTUAL 1"},
    {kOrdinary, "the notes are in another order, or the interrupt line is wrong", "ZTSBKT=0000530700000000000043aabb", "set serial embedded portb com3"},
    {kOrdinary, "the virtual port is disabled if the moved port gets its number", "ZTSBKT=0000530700000000000041aabb", "SET SERIAL EMBEDDED PORTB COM3"},
    {kOrdinary, "an invalid number is accepted", "", "set serial embedded porta com5"},
    {kOrdinary, "a port or rate has the name of another one, or a second byte is read", "ZTHCON=02ff; ZTHBAUD=0cff", "SHOW SERIAL BIOS"},
    {kOrdinary, "a port or rate has the name of another one", "ZTHCON=04; ZTHBAUD=0a", "SHOW SERIAL BIOS"},
    {kOrdinary, "a port or rate has the name of another one", "ZTHCON=05; ZTHBAUD=0b", "SHOW SERIAL BIOS"},
    {kOrdinary, "a port or rate has the name of another one", "ZTHCON=06; ZTHBAUD=0d", "SHOW SERIAL BIOS"},
    {kOrdinary, "a code without a port has a name", "ZTHCON=03; ZTHBAUD=01", "SHOW SERIAL BIOS"},
    {kOrdinary, "a code without a port has a name", "ZTHCON=82; ZTHBAUD=01", "SHOW SERIAL BIOS"},
    {kFull, "bits next to the number are read", "ZTSBKT=0000fcff000000000000ff", "SHOW SERIAL EMBEDDED; SHOW SERIAL VIRTUAL"},
    {kFull, "bits next to the number are read", "ZTSBKT=0000f8fa000000000000fb", "SHOW SERIAL EMBEDDED; SHOW SERIAL VIRTUAL"},
    {kFull, "an undefined number has a name", "ZTSBKT=0000f5fe000000000000fd", "SHOW SERIAL EMBEDDED; SHOW SERIAL VIRTUAL"},
    {kFull, "an undefined number has a name", "ZTSBKT=00000000000000000000f8", "SHOW SERIAL VIRTUAL"},
    {kFull, "an undefined number has a name", "ZTSBKT=00000000000000000000fe", "SHOW SERIAL VIRTUAL"},
    // cases: the recovery timer, the server's name, the switches and the versions
    {kOrdinary, "the state is shown as the minutes", "ZTHCPR=0203140405060708", "ENABLE ASR; SHOW ASR; DISABLE ASR; SHOW ASR"},
    {kOrdinary, "an invalid number is accepted, or one that wraps to a valid one", "", "SET ASR 25; SET ASR 261; SET ASR TEN; SET ASR 4294967301; SET ASR -4294967291"},
    {kOrdinary, "a half has one character too many or too few, or no NULs, or an empty text is rejected", "",
     "SET NAME abcdefghijklmnOPQRSTUVWXYZ12; SHOW NAME; SET NAME abcdefghijklmnOPQRSTUVWXYZ123; SET NAME \"My Server\"; SET NAME \"\"; SET ASSET \"\""},
    {kOrdinary, "an empty first half is shown", "ZTHLS1=00410000000000000000000000000042", "SHOW NAME"},
    {kOrdinary, "no message for a failed write, or a wrong status", "!crom write ZTSBKT 1; !crom write ZTHLS1 1", "SET NAME web7; ENABLE WOL; DISABLE WOL"},
    {kOrdinary, "the case of a quoted word is ignored, or a state that only SHOW F1 knows is accepted", "", "SET F1 \"delayed\"; SET F1 UNDEFINED"},
    {kOrdinary, "a neighbouring bit is read", "ZTHCSM=fe", "SHOW EAAS"},
    {kOrdinary, "a neighbouring bit is read", "ZTHCSM=07", "SHOW EAAS"},
    {kOrdinary, "a neighbouring bit is read, or an undefined setting is shown as enabled", "ZTSBKT=000000000000fcfc", "SHOW WOL; SHOW F1"},
    {kOrdinary, "an undefined setting is shown as enabled", "ZTSBKT=000000000000ff", "SHOW WOL"},
    {kOrdinary, "a component has the version of another one, or a signed one",
     "ZTHUV=808182838485868788898a8b8c8d8e8f909192939495969798999a9b9c9d9e9fa0a1a2a3a4a5a6a7a8ff", "SHOW VERSIONS IN FULL"},
    {kOrdinary, "a component without a version is left out, or the last byte isn't read", "ZTHUV=" ZEROS ZEROS "0000000000000000000000000001", "SHOW VERSIONS"},
};
// clang-format on

// settings_cases.txt contains the results of each case. Each case has a new machine.
TEST(RomListings, OfUnusualSettingsArgumentsAndFaults) {
    std::string listing;
    for (const Case& c : kCases) {
        TestMachine machine(c.model);
        SetFacts(machine, c.facts);
        listing += "---- " + std::string(c.catches) + ": " + c.model + " with " + c.facts + "\n";
        listing += Runs(machine, c.commands);
    }
    ExpectGolden("misc-commands/settings_cases.txt", listing);
}

TEST(RomListings, TruncateTheAssetText) {
    RomShell shell;
    InputLineType line{};
    line.NumWords = 3;
    std::string longer(300, 'A');
    line.Words[2] = longer.data();
    EXPECT_EQ(do_set_asset(&line), 0);
    EXPECT_EQ(shell.Run("SHOW ASSET IN FULL"), "\nAsset: '" + longer.substr(0, 255) + "'");
}

}  // namespace
