// What the health displays say when they can't show anything, or not all: one request going wrong, a family
// that the server doesn't have, words too many.

#include <gtest/gtest.h>

#include <string_view>

#include "tests/support/test_machine.h"

using namespace std::string_view_literals;

namespace {

struct Case {
    const char* command;
    const char* fault;       // the request that goes wrong, if any
    const char* file;        // the record that is another than the model's, if any
    std::string_view bytes;  // of that record
    const char* output;
    int status = 1;
};

constexpr char kLight[] = "cdt/1503.0.0";  // which SET UID would change

// clang-format off
constexpr Case kCases[] = {
    {"SHOW FANS NOW", "", "", "", "\nInvalid argument(s)\nUSAGE: SHOW FANS: Shows info on installed fans."},
    {"SHOW FANS", "cdt 351.0.0 1", "", "", "\nERROR: \"SHOW\" FAN command failed"},
    {"SHOW FANS", "", "cdt/351.0.0", "\13\0\1\13"sv, "\nERROR: This system does not support fans."},
    {"SHOW FANS", "", "cdt/351.0.0", "\13"sv, "\nERROR: This system does not support fans."},  // a short record
    {"SHOW FANS", "cdt 356.2.0 -5", "", "", "\nERROR: \"SHOW FAN\" command failed."},
    {"SHOW FANS", "cdt 353.10.0 1", "", "", "\nERROR: \"SHOW FAN\" command failed"},

    {"SHOW TEMP NOW", "", "", "", "\nInvalid argument(s)\nUSAGE: SHOW TEMP: Shows current temperature readings."},
    {"SHOW TEMP", "cdt 251.0.0 1", "", "", "\nERROR: \"SHOW TEMP\" command failed."},
    {"SHOW TEMP", "", "cdt/251.0.0", "\20\0\20"sv, "\nINFO: No temperature sensors found."},
    {"SHOW TEMP", "cdt 256.255.0 1", "", "", "\nERROR: \"SHOW TEMP\" command failed."},
    {"SHOW TEMP", "cdt 254.15.0 -5", "", "", "\nERROR: \"SHOW TEMP\" command failed."},

    {"SHOW POWERSUPPLY", "cdt 151.0.0 1", "", "", "\nNo powersupplies were detected."},
    {"SHOW POWERSUPPLY", "cdt 162.0.0 1", "", "",
     "\nPower supply #1\nERROR \"SHOW POWERSUPPLY\" command failed."},
    {"SHOW POWERSUPPLY", "cdt 159.1.0 -5", "", "",
     "\nPower supply #1\n\tPresent : Yes\n\tRedundant: Yes\n\tCondition: Ok\n\tHotplug  : Supported\n"
     "\nPower supply #2\nERROR \"SHOW POWERSUPPLY\" command failed."},
    {"SHOW POWERSUPPLY NOW", "", "cdt/151.0.0", "\0\1\0\0\0"sv, "", 0},  // no word is too many

    {"SHOW UID NOW", "", "", "", "\nInvalid argument(s)\nUSAGE: SHOW UID: Shows the UID state."},
    {"SHOW UID", "cdt 1503.0.0 1", "", "", "\nERROR: \"SHOW UID\" command failed."},
    {"SHOW UID", "", kLight, "\1"sv, "\nUID is currently off.", 0},  // a short record
    {"SHOW UID", "", kLight, "\1\7\0\0\0"sv, "\nUID is currently in an unknown state.", 0},
    {"SET UID ON NOW", "", "", "", "\nInvalid argument(s)\nUSAGE: SET UID ON: Turns the server UID on."},
    {"SET UID ON", "cdt 1500.0.0 1", "", "", "\nERROR: \"SET UID\" command failed."},
    {"SET UID ON", "", "cdt/1500.0.0", "\0\1\0"sv, "\nERROR: This server does not support the SET UID command."},
    {"SET UID ON", "", "cdt/1500.0.0", "\1\0\0"sv, "\nERROR: This server does not support the SET UID command."},
    {"SET UID ON", "cdt 1503.0.0 -5", "", "", "\nUID is now on.", 0},  // it was sent; that is all it says

    {"SHOW DIMM ALL", "", "", "", "\nInvalid argument(s)\nUSAGE: SHOW DIMM: Shows info on DIMM sockets."},
    {"SHOW DIMM", "cdt 1707.0.0 -5", "", "",
     "\nDIMM Configuration\n------------------\nERROR: \"SHOW DIMM\" command failed."},
    {"SHOW DIMM", "cdt 1706.0.1 1", "", "",
     "\nDIMM Configuration\n------------------\nCartridge #:   1\nModule #:      1\nPresent:       Yes"
     "\nForm Factor:   fh\nMemory Type:   14h\nSize:          2048 MB\nSpeed:         667 MHz"
     "\nStatus:        Ok\n", 0},
};
// clang-format on

TEST(HealthDisplays, SayWhatCantBeShownAndChangeNothing) {
    TestMachine machine("tr500k2");
    const std::string light = machine.Read(kLight);
    for (const Case& c : kCases) {
        const bool other_record = *c.file != '\0';
        const std::string record = other_record ? machine.Read(c.file) : "";
        if (other_record) machine.Write(c.file, std::string(c.bytes));
        machine.Write("faults", c.fault);
        const RunResult run = machine.Script(c.command);
        if (other_record) machine.Write(c.file, record);

        EXPECT_EQ(run.output, std::string(c.output) + "\n\n") << c.command << " with " << c.fault << c.file;
        EXPECT_EQ(run.status, c.status) << c.command << " with " << c.fault << c.file;
        EXPECT_EQ(machine.Read(kLight), light) << c.command;
    }
}

}  // namespace
