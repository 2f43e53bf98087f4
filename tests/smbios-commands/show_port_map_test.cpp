#include <gtest/gtest.h>

#include <string>

#include "mkmachine/firmware_records.h"
#include "src/utils/bytes.h"
#include "tests/support/golden.h"
#include "tests/support/loaded_tables.h"

namespace {

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
};

const Case kCases[] = {
    {"neither record", ""},
    {"bay 0, no port map", Rack("0")},
    {"a bay that isn't a number", Rack("five") + kMap},
    {"a negative bay", Rack("-1") + kMap},
    {"an empty bay string", Rack("") + kMap},
    {"a rack record without the field", RackRecord(1, "", "5").TruncateTo(7).Bytes() + kMap},
    {"no port map", Rack("5")},
    {"bits of a neighbouring field", Rack("5") + kMap},
    {"a sum that wraps", Rack(" 99999999999") + kMap},
    {"a port beyond the record",
     Rack("5") + Map(PortMapRecord(2, {{3, 7, {1, 0, 1, 0, 0, 0}}}).TruncateTo(68))},
};

}  // namespace

// port_maps.txt contains the status and the output of each case.
TEST(ShowPortMap, PrintsEachFieldOrReportsTheMissingRecord) {
    std::string listing = "no tables\n" + TestMachine().Script("SHOW PORTMAP").output;
    for (const Case& c : kCases) {
        LoadedTables tables(SystemRecord("Corvex", "").Bytes() + c.tables);
        const RunResult result = tables.Machine().Script("SHOW PORTMAP PLEASE");
        listing += c.catches + (": status " + std::to_string(result.status)) + "\n" + result.output;
    }
    ExpectGolden("smbios-commands/port_maps.txt", listing);
}
