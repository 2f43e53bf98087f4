// Several programs at once on one machine, ended at any moment.
#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <regex>

#include "tests/support/screen.h"

namespace {

struct Value {
    const char* word;
    std::string code;  // as SET BOOT ONCE stores it
};
const Value kCycle[] = {{"CDROM", "\2"}, {"FLOPPY", "\1"}, {"HDD", "\3"}, {"KONF", "0"}, {"PXE", "@"}};
constexpr size_t kCycleLength = std::size(kCycle);

struct Setting {
    const char* command;
    const char* variable;
    bool coded;
};
constexpr Setting kSettings[] = {
    {"SET NAME ", "crom/ZTHLS1", false},
    {"SET ASSET ", "crom/ZTSCAT", false},
    {"SET BOOT ONCE ", "crom/ZTTBT1", true},
};

std::string Script(const Setting& setting) {
    std::string script;
    for (size_t i = 0; i < 400; ++i) {
        script += setting.command + std::string(kCycle[i % kCycleLength].word) + ";";
    }
    return script;
}

size_t CountOf(const std::string& what, const std::string& text) {
    size_t count = 0;
    for (size_t at = text.find(what); at != text.npos; at = text.find(what, at + 1)) ++count;
    return count;
}

// Whether a variable holds what the count-th change gives it.
bool Holds(const std::string& bytes, const Setting& setting, size_t count) {
    const Value& value = kCycle[(count + kCycleLength - 1) % kCycleLength];
    const std::string begins = setting.coded ? value.code : value.word;
    return bytes.compare(0, begins.size(), begins) == 0;
}

}  // namespace

TEST(Stress, NoReportedChangeIsMissing) {
    const TestMachine machine("tr500k2");
    for (useconds_t round = 0; round < 8; ++round) {
        std::vector<std::unique_ptr<TerminalSession>> programs;
        for (const Setting& setting : kSettings) {
            programs.push_back(
                std::make_unique<TerminalSession>(machine, std::vector<std::string>{"-s", Script(setting)}));
        }
        for (const auto& program : programs) program->ReceiveUntil("Successfully");
        usleep(5000 + 11000 * round);
        for (size_t i = 0; i < programs.size(); ++i) {
            kill(programs[i]->program, (round + i) % 3 == 0 ? SIGTERM : SIGKILL);
            const size_t reported = 1 + CountOf("Successfully", programs[i]->ReceiveUntil("\xFF"));
            programs[i]->End();
            const std::string bytes = machine.Read(kSettings[i].variable);
            // One more change may have been made before its report.
            EXPECT_TRUE(Holds(bytes, kSettings[i], reported) || Holds(bytes, kSettings[i], reported + 1))
                << kSettings[i].command << "after " << reported << " reports holds " << bytes;
        }
    }
}
