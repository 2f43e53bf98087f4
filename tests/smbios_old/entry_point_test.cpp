#include <gtest/gtest.h>

#include <string>

#include "cli/smbios-commands/inventory.h"
#include "mkmachine/smbios_table.h"
#include "tests/support/loaded_tables.h"

namespace {

constexpr char kMapFailed[] = "smbios: ReadPhysMem: mmap FAILED\n";

enum End { kLoaded, kRejected, kEmpty, kUnreadable };  // kEmpty, kUnreadable: a valid entry point

struct Case {
    const char* catches;
    uint32_t address;
    uint16_t version;  // one byte each for the major and the minor number
    uint8_t length, checksum_error;
    uint16_t tables_length;
    uint32_t tables_address;
    End end;
};

constexpr Case kGood = {"a valid entry point rejected", 0xF5000, 0x206, 31, 0, 6, kTablesAddress, kLoaded};

// clang-format off
constexpr Case kCases[] = {
    kGood,
    {"version 2.0 accepted",             0xF5000, 0x200, 31, 0, 6, kTablesAddress, kRejected},
    {"version 2.1, or a checksum of 0 bytes, rejected", 0xF5000, 0x201, 0, 0, 6, kTablesAddress, kLoaded},
    {"version 1.9 accepted",             0xF5000, 0x109, 31, 0, 6, kTablesAddress, kRejected},
    {"30 bytes rejected",       0xF5000, 0x206, 30, 0, 6, kTablesAddress, kLoaded},
    {"minor number 0 rejected",    0xF5000, 0x300, 31, 0, 6, kTablesAddress, kLoaded},
    {"a bad checksum accepted",          0xF5000, 0x206, 31, 1, 6, kTablesAddress, kRejected},
    {"an unaligned offset accepted",        0xF5008, 0x206, 31, 0, 6, kTablesAddress, kRejected},
    {"the first offset missed", 0xF0000, 0x206, 31, 0, 6, kTablesAddress, kLoaded},
    {"the last offset missed, or 32 bytes not summed", 0xFFFE0, 0x206, 32, 0xFF, 6, kTablesAddress, kLoaded},
    {"a truncated one accepted",  0xFFFF0, 0x206, 16, 0, 6, kTablesAddress, kRejected},
    {"empty tables loaded",      0xF5000, 0x206, 31, 0, 0, 0xFFFFFFFF,     kEmpty},
    {"a failed mapping ignored",     0xF5000, 0x206, 31, 0, 6, 0xFFFFFFFF,     kUnreadable},
};
// clang-format on

SMBIOSEntryPoint Entry(const Case& c) {
    SMBIOSEntryPoint entry = SmbiosTable().EntryPoint(c.tables_address);
    entry.byMajorVer = static_cast<uint8_t>(c.version >> 8);
    entry.byMinorVer = static_cast<uint8_t>(c.version);
    entry.byEPSLength = c.length;
    entry.wSTLength = c.tables_length;
    SetChecksums(entry);
    entry.byEPSChecksum = static_cast<uint8_t>(entry.byEPSChecksum + c.checksum_error);
    return entry;
}

}  // namespace

TEST(EntryPoint, IsFoundOnlyIfItIsCompleteAndValid) {
    for (const Case& c : kCases) {
        LoadedTables tables;
        // The byte before the entry point is one with which another could begin. The byte after it is 1.
        tables.Machine().PhysicalMemory(c.address - 1, "_" + MachineBuilder::Plain(Entry(c)) + "\1");
        testing::internal::CaptureStderr();
        EXPECT_EQ(tables.Load(), c.end == kLoaded) << c.catches;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), c.end == kUnreadable ? kMapFailed : "")
            << c.catches;
        EXPECT_EQ(pSMBTables != nullptr, c.end == kLoaded) << c.catches;
        EXPECT_EQ(MachineBuilder::Plain(EPS),
                  MachineBuilder::Plain(c.end == kRejected ? SMBIOSEntryPoint{} : Entry(c)))
            << c.catches;
    }
}

// The length in the entry point extends beyond the search area. If the program summed bytes after the area,
// one of these 256 checksums would be valid.
TEST(EntryPoint, IsNotSummedBeyondTheSearchArea) {
    LoadedTables tables;
    Case c = {"", 0xFFFC0, 0x206, 255, 0, 6, kTablesAddress, kRejected};
    do {
        tables.Machine().PhysicalMemory(c.address, MachineBuilder::Plain(Entry(c)));
        EXPECT_FALSE(tables.Load()) << "accepted with checksum error " << +c.checksum_error;
    } while (++c.checksum_error != 0);
}

TEST(EntryPoint, IsTheFirstWithAValidChecksumIfTheIntermediateOneIsInvalid) {
    LoadedTables tables;
    Case first = kGood, last = kGood;
    first.checksum_error = 1;
    last.tables_address = 0xFFFFFFFF;
    SMBIOSEntryPoint second = Entry(kGood);
    ++second.byIntermediateChecksum;
    --second.byEPSChecksum;
    SMBIOSEntryPoint newer = Entry(last);  // the anchor of a 64-bit entry point differs in the fourth byte
    newer.sAnchorString[3] = '3';
    newer.byEPSChecksum = static_cast<uint8_t>(newer.byEPSChecksum + '_' - '3');
    tables.Machine().PhysicalMemory(0xF4FE0, MachineBuilder::Plain(newer));
    tables.Machine().PhysicalMemory(0xF5000, MachineBuilder::Plain(Entry(first)));
    tables.Machine().PhysicalMemory(0xF5020, MachineBuilder::Plain(second));
    tables.Machine().PhysicalMemory(0xF5040, MachineBuilder::Plain(Entry(last)));
    EXPECT_TRUE(tables.Load());
}

TEST(EntryPoint, InAnUnreadableAreaIsReported) {
    LoadedTables tables;
    tables.Machine().Write("xsvc", "");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_FALSE(tables.Load());
    EXPECT_EQ(smbios_get_systemname(), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ReadPhysMem failed\n")
        << "a system name was looked up without tables";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), kMapFailed);
}
