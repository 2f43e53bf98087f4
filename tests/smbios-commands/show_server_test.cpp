#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/support/test_machine.h"

// models/MODEL.txt holds the commands of one run in its first line, then what they print.
TEST(ShowServer, TellsEachModelInFull) {
    for (const std::string model : {"tr500k2", "tr300", "bx20"}) {
        std::ifstream file(BRANT_TEST_DIR "/smbios-commands/models/" + model + ".txt", std::ios::binary);
        std::string commands;
        std::getline(file, commands);
        const std::string expected{std::istreambuf_iterator<char>(file), {}};
        const RunResult result = TestMachine(model).Script(commands);
        EXPECT_EQ(result.output, expected) << model;
        EXPECT_EQ(result.errors, "") << model;
    }
}
