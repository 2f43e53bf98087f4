// mkmachine as a person calls it.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/test_machine.h"

TEST(MakeMachineProgram, LeavesADirectoryThatIsNotEmptyAlone) {
    TestMachine parent;
    parent.Write("casr/.kept", "kept");
    const std::string directory = parent.Directory() + "/casr";
    const RunResult run = RunProgram(ProgramPath("mkmachine"), {directory}, parent.Directory());
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "mkmachine: " + directory + " exists and isn't empty\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory), {}), 1);
    EXPECT_EQ(parent.Read("casr/.kept"), "kept");
}
