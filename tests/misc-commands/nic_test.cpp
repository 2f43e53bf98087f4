// Tests of the commands for the boot settings of embedded NICs.
#include <gtest/gtest.h>

#include "cli/command/state.h"
#include "tests/misc-commands/rom_shell.h"

namespace {

#define PXE_ON(nic) "\nSuccessfully enabled " nic " PXE support."
#define PXE_OFF(nic) "\nSuccessfully disabled " nic " PXE support."
#define MOVED(nic) "\nPXE boot was already enabled for " nic ". It has now been disabled."
#define NO_WORD(what, first) "\nERROR: Failed to " what ". Please specify either " first ", NIC2...NIC5"
#define ONLY_TWO "\nERROR: This sytem only has 2 embedded NICs."
#define NO_NICS "\nERROR: brantcli didn't detect any embedded NICs."
#define NO_NICS_SHOWN "\nbrantcli didn't detect any embedded NICs."
#define UNKNOWN \
    "\nFailed to read embedded NIC status.\nThis system may not have any embedded NICs installed.\n\n"

// clang-format off
const std::vector<RomRow> kRows = {
    {kOrdinary, "PXE remains enabled on two NICs", "ZTHMAC=" NIC NIC NIC "; ZTHNIC=01000155667788",
     {{"ENABLE PXE NIC2", MOVED("NIC1") MOVED("NIC3") PXE_ON("NIC2"), "read ZTHNIC 100; write ZTHNIC 3 000100"}}},
    {kOrdinary, "iSCSI, or PXE of a NIC that doesn't exist, is disabled", "ZTHMAC=" NIC NIC "; ZTHNIC=020001",
     {{"ENABLE PXE NIC2", PXE_ON("NIC2"), "read ZTHNIC 100; write ZTHNIC 2 0201"},
      {"ENABLE PXE NIC2", PXE_ON("NIC2"), "read ZTHNIC 100; write ZTHNIC 2 0201"},
      {"DISABLE PXE NIC1", PXE_OFF("NIC1"), "read ZTHNIC 2; write ZTHNIC 2 0001"}}},
    {kOrdinary, "DISABLE clears all flags, or ENABLE prints more than the lowest one",
     "ZTHMAC=" NIC NIC NIC NIC NIC "; -ZTHNIC; ZTHPXE=1e",
     {{"DISABLE PXE NIC3", PXE_OFF("NIC3"), "read ZTHNIC 5 -> 1; read ZTHPXE 10; write ZTHPXE 1 1a"},
      {"ENABLE PXE NIC5", MOVED("NIC2") PXE_ON("NIC5"), "read ZTHNIC 100 -> 1; read ZTHPXE 10; write ZTHPXE 1 10"}}},
    {kOrdinary, "a note for a higher flag, although the lowest is that of the NIC", "ZTHMAC=" NIC NIC NIC NIC NIC "; -ZTHNIC; ZTHPXE=12",
     {{"ENABLE PXE NIC2", PXE_ON("NIC2"), "read ZTHNIC 100 -> 1; read ZTHPXE 10; write ZTHPXE 1 02"}}},
    {kOrdinary, "a failed write of the legacy variable is ignored", "-ZTHNIC; ZTHPXE=00; !crom write ZTHPXE 1",
     {Fails("ENABLE PXE NIC1", "\nERROR: Failed to enable NIC1 PXE support.",
            "read ZTHNIC 100 -> 1; read ZTHPXE 10; write ZTHPXE 1 01 -> 1"),
      Fails("DISABLE PXE NIC2", "\nERROR: Failed to disable NIC2 PXE support.",
            "read ZTHNIC 2 -> 1; read ZTHPXE 10; write ZTHPXE 1 00 -> 1")}},
    {kOrdinary, "a variable that can't be read is written", "-ZTHNIC; -ZTHPXE",
     {Fails("ENABLE PXE NIC1", "\nERROR: Failed to read PXE status.", "read ZTHNIC 100 -> 1; read ZTHPXE 10 -> 1"),
      Fails("DISABLE PXE NIC1", "\nERROR: Failed to read PXE status.", "read ZTHNIC 2 -> 1; read ZTHPXE 10 -> 1"),
      Fails("ENABLE ISCSI NIC6", "\nERROR: Failed to read NIC status.", "read ZTHNIC 10 -> 1")}},
    {kOrdinary, "the checks are made in another order", "ZTHMAC=00",
     {Fails("ENABLE PXE NIC6", NO_WORD("enable PXE", "NIC1")),
      Fails("DISABLE PXE NIC0", NO_WORD("disable PXE", "NIC")),
      Fails("ENABLE ISCSI NIC12", NO_WORD("enable iSCSI", "NIC1"), "read ZTHNIC 10"),
      Fails("DISABLE ISCSI \"nic1\"", NO_WORD("disable iSCSI", "NIC"), "read ZTHNIC 10"),
      Fails("ENABLE PXE NIC1", NO_NICS),
      Fails("DISABLE ISCSI NIC1", NO_NICS, "read ZTHNIC 10")}},
    {kOrdinary, "a NIC after the last one is accepted", "ZTHMAC=" NIC NIC,
     {Fails("DISABLE PXE NIC3", ONLY_TWO), Fails("ENABLE ISCSI NIC3", ONLY_TWO, "read ZTHNIC 10")}},
    {kOrdinary, "NICs are used although their number is unknown", "-ZTHMAC; ZTHNIC=01",
     {Fails("DISABLE PXE NIC1", UNKNOWN NO_NICS),
      {"SHOW NIC", UNKNOWN "\nNIC boot status (UNKNOWN number of Embedded NICs):" NO_NICS_SHOWN, "read ZTHNIC 10"}}},
};
// clang-format on

TEST(Nics, AreSetOneByOne) {
    ExpectRows(kRows);
}

TEST(Nics, ShowNamesOfTheirSettings) {
    ExpectShown("", {{"ZTHNIC=0001020304", "SHOW NIC",
                      "\nNIC boot status (4 Embedded NICs):\nNIC1: PXE disabled\nNIC2: PXE enabled"
                      "\nNIC3: iSCSI enabled\nNIC4: Unknown setting"}});
}

TEST(Nics, CanBeMoreThanTheSettingsOrNone) {
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
