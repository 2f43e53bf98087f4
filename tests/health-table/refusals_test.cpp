// What the health displays say of a family that the server doesn't have and of records that tell too little;
// that nothing can be asked for at all, or words are too many, is swept for every command in tests/sweep.

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/test_machine.h"

using namespace std::string_view_literals;

namespace {

struct Case {
    const char* catches;
    const char* command;
    const char* file;        // the record that is another than the model's
    std::string_view bytes;  // of that record
    const char* output;
    int status = 1;
};

constexpr char kLight[] = "cdt/1503.0.0";  // which SET UID would change

// clang-format off
constexpr Case kCases[] = {
    {"no fans",              "SHOW FANS", "cdt/351.0.0", "\13\0\1\13"sv, "\nERROR: This system does not support fans."},
    {"a short record",       "SHOW FANS", "cdt/351.0.0", "\13"sv,         "\nERROR: This system does not support fans."},
    {"no sensors",           "SHOW TEMP", "cdt/251.0.0", "\20\0\20"sv,    "\nINFO: No temperature sensors found."},
    {"no supplies",          "SHOW POWERSUPPLY", "cdt/151.0.0", "\0\1\0\0\0"sv, "", 0},
    {"a short record",       "SHOW UID", kLight, "\1"sv,            "\nUID is currently off.", 0},
    {"a state of its own",   "SHOW UID", kLight, "\1\7\0\0\0"sv,    "\nUID is currently in an unknown state.", 0},
    {"no lights",            "SET UID ON", "cdt/1500.0.0", "\0\1\0"sv, "\nERROR: This server does not support the SET UID command."},
    {"lights without state", "SET UID ON", "cdt/1500.0.0", "\1\0\0"sv, "\nERROR: This server does not support the SET UID command."},
};
// clang-format on

TEST(HealthDisplays, SayWhatCantBeShownAndChangeNothing) {
    TestMachine machine("tr500k2");
    const std::string light = machine.Read(kLight);
    for (const Case& c : kCases) {
        const std::string record = machine.Read(c.file);
        machine.Write(c.file, std::string(c.bytes));
        const RunResult run = machine.Script(c.command);
        machine.Write(c.file, record);

        EXPECT_EQ(run.output, std::string(c.output) + "\n\n") << c.command << ": " << c.catches;
        EXPECT_EQ(run.status, c.status) << c.command << ": " << c.catches;
        EXPECT_EQ(machine.Read(kLight), light) << c.command << ": " << c.catches;
    }
}

}  // namespace
