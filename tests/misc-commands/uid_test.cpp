// The unit identification light: the words that switch it, and that it stays as it was set.

#include <gtest/gtest.h>

#include "cli/misc-commands/misc_commands.h"
#include "cli/parse/command_tree.h"
#include "include/health_records.h"
#include "tests/support/test_machine.h"

namespace {

constexpr char kControlFile[] = "cdt/1503.0.0";

TEST(SetUid, StaysSetForTheNextRun) {
    TestMachine machine("tr300");
    const std::string at_first = machine.Read(kControlFile);
    machine.Table(kIndicatorHeaderTable, 0, 0, INDCHEADER{1, 255, 0});
    EXPECT_EQ(machine.Script("SET UID OFF").output, "\nUID is now off.\n\n");
    EXPECT_EQ(machine.Script("SHOW UID;SET UID ON;SHOW UID").output,
              "\nUID is currently off.\n\nUID is now on.\n\nUID is currently on.\n\n");
    EXPECT_EQ(machine.Read(kControlFile), at_first);
}

struct WordsCase {
    int count;
    char third[8];
    const char* output;
};

// The command tree lets only ON and OFF through; the handler itself takes any word that begins so.
constexpr WordsCase kWords[] = {
    {2, "", "\nhelp"},
    {3, "O", "\nInvalid argument(s)\nhelp"},
    {3, "OF", "\nInvalid argument(s)\nhelp"},
    {3, "ONCE", "\nERROR: \"SET UID\" command failed."},  // there is no driver here
    {3, "OFFSET", "\nERROR: \"SET UID\" command failed."},
};

TEST(SetUid, TakesWordsThatBeginWithOnOrOff) {
    CmdType node = {"UID", "help", nullptr, do_set_uid, nullptr, nullptr};
    current_command = &node;
    for (WordsCase c : kWords) {
        InputLineType line{};
        line.NumWords = c.count;
        line.Words[2] = c.third;
        testing::internal::CaptureStdout();
        EXPECT_EQ(do_set_uid(&line), 1);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), c.output) << c.third;
    }
    current_command = nullptr;
}

}  // namespace
