// Compares the listing of every event in every variant, as SHOW HLOG prints it, with golden files.
// every_event.txt was reviewed entry by entry against the meaning of the firmware's events; review each
// difference in the same way.

#include <gtest/gtest.h>

#include <sstream>

#include "mkmachine/models.h"
#include "tests/eventstr/translate.h"
#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

TEST(EveryEvent, MatchesTheGoldenFiles) {
    RunOptions without_paging;
    without_paging.input = "c";
    for (const Model& model : Models()) {
        std::istringstream listing(TestMachine(model.name).Script("SHOW HLOG", without_paging).output);
        // Separate golden files, so that a new event changes only its own lines of every_event.txt.
        std::string events, numbers_and_dates;
        for (std::string line; std::getline(listing, line);) {
            (line.rfind("Event: ", 0) == 0 ? numbers_and_dates : events) += line + "\n";
        }
        ExpectGolden("eventstr/every_event.txt", events);
        ExpectGolden("eventstr/numbers_and_dates.txt", numbers_and_dates);
        if (HasFailure()) return;  // the logs of the other models are the same
    }
}

// A payload byte that selects a name or a text, and an event that prints it.
struct SelectorByte {
    const char* name;
    uint16_t event_class, code;
    std::string payload;
    size_t offset;
};

const std::vector<SelectorByte>& SelectorBytes() {
    constexpr EVT_CHASSIS kServer = {1, 0, 0};
    constexpr EVT_CHASSIS kOther = {1, 2, 0};
    constexpr EVT_CHASSIS kBlades = {4, 0, 1};
    const auto plain = [](const auto& record) { return MachineBuilder::Plain(record); };
    // clang-format off
    static const std::vector<SelectorByte> rows = {
        {"chassis type of the server", 2, 6, WithTexts(EVT_MACH_FAN_NOT_REDUNDANT{kServer, kZoneCpu, {}}, {"N"}), 0},
        {"chassis type of another", 2, 6, WithTexts(EVT_MACH_FAN_NOT_REDUNDANT{kOther, kZoneCpu, {}}, {"N"}), 0},
        {"chassis type by record", 11, 6, WithTexts(EVT_INF_POWER_NOT_REDUNDANT{kOther, 'M', {}}, {"N"}), 0},
        {"chassis type with an extra text", 11, 17, WithTexts(EVT_POWER_AC_VOLTAGE{kOther, 4, 1, {}}, {"N", "extra"}), 0},
        {"chassis type of a SAS enclosure", 19, 7, WithTexts(EVT_SAS_ARRAY_DEV_FAILURE{kServer, 2, {'1', 'A'}, 3, {}}, {"", ""}), 0},
        {"chassis type of a power module", 11, 3, plain(EVT_POWER_MODULE_FAILURE{kServer, 1, 2, 3}), 0},
        {"chassis type of a power module elsewhere", 11, 3, plain(EVT_POWER_MODULE_FAILURE{kOther, 1, 2, 3}), 0},
        {"chassis type of an enclosure", 34, 21, plain(EVT_INF_ENV_RACK_TOPOLOGY_ERR{kServer, 1}), 0},
        {"location", 2, 7, WithTexts(EVT_MACH_FAN_NOT_REDUNDANT_SHARED{kServer, 99, 0, {}}, {""}), 4},
        {"power supply error", 11, 1, WithTexts(EVT_POWER_SUPPLY_FAILURE{kServer, 2, 0, {}}, {""}), 4},
        {"power module", 11, 3, plain(EVT_POWER_MODULE_FAILURE{kServer, 1, 2, 0}), 5},
        {"redundancy", 11, 6, WithTexts(EVT_INF_POWER_NOT_REDUNDANT{kBlades, 0, {}}, {""}), 3},
        {"AC problem", 11, 8, WithTexts(EVT_POWER_AC_VOLTAGE{kBlades, 2, 0, {}}, {""}), 4},
        {"action on a cartridge", 3, 4, plain(EVT_MAIN_MEMORY_USER_ACTION{2, 0, 1}), 1},
        {"action on a board", 3, 4, plain(EVT_MAIN_MEMORY_USER_ACTION{2, 0, 0}), 1},
        {"cartridge or board removed", 3, 4, plain(EVT_MAIN_MEMORY_USER_ACTION{2, 0, 0}), 2},
        {"cartridge or board inserted", 3, 4, plain(EVT_MAIN_MEMORY_USER_ACTION{2, 1, 0}), 2},
        {"cartridge or board unlocked", 3, 4, plain(EVT_MAIN_MEMORY_USER_ACTION{2, 2, 0}), 2},
        {"cartridge status", 3, 5, plain(EVT_MAIN_MEMORY_HW_STATUS{2, 0}), 1},
        {"configuration error", 3, 6, plain(EVT_MAIN_MEMORY_CONFIG_ERR{2, 3, 0}), 2},
        {"configuration change", 3, 7, plain(EVT_MAIN_MEMORY_CONFIG_CHG{2, 0, 512}), 1},
        {"suspects", 3, 3, WithTexts(EVT_MAIN_MEMORY_MULTI{0, {{1, 2}, {3, 4}, {5, 6}, {7, 8}}, {}}, {""}), 0},
        {"host bus error", 6, 1, plain(EVT_HOST_BUS_UNCORRECTABLE{0}), 0},
        {"shutdown cause", 14, 2, plain(EVT_AUTO_SHUTDOWN{0}), 0},
        {"zone of a shutdown", 14, 5, WithTexts(EVT_OS_PWR_SHED{kBlades, 2, 0, {}}, {""}), 4},
        {"power-on reason", 34, 1, WithTexts(EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON{kBlades, 2, 0, {}}, {""}), 4},
        {"zone of a fuse", 34, 3, WithTexts(EVT_INF_ENV_FUSE_OPEN{kBlades, 1, 0, {}}, {""}), 4},
        {"blade present", 34, 5, WithTexts(EVT_INF_ENV_BLADE_INS_REM{kBlades, 2, 0, {}}, {""}), 4},
        {"unbalanced bus", 34, 6, WithTexts(EVT_INF_ENV_PWR_LOAD_BALANCING{kBlades, 0, 1, {}}, {""}), 3},
        {"bus out of tolerance", 34, 7, WithTexts(EVT_INF_ENV_DC_PWR_PROBLEM{kBlades, 0, 1, {}}, {""}), 3},
        {"misconfiguration", 34, 13, WithTexts(EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED{kBlades, 0, 0, 1, {}}, {""}), 3},
        {"misconfigured side", 34, 13, WithTexts(EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED{kBlades, 1, 0, 1, {}}, {""}), 4},
        {"Ethernet switch error", 34, 17, WithTexts(EVT_INF_ENV_ETHERNET_SWITCH_FAULT{kBlades, 0, 1, {}}, {""}), 3},
        {"power feed", 34, 18, WithTexts(EVT_INF_ENV_INPUT_PWR_SENSE_ERR{kBlades, 0, {}}, {""}), 3},
        {"zone inserted", 34, 19, WithTexts(EVT_INF_ENV_BLADE_INS_REM_2{kBlades, 2, 0, {}}, {""}), 4},
        {"zone removed", 34, 20, WithTexts(EVT_INF_ENV_BLADE_INS_REM_2{kBlades, 2, 0, {}}, {""}), 4},
        {"side of a component", 34, 20, WithTexts(EVT_INF_ENV_BLADE_INS_REM_2{kBlades, 0, kZoneNetworkSlot, {}}, {""}), 3},
        {"faulty part", 34, 24, plain(EVT_INF_ENV_CHASSIS_ERR{kBlades, 0, 1, 2}), 3},
        {"faulty device", 34, 24, plain(EVT_INF_ENV_CHASSIS_ERR{kBlades, 1, 0, 2}), 4},
        {"infrastructure fault", 34, 24, plain(EVT_INF_ENV_CHASSIS_ERR{kBlades, 1, 2, 0}), 5},
    };
    // clang-format on
    return rows;
}

// Returns the texts for all values of the byte. Each line contains a range of values that have the same text.
std::string TextsByValue(SelectorByte row) {
    std::string listing = "[" + std::string(row.name) + "]\n";
    std::string run;
    int first = 0;
    for (int value = 0; value <= 256; ++value) {
        std::string text;
        if (value < 256) {
            row.payload[row.offset] = static_cast<char>(value);
            text = Translate(row.event_class, row.code, row.payload).text;
        }
        if (value > 0 && text != run) {
            listing += std::to_string(first);
            if (first != value - 1) listing += "-" + std::to_string(value - 1);
            listing += ": " + run + "\n";
            first = value;
        }
        run = text;
    }
    return listing;
}

TEST(EveryEvent, PrintsEachValueOfASelectorByteAsInTheGoldenFile) {
    std::string listing;
    for (const SelectorByte& row : SelectorBytes()) listing += TextsByValue(row);
    ExpectGolden("eventstr/every_value.txt", listing);
}

}  // namespace
