// Runs the start-up steps and commands on damaged tables. Each must succeed or print one of its error
// messages.
#include <gtest/gtest.h>

#include <string>

#include "cli/smbios-commands/inventory.h"
#include "cli/smbios-commands/port_map.h"
#include "mkmachine/models.h"
#include "src/utils/text.h"
#include "tests/support/loaded_tables.h"

namespace {

int ShowServer() {
    InputLineType line{};
    line.NumWords = 2;
    return do_show_server(&line);
}

// Runs a step. Expects that it succeeds and its output begins with `heading`, or that it fails and prints one
// line that begins with `message`.
void ExpectOutputOrMessage(int (*step)(), const std::string& heading, const std::string& message) {
    testing::internal::CaptureStdout();
    const int result = step();
    const std::string output = testing::internal::GetCapturedStdout();
    const bool is_line = result == 1 && output.find('\n', 1) == output.npos;
    EXPECT_TRUE(StartsWith(output, result == 0 ? heading : message) && (result == 0 || is_line))
        << "result " << result << ":\n"
        << output;
}

void ExpectOutputsOrMessages(const std::string& damage) {
    SCOPED_TRACE(damage);
    ExpectOutputOrMessage(ShowServer, "\nSystem        : ", "\nERROR: Failed to get SMBIOS ");
    ExpectOutputOrMessage([] { return do_show_nic_port_mapping(nullptr); }, "NIC Port Mapping INFO\n", "\n");
    ExpectOutputOrMessage(get_dimminfo_smbios, "", "");
    smbios_get_systemname();
    EXPECT_GE(get_embedded_nics_smbios(), -1);
}

}  // namespace

TEST(DamagedTables, TruncatedAnywhereAreShownOrReported) {
    LoadedTables tables;
    const std::string good = TablesOf(*FindModel("bx20")).Bytes();
    for (size_t size = 1; size <= good.size(); ++size) {
        ASSERT_TRUE(tables.Load(good.substr(0, size)));
        ExpectOutputsOrMessages("truncated to " + std::to_string(size) + " bytes");
    }
    ASSERT_TRUE(tables.Load("no record"));
    ExpectOutputOrMessage(ShowServer, "", "\nERROR: Failed to get SMBIOS memory data.");
}

TEST(DamagedTables, WithAnyByteInvertedAreShownOrReported) {
    LoadedTables tables;
    const std::string good = TablesOf(*FindModel("bx20")).Bytes();
    for (size_t offset = 0; offset < good.size(); ++offset) {
        std::string bad = good;
        bad[offset] = static_cast<char>(~bad[offset]);
        ASSERT_TRUE(tables.Load(bad));
        ExpectOutputsOrMessages("byte " + std::to_string(offset) + " inverted");
    }
}
