// The health displays on every model: models/MODEL.txt holds the commands of one run in its first line, then
// what they print and which data tables they ask the driver for, in order. It was read line by line against
// the model's facts; after a change, so is the difference.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/support/test_machine.h"
#include "tools/mkmachine/models.h"

namespace {

TEST(HealthDisplays, EveryModelInFull) {
    for (const Model& made : Models()) {
        const std::string model = made.name;
        std::ifstream file(BRANT_TEST_DIR "/health-table/models/" + model + ".txt", std::ios::binary);
        std::string commands;
        std::getline(file, commands);
        const std::string expected{std::istreambuf_iterator<char>(file), {}};

        TestMachine machine(model);
        machine.StartTrace();
        const std::string output = machine.Script(commands).output;
        EXPECT_EQ(output + machine.TakeTrace("cdt "), expected) << model;
    }
}

}  // namespace
