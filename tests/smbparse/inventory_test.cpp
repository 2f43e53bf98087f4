#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "cli/smbios-commands/inventory.h"
#include "mkmachine/firmware_records.h"
#include "tests/support/golden.h"
#include "tests/support/loaded_tables.h"

namespace {

constexpr uint16_t kHandle = 0x10;  // handle of the memory array

// Returns the contents of gCpu_tbl and gMemoryMod. The line of a processor contains MHz, socket, status,
// cores/threads, caches as level:KiB; the line of a memory socket board.module, KiB, MHz, form
// factor/technology.
std::string Inventory() {
    std::string text;
    for (const ZET_CPU* cpu : gCpu_tbl) {
        if (cpu == nullptr) break;
        text += std::to_string(cpu->cpuSpeed) + " #" + std::to_string(cpu->cpuSocketNumber) + " s" +
                std::to_string(cpu->cpuStatus) + " " + std::to_string(cpu->cpucorecount) + "/" +
                std::to_string(cpu->threadcount);
        for (const ZET_CACHE* cache : gCache_tbl) {
            if (cache == nullptr || cache->cacheUnitIndex != cpu->cpuUnitIndex) continue;
            text += " L" + std::to_string(cache->cacheLevelIndex) + ":" + std::to_string(cache->cacheSize);
        }
        text += "\n";
    }
    for (const ZET_MemModule* module : gMemoryMod) {
        if (module == nullptr) break;
        text += std::to_string(module->memBoardIndex) + "." + std::to_string(module->memModuleIndex) + " " +
                std::to_string(module->memModuleSize) + " " + std::to_string(module->memModuleFrequency) +
                " " + std::to_string(module->memModuleType) + "/" +
                std::to_string(module->memModuleTechnology) + "\n";
    }
    return text;
}

// Build records of processors. Their speed is 1 MHz, and other fields are 0 or empty unless stated otherwise.
std::string Status(uint8_t status, uint8_t type = smbios::Processor::kCentral) {
    Processor part = {1, "", 1};
    part.status = status;
    part.type = type;
    return ProcessorRecord(part).Bytes();
}

std::string Socket(const std::string& designation) {
    return ProcessorRecord({1, designation.c_str(), 1}).Bytes();
}

SmbiosRecord FourCores() {
    return ProcessorRecord({1, "", 1, 4, 8});
}

SmbiosRecord Caches(uint16_t l2, uint16_t l3 = kNoHandle) {
    return ProcessorRecord({1, "", 1, 0, 0, 0x70, l2, l3});
}

std::string Cached(uint16_t handle, uint8_t level, uint16_t size) {
    return CacheRecord({handle, "", level, size}).Bytes();
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
    std::string records;  // the records before that of the memory array
};

const Case kCases[] = {
    // cases: the selection and order of processors
    {"records in the wrong order, or the maximum speed read",
     ProcessorRecord({2, "", 7}).Bytes() + Socket("").replace(20, 1, "\3")},
    {"an empty socket", Status(0x41) + Status(0x01)},
    {"a coprocessor", Status(0x41, 4)},
    {"a record without the status", ProcessorRecord({1, ""}).TruncateTo(24).Bytes()},
    // cases: the status
    {"an undefined state, or a neighbouring bit read", Status(0xFF) + Status(0x46) + Status(0x45)},
    {"unknown, disabled, idle", Status(0x44) + Status(0x43) + Status(0x42) + Status(0x40)},
    // cases: socket numbers
    {"the designation ignored", Socket("PROC 7")},
    {"letter case, signs, TABs", Socket("\t \tA\tpROC\t \t#12b3")},
    {"no word after \"Proc\"", Socket("A Proc")},
    {"a search that continues", Socket("Proc A Proc 7")},
    {"a longer word", Socket("Processor 7")},
    {"a shorter word", Socket("Pro 7")},
    {"a number that exceeds an int", Socket("Proc 4294967303")},
    {"not 255 characters read", Socket(std::string(249, ' ') + "Proc 72")},
    {"an OEM record ignored", ProcInfoRecord(9, 1, 3).Bytes() + Socket("Proc 7")},
    {"an OEM record of another processor", ProcInfoRecord(9, 2, 3).Bytes() + Socket("Proc 7")},
    {"an OEM record whose truncated handle is taken for 0",
     ProcInfoRecord(9, 0, 3).TruncateTo(5).Bytes() + ProcessorRecord({0, "Proc 7", 1}).Bytes()},
    // cases: cores and threads
    {"cores without threads", FourCores().TruncateTo(37).Bytes()},
    {"the last byte of the record ignored, or the enabled cores read",
     FourCores().TruncateTo(38).Bytes().replace(36, 1, "\3")},
    // cases: caches
    {"L1 consulted, L3 before L2, or the maximum size read", Cached(0x70, 1, 64) + Cached(0x73, 3, 0x8010) +
                                                                 Cached(0x72, 2, 0x0200).replace(7, 1, "\3") +
                                                                 Caches(0x72, 0x73).Bytes()},
    {"an empty cache", Cached(0x72, 2, 0x8000) + Caches(0x72).Bytes()},
    {"handle 0xFFFF looked up, or L3 ignored without L2",
     Cached(kNoHandle, 2, 8) + Cached(0x73, 3, 16) + Caches(kNoHandle, 0x73).Bytes()},
    {"a missing handle taken for 0", Cached(0, 2, 8) + Caches(0, 0).TruncateTo(28).Bytes()},
    {"a record that isn't a cache, or a later one",
     BiosRecord("", "").Bytes() + Cached(0, 2, 8) + Caches(0).Bytes()},
    {"a shared cache shown for one processor only, or a level of more than 3 bits",
     Cached(0x72, 16, 8) + Caches(0x72).Bytes() + Caches(0x72).Bytes()},
    // cases: the size of memory modules
    {"MiB", Sized(0x0400).Bytes()},
    {"KiB", Sized(0x8200).Bytes()},
    {"an empty socket left out", Sized(0).Bytes()},
    // cases: the form factor and the memory technology
    {"the last entry tried first", Kind(kDimm, 0x0280).Bytes()},
    {"the first entry not tried", Kind(kDimm, 0x0288).Bytes()},
    {"bits without an entry", Kind(kDimm, 0xFD77).Bytes()},
    // cases: the location
    {"a word of the locator ignored", At("slot 2 Dimm 4").Bytes()},
    {"one word without the other", At("DIMM 4").Bytes() + At("SLOT 2").Bytes()},
    {"the system board", At("SLOT 2 DIMM 4").Bytes() + DimmLocationRecord(1, 0x11, 0xFF, 3).Bytes()},
    {"an OEM record of another device, or a later one",
     At("").Bytes() + DimmLocationRecord(1, 0x12, 1, 1).Bytes() + DimmLocationRecord(2, 0x11, 5, 6).Bytes() +
         DimmLocationRecord(3, 0x11, 7, 8).Bytes()},
    // cases: short records
    {"a truncated speed", At("").TruncateTo(22).Bytes()},
    {"a truncated type detail", At("").TruncateTo(20).Bytes()},
    {"a locator beyond the record", At("DIMM 4").TruncateTo(16).Bytes()},
    {"a truncated array handle taken for 0", Array(0).Bytes() + At("").TruncateTo(5).Bytes()},
    {"a truncated device handle taken for 0", MemoryDeviceRecord({0, kHandle, "", 1, 1}).Bytes() +
                                                  DimmLocationRecord(1, 0, 5, 6).TruncateTo(5).Bytes()},
    {"an OEM record without the socket ignored",
     At("DIMM 4").Bytes() + DimmLocationRecord(1, 0x11, 5, 6).TruncateTo(7).Bytes()},
    // cases: several arrays
    {"modules in the order of devices, or numbered per array", kSeveral},
};

}  // namespace

// inventory.txt contains the inventory that each case results in.
TEST(Inventory, ContainsTheSmbiosRecords) {
    std::string listing;
    for (const Case& c : kCases) {
        LoadedTables tables(c.records + Array(kHandle).Bytes());
        listing += std::string(c.catches) + "\n" + Inventory();
    }
    ExpectGolden("smbparse/inventory.txt", listing);
}

TEST(MemoryModules, AreSummedUpInAllArraysOfTheSystem) {
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

// codes.txt contains one line for each code: the name of the processor family with this code, the form factor
// with this code, and (for 0 to 15) the memory technology if the bit with this number is set. Codes for which
// all three have their default are omitted.
TEST(Processors, AndModulesAreNamedAsInTheGoldenFile) {
    std::string listing;
    LoadedTables tables;
    for (unsigned code = 0; code < 256; ++code) {
        const auto byte = static_cast<uint8_t>(code);
        const auto trait = static_cast<uint16_t>(code < 16 ? 1 << code : 0);
        Processor part = {1, ""};
        part.family = byte;
        tables.Load(ProcessorRecord(part).Bytes() + MemoryArrayRecord({2}).Bytes() +
                    MemoryDeviceRecord({3, 2, "", 1, 1, byte, kDdr2, trait}).Bytes());
        const std::string line = std::string(gCpu_tbl[0]->cpuName) + ", " +
                                 std::to_string(gMemoryMod[0]->memModuleType) + ", " +
                                 std::to_string(gMemoryMod[0]->memModuleTechnology) + "\n";
        if (line != "Other, 1, 1\n") listing += std::to_string(code) + ": " + line;
    }
    ExpectGolden("smbparse/codes.txt", listing);
}

TEST(Processors, BeyondTheTableAreCountedInANote) {
    std::string records =
        SystemRecord("Corvex", "").Bytes() + BiosRecord("", "").Bytes() + Cached(0x72, 2, 8);
    for (int i = 0; i < 13; ++i) records += Status(0x01) + Caches(0x72, 0x72).Bytes();
    LoadedTables tables(records + MemoryArrayRecord({1}).Bytes());
    ASSERT_NE(gCpu_tbl[10], nullptr);
    EXPECT_EQ(gCpu_tbl[10]->cpuUnitIndex, 10);
    ASSERT_NE(gCache_tbl[20], nullptr);
    EXPECT_EQ(gCache_tbl[20]->cacheUnitIndex, 10);
    EXPECT_NE(tables.Machine()
                  .Script("SHOW SERVER")
                  .output.find(": Ok\n\nNOTE: Processors not shown: 2.\n\nProcessor total  : 11\n"),
              std::string::npos);
}
