// The unit identification light, switched in one run and looked at in the next.

#include <gtest/gtest.h>

#include "include/indicator_records.h"
#include "tests/support/test_machine.h"

namespace {

constexpr char kControlFile[] = "cdt/1503.0.0";

TEST(SetUid, StaysSetForTheNextRun) {
    TestMachine machine("tr300");
    const std::string at_first = machine.Read(kControlFile);
    EXPECT_EQ(machine.Script("SHOW UID").output, "\nUID is currently on.\n\n");

    machine.StartTrace();
    const RunResult off = machine.Script("SET UID OFF");
    EXPECT_EQ(off.output, "\nUID is now off.\n\n");
    EXPECT_EQ(off.status, 0);
    EXPECT_EQ(machine.Script("SHOW UID").output, "\nUID is currently off.\n\n");
    EXPECT_EQ(machine.Script("SET UID ON").output, "\nUID is now on.\n\n");
    EXPECT_EQ(machine.Script("SHOW UID").output, "\nUID is currently on.\n\n");
    EXPECT_EQ(machine.TakeTrace("cdt "),
              "cdt 1500.0.0 size=3 cru=0.0 -> 0\n"
              "cdt 1503.0.0 size=5 cru=1.2 -> 0\n"
              "cdt 1503.0.0 size=5 cru=1.4 -> 0\n"
              "cdt 1500.0.0 size=3 cru=0.0 -> 0\n"
              "cdt 1503.0.0 size=5 cru=1.1 -> 0\n"
              "cdt 1503.0.0 size=5 cru=1.4 -> 0\n");
    EXPECT_EQ(machine.Read(kControlFile), at_first);
}

}  // namespace
