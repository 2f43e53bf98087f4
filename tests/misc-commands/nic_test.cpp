// Tests of the commands for the boot settings of embedded NICs.
#include <gtest/gtest.h>

#include "cli/command/state.h"
#include "tests/misc-commands/rom_shell.h"

namespace {

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
    EXPECT_EQ(shell.Run("SHOW NIC"),
              "\nNIC boot status (0 Embedded NICs):\nbrantcli didn't detect any embedded NICs.");
}

}  // namespace
