#include <gtest/gtest.h>

#include <string>

#include "cli/smbios-commands/inventory.h"
#include "mkmachine/firmware_records.h"
#include "tests/support/golden.h"
#include "tests/support/loaded_tables.h"

TEST(ShowServer, MatchesTheGoldenFileOfEachModel) {
    ExpectGoldenModels("smbios-commands");
}

// Tests values that no model has: other processor states and numbers of threads, the largest stepping and
// clocks, sizes that aren't multiples of 1 MiB, a form factor above 9.
TEST(ShowServer, NamesProcessorStatesAndRoundsSizesDown) {
    std::string records = SystemRecord("Corvex", "").Bytes() + BiosRecord("", "").Bytes();
    records += MemoryArrayRecord({1}).Bytes();
    for (const unsigned state : {0x45, 0x42, 0x40}) {
        Processor part = {2, "", 0xFFFF, 1};
        part.status = static_cast<uint8_t>(state);
        part.threads = state == 0x42 ? 0 : 128;
        if (state == 0x40) part.cores = 0;
        part.id = UINT32_MAX;
        part.bus = 0xFFFF;
        records += ProcessorRecord(part).Bytes();
    }
    records += MemoryDeviceRecord({3, 1, "", 0x8000 | 1535, 0xFFFF, 12}).Bytes();
    LoadedTables tables(records + MemoryDeviceRecord({4, 1, "", 0x8000 | 512}).Bytes());
    ExpectGolden("smbios-commands/unusual_values.txt",
                 tables.Machine().Script("SHOW SERVER;SHOW DIMM").output);

    EXPECT_TRUE(tables.Load(SystemRecord("Corvex", "").Bytes()));
    EXPECT_EQ(get_dimminfo_smbios(), 1) << "expected 1 for tables without memory sockets";
}
