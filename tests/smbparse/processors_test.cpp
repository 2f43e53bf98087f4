#include <gtest/gtest.h>

#include <string>

#include "mkmachine/firmware_records.h"
#include "tests/support/golden.h"
#include "tests/support/loaded_tables.h"

namespace {

// Returns the contents of gCpu_tbl, one line for each processor: MHz, socket, status, cores/threads, caches
// as level:KiB.
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

struct Case {
    const char* catches;
    std::string tables;
};

const Case kCases[] = {
    // cases: selection and order of records
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
};

}  // namespace

// processors.txt contains the inventory that each case results in.
TEST(Processors, AreRecordedFromTheirSmbiosRecords) {
    std::string listing;
    for (const Case& c : kCases) {
        LoadedTables tables(c.tables);
        listing += std::string(c.catches) + "\n" + Inventory();
    }
    ExpectGolden("smbparse/processors.txt", listing);
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
