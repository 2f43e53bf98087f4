// Tests of SHOW FANS, SHOW TEMP, SHOW POWERSUPPLY, SHOW UID and SET UID: the output for every model, and the
// messages on servers without these parts. tests/fault-injection tests failing requests for all commands.

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/expected_run.h"
#include "tests/support/golden.h"

using namespace std::string_view_literals;

namespace {

struct Case {
    const char* reply;       // description of the new contents
    const char* file;        // file of the record that is replaced
    std::string_view bytes;  // new contents of the file
    Step step;
};

constexpr char kLight[] = "cdt/1503.0.0";  // the record that SET UID changes

// clang-format off
const Case kCases[] = {
    {"no fans",              "cdt/351.0.0",  "\13\0\1\13"sv, Fails("SHOW FANS", "\nERROR: This system does not support fans.", kAnything)},
    {"a truncated record",   "cdt/351.0.0",  "\13"sv,        Fails("SHOW FANS", "\nERROR: This system does not support fans.", kAnything)},
    {"no fan positions",     "cdt/351.0.0",  "\0\1\0\0"sv,   {"SHOW FANS", "\nFan  Location        Present Speed  of max  Redundant  Partner  Hot-pluggable\n---  --------        ------- -----  ------  ---------  -------  -------------\n", kAnything}},
    {"no sensors",           "cdt/251.0.0",  "\20\0\20"sv,   Fails("SHOW TEMP", "\nINFO: No temperature sensors found.", kAnything)},
    {"no supplies",          "cdt/151.0.0",  "\0\1\0\0\0"sv, {"SHOW POWERSUPPLY", "", kAnything}},
    {"a truncated record",   kLight,         "\0"sv,         {"SHOW UID", "\nUID is currently off.", kAnything}},
    {"an undefined state",   kLight,         "\1\202\0\0\1"sv, {"SHOW UID", "\nUID is currently in an unknown state.", kAnything}},
    {"no lights",            "cdt/1500.0.0", "\0\1\0"sv,     Fails("SET UID ON", "\nERROR: This server does not support the SET UID command.", kAnything)},
    {"lights without state", "cdt/1500.0.0", "\1\0\0"sv,     Fails("SET UID ON", "\nERROR: This server does not support the SET UID command.", kAnything)},
};
// clang-format on

TEST(HealthDisplays, PrintAMessageForMissingParts) {
    TestMachine machine("tr500k2");
    const std::string light = machine.Read(kLight);
    for (const Case& c : kCases) {
        const std::string record = machine.Read(c.file);
        machine.Write(c.file, std::string(c.bytes));
        ExpectRuns(machine, {c.step}, c.reply);
        machine.Write(c.file, record);
        EXPECT_EQ(machine.Read(kLight), light) << "changed by " << c.step.command << ": " << c.reply;
    }
}

TEST(HealthDisplays, ShowEveryModel) {
    ExpectGoldenModels("health-table");
}

}  // namespace
