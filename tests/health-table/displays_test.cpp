// What the health displays show of every model, and what they say of a family that the server doesn't have
// and of records that tell too little; that nothing can be asked for at all, or words are too many, is swept
// for every command in tests/fault-injection.

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/expected_run.h"
#include "tests/support/golden.h"

using namespace std::string_view_literals;

namespace {

struct Case {
    const char* catches;
    const char* file;        // the record that is another than the model's
    std::string_view bytes;  // of that record
    Step step;
};

constexpr char kLight[] = "cdt/1503.0.0";  // which SET UID would change

// clang-format off
const Case kCases[] = {
    {"no fans",        "cdt/351.0.0", "\13\0\1\13"sv, Fails("SHOW FANS", "\nERROR: This system does not support fans.", kAnything)},
    {"a short record", "cdt/351.0.0", "\13"sv,         Fails("SHOW FANS", "\nERROR: This system does not support fans.", kAnything)},
    {"no sensors",     "cdt/251.0.0", "\20\0\20"sv,    Fails("SHOW TEMP", "\nINFO: No temperature sensors found.", kAnything)},
    {"no supplies",    "cdt/151.0.0", "\0\1\0\0\0"sv, {"SHOW POWERSUPPLY", "", kAnything}},
    {"a short record", kLight,        "\1"sv,          {"SHOW UID", "\nUID is currently off.", kAnything}},
    {"a state of its own",   kLight,  "\1\7\0\0\0"sv,  {"SHOW UID", "\nUID is currently in an unknown state.", kAnything}},
    {"no lights",            "cdt/1500.0.0", "\0\1\0"sv, Fails("SET UID ON", "\nERROR: This server does not support the SET UID command.", kAnything)},
    {"lights without state", "cdt/1500.0.0", "\1\0\0"sv, Fails("SET UID ON", "\nERROR: This server does not support the SET UID command.", kAnything)},
};
// clang-format on

TEST(HealthDisplays, SayWhatCantBeShownAndChangeNothing) {
    TestMachine machine("tr500k2");
    const std::string light = machine.Read(kLight);
    for (const Case& c : kCases) {
        const std::string record = machine.Read(c.file);
        machine.Write(c.file, std::string(c.bytes));
        ExpectRuns(machine, {c.step}, c.catches);
        machine.Write(c.file, record);
        EXPECT_EQ(machine.Read(kLight), light) << c.step.command << ": " << c.catches;
    }
}

TEST(HealthDisplays, ShowEveryModelInFull) {
    ExpectGoldenModels("health-table");
}

}  // namespace
