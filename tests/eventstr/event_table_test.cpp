// Tests of the constraints on the event tables. A constant table that violates a constraint doesn't compile.
// So these tests build rows at run time, where the functions throw an exception or return the violation.

#include <gtest/gtest.h>

#include "cli/eventstr/event_table.h"
#include "include/event_payloads.h"

namespace {

using namespace eventstr;

constexpr auto kFan = Field<&EVT_MACH_FAN_FAIL::bFanId, Byte2Str>;
constexpr auto kSlotIs1 = Is<&EVT_EISA_BUS::bSlot>(1);

// Returns the first words of the constraint that the row violates, or "" if it violates none.
template <typename Build>
std::string Violation(Build build) {
    try {
        build();
    } catch (const std::logic_error& violation) {
        return std::string(violation.what()).substr(0, 15);
    }
    return "";
}

TEST(EventRow, RejectsATextThatDoesntMatchItsArguments) {
    const auto row = [](const char* text) {
        return Violation([=] { Row(1, When(kServerItself), text, kFan, kChassisNumber); });
    };
    EXPECT_EQ(row("Fan %s on %s"), "");
    EXPECT_EQ(row("Fan %s"), "a text has one ");
    EXPECT_EQ(row("Fan %s on %s %d"), "a text contains");
    EXPECT_EQ(row("Fan %s on %s %d %C"), "a text contains");
}

TEST(ChassisEventRow, RejectsATextForAnotherChassis) {
    const auto row = [](const char* server, const char* external, const char* blades) {
        return Violation([=] {
            ChassisRow<EVT_MACH_FAN_FAIL>(1, 0, {server, external, "", "", blades}, kFan);
        });
    };
    EXPECT_EQ(row("Fan %s", "External Chassis %s (%C)", "Server Blade Enclosure %s"), "");
    EXPECT_EQ(row("Fan %s", "External Chassis (%C)", ""), "a text has one ");
    EXPECT_EQ(row("", "Internal Chassis %s (%C)", ""), "a text begins w");
    EXPECT_EQ(row("Fan %s (%d)", "", ""), "a text contains");
    EXPECT_EQ(row("Fan %s (%C)", "", ""), "%C is in the te");
    EXPECT_EQ(row("", "External Chassis %s", ""), "%C is in the te");
}

TEST(EventTable, RejectsRowsThatCantBeReached) {
    const EventRow descending[] = {Row(2, "a"), Row(1, "b")};
    const EventRow hidden[] = {Row(1, When(kSlotIs1), "a"), Row(1, "b"), Row(1, When(kSlotIs1), "c")};
    const EventRow reachable[] = {Row(1, When(kSlotIs1), "a"), Row(1, "b"), Row(2, When(kSlotIs1), "c")};
    const ChassisEventRow same_form[] = {{1, 0, {}, {}, {"a"}, {}}, {1, 0, {}, {}, {"b", "c"}, {}}};
    const ChassisEventRow two_forms[] = {{1, 0, {}, {}, {"a"}, {}}, {1, 0, {}, {}, {"", "c"}, {}}};
    EXPECT_EQ(FirstMisplaced(descending), 1);
    EXPECT_EQ(FirstMisplaced(hidden), 1);
    EXPECT_EQ(FirstMisplaced(reachable), kNone);
    EXPECT_EQ(FirstMisplaced(same_form), 1);
    EXPECT_EQ(FirstMisplaced(two_forms), kNone);
}

TEST(EventTable, RejectsACodeOfTwoEvents) {
    const ChassisEventRow chassis[] = {
        {1, 2, {}, {}, {}, {}}, {3, 4, {}, {}, {}, {}}, {3, 4, {}, {}, {}, {}}};
    const ChassisEventRow taken[] = {{1, 3, {}, {}, {}, {}}, {3, 0, {}, {}, {}, {}}};
    const ChassisEventRow shared[] = {{1, 4, {}, {}, {}, {}}, {3, 4, {}, {}, {}, {}}};
    const EventRow same[] = {Row(3, "a")}, extra[] = {Row(4, "a")}, other[] = {Row(5, "a")};
    EXPECT_EQ(FirstCollision(chassis, same), 3);
    EXPECT_EQ(FirstCollision(chassis, extra), 4);
    EXPECT_EQ(FirstCollision(chassis, other), kNone);
    EXPECT_EQ(FirstCollision(chassis, chassis), kNone);
    EXPECT_EQ(FirstCollision(taken, taken), 3);
    EXPECT_EQ(FirstCollision(shared, shared), 3);
}

}  // namespace
