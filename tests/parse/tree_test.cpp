#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "cli/brantcli/brantcli.h"
#include "cli/parse/command_tree.h"
#include "tests/support/stored.h"
#include "tests/support/test_machine.h"

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
    CreateCommands();
    ExpectStored("parse/help_texts.golden", Listing(Cmds, ""));
}

TEST(CommandTree, SharesWhatASynonymStandsFor) {
    static CmdType* const root = NewCommandNode("", nullptr, "", nullptr);  // nodes are never freed
    CmdType* fan = AppendCmd(root, "FAN", nullptr, "help", Nothing);
    CmdType* fans = AppendCmd(root, "FANS", fan, "help", Nothing);
    CmdType* sub = AppendCmd(fan, "ALL", nullptr, "", Nothing);
    PropagateSynonyms(root);
    EXPECT_EQ(fans->Sub, sub);
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

struct DispatchCase {
    const char* catches;
    std::string line;
    const char* output;
    int status;
};

const DispatchCase kDispatch[] = {
    {"an abbreviation accepted", "sho fans", "\nInvalid Command\n\n", 1},
    {"a quoted word upper-cased", "\"show\" fans", "\nInvalid Command\n\n", 1},
    {"an empty line run", " ", "\n\n", 1},
    {"the closing newline lost", "SHOW FANS extra",
     "\nInvalid argument(s)\nUSAGE: SHOW FANS: Shows info on installed fans.\n\n", 1},
    {"a quoted upper-case word refused", "\"SHOW\" \"FANS\" x",
     "\nInvalid argument(s)\nUSAGE: SHOW FANS: Shows info on installed fans.\n\n", 1},
    {"the last result not the status", "sho;SHOW FANS extra;;HELP EXIT",
     "\nInvalid Command\n"
     "\nInvalid argument(s)\nUSAGE: SHOW FANS: Shows info on installed fans.\n"
     "\n"
     "\nUSAGE: EXIT: Exit brantcli.\n\n",
     0},
    {"a segment not cut to 254 characters", std::string(250, ' ') + "EXIT" + std::string(46, 'X'), "\n", 0},
    {"a segment cut before its 254th character", std::string(248, ' ') + "HELPXX;EXIT;sho",
     "\nInvalid Command\n\n", 0},
};

TEST(Dispatcher, RunsTheDeepestNodeOrSaysWhatIsWrong) {
    TestMachine machine("tr300");
    for (const DispatchCase& c : kDispatch) {
        const RunResult run = machine.Script(c.line);
        EXPECT_EQ(run.output, c.output) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
    }
}

}  // namespace
