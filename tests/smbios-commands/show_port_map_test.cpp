#include <gtest/gtest.h>

#include <string>

#include "mkmachine/firmware_records.h"
#include "src/utils/bytes.h"
#include "tests/support/loaded_tables.h"

namespace {

const std::string kHeading =
    "NIC Port Mapping INFO\nGbx Connector Entry Table version : 33281\n"
    "Slot      SlotPort  Bay       BayPort   \n";
constexpr char kNoBay[] = "\nERROR: Failed to get Enclosure Bay number.\n\n";

std::string Rack(const char* bay) {
    return RackRecord(1, "", bay).Bytes();
}

// Returns the bytes of a port map record with version 0x8201.
std::string Map(const SmbiosRecord& record) {
    std::string bytes = record.Bytes();
    bytes[offsetof(SMBIOS_NIC_PORT_MAP_INFO, wGbxTableVersion) + 1] = '\x82';
    return bytes;
}

// The map contains only the last port of the record: port 2 of slot 10, with offset 21. All bits that aren't
// printed are set.
constexpr uint8_t kLastPort[] = {0xAE, 0xF5};
const std::string kMap = Map(PortMapRecord(2, {{3, 7, CopyOf<GBX_PORT_MAP>(kLastPort)}}));

struct Case {
    const char* catches;
    std::string tables;  // the records after the system record
    std::string output;
};

const Case kCases[] = {
    {"neither record", "", "\n       Port mapping information is not available on this server\n\n"},
    {"bay 0, no port map", Rack("0"), kNoBay},
    {"a bay that isn't a number", Rack("five") + kMap, kNoBay},
    {"a negative bay", Rack("-1") + kMap, kNoBay},
    {"an empty bay string", Rack("") + kMap, kNoBay},
    {"a rack record without the field", RackRecord(1, "", "5").TruncateTo(7).Bytes() + kMap, kNoBay},
    {"no port map", Rack("5"), "\nERROR: Failed to get SMBIOS system data.\n\n"},
    {"bits of a neighbouring field", Rack("5") + kMap,
     kHeading + "10        2         8         26        \n\n\n"},
    {"a sum that wraps", Rack(" 99999999999") + kMap,
     kHeading + "10        2         8         2147483647\n\n\n"},
    {"a port beyond the record",
     Rack("5") + Map(PortMapRecord(2, {{3, 7, {1, 0, 1, 0, 0, 0}}}).TruncateTo(68)), kHeading + "\n\n"},
};

}  // namespace

TEST(ShowPortMap, PrintsEachFieldOrReportsTheMissingRecord) {
    for (const Case& c : kCases) {
        LoadedTables tables(SystemRecord("Corvex", "").Bytes() + c.tables);
        const RunResult result = tables.Machine().Script("SHOW PORTMAP PLEASE");
        EXPECT_EQ(result.output, c.output) << c.catches;
        EXPECT_EQ(result.status, c.output.find(kHeading) == 0 ? 0 : 1) << c.catches;
    }
    EXPECT_EQ(TestMachine().Script("SHOW PORTMAP").output,
              "\nThis command requires an SMBIOS which is not available on this sytem.\n\n");
}
