// Tests of all commands for ROM settings. The golden files contain the settings of each model, and the value
// of each variable after each command that modifies it.
#include <gtest/gtest.h>

#include <algorithm>

#include "mkmachine/models.h"
#include "tests/misc-commands/rom_shell.h"
#include "tests/support/expected_run.h"
#include "tests/support/golden.h"

namespace {

constexpr char kShows[] =
    "SHOW ASR; SHOW ASSET; SHOW BOOT; SHOW EAAS; SHOW F1; SHOW HT; SHOW IPL; SHOW NAME; SHOW NIC; SHOW WOL; "
    "SHOW VERSIONS; SHOW SERIAL BIOS; SHOW SERIAL EMBEDDED; SHOW SERIAL VIRTUAL";

// settings_shown.txt contains the status, the output and the requests of each command; '~' is a NUL.
TEST(RomListings, ShowTheSettingsOfEachModel) {
    std::string listing;
    for (const Model& model : Models()) {
        TestMachine machine(model.name);
        listing += "---- " + std::string(model.name) + "\n";
        for (const std::string& command : Items(kShows)) {
            machine.StartTrace();
            const RunResult run = machine.Script(command);
            listing += command + " -> " + std::to_string(run.status) + run.output + run.errors;
            listing += Requests(machine.TakeTrace()) + "\n";
        }
    }
    std::replace(listing.begin(), listing.end(), '\0', '~');
    ExpectGolden("misc-commands/settings_shown.txt", listing);
}

// The modifying commands and their arguments. serial_test.cpp has those of the embedded serial ports.
struct Changes {
    const char* command;
    const char* values;  // a list for Items()
};
constexpr Changes kChanges[] = {
    {"SET", "NAME web7; ASSET \"Rack 4\""},
    {"SET ASR", "5; 10MIN; 15; 20; 30"},
    {"SET BOOT ONCE", "FLOPPY; CDROM; HDD; KONF; PXE"},
    {"SET BOOT FIRST", "FLOPPY; CDROM; HDD; USBKEY; PXE"},
    {"SET F1", "ENABLED; DISABLED; DELAYED"},
    {"SET SERIAL BIOS", "COM1 9600; COM2 19200; COM1 57600; COM2 115200; DISABLED; DISABLED NONSENSE"},
    {"SET SERIAL VIRTUAL", "COM1; COM2; DISABLED"},
    {"ENABLE", "EAAS; HT; WOL"},
    {"DISABLE", "EAAS; HT; WOL"},
    {"ENABLE PXE", "NIC1; NIC2; NIC3; NIC4; NIC5"},
    {"DISABLE PXE", "NIC1; NIC2; NIC3; NIC4; NIC5"},
    {"ENABLE ISCSI", "NIC1; NIC2; NIC3; NIC4; NIC5"},
    {"DISABLE ISCSI", "NIC1; NIC2; NIC3; NIC4; NIC5"},
};

// The variables before each command: first all bits 0, a boot order with a USB key and the NICs' variable;
// then all bits 1, a boot order without it and the NICs' legacy variable.
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
                listing += Outcome(machine, std::string(changes.command) + " " + value);
            }
        }
    }
    ExpectGolden("misc-commands/settings_changed.txt", listing);
}

}  // namespace
