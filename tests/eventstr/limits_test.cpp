// How the fields of events print at their limits, and what has no text.

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>

#include "tests/eventstr/translate.h"

namespace {

constexpr EVT_CHASSIS kServer = {1, 0, 0};
constexpr EVT_CHASSIS kBlades = {4, 0x01, 0x2F};
constexpr EVT_CHASSIS kNowhere = {4, 0xFF, 0xFF};
constexpr uint8_t kUnknown = 255;

struct TextCase {
    const char* catches;
    uint16_t event_class, code;
    std::string payload;
    std::string text;
};

void ExpectTexts(const std::vector<TextCase>& cases) {
    for (const TextCase& c : cases) {
        EXPECT_EQ(Translate(c.event_class, c.code, c.payload), (Translation{c.text, true})) << c.catches;
    }
}

TEST(EventFields, NumbersAtTheirLimits) {
    const auto fan = [](uint8_t number) {
        return WithTexts(EVT_MACH_FAN_FAIL{kServer, number, kZoneCpu, {}}, {""});
    };
    const auto heat = [](uint8_t temperature) {
        return WithTexts(EVT_MACH_OVERHEAT{kServer, 1, kZoneCpu, temperature, {}}, {""});
    };
    const auto bank = [](uint8_t letter) {
        return MachineBuilder::Plain(EVT_MAIN_MEMORY_SPARE_ENGAGED{1, letter});
    };
    const auto added = [](uint32_t size) {
        return MachineBuilder::Plain(EVT_MAIN_MEMORY_CONFIG_CHG{1, 0, size});
    };
    const auto errors = [](uint32_t low, uint32_t high) {
        return MachineBuilder::Plain(EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA{low, high});
    };
    const auto firmware = [](uint8_t major, uint8_t minor) {
        return WithTexts(EVT_INF_FIRMWARE_MISMATCH{kBlades, 0, 0, major, minor, 0, {}}, {"S"});
    };
    const auto voltage = [](uint16_t millivolts) {
        return WithTexts(EVT_INF_ENV_DC_PWR_PROBLEM{{5, 0, 1}, 0, millivolts, {}}, {"S"});
    };
    const std::string spare = "Online Spare Memory Copy Process Started for Faulty Module (Slot 1, Bank ";
    const std::string error = "An Unrecoverable System Error has occurred (Error code ";
    const std::string needs = "Chassis Enclosure Serial Number S requires minimum firmware revision ";
    const std::string dc =
        "Power Enclosure DC Power Out Of Tolerance (Enclosure Serial Number S, Power Bus A, ";
    ExpectTexts({
        {"0 taken for unknown", 2, 2, fan(0), "Fan Failure (Fan 0, Location CPU)"},
        {"a number read as signed", 2, 2, fan(254), "Fan Failure (Fan 254, Location CPU)"},
        {"255 printed", 2, 2, fan(255), "Fan Failure (Fan Unknown, Location CPU)"},
        {"0 degrees taken for unknown", 2, 1, heat(0),
         "System Overheating (Zone 1, Location CPU, Temperature 0C)"},
        {"a temperature read as signed", 2, 1, heat(254),
         "System Overheating (Zone 1, Location CPU, Temperature 254C)"},
        {"a unit behind Unknown", 2, 1, heat(255),
         "System Overheating (Zone 1, Location CPU, Temperature Unknown)"},
        {"a letter that isn't ASCII dropped", 3, 11, bank(0x80), spare + "\x80)"},
        {"0xFF printed", 3, 11, bank(0xFF), spare + "Unknown)"},
        {"a 0 ending the text", 3, 11, bank(0), spare + ")"},
        {"a size of 0", 3, 7, added(0), "Memory Added (Size 0 MB)"},
        {"a size read as signed", 3, 7, added(0xFFFFFFFE), "Memory Added (Size 4294967294 MB)"},
        {"an unknown size printed", 3, 7, added(0xFFFFFFFF), "Memory Added (Size Unknown MB)"},
        {"small letters", 20, 3, errors(0xABCDEF01, 0xFFFFFFFE), error + "0xABCDEF01, 0xFFFFFFFE)"},
        {"an unknown error code printed", 20, 3, errors(0xFFFFFFFF, 0), error + "Unknown, 0x00000000)"},
        {"the other one", 20, 3, errors(0, 0xFFFFFFFF), error + "0x00000000, Unknown)"},
        {"high digit first", 34, 25, firmware(1, 0x12), needs + "1.21. It is currently 0.00."},
        {"a leading 0 dropped", 34, 25, firmware(2, 0x50), needs + "2.05. It is currently 0.00."},
        {"digits above 9", 34, 25, firmware(255, 0xFA), needs + "Unknown.:?. It is currently 0.00."},
        {"a voltage of one byte, or read as signed", 34, 7, voltage(0xFFFF), dc + "65535 mV)"},
    });
}

// 255 prints as Unknown wherever a byte is a number, but in these events, of which it counts the bytes.
TEST(EventFields, OnlyTheseShowANumberOf255) {
    const std::map<std::pair<int, int>, int> shown = {
        {{2, 11}, 2}, {{2, 12}, 2}, {{3, 18}, 2}, {{11, 20}, 2}, {{19, 7}, 2}, {{19, 8}, 3},
    };
    for (const SampleEvent& event : EveryEvent()) {
        int bytes = 0;
        for (size_t i = 0; i < event.payload.size(); ++i) {
            std::string payload = event.payload;
            payload[i] = '\xFF';
            bytes += Translate(event.event_class, event.code, payload).text.find("255") != std::string::npos;
        }
        const auto row = shown.find({event.event_class, event.code});
        EXPECT_EQ(bytes, row != shown.end() ? row->second : 0) << event.event_class << "/" << event.code;
    }
}

std::string Status(EVT_CHASSIS chassis, const std::string& name) {
    return WithTexts(EVT_INF_ENV_ENCLOSURE_MGR_STATUS{chassis, {}}, {name});
}

TEST(EventFields, ChassisNames) {
    const auto removed = [](EVT_CHASSIS chassis, const std::string& name) {
        return WithTexts(EVT_MACH_FAN_REMOVED{chassis, 1, kZoneCpu, {}}, {name});
    };
    const std::string status = "Server Blade Enclosure Status Change (Enclosure ";
    ExpectTexts({
        {"a number in place of the name, or a name cut or normalised", 2, 4,
         removed({1, 9, 0}, " RACK  7 of the north hall"),
         "External Chassis Fan Removed (Chassis  RACK  7 of the north hall, Fan 1, Location CPU)"},
        {"a blank name taken for none", 2, 4, removed({1, 9, 0}, " "),
         "External Chassis Fan Removed (Chassis  , Fan 1, Location CPU)"},
        {"255 printed for want of a name", 2, 4, removed({1, kUnknown, 0}, ""),
         "External Chassis Fan Removed (Chassis Unknown, Fan 1, Location CPU)"},
        {"a prefix without a name", 2, 4, removed({2, kUnknown, 0}, ""),
         "External Storage System Fan Removed (Slot Unknown, Fan 1, Location CPU)"},
        {"a name taken as a format", 2, 4, removed({1, 9, 0}, "%s%n%d"),
         "External Chassis Fan Removed (Chassis %s%n%d, Fan 1, Location CPU)"},
        {"255 read as unknown", 34, 14, Status(kNowhere, ""), status + "Address FFFF)"},
        {"16 characters cut, or 17 shown", 34, 14, Status(kBlades, "0123456789ABCDEFG"),
         status + "Serial Number 0123456789ABCDEF)"},
    });
}

// A serial number begins with a letter or a digit; what doesn't is none.
TEST(EventFields, SerialNumbersAreToldByTheirFirstCharacter) {
    for (int first = 1; first < 256; ++first) {
        const std::string name = static_cast<char>(first) + std::string("1");
        const bool is_serial = first < 128 && std::isalnum(first) != 0;
        EXPECT_EQ(Translate(34, 14, Status(kBlades, name)).text,
                  "Server Blade Enclosure Status Change (Enclosure " +
                      (is_serial ? "Serial Number " + name : "Address 012F") + ")")
            << first;
    }
}

std::string RomDiag(uint8_t board, bool not_isolated, bool reserved_bits) {
    EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG record = {board, 255, 2, {}, {}};
    record.flags.bNotIsolated = not_isolated ? 1 : 0;
    record.flags.bReserved = reserved_bits ? 127 : 0;
    return WithTexts(record, {""});
}

TEST(EventFields, PackedBytes) {
    const auto fuse = [](uint8_t zone, uint8_t type) {
        return WithTexts(EVT_INF_ENV_FUSE_OPEN{kBlades, zone, type, {}}, {"S"});
    };
    const auto rack_change = [](uint8_t type) {
        return WithTexts(EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG{kBlades, type, {}}, {"S"});
    };
    const std::string blade =
        "Server Blade Enclosure Blade Fuse or Breaker Tripped (Enclosure Serial Number S, Slot ";
    const std::string part =
        "Server Blade Enclosure Network Component Fuse or Breaker Tripped (Enclosure Serial Number S, ";
    const std::string rack =
        "Server Blade Enclosure Rack Infrastructure Changed (Enclosure Serial Number S, Type 0x";
    const std::string memory = "Uncorrectable Memory Error detected by ROM-based memory validation ";
    ExpectTexts({
        {"a fuse from a higher bit", 34, 3, fuse(0xE2, kZoneBladeSlot), blade + "2, Fuse A)"},
        {"255 read as unknown", 34, 3, fuse(0xFF, kZoneBladeSlot), blade + "15, Fuse B)"},
        {"the fuse taken into the side", 34, 3, fuse(0x12, kZoneNetworkSlot), part + "Right Side, Fuse B)"},
        {"small hexadecimal letters", 34, 11, rack_change(0xAB), rack + "AB)"},
        {"255 read as unknown", 34, 11, rack_change(0xFF), rack + "FF)"},
        {"board 0 named, or module 255 read as unknown", 3, 18, RomDiag(0, false, false),
         memory + "(Memory Module 255)"},
        {"board 255 read as unknown", 3, 18, RomDiag(255, false, false),
         memory + "(Board 255, Memory Module 255)"},
        {"the flag from a reserved bit", 3, 18, RomDiag(0, false, true), memory + "(Memory Module 255)"},
        {"the flag missed beside reserved bits", 3, 18, RomDiag(0, true, true),
         memory + "(unable to isolate to single module) (Memory Module 255)"},
    });
}

TEST(EventFields, SasEnclosures) {
    const auto link = [](EVT_CHASSIS chassis, uint8_t first, uint8_t second, const char* name,
                         const char* location) {
        return WithTexts(EVT_SAS_ARRAY_PHY_ERROR{chassis, {first, second}, 3, 255, 0, {}}, {name, location});
    };
    const std::string phy = " SAS Enclosure PHY Link Error (PHY 0, Expander 255, Box 3, Port ";
    ExpectTexts({
        {"a long name and location cut", 19, 8,
         link({3, 2, 0}, '1', 'A', "ENC 1 of the north hall", "Shelf  1 at the right"),
         "Internal" + phy + "1A, Chassis ENC 1 of the north hall, Shelf  1 at the right)"},
        {"the box read as a third letter", 19, 8, link({4, 1, 0}, 'x', 'y', "", ""), phy + "xy, Slot 1)"},
        {"a 0 in the port ending the text", 19, 8, link({4, 1, 0}, '1', 0, "", ""), phy + "1, Slot 1)"},
        {"a letter behind the 0", 19, 8, link({4, 1, 0}, 0, 'A', "", ""), phy + ", Slot 1)"},
    });
}

TEST(EventFields, WhiteSpaceAndSerialNumbers) {
    const auto post = [](const std::string& message) {
        return WithTexts(EVT_POST_MESSAGE{7, {}}, {message});
    };
    const auto suspects = [](const std::string& serials) {
        return WithTexts(EVT_MAIN_MEMORY_MULTI{2, {{3, 1}, {5, 2}, {}, {}}, {}}, {serials});
    };
    const std::string first = "Uncorrectable Memory Error (Slot 1, Memory Module 3";
    const std::string second = ") or (Slot 2, Memory Module 5";
    const std::string serial = ", Serial Number ";
    const std::string long79(79, 'x');
    const std::string note = " a  b\n";
    ExpectTexts({
        {"a kind of white space", 10, 1, post("\va\fb\rc\nd\te "), "POST Error: a b c d e"},
        {"only white space", 10, 1, post(" \t\r\n"), "POST Error: "},
        {"letters of other alphabets", 10, 1, post("\xA0x\x85\x1Fy"), "POST Error: \xA0x\x85\x1Fy"},
        {"a lockup's text normalised", 13, 2, note, "ASR Lockup Detected: " + note},
        {"a kernel panic's", 14, 1, note, "Kernel Panic (" + note + ")"},
        {"an exception's", 14, 3, '\2' + note, "Fatal Exception (Number 2, Cause " + note + ")"},
        {"a flash's", 32, 1, note, "ROM flashed (" + note + ")"},
        {"an erasure's", 33, 1, note, "HLOG Cleared (" + note + ")"},
        {"a note's", 33, 2, note, note},
        {"a piece not normalised", 3, 3, suspects(" A  1 , B2"),
         first + serial + "A 1" + second + serial + "B2)"},
        {"a missing first", 3, 3, suspects(",S2"), first + second + serial + "S2)"},
        {"a missing last", 3, 3, suspects("S1,"), first + serial + "S1" + second + ")"},
        {"only white space in a piece", 3, 3, suspects("  ,S2"), first + second + serial + "S2)"},
        {"79 characters cut", 3, 3, suspects(long79 + ",S2"),
         first + serial + long79 + second + serial + "S2)"},
        {"an 80th character", 3, 3, suspects(long79 + "y,S2"),
         first + serial + long79 + second + serial + "S2)"},
        {"a cut before normalising", 3, 3, suspects("  " + long79 + "  y"),
         first + serial + long79 + second + ")"},
        {"a cut that drops a blank inside", 3, 3, suspects(std::string(78, 'x') + "  y"),
         first + serial + std::string(78, 'x') + " " + second + ")"},
    });
}

TEST(EventFields, ExtraTexts) {
    const auto nic = [](std::initializer_list<std::string> texts) {
        return WithTexts(EVT_NIC_ERROR{kServer, 2, {}}, texts);
    };
    const auto door = [](uint8_t type, std::initializer_list<std::string> texts) {
        return WithTexts(EVT_MACH_DOOR_OPEN{{type, 0, 0}, 1, 2, {}}, texts);
    };
    const std::string battery = MachineBuilder::Plain(EVT_BATTERY_LOW{{3, 0, 0}});
    const std::string down = "Network Adapter Link Down (Slot 2, Port 0)";
    ExpectTexts({
        {"an empty second text added", 17, 6, nic({"N", ""}), down},
        {"an empty first text skipped over, an extra text cut or normalised", 17, 6,
         nic({"", " Bay  2\tof the north hall"}), down + ",  Bay  2\tof the north hall"},
        {"an extra text to an event that has none", 17, 2, nic({"N", "Bay 2"}), down},
        {"a third text", 17, 6, nic({"N", "", "Bay 2"}), down},
        {"behind a text without parentheses", 2, 9, door(1, {"N", " Bay  2\tof the north hall"}),
         "Side panel removed or improperly installed,  Bay  2\tof the north hall"},
        {"a battery's second text", 11, 18, battery + std::string(" a  b\tof the north hall\0c\0", 26),
         "Real-Time Clock Battery Failing,  a  b\tof the north hall"},
        {"a battery's text where it has none", 11, 2, battery + "a", "Real-Time Clock Battery Failing"},
        {"a battery without a text", 11, 18, battery, "Real-Time Clock Battery Failing"},
    });
    EXPECT_EQ(Translate(2, 9, door(6, {"N", "Bay 2"})), (Translation{Fallback(2, 9), false}));
}

TEST(Events, AnEmptyNoteHasNoText) {
    EXPECT_EQ(Translate(33, 2, std::string(1, '\0')), (Translation{Fallback(33, 2), false}));
    EXPECT_EQ(Translate(33, 2, ""), (Translation{Fallback(33, 2), false}));
    EXPECT_EQ(Translate(33, 1, ""), (Translation{"HLOG Cleared ()", true}));
}

// Every event that there is has its text in every_event.txt; no other code has one.
TEST(Events, NoOtherCodesAreKnown) {
    std::set<std::pair<int, int>> known;
    for (const SampleEvent& event : EveryEvent()) known.insert({event.event_class, event.code});
    const std::string payload = '\1' + std::string(9, '\0');  // on the server itself, all else 0
    for (const int event_class : {2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,  14,   15,
                                  16, 17, 18, 19, 20, 21, 31, 32, 33, 34, 35, 258, 65535}) {
        for (const int code : {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,  13,  14,  15,   16,
                               17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 255, 256, 257, 65535}) {
            if (known.count({event_class, code}) != 0) continue;
            EXPECT_EQ(Translate(static_cast<uint16_t>(event_class), static_cast<uint16_t>(code), payload),
                      (Translation{Fallback(event_class, code), false}));
        }
    }
    EXPECT_EQ(Translate(0, 7, ""), (Translation{"Empty", true}));
    EXPECT_EQ(Translate(1, 65535, ""), (Translation{"Reserved", true}));
}

}  // namespace
