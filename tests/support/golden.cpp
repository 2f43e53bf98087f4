#include "tests/support/golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/test_machine.h"
#include "tools/mkmachine/models.h"

std::string GoldenText(const std::string& path) {
    std::ifstream file(BRANT_TEST_DIR "/" + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void ExpectGolden(const std::string& path, const std::string& text) {
    if (text == GoldenText(path)) return;
    const std::filesystem::path now = std::filesystem::path(BRANT_BIN_DIR) / "now" / path;
    std::filesystem::create_directories(now.parent_path());
    std::ofstream(now, std::ios::binary) << text;
    const std::string stored = BRANT_TEST_DIR "/" + path;
    ADD_FAILURE() << stored << " holds another text than there is now, in " << now << ":\n"
                  << RunProgram("diff", {"-auN", stored, now}, "").output;
}

void ExpectGoldenModels(const std::string& folder) {
    for (const Model& model : Models()) {
        const std::string path = folder + "/models/" + std::string(model.name) + ".txt";
        const std::string stored = GoldenText(path);
        const std::string commands = stored.substr(0, stored.find('\n'));
        TestMachine machine(model.name);
        machine.StartTrace();
        const RunResult run = machine.Script(commands);
        ExpectGolden(path, commands + "\n" + run.output + machine.TakeTrace("cdt "));
        EXPECT_EQ("", run.errors) << model.name;
    }
}
