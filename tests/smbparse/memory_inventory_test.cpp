#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "cli/smbios-commands/inventory.h"
#include "mkmachine/firmware_records.h"
#include "tests/support/loaded_tables.h"

namespace {

constexpr uint16_t kHandle = 0x10;  // handle of the memory array

// Returns the contents of gMemoryMod, one line for each socket: board.module, KiB, MHz, form
// factor/technology.
std::string Inventory() {
    std::string text;
    for (const ZET_MemModule* module : gMemoryMod) {
        if (module == nullptr) break;
        text += std::to_string(module->memBoardIndex) + "." + std::to_string(module->memModuleIndex) + " " +
                std::to_string(module->memModuleSize) + " " + std::to_string(module->memModuleFrequency) +
                " " + std::to_string(module->memModuleType) + "/" +
                std::to_string(module->memModuleTechnology) + "\n";
    }
    return text;
}

SmbiosRecord Array(uint16_t handle, uint8_t use = smbios::MemoryArray::kSystemMemory,
                   uint8_t correction = 6) {
    return MemoryArrayRecord({handle, 0, 0, correction, use});
}

// Build memory devices of the array kHandle. Their size is 1 MiB and their speed 1 MHz unless stated
// otherwise.
SmbiosRecord Sized(uint16_t size) {
    return MemoryDeviceRecord({0x11, kHandle, "", size, 1});
}

SmbiosRecord Kind(uint8_t form_factor, uint16_t type_detail = kSynchronous) {
    return MemoryDeviceRecord({0x11, kHandle, "", 1, 1, form_factor, kDdr2, type_detail});
}

SmbiosRecord At(const char* locator) {
    return MemoryDeviceRecord({0x11, kHandle, locator, 1, 1});
}

std::string Of(uint16_t array, uint16_t size) {
    return MemoryDeviceRecord({0x21, array, "", size}).Bytes();
}

// Arrays whose devices are mixed: 8 MiB of flash memory, 5 MiB of system memory without error correction, and
// 2 MiB with error correction. Three arrays have the handle of the 2 MiB.
const std::string kSeveral = Array(0x20, 5).Bytes() + Of(0x30, 1) + Of(0x20, 8) + Of(0x40, 2) +
                             Array(0x30, 3, 3).Bytes() + Array(0x40, 5).Bytes() + Array(0x40).Bytes() +
                             Array(0x40).Bytes() + Of(0x30, 4);

struct Case {
    const char* catches;
    std::string records;  // the records before that of the array
    const char* inventory;
};

const Case kCases[] = {
    // cases: the size
    {"MiB", Sized(0x0400).Bytes(), "0.1 1048576 1 8/5\n"},
    {"KiB", Sized(0x8200).Bytes(), "0.1 512 1 8/5\n"},
    {"an empty socket left out", Sized(0).Bytes(), "0.1 0 1 8/5\n"},
    // cases: the form factor and the memory technology
    {"the last entry tried first", Kind(kDimm, 0x0280).Bytes(), "0.1 1024 1 8/5\n"},
    {"the first entry not tried", Kind(kDimm, 0x0288).Bytes(), "0.1 1024 1 8/2\n"},
    {"bits without an entry", Kind(kDimm, 0xFD77).Bytes(), "0.1 1024 1 8/1\n"},
    // cases: the location
    {"a word of the locator ignored", At("slot 2 Dimm 4").Bytes(), "2.4 1024 1 8/5\n"},
    {"one word without the other", At("DIMM 4").Bytes() + At("SLOT 2").Bytes(),
     "0.4 1024 1 8/5\n2.2 1024 1 8/5\n"},
    {"the system board", At("SLOT 2 DIMM 4").Bytes() + DimmLocationRecord(1, 0x11, 0xFF, 3).Bytes(),
     "0.3 1024 1 8/5\n"},
    {"an OEM record of another device, or a later one",
     At("").Bytes() + DimmLocationRecord(1, 0x12, 1, 1).Bytes() + DimmLocationRecord(2, 0x11, 5, 6).Bytes() +
         DimmLocationRecord(3, 0x11, 7, 8).Bytes(),
     "5.6 1024 1 8/5\n"},
    // cases: short records
    {"a truncated speed", At("").TruncateTo(22).Bytes(), "0.1 1024 0 8/5\n"},
    {"a truncated type detail", At("").TruncateTo(20).Bytes(), "0.1 1024 0 8/1\n"},
    {"a locator beyond the record", At("DIMM 4").TruncateTo(16).Bytes(), "0.1 1024 0 8/1\n"},
    {"a truncated array handle taken for 0", Array(0).Bytes() + At("").TruncateTo(5).Bytes(), ""},
    {"a truncated device handle taken for 0",
     MemoryDeviceRecord({0, kHandle, "", 1, 1}).Bytes() +
         DimmLocationRecord(1, 0, 5, 6).TruncateTo(5).Bytes(),
     "0.1 1024 1 8/5\n"},
    {"an OEM record without the socket ignored",
     At("DIMM 4").Bytes() + DimmLocationRecord(1, 0x11, 5, 6).TruncateTo(7).Bytes(), "5.0 1024 1 8/5\n"},
    // cases: several arrays
    {"modules in the order of devices, or numbered per array", kSeveral,
     "1.1 1024 0 8/5\n1.4 4096 0 8/5\n3.3 2048 0 8/5\n4.3 2048 0 8/5\n"},
};

}  // namespace

TEST(MemoryModules, AreRecordedFromTheirSmbiosRecords) {
    for (const Case& c : kCases) {
        LoadedTables tables(c.records + Array(kHandle).Bytes());
        EXPECT_EQ(Inventory(), c.inventory) << c.catches;
    }
    unsigned int size = 1;
    LoadedTables none(At("").Bytes());
    EXPECT_FALSE(SmbParseMemRecords() || SmbParseProcRecords() || SmbGetTotalMemory(&size) || size != 1);
    LoadedTables several(kSeveral + ProcessorRecord({1, ""}).Bytes());
    EXPECT_EQ(SmbGetTotalMemory(&size), TRUE);
    EXPECT_EQ(size, 7168U) << "KiB; flash memory was counted, only one array, or a device twice";
    EXPECT_EQ(SmbChkForECCSupported(), TRUE) << "only the first array was checked";
    fSMBiosInited = FALSE;
    EXPECT_FALSE(SmbParseMemRecords() || SmbParseProcRecords() || SmbGetTotalMemory(&size) ||
                 SmbChkForECCSupported())
        << "tables that aren't available were used";
}

TEST(MemoryModules, BeyondTheTableAreCountedInANote) {
    std::string records = Array(kHandle).Bytes();
    for (int i = 0; i < 140; ++i) records += Sized(0x7FFF).Bytes();  // more than a page of memory
    LoadedTables tables(records + Sized(0).Bytes());
    ASSERT_NE(gMemoryMod[63], nullptr);
    EXPECT_EQ(gMemoryMod[63]->memModuleIndex, 64);
    unsigned int size = 0;
    EXPECT_EQ(SmbGetTotalMemory(&size), TRUE);
    EXPECT_EQ(size, UINT_MAX) << "the sum of the sizes has wrapped";
    testing::internal::CaptureStdout();
    EXPECT_EQ(get_dimminfo_smbios(), 0);
    const std::string listing = testing::internal::GetCapturedStdout();
    constexpr char kEnd[] = "N/A\n\nNOTE: Memory modules not shown: 76.\n";
    EXPECT_EQ(listing.substr(listing.rfind("N/A")), kEnd);
}

TEST(MemoryArrays, CorrectErrorsIfTheirRecordStatesIt) {
    LoadedTables tables;
    const auto corrects = [&](const SmbiosRecord& array) {
        return tables.Load(array.Bytes()) && SmbChkForECCSupported() == TRUE;
    };
    EXPECT_FALSE(corrects(Array(kHandle, 3, 3)))
        << "expected no correction for a system memory array without it";
    EXPECT_TRUE(corrects(Array(kHandle, 3, 4))) << "parity should count as error detection";
    EXPECT_FALSE(corrects(Array(kHandle, 5, 6))) << "an array of flash memory should not count";
    EXPECT_FALSE(corrects(Array(kHandle).TruncateTo(6))) << "a record without the field should not count";
}
