#include <gtest/gtest.h>

#include <string>

#include "tests/support/test_machine.h"

namespace {

struct HelpCase {
    const char* catches;
    const char* command;
    std::string said;
};
const std::string kRootHelp =
    "\n\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command.";
// clang-format off
const HelpCase kHelp[] = {
    {"the first command on a line of its own", "?", "\n?  CLEAR  DISABLE  ENABLE  EXIT  HELP  QUIT  SET  SHOW "},
    {"TREE taken for a command's name",      "HELP TREE X",         kRootHelp},
    {"the way begun at HELP",                "help set serial",     "\nUSAGE: SET SERIAL [ BIOS | EMBEDDED | VIRTUAL ]"},
    {"a word behind a leaf leading astray",  "HELP SHOW FANS SHOW", "\nUSAGE: SHOW FANS: Shows info on installed fans."},
    {"no way back to the nearest node",      "HELP CLEAR BOGUS",    "\nUSAGE: CLEAR [ HLOG ]"},
    {"a usage that ends at the wrong colon", "SET UID",             "\n\t SET UID OFF\n\t SET UID ON"},
};
// clang-format on

TEST(Help, SaysWhatTheTreeKnows) {
    std::string commands;
    for (const HelpCase& c : kHelp) commands += std::string(c.command) + ";";
    const TestMachine machine("tr500k2");
    const RunResult run = machine.Script(commands + "SHOW;help tree");
    size_t at = 0;
    for (const HelpCase& c : kHelp) {
        EXPECT_EQ(run.output.substr(at, c.said.size() + 1), c.said + "\n") << c.catches;
        at += c.said.size() + 1;
    }
    EXPECT_NE(run.output.find("\n\t SHOW F1\n\t SHOW FANS\n\t SHOW HLOG\n", at), run.output.npos);
    EXPECT_NE(run.output.find("\n\tF1\n\tFAN | FANS\n\tHLOG\n", at), run.output.npos);
    EXPECT_NE(run.output.find("\n\tSERIAL\n\t\tBIOS\n\t\tEMBEDDED\n\t\tVIRTUAL\n\tSERVER\n", at),
              run.output.npos);
    EXPECT_EQ(run.status, 1);  // of HELP TREE
    EXPECT_EQ(machine.Script("HELP").status, 0);
}

}  // namespace
