#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "cli/brantcli/command_table.h"
#include "cli/brantcli/script.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/completion.h"
#include "cli/parse/help.h"
#include "cli/parse/tokenizer.h"
#include "tests/support/expected_run.h"
#include "tests/support/golden.h"

namespace {

int Nothing(InputLineType*) {
    return 0;
}

// A line for each node below a node: its path and its help text.
std::string Listing(const CmdType* parent, const std::string& path) {
    std::string listing;
    for (const CmdType* node = parent->Sub; node != nullptr; node = node->Next) {
        listing += path + node->Token + ": " + node->Help + "\n" + Listing(node, path + node->Token + " ");
    }
    return listing;
}

// Help texts are an interface: a difference here is a changed text.
TEST(CommandTree, HasEveryCommandWithItsHelpText) {
    if (Cmds == nullptr) CreateCommands();
    const std::string shown = TestMachine("tr500k2").Script("HELP TREE;SHOW").output;
    ExpectGolden("parse/help_texts.golden", Listing(Cmds, "") + shown);
}

// Replaces the shell's tree by an empty one until the end of the scope. Nodes are never freed.
struct OwnTree {
    OwnTree() { Cmds = NewCommandNode("", nullptr, "the root's help", nullptr); }
    ~OwnTree() { Cmds = shells; }
    CmdType* const shells = Cmds;
};

// Returns what a function prints when it is called with an array that holds `line`.
template <typename Function>
std::string Printed(Function function, const std::string& line) {
    InputLineType input{};
    line.copy(input.CmdLine, kLineSize - 1);
    Parse(&input);
    testing::internal::CaptureStdout();
    function(input);
    return testing::internal::GetCapturedStdout();
}

TEST(CommandTree, SharesWhatASynonymStandsFor) {
    const OwnTree tree;
    CmdType* show = AppendCmd(Cmds, "SHOW", nullptr, "", nullptr);
    CmdType* fan = AppendCmd(show, "FAN", nullptr, "help", Nothing);
    CmdType* fans = AppendCmd(show, "FANS", fan, "help", Nothing);
    AppendCmd(fan, "ALL", nullptr, "", Nothing);
    AppendCmd(fan, "ANY", nullptr, "", Nothing);
    PropagateSynonyms(Cmds);
    EXPECT_EQ(fans->Sub, fan->Sub);

    const auto list = [](InputLineType& line) { DoubleTabComplete(line.CmdLine); };
    EXPECT_EQ(Printed(list, "show fan a"), "\a\n[ ALL | ANY ]\n");
    EXPECT_EQ(Printed(list, "show fans a"), "\a") << "listed through a synonym";
}

TEST(Help, KeepsToItsLimitsAndToCommandsWithoutAText) {
    const OwnTree tree;
    const std::string a(70, 'A'), b(6, 'B'), d(76, 'D'), usage(250, 'x'), help = "USAGE:" + usage;
    for (const char* token : {b.c_str(), "C", d.c_str(), a.c_str()}) {
        AppendCmd(Cmds, token, nullptr, nullptr, Nothing);
    }
    current_command = Cmds->Sub;
    AppendCmd(current_command, "SUB", nullptr, help.c_str(), Nothing);
    EXPECT_EQ(Printed([](InputLineType& line) { do_help(&line); }, "HELP"),
              "\n" + a + "  " + b + " \nC \n" + d + " ");
    EXPECT_EQ(Printed([](InputLineType& line) { do_help(&line); }, "HELP C"), "\n(No help available)");
    EXPECT_EQ(Printed([](InputLineType& line) { FindHelp(line.CmdLine); }, "c"), "\n(No help available)\n");
    EXPECT_EQ(Printed([](InputLineType& line) { Display_Subcommand_Usage(&line); }, a),
              "\n\t" + usage.substr(0, 199));
}

TEST(CommandTree, EndsTheProcessOnATokenThatIsThereAlready) {
    const auto append_twice = [] {
        std::freopen("/dev/stderr", "w", stdout);
        CmdType* root = NewCommandNode("SHOW", nullptr, "", nullptr);
        AppendCmd(root, "TEMP", nullptr, "", Nothing);
        AppendCmd(root, "TEMP", nullptr, "", Nothing);
    };
    EXPECT_EXIT(append_twice(), testing::ExitedWithCode(1),
                "Debug - Error TEMP is not unique subcommand of SHOW.\nCommand tree could not be built.\n");
}

const std::string kRootHelp =
    "\n\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command.";
const std::string kRefusal = "\nInvalid argument(s)\nUSAGE: SHOW FANS: Shows info on installed fans.";
const std::string kAllCommands = "\n?  CLEAR  DISABLE  ENABLE  EXIT  HELP  QUIT  SET  SHOW ";

struct LineCase {
    const char* catches;
    Step step;
};
// clang-format off
const LineCase kLines[] = {
    {"an abbreviation accepted",             Fails("sho fans", "\nInvalid Command")},
    {"a quoted word upper-cased",            Fails("\"show\" fans", "\nInvalid Command")},
    {"a quoted upper-case word refused",     Fails("\"SHOW\" \"FANS\" x", kRefusal)},
    {"an empty line run",                    Fails(" ", "")},
    {"the last result not the status",       {"sho;SHOW FANS extra;;HELP EXIT", "\nInvalid Command\n" + kRefusal + "\n\n\nUSAGE: EXIT: Exit brantcli."}},
    {"a segment not cut to 254 characters",  {std::string(250, ' ') + "HELP" + std::string(46, 'X'), kAllCommands}},
    {"a segment cut before its 254th",       Fails(std::string(248, ' ') + "HELPXX", "\nInvalid Command")},
    // help
    {"the first command on a line of its own", {"?", kAllCommands}},
    {"TREE taken for a command's name",      {"HELP TREE X", kRootHelp}},
    {"the way begun at HELP",                {"help set serial", "\nUSAGE: SET SERIAL [ BIOS | EMBEDDED | VIRTUAL ]"}},
    {"a word behind a leaf leading astray",  {"HELP SHOW FANS SHOW", "\nUSAGE: SHOW FANS: Shows info on installed fans."}},
    {"no way back to the nearest node",      {"HELP CLEAR BOGUS", "\nUSAGE: CLEAR [ HLOG ]"}},
    {"a usage that ends at the wrong colon", Fails("SET UID", "\n\t SET UID OFF\n\t SET UID ON")},
};
// clang-format on

TEST(Dispatcher, RunsTheDeepestNodeOrSaysWhatIsWrong) {
    TestMachine machine("tr300");
    for (const LineCase& c : kLines) ExpectRuns(machine, {c.step}, c.catches);
    EXPECT_EQ(machine.Script("help tree").status, 1);

    if (Cmds == nullptr) CreateCommands();
    char commands[] = ";HELP X;?;x";
    char help[] = "HELP";
    testing::internal::CaptureStdout();
    EXPECT_EQ(do_scripted_command(help), 1) << "another result than at the prompt";
    do_scripted_command(commands);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(std::string(commands, sizeof commands), std::string("\0HELP X\0?\0x", 12)) << "cut otherwise";
    EXPECT_EQ(current_command, nullptr) << "kept from the line before";
}

}  // namespace
