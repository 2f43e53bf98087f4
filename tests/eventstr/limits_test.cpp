// Tests how fields of events are printed at the limits of their ranges, and that codes without an event have
// no text.

#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <map>
#include <set>

#include "src/utils/text.h"
#include "tests/eventstr/translate.h"
#include "tests/support/golden.h"
#include "tests/support/test_machine.h"

namespace {

constexpr EVT_CHASSIS kServer = {1, 0, 0};
constexpr EVT_CHASSIS kBlades = {4, 0x01, 0x2F};
constexpr EVT_CHASSIS kNowhere = {4, 0xFF, 0xFF};
constexpr uint8_t kUnknown = 255;

struct Case {
    const char* catches;
    uint16_t event_class, code;
    std::string payload;
};
using Cases = std::vector<Case>;

// clang-format off
Cases NumbersAtTheirLimits() {
    const auto fan = [](uint8_t number) { return WithTexts(EVT_MACH_FAN_FAIL{kServer, number, kZoneCpu, {}}, {""}); };
    const auto heat = [](uint8_t celsius) { return WithTexts(EVT_MACH_OVERHEAT{kServer, 1, kZoneCpu, celsius, {}}, {""}); };
    const auto bank = [](uint8_t letter) { return MachineBuilder::Plain(EVT_MAIN_MEMORY_SPARE_ENGAGED{1, letter}); };
    const auto added = [](uint32_t size) { return MachineBuilder::Plain(EVT_MAIN_MEMORY_CONFIG_CHG{1, 0, size}); };
    const auto errors = [](uint32_t low, uint32_t high) { return MachineBuilder::Plain(EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA{low, high}); };
    const auto firmware = [](uint8_t major, uint8_t minor) { return WithTexts(EVT_INF_FIRMWARE_MISMATCH{kBlades, 0, 0, major, minor, 0, {}}, {"S"}); };
    const auto voltage = [](uint16_t millivolts) { return WithTexts(EVT_INF_ENV_DC_PWR_PROBLEM{{5, 0, 1}, 0, millivolts, {}}, {"S"}); };
    return {
        {"0 taken for unknown", 2, 2, fan(0)},
        {"a number read as signed", 2, 2, fan(254)},
        {"255 printed", 2, 2, fan(255)},
        {"0 degrees taken for unknown", 2, 1, heat(0)},
        {"a temperature read as signed", 2, 1, heat(254)},
        {"a unit after Unknown", 2, 1, heat(255)},
        {"a letter that isn't ASCII dropped", 3, 11, bank(0x80)},
        {"0xFF printed", 3, 11, bank(0xFF)},
        {"a 0 ending the text", 3, 11, bank(0)},
        {"a size of 0", 3, 7, added(0)},
        {"a size read as signed", 3, 7, added(0xFFFFFFFE)},
        {"an unknown size printed", 3, 7, added(0xFFFFFFFF)},
        {"lower-case hexadecimal digits of a number", 20, 3, errors(0xABCDEF01, 0xFFFFFFFE)},
        {"an unknown error code printed", 20, 3, errors(0xFFFFFFFF, 0)},
        {"an unknown second error code printed", 20, 3, errors(0, 0xFFFFFFFF)},
        {"an unknown error code of a bus printed", 6, 2, std::string(4, '\xFF')},
        {"an unknown bank printed", 3, 12, "\1\xFF"},
        {"high digit first", 34, 25, firmware(1, 0x12)},
        {"a leading 0 dropped", 34, 25, firmware(2, 0x50)},
        {"digits above 9", 34, 25, firmware(255, 0xFA)},
        {"a voltage of one byte, or read as signed", 34, 7, voltage(0xFFFF)},
    };
}

std::string Status(EVT_CHASSIS chassis, const std::string& name) {
    return WithTexts(EVT_INF_ENV_ENCLOSURE_MGR_STATUS{chassis, {}}, {name});
}

Cases ChassisNames() {
    const auto removed = [](EVT_CHASSIS chassis, const std::string& name) {
        return WithTexts(EVT_MACH_FAN_REMOVED{chassis, 1, kZoneCpu, {}}, {name});
    };
    return {
        {"the number instead of the name, or a name truncated or normalised", 2, 4, removed({1, 9, 0}, " RACK  7 of the north hall")},
        {"a name of one space taken for an empty one", 2, 4, removed({1, 9, 0}, " ")},
        {"255 printed without a name", 2, 4, removed({1, kUnknown, 0}, "")},
        {"a prefix without a name", 2, 4, removed({2, kUnknown, 0}, "")},
        {"a name taken as a format", 2, 4, removed({1, 9, 0}, "%s%n%d")},
        {"255 read as unknown", 34, 14, Status(kNowhere, "")},
        {"16 characters truncated, or 17 printed", 34, 14, Status(kBlades, "0123456789ABCDEFG")},
    };
}

std::string RomDiag(uint8_t board, bool not_isolated, bool reserved_bits) {
    EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG record = {board, 255, 2, {}, {}};
    record.flags.bNotIsolated = not_isolated ? 1 : 0;
    record.flags.bReserved = reserved_bits ? 127 : 0;
    return WithTexts(record, {""});
}

Cases PackedBytes() {
    const auto fuse = [](uint8_t zone, uint8_t type) { return WithTexts(EVT_INF_ENV_FUSE_OPEN{kBlades, zone, type, {}}, {"S"}); };
    const auto rack = [](uint8_t type) { return WithTexts(EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG{kBlades, type, {}}, {"S"}); };
    return {
        {"a fuse from a higher bit", 34, 3, fuse(0xE2, kZoneBladeSlot)},
        {"255 read as unknown", 34, 3, fuse(0xFF, kZoneBladeSlot)},
        {"the fuse taken into the side", 34, 3, fuse(0x12, kZoneNetworkSlot)},
        {"a side above 2", 34, 3, fuse(0x08, kZoneNetworkSlot)},
        {"lower-case hexadecimal digits", 34, 11, rack(0xAB)},
        {"255 read as unknown", 34, 11, rack(0xFF)},
        {"board 0 named, or module 255 read as unknown", 3, 18, RomDiag(0, false, false)},
        {"board 255 read as unknown", 3, 18, RomDiag(255, false, false)},
        {"the flag from a reserved bit", 3, 18, RomDiag(0, false, true)},
        {"the flag missed if reserved bits are set", 3, 18, RomDiag(0, true, true)},
    };
}

Cases SasEnclosures() {
    const auto link = [](EVT_CHASSIS chassis, char first, char second, const char* name, const char* location) {
        return WithTexts(EVT_SAS_ARRAY_PHY_ERROR{chassis, {first, second}, 3, 255, 0, {}}, {name, location});
    };
    return {
        {"a long name and location truncated", 19, 8, link({3, 2, 0}, '1', 'A', "ENC 1 of the north hall", "Shelf  1 at the right")},
        {"the box read as a third letter", 19, 8, link({4, 1, 0}, 'x', 'y', "", "")},
        {"a 0 in the port ending the text", 19, 8, link({4, 1, 0}, '1', 0, "", "")},
        {"a letter after the 0", 19, 8, link({4, 1, 0}, 0, 'A', "", "")},
    };
}

Cases WhiteSpaceAndSerialNumbers() {
    const auto post = [](const std::string& message) { return WithTexts(EVT_POST_MESSAGE{7, {}}, {message}); };
    const auto suspects = [](const std::string& serials) { return WithTexts(EVT_MAIN_MEMORY_MULTI{2, {{3, 1}, {5, 2}, {}, {}}, {}}, {serials}); };
    const std::string long79(79, 'x');
    const std::string note = " a  b\n";
    return {
        {"a kind of white space, or a message truncated before it is normalised", 10, 1, post(std::string(250, ' ') + "\va\fb\rc\nd\te ")},
        {"only white space", 10, 1, post(" \t\r\n")},
        {"letters of other alphabets", 10, 1, post("\xA0x\x85\x1Fy")},
        {"a lockup's text normalised", 13, 2, note},
        {"a kernel panic's", 14, 1, note},
        {"an exception's", 14, 3, '\2' + note},
        {"a flash's", 32, 1, note},
        {"an erasure's", 33, 1, note},
        {"a note's", 33, 2, note},
        {"a serial number not normalised", 3, 3, suspects(" A  1 , B2")},
        {"a missing first", 3, 3, suspects(",S2")},
        {"a missing last", 3, 3, suspects("S1,")},
        {"a serial number of white space only", 3, 3, suspects("  ,S2")},
        {"79 characters truncated", 3, 3, suspects(long79 + ",S2")},
        {"an 80th character", 3, 3, suspects(long79 + "y,S2")},
        {"truncated before white space is normalised", 3, 3, suspects("  " + long79 + "  y")},
        {"a space inside dropped by truncation", 3, 3, suspects(std::string(78, 'x') + "  y")},
    };
}

Cases ExtraTexts() {
    using Texts = std::initializer_list<std::string>;
    const auto nic = [](Texts texts) { return WithTexts(EVT_NIC_ERROR{kServer, 2, {}}, texts); };
    const auto door = [](uint8_t type, Texts texts) { return WithTexts(EVT_MACH_DOOR_OPEN{{type, 0, 0}, 1, 2, {}}, texts); };
    const std::string battery = MachineBuilder::Plain(EVT_BATTERY_LOW{{3, 0, 0}});
    return {
        {"an empty second text added", 17, 6, nic({"N", ""})},
        {"an empty first text skipped, an extra text truncated or normalised", 17, 6, nic({"", " Bay  2\tof the north hall"})},
        {"an extra text to an event that has none", 17, 2, nic({"N", "Bay 2"})},
        {"a third text", 17, 6, nic({"N", "", "Bay 2"})},
        {"an extra text missing after a text without parentheses", 2, 9, door(1, {"N", " Bay  2\tof the north hall"})},
        {"an extra text to a fallback", 2, 9, door(6, {"N", "Bay 2"})},
        {"a battery's second text", 11, 18, battery + std::string(" a  b\tof the north hall\0c\0", 26)},
        {"a battery's text where it has none", 11, 2, battery + "a"},
        {"a battery without a text", 11, 18, battery},
        {"an empty note taken for a text", 33, 2, std::string(1, '\0')},
        {"no note taken for a text", 33, 2, ""},
        {"no text of an erasure taken for none", 33, 1, ""},
    };
}
// clang-format on

// Returns `text` with each byte that isn't printable ASCII replaced by an escape such as "\x1f".
std::string Shown(const std::string& text) {
    std::string shown;
    for (const char letter : text) {
        shown += letter >= ' ' && letter <= '~' ? std::string{letter} : "\\x" + Hexadecimal({letter});
    }
    return shown;
}

// limits.txt contains the text of each case after "1:", or after "0:" if the event is unknown. It was
// reviewed against the meaning of the firmware's events.
TEST(EventFields, MatchTheGoldenFileAtTheirLimits) {
    std::string listing;
    for (const Cases& cases : {NumbersAtTheirLimits(), ChassisNames(), PackedBytes(), SasEnclosures(),
                               WhiteSpaceAndSerialNumbers(), ExtraTexts()}) {
        for (const Case& c : cases) {
            const Translation event = Translate(c.event_class, c.code, c.payload);
            listing +=
                std::string(c.catches) + "\n    " + (event.known ? "1: " : "0: ") + Shown(event.text) + "\n";
        }
    }
    ExpectGolden("eventstr/limits.txt", listing);
}

// A byte of 255 is printed as "Unknown", except in the events of this table. A row contains the class, the
// code, and how many of the payload's bytes are printed as 255.
TEST(EventFields, PrintUnknownFor255ExceptInTheseEvents) {
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

// A name that begins with anything but an ASCII letter or digit isn't a serial number.
TEST(EventFields, PrintASerialNumberIfItBeginsWithALetterOrDigit) {
    for (int first = 1; first < 256; ++first) {
        const std::string name = static_cast<char>(first) + std::string("23456789ABCDEFG");  // the maximum
        const bool is_serial = first < 128 && std::isalnum(first) != 0;
        EXPECT_EQ(Translate(34, 14, Status(kBlades, name)).text,
                  "Server Blade Enclosure Status Change (Enclosure " +
                      (is_serial ? "Serial Number " + name : "Address 012F") + ")")
            << first;
    }
}

// The text of these events doesn't depend on the chassis type, except for the type that some texts begin
// with.
TEST(EventFields, DontDependOnTheChassisTypeInTheseEvents) {
    const auto without_type = [](const std::string& text) {
        for (const char* type : {"Server Blade Enclosure", "Power Enclosure", "External", "Internal"}) {
            if (StartsWith(text, type)) return text.substr(std::strlen(type));
        }
        return text;
    };
    const struct {
        int event_class, first_code, last_code;
    } ranges[] = {{2, 7, 7},    {2, 11, 12}, {8, 1, 1},  {9, 1, 9},  {11, 2, 2}, {11, 18, 18},
                  {11, 20, 20}, {14, 5, 5},  {17, 1, 7}, {18, 1, 3}, {19, 1, 8}, {34, 1, 25}};
    for (const SampleEvent& event : EveryEvent()) {
        for (const auto& [event_class, first_code, last_code] : ranges) {
            if (event.event_class != event_class || event.code < first_code || event.code > last_code)
                continue;
            std::set<std::string> texts;
            std::string payload = event.payload;
            for (int type = 0; type < 256; ++type) {
                payload[0] = static_cast<char>(type);
                texts.insert(without_type(Translate(event.event_class, event.code, payload).text));
            }
            EXPECT_EQ(texts.size(), 1u) << *texts.begin() << "\n" << *texts.rbegin();
        }
    }
}

// every_event.txt contains all events; every other code is unknown.
TEST(Events, HaveNoTextUnderAnyOtherCode) {
    std::set<std::pair<int, int>> known;
    for (const SampleEvent& event : EveryEvent()) known.insert({event.event_class, event.code});
    // An event of the server itself; all other bytes are 0.
    const std::string payload = '\1' + std::string(9, '\0');
    for (const int event_class : {2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,  14,   15,
                                  16, 17, 18, 19, 20, 21, 31, 32, 33, 34, 35, 258, 65535}) {
        for (const int code : {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,  13,  14,  15,   16,
                               17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 255, 256, 257, 65535}) {
            if (known.count({event_class, code}) != 0) continue;
            const std::string text = "Unknown Event (Class " + std::to_string(event_class) + ", Code " +
                                     std::to_string(code) + ")";
            EXPECT_EQ(Translate(static_cast<uint16_t>(event_class), static_cast<uint16_t>(code), payload),
                      (Translation{text, false}));
        }
    }
    EXPECT_EQ(Translate(0, 7, ""), (Translation{"Empty", true}));
    EXPECT_EQ(Translate(1, 65535, ""), (Translation{"Reserved", true}));
}

}  // namespace
