#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "tests/support/loaded_tables.h"
#include "tests/support/stored.h"
#include "tools/mkmachine/firmware_records.h"

TEST(ShowServer, TellsEachModelInFull) {
    ExpectModelsAsStored("smbios-commands");
}

// What the models' processors, all of one family and in order, and memory in whole MiB don't show. The last
// record is shown first.
TEST(ShowServer, NamesFamilyAndStateAndRoundsDown) {
    std::string records = SystemRecord("Corvex", "").Bytes() + BiosRecord("", "").Bytes();
    records += MemoryArrayRecord({1}).Bytes();
    constexpr uint8_t kFamiliesAndStates[][2] = {{0xB5, 0x45}, {0x10, 0x42}, {0xFF, 0x40}};
    for (const auto& [family, state] : kFamiliesAndStates) {
        Processor part = {2, ""};
        part.family = family;
        part.status = state;
        records += ProcessorRecord(part).Bytes();
    }
    LoadedTables tables(records + MemoryDeviceRecord({3, 1, "", 0x8000 | 2047}).Bytes());
    const std::string output = tables.Machine().Script("SHOW SERVER;SHOW DIMM").output;
    const std::regex line("(?:\t(?:Name|Status)|Memory installed|Size) *: *(.*)");
    std::string names;
    for (std::sregex_iterator match(output.begin(), output.end(), line), end; match != end; ++match) {
        names += match->str(1) + ", ";
    }
    EXPECT_EQ(names, "Other, Failed, Pentium II Xeon, Disabled, Intel Xeon MP, Unknown, 1 MBytes, 1 MB, ");
}
