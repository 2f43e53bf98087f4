// Tests of the command tree, help, completion and the dispatcher.
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
#include "tests/support/program_state.h"

namespace {

int Nothing(InputLineType*) {
    return 0;
}

// Returns one line for each node below `parent`, with the node's path and its help text.
std::string Listing(const CmdType* parent, const std::string& path) {
    std::string listing;
    for (const CmdType* node = parent->Sub; node != nullptr; node = node->Next) {
        listing += path + node->Token + ": " + node->Help + "\n" + Listing(node, path + node->Token + " ");
    }
    return listing;
}

// The help texts are an interface, so they must not change.
TEST(CommandTree, ContainsEveryCommandWithItsHelpText) {
    const FreshState state;
    CreateCommands();
    const std::string shown = TestMachine("tr500k2").Script("HELP TREE;SHOW").output;
    ExpectGolden("parse/help_texts.golden", Listing(Cmds, "") + shown);
}

// A command tree that contains only its root.
struct EmptyTree : FreshState {
    EmptyTree() { Cmds = NewCommandNode("", nullptr, "the root's help", nullptr); }
};

// Calls a function with `line` as the command line. Returns the output.
template <typename Function>
std::string Printed(Function function, const std::string& line) {
    InputLineType input{};
    line.copy(input.CmdLine, kLineSize - 1);
    Parse(&input);
    testing::internal::CaptureStdout();
    function(input);
    return testing::internal::GetCapturedStdout();
}

TEST(CommandTree, GivesASynonymTheChildrenOfItsCommand) {
    const EmptyTree tree;
    CmdType* show = AppendCmd(Cmds, "SHOW", nullptr, "", nullptr);
    CmdType* fan = AppendCmd(show, "FAN", nullptr, "help", Nothing);
    CmdType* fans = AppendCmd(show, "FANS", fan, "help", Nothing);
    AppendCmd(fan, "ALL", nullptr, "", Nothing);
    AppendCmd(fan, "ANY", nullptr, "", Nothing);
    PropagateSynonyms(Cmds);
    EXPECT_EQ(fans->Sub, fan->Sub);

    const auto list = [](InputLineType& line) { DoubleTabComplete(line.CmdLine); };
    EXPECT_EQ(Printed(list, "show fan a"), "\a\n[ ALL | ANY ]\n");
    EXPECT_EQ(Printed(list, "show fans a"), "\a") << "children of a synonym are listed";
}

TEST(Help, LimitsLineAndUsageLengthsAndAllowsMissingTexts) {
    const EmptyTree tree;
    const std::string a(70, 'A'), b(6, 'B'), d(76, 'D'), usage(250, 'x'), help = "USAGE:" + usage,
                                                                          equal = help;
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
    EXPECT_EQ(Printed([](InputLineType&) { Print_Tree(Cmds, 1); }, ""),
              "\t" + a + " | " + b + " | C | " + d + "\n")
        << "the four commands share a help text, so they are on one line and their children aren't printed";
    AppendCmd(current_command, "TWIN", nullptr, equal.c_str(), Nothing);
    EXPECT_EQ(Printed([](InputLineType&) { Print_Tree(current_command, 0); }, ""), "SUB\nTWIN\n")
        << "equal help texts count as one";
}

TEST(CommandTree, EndsTheProcessIfASiblingHasTheSameToken) {
    const auto append_again = [](const char* token) {
        std::freopen("/dev/stderr", "w", stdout);
        CreateCommands();
        AppendCmd(FindChild(Cmds, "SHOW"), token, nullptr, "", Nothing);
    };
    for (const std::string token : {"ASR", "WOL"}) {  // the first and the last child
        EXPECT_EXIT(append_again(token.c_str()), testing::ExitedWithCode(1),
                    "Error " + token + " is not unique subcommand of SHOW.\nCommand tree");
    }
}

const std::string kRootHelp =
    "\n\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command.";
const std::string kInvalidArguments =
    "\nInvalid argument(s)\nUSAGE: SHOW FANS: Shows info on installed fans.";
const std::string kAllCommands = "\n?  CLEAR  DISABLE  ENABLE  EXIT  HELP  QUIT  SET  SHOW ";

struct LineCase {
    const char* catches;
    Step step;
};
// clang-format off
const LineCase kLines[] = {
    {"an abbreviation is accepted",             Fails("sho fans", "\nInvalid Command")},
    {"a quoted word is converted to upper case",            Fails("\"show\" fans", "\nInvalid Command")},
    {"a quoted word in upper case is rejected",     Fails("\"SHOW\" \"FANS\" x", kInvalidArguments)},
    {"an empty line keeps the status before it, or is skipped", Fails("HELP EXIT; ;", "\nUSAGE: EXIT: Exit brantcli.\n")},
    {"the status isn't that of the last command",       {"SHOW FANS extra;\"\";;HELP EXIT", kInvalidArguments + "\n\nInvalid Command\n\n\nUSAGE: EXIT: Exit brantcli."}},
    {"a segment isn't truncated to 254 characters",  {std::string(250, ' ') + "HELP" + std::string(46, 'X'), kAllCommands}},
    {"a segment is truncated to fewer characters",       Fails(std::string(248, ' ') + "HELPXX", "\nInvalid Command")},
    // cases: help
    {"the first command is on a separate line", {"?", kAllCommands}},
    {"TREE is a command",      {"HELP TREE X", kRootHelp}},
    {"a quoted word in lower case is converted to upper case", {"HELP \"tree\";HELP \"exit\"", kRootHelp + "\n" + kRootHelp}},
    {"an empty word is no word",  {"HELP \"\"", kRootHelp}},
    {"the search starts at HELP",                {"help set serial", "\nUSAGE: SET SERIAL [ BIOS | EMBEDDED | VIRTUAL ]"}},
    {"a word after a leaf continues the search",  {"HELP SHOW FANS SHOW", "\nUSAGE: SHOW FANS: Shows info on installed fans."}},
    {"a wrong word is skipped or loses the node before it",      {"HELP CLEAR BOGUS HLOG", "\nUSAGE: CLEAR [ HLOG ]"}},
    {"a usage ends at the wrong colon, or words are compared before the last", Fails("SET UID X UID", "\n\t SET UID OFF\n\t SET UID ON")},
};
// clang-format on

TEST(Dispatcher, RunsTheDeepestNodeOrPrintsAnError) {
    TestMachine machine("tr300");
    for (const LineCase& c : kLines) ExpectRuns(machine, {c.step}, c.catches);
    EXPECT_EQ(machine.Script("help tree").status, 1);

    const FreshState state;
    CreateCommands();
    char commands[] = ";HELP X;?;x";
    char help[] = "HELP";
    testing::internal::CaptureStdout();
    EXPECT_EQ(do_scripted_command(help), 1) << "the prompt's commands always return 1";
    do_scripted_command(commands);
    testing::internal::GetCapturedStdout();
    EXPECT_EQ(std::string(commands, sizeof commands), std::string("\0HELP X\0?\0x", 12))
        << "the NULs are at wrong positions";
    EXPECT_EQ(current_command, nullptr) << "current_command is still that of the previous line";
}

}  // namespace
