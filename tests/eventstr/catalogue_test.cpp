// What the compiler refuses in a catalogue. The rules are asked here of rows that would not compile in one.

#include <gtest/gtest.h>

#include "cli/eventstr/catalogue.h"
#include "include/event_payloads.h"

namespace {

using namespace eventstr;

constexpr Argument kFan = Field<&EVT_MACH_FAN_FAIL::bFanId, Byte2Str>;
constexpr Argument kDoor = Field<&EVT_MACH_DOOR_OPEN::bDoorId, Byte2Str>;
constexpr Condition kSlot = Is<&EVT_EISA_BUS::bSlot>(1);  // of a record without a chassis

TEST(Catalogue, RefusesAnEventsRow) {
    const auto row = [](const char* text, Argument first, Argument second = {}, Condition when = {}) {
        return BrokenBy(EventRow{1, {{}, when}, text, {first, second}});
    };
    EXPECT_EQ(row("Fan %s on %s", kFan, kChassisNumber, kServerItself), Rule::None);
    EXPECT_EQ(row("Fan %d", kFan), Rule::MarksOnly);
    EXPECT_EQ(row("Fan %C", kFan), Rule::MarksOnly);
    EXPECT_EQ(row("Fan", kFan), Rule::OneMarkAnArgument);
    EXPECT_EQ(row("Fan %s %s", kFan, kDoor), Rule::OneRecord);
    EXPECT_EQ(row("Fan %s", kFan, {}, kSlot), Rule::OneRecord);
    EXPECT_EQ(row("Fan %s", kChassisNumber, {}, kSlot), Rule::OneRecord);
}

TEST(Catalogue, RefusesAChassisEventsRow) {
    const auto row = [](const char* server, const char* external, const char* blades,
                        Argument argument = kFan) {
        const ChassisName name = Named<&EVT_MACH_FAN_FAIL::cChassisName>;
        return BrokenBy(ChassisEventRow{1, 0, name, {server, external, "", "", blades}, {argument}});
    };
    EXPECT_EQ(row("Fan", "External Chassis (%C)", "Server Blade Enclosure %s"), Rule::None);
    EXPECT_EQ(row("Fan %s", "External Chassis %s (%C)", ""), Rule::None);
    EXPECT_EQ(row("Fan %d", "", ""), Rule::MarksOnly);
    EXPECT_EQ(row("", "Internal Chassis %s (%C)", ""), Rule::FormsInOrder);
    EXPECT_EQ(row("Fan %s (%C)", "", ""), Rule::ChassisNamed);
    EXPECT_EQ(row("", "External Chassis %s", ""), Rule::ChassisNamed);
    EXPECT_EQ(row("", "", "Server Blade Enclosure %s (%C, %C)"), Rule::ChassisNamed);
    EXPECT_EQ(row("Fan", "External Chassis %s (%C)", ""), Rule::SameArguments);
    EXPECT_EQ(row("Fan %s", "", "Server Blade Enclosure (%C)"), Rule::SameArguments);
    EXPECT_EQ(row("Fan", "", ""), Rule::OneMarkAnArgument);
    EXPECT_EQ(row("Door %s", "", "", kDoor), Rule::OneRecord);
}

TEST(Catalogue, RefusesRowsThatDontGoTogether) {
    const EventRow descend[] = {{2, {}, "a", {}}, {1, {}, "b", {}}};
    const EventRow hidden[] = {{1, {kSlot}, "a", {}}, {1, {}, "b", {}}, {1, {kSlot}, "c", {}}};
    const ChassisEventRow with_extra[] = {{1, 2, {}, {}, {}}, {3, 4, {}, {}, {}}};
    const ChassisEventRow twice[] = {{1, 2, {}, {}, {}}, {3, 3, {}, {}, {}}};
    const EventRow same[] = {{4, {}, "a", {}}}, other[] = {{5, {}, "a", {}}};
    EXPECT_EQ(FirstRefusal(descend).rule, Rule::CodesAscend);
    EXPECT_EQ(FirstRefusal(hidden).rule, Rule::InReach);
    EXPECT_EQ(FirstRefusal(hidden).row, 2u);
    EXPECT_EQ(FirstRefusal(with_extra, same).rule, Rule::CodesApart);
    EXPECT_EQ(FirstRefusal(with_extra, other).rule, Rule::None);
    EXPECT_EQ(FirstRefusal(twice, other).rule, Rule::CodesApart);
}

}  // namespace
