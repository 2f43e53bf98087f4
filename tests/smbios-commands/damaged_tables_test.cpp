// Runs the start-up steps and commands on damaged tables: each succeeds or fails with one of its messages.
#include <gtest/gtest.h>

#include <string>

#include "cli/smbios-commands/inventory.h"
#include "cli/smbios-commands/port_map.h"
#include "mkmachine/models.h"
#include "tests/support/loaded_tables.h"

namespace {

int ShowServer() {
    InputLineType line{};
    line.NumWords = 2;
    return do_show_server(&line);
}

int ShowPortMap() {
    return do_show_nic_port_mapping(nullptr);
}

// Returns whether a step succeeds with its heading or fails with one line of explanation.
bool EndsInAKnownWay(int (*step)(), const std::string& heading, const std::string& message) {
    testing::internal::CaptureStdout();
    const int result = step();
    const std::string output = testing::internal::GetCapturedStdout();
    if (result == 0) return output.rfind(heading, 0) == 0;
    return result == 1 && output.rfind(message, 0) == 0 && output.find('\n', 1) == std::string::npos;
}

void ExpectKnownEnds(const std::string& damage) {
    EXPECT_TRUE(EndsInAKnownWay(ShowServer, "\nSystem        : ", "\nERROR: Failed to get SMBIOS "))
        << damage;
    EXPECT_TRUE(EndsInAKnownWay(ShowPortMap, "NIC Port Mapping INFO\n", "\n")) << damage;
    EXPECT_TRUE(EndsInAKnownWay(get_dimminfo_smbios, "", "")) << damage;
    smbios_get_systemname();
    EXPECT_GE(get_embedded_nics_smbios(), -1) << damage;
}

const std::string& GoodTables() {
    static const std::string good = TablesOf(*FindModel("bx20")).Bytes();
    return good;
}

}  // namespace

TEST(DamagedTables, ComeToAKnownEndWhereverTheyAreCut) {
    LoadedTables tables;
    for (size_t size = 1; size <= GoodTables().size(); ++size) {
        ASSERT_TRUE(tables.Load(GoodTables().substr(0, size)));
        ExpectKnownEnds("cut to " + std::to_string(size));
    }
}

TEST(DamagedTables, ComeToAKnownEndWhicheverByteIsWrong) {
    LoadedTables tables;
    for (size_t offset = 0; offset < GoodTables().size(); ++offset) {
        std::string bad = GoodTables();
        bad[offset] = static_cast<char>(~bad[offset]);
        ASSERT_TRUE(tables.Load(bad));
        ExpectKnownEnds("byte " + std::to_string(offset));
    }
}
