// Start-up, as far as it depends on what the firmware left.
#include <gtest/gtest.h>

#include <string>

#include "include/bios_area.h"
#include "tests/support/test_machine.h"

namespace {

constexpr char kForeign[] = "ERROR: brantcli only runs on VX hardware.\n\n";

struct SignatureCase {
    const char* catches;
    unsigned int offset;
    const char* bytes;
    bool ours;
};

constexpr SignatureCase kSignatures[] = {
    {"the right one refused", 0xFFEA, "ZETRIX", true},
    {"bytes behind it compared", 0xFFEA, "ZETRIXZETRIX", true},
    {"one byte early", 0xFFE9, "ZETRIX", false},
    {"one byte late", 0xFFEB, "ZETRIX", false},
    {"only its beginning compared", 0xFFEA, "ZETRIY", false},
    {"letter case ignored", 0xFFEA, "zetrix", false},
};

}  // namespace

TEST(RomSignature, DecidesWhetherTheProgramRuns) {
    for (const SignatureCase& c : kSignatures) {
        TestMachine machine;
        machine.PhysicalMemory(kBiosArea, std::string(kBiosAreaSize, '\0'));
        machine.PhysicalMemory(kBiosArea + c.offset, c.bytes);
        const RunResult result = machine.Script("EXIT");
        EXPECT_EQ(result.output, c.ours ? "\n" : kForeign) << c.catches;
        EXPECT_EQ(result.status, c.ours ? 0 : 1) << c.catches;
    }
}

TEST(RomSignature, ThatCannotBeReadIsForeignAndNothingElseIsTouched) {
    struct {
        const char* catches;
        const char* fault;
        const char* trace;
    } constexpr kCases[] = {
        {"no device", "xsvc open -2", "xsvc open -> -1 errno=2\n"},
        {"a device that refuses the range", "xsvc map 0x000f0000 -6",
         "xsvc open -> 0\nxsvc map 0x000f0000 65536 -> -1 errno=6\nxsvc close\n"},
    };
    for (const auto& c : kCases) {
        TestMachine machine;
        machine.Fault(c.fault);
        machine.StartTrace();
        const RunResult result = machine.Script("EXIT");
        EXPECT_EQ(result.output, kForeign) << c.catches;
        EXPECT_EQ(result.errors, "") << c.catches;
        EXPECT_EQ(result.status, 1) << c.catches;
        EXPECT_EQ(machine.TakeTrace(), c.trace) << c.catches;
    }
}
