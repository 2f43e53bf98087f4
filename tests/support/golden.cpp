#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "mkmachine/models.h"
#include "tests/support/test_machine.h"

std::string GoldenText(const std::string& path) {
    std::ifstream file(BRANT_TEST_DIR "/" + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void ExpectGolden(const std::string& path, const std::string& text) {
    const std::filesystem::path changed = std::filesystem::path(BRANT_BIN_DIR) / "golden.new" / path;
    if (text == GoldenText(path)) {
        std::filesystem::remove(changed);
        return;
    }
    std::filesystem::create_directories(changed.parent_path());
    std::ofstream(changed, std::ios::binary) << text;
    ADD_FAILURE() << "tests/" << path << " differs from the new output (tools/golden --store accepts it):\n"
                  << RunProgram("diff", {"-auN", BRANT_TEST_DIR "/" + path, changed}, "").output;
}

void ExpectGoldenModels(const std::string& folder) {
    for (const Model& model : Models()) {
        const std::string path = folder + "/models/" + std::string(model.name) + ".txt";
        const std::string golden = GoldenText(path);
        const std::string commands = golden.substr(0, golden.find('\n'));
        TestMachine machine(model.name);
        machine.StartTrace();
        const RunResult run = machine.Script(commands);
        ExpectGolden(path, commands + "\n" + run.output + machine.TakeTrace("cdt "));
        EXPECT_EQ("", run.errors) << model.name;
    }
}
