// Tests of the commands for the boot order and the one-time boot device.
#include <gtest/gtest.h>

#include "tests/misc-commands/rom_shell.h"

namespace {

#define NO_SUCH "\nERROR: Invalid boot device entered."
#define NO_PXE "\nERROR: PXE boot is not supported on this server or it may have been disabled by KONF."
#define NO_USB "\nERROR: USB boot is not supported on this system by brantcli."
#define FIRST "\nSuccessfully set first boot device to "
#define ORDER "\nIPL (Standard Boot Order)\n-------------------------"
#define ONCE "\nOne time boot device is: "

// clang-format off
const std::vector<RomRow> kRows = {
    {kOrdinary, "a device that only the other command knows is accepted", "",
     {Fails("SET BOOT ONCE USBKEY", NO_SUCH), Fails("SET BOOT FIRST KONF", NO_SUCH)}},
    {kOrdinary, "the status of a failed write is 1", "ZTHNIPL=02; ZTHIPL=0001; !crom write ZTHIPL 1",
     {{"SET BOOT FIRST FLOPPY", "\nERROR: Failed to set first boot.", "read ZTHNIPL 1; read ZTHIPL 8; write ZTHIPL 8 0100000000000000 -> 1"}}},
    {kOrdinary, "an entry after those of the installed devices is used", "ZTHNIPL=03; ZTHIPL=0001020304050607",
     {Fails("SET BOOT FIRST PXE", NO_PXE, "read ZTHNIPL 1; read ZTHIPL 8")}},
    {kOrdinary, "an empty list is searched, or is a failure of SHOW IPL", "ZTHNIPL=00",
     {{"SHOW IPL", "\nNo IPL devices installed.", "read ZTHNIPL 1; read ZTHIPL 8"},
      Fails("SET BOOT FIRST USBKEY", "ERROR: No bootable devices found.", "read ZTHNIPL 1")}},
    {kOrdinary, "more than eight entries are used, or only four names", "ZTHNIPL=ff; ZTHIPL=0001020004050102",
     {Fails("SET BOOT FIRST PXE", NO_PXE, "read ZTHNIPL 1; read ZTHIPL 8"),
      {"SHOW IPL", ORDER "\n#0\tCDROM\n#1\tFloppy\n#2\tHDD\n#3\tCDROM\n#4\tPXE\n#5\tUNKNOWN\n#6\tFloppy\n#7\tHDD",
       "read ZTHNIPL 1; read ZTHIPL 8"}}},
};

const std::vector<Shown> kShown = {
    {"ZTHIPL=00; ZTTBT1=01", "SHOW BOOT", "\nFirst boot device is: CD-ROM." ONCE "Floppy."},
    {"ZTHIPL=01; ZTTBT1=03", "SHOW BOOT", "\nFirst boot device is: Floppy." ONCE "HDD."},
    {"ZTHIPL=03; ZTTBT1=30", "SHOW BOOT", "\nFirst boot device is: PXE." ONCE "KONF."},
    {"ZTHIPL=04; ZTTBT1=31", "SHOW BOOT", "\nFirst boot device is: UNKNOWN." ONCE "Not set."},
    {"ZTHNIPL=04; ZTHIPL=04030200", "SHOW IPL", ORDER "\n#0\tUNKNOWN\n#1\tPXE\n#2\tHDD\n#3\tCD-ROM"},
    {"ZTHNIPL=05; ZTHIPL=0403", "SHOW IPL", ORDER "\n#0\tPXE\n#1\tUSBKEY\n#2\tCDROM\n#3\tCDROM\n#4\tCDROM"},
};
const std::vector<Shown> kShownOnTr500k2 = {
    {"ZTHIPL=00; ZTTBT1=00", "SHOW BOOT", "\nFirst boot device is: CDROM." ONCE "Not set."},
    {"ZTHIPL=03", "SHOW BOOT", "\nFirst boot device is: USBKEY." ONCE "Not set."},
    {"ZTHIPL=04", "SHOW BOOT", "\nFirst boot device is: PXE." ONCE "Not set."},
    {"ZTHIPL=05", "SHOW BOOT", "\nFirst boot device is: UNKNOWN." ONCE "Not set."},
    {"ZTHNIPL=02; ZTHIPL=0304", "SHOW IPL", ORDER "\n#0\tUSBKEY\n#1\tPXE"},
};
// clang-format on

TEST(Boot, SetsOnlyInstalledDevicesFirst) {
    ExpectRows(kRows);
    ExpectRows({{kOrdinary,
                 "USBKEY is accepted on a server without it",
                 "",
                 {Fails("SET BOOT FIRST USBKEY", NO_USB, "read ZTHNIPL 1")}}});
}

TEST(Boot, ShowsTheDeviceNamesOfTheServer) {
    ExpectShown("Corvex TR500 K21", kShown);
    ExpectShown("Corvex TR500 K2", kShownOnTr500k2);
}

}  // namespace
