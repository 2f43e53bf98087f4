#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/test_machine.h"

namespace {

constexpr char kRootHelp[] =
    "\n\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command.";
constexpr char kPortHelp[] =
    "\nUSAGE: SET SERIAL EMBEDDED PORTA [ COM1 | COM2 | COM3 | COM4 | DISABLED ]: Sets the embedded serial "
    "port A to COM1, COM2, COM3, COM4 or DISABLED.";

struct HelpCase {
    const char* catches;
    const char* command;
    std::string said;
    int status;
};
const HelpCase kHelp[] = {
    {"the first token on a line of its own", "?", "\n?  CLEAR  DISABLE  ENABLE  EXIT  HELP  QUIT  SET  SHOW ",
     0},
    {"TREE taken for a command's name", "HELP TREE X", kRootHelp, 0},
    {"words of the line taken from HELP on", "help set serial embedded porta", kPortHelp, 0},
    {"a word behind a leaf leading astray", "HELP SHOW FANS SHOW",
     "\nUSAGE: SHOW FANS: Shows info on installed fans.", 0},
    {"no way back to the nearest node", "HELP CLEAR BOGUS", "\nUSAGE: CLEAR [ HLOG ]", 0},
    {"a usage that ends at the wrong colon", "SET BOOT",
     "\n\t SET BOOT FIRST [ CDROM | FLOPPY | HDD | PXE | USBKEY ]\n\t SET BOOT ONCE [ CDROM | FLOPPY | HDD | "
     "PXE | KONF ]",
     1},
    {"a text without a second colon", "CLEAR", "\n\t CLEAR HLOG", 1},
    {"further words passed over", "CLEAR BOGUS", "\nInvalid Arguments\n\t CLEAR HLOG", 1},
};

TEST(Help, SaysWhatTheTreeKnows) {
    const TestMachine machine("tr500k2");
    for (const HelpCase& c : kHelp) {
        const RunResult run = machine.Script(c.command);
        EXPECT_EQ(run.output, c.said + "\n\n") << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
    }
}

TEST(Help, ListsEachCommandOnceUnderOneOfItsNames) {
    const TestMachine machine("tr500k2");
    const std::string usage = machine.Script("SHOW").output;
    EXPECT_EQ(std::count(usage.begin(), usage.end(), '\t'), 20);
    EXPECT_NE(usage.find("\n\t SHOW F1\n\t SHOW FANS\n\t SHOW HLOG\n"), usage.npos);

    const RunResult tree = machine.Script("help tree");
    EXPECT_NE(tree.output.find("\tF1\n\tFAN | FANS\n\tHLOG\n"), tree.output.npos);
    EXPECT_EQ(tree.status, 1);
}

}  // namespace
