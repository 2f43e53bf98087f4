// Tests of mkmachine's options, permissions and error messages.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "mkmachine/events.h"
#include "src/utils/version.h"
#include "tests/support/test_machine.h"

namespace {

TEST(MakeMachineProgram, CreatesTheNumberOfEvents) {
    const struct {
        const char* catches;
        std::vector<std::string> words;
        int status;
        size_t entries;
    } cases[] = {
        {"no event", {"--events", "0"}, 0, 0},
        {"more events than samples", {"--model", "bx20", "--events", "1000"}, 0, 1000},
        {"a value after '=', or nine digits", {"--events=000000003", "--model=bx20"}, 0, 3},
        {"a second directory", {"other"}, 2, 0},
        {"no value after '='", {"--model="}, 2, 0},
        {"the beginning of a name", {"--model=tr"}, 2, 0},
        {"another option with the same beginning", {"--eventsx5"}, 2, 0},
        {"--events without a number", {"--events"}, 2, 0},
        {"a sign before the number", {"--events", "-1"}, 2, 0},
        {"a letter after the number", {"--events", "5x"}, 2, 0},
        {"an empty number", {"--events", ""}, 2, 0},
        {"ten digits", {"--events", "0000000003"}, 2, 0},
    };
    for (const auto& c : cases) {
        const TestMachine parent;
        std::vector<std::string> words = c.words;
        words.push_back(parent.Directory() + "/made");
        const RunResult run = RunProgram(ProgramPath("mkmachine"), words, parent.Directory());
        EXPECT_EQ(run.status, c.status) << c.catches;
        EXPECT_EQ(run.output, "") << c.catches;
        EXPECT_EQ(parent.Read("made/cevt/hlog"), EventLog(c.entries)) << c.catches;
    }
}

TEST(MakeMachineProgram, PrintsItsHelpAndVersionOnStandardOutput) {
    for (const char* const program : {"mkmachine", "savemachine"}) {
        for (const char* const option : {"--help", "--version"}) {
            const RunResult run = RunProgram(ProgramPath(program), {option, "--unknown"}, "/nowhere");
            const bool help = option == std::string("--help");
            const std::string start =
                help ? std::string("usage: ") + program : std::string(program) + " " + kVersion;
            EXPECT_EQ(run.output.substr(0, start.size()), start);
            EXPECT_EQ(run.errors, "");
            EXPECT_EQ(run.status, 0);
            const std::string full_disk = InShell(program) + " " + option + " >/dev/full";
            EXPECT_EQ(RunProgram("/bin/sh", {"-c", full_disk}, "/nowhere").status, 1) << full_disk;
        }
    }
}

TEST(Completion, OffersOptionsValuesSectionsAndDirectories) {
    const struct {
        const char* program;
        const char* words;  // as bash splits them; the last one is completed
        const char* offered;
    } cases[] = {
        {"mkmachine", "--m", "--model"},
        {"mkmachine", "--model ''", "bx20,tr300,tr500k2"},
        {"mkmachine", "--model =", "bx20,tr300,tr500k2"},
        {"mkmachine", "--model = tr5", "tr500k2"},
        {"mkmachine", "--events ''", ""},
        {"savemachine", "--redact cr", "cr 1,crom"},
        {"brantexport", "--pro", "--prometheus"},
        {"brantexport", "fans po", "port_map,power_supplies"},
    };
    if (Emulated()) GTEST_SKIP() << "the completion starts the programs without the emulator";
    const TestMachine parent;
    std::filesystem::create_directory(parent.Directory() + "/cr 1");
    for (const auto& [program, words, offered] : cases) {
        const std::string command = ". " BRANT_TEST_DIR
                                    "/../packaging/completion.bash; cd $BRANT_MACHINE; COMP_WORDS=($0 " +
                                    std::string(words) +
                                    "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _brant $0; printf '%s\n' "
                                    "\"${COMPREPLY[@]}\" | sort | paste -sd,";
        const RunResult run =
            RunProgram("/bin/bash", {"-c", command, ProgramPath(program)}, parent.Directory());
        EXPECT_EQ(run.output, std::string(offered) + "\n") << program << ' ' << words;
        EXPECT_EQ(run.errors, "") << program << ' ' << words;
    }
}

// A user who can open a device's directory can also lock it, and then every modifying command would wait.
TEST(MakeMachineProgram, CreatesDirectoriesThatOnlyTheOwnerCanOpen) {
    for (const char* mask : {"0", "022", "0777"}) {
        const TestMachine parent;
        const std::string made = parent.Directory() + "/new/made";
        const std::string command = std::string("umask ") + mask + "; " + InShell("mkmachine") + " " + made;
        EXPECT_EQ(RunProgram("/bin/sh", {"-c", command}, made).status, 0);
        for (const char* directory : {"/..", "", "/cdt", "/casr", "/crom", "/cevt"}) {
            const auto mode = std::filesystem::status(made + directory).permissions();
            EXPECT_EQ(mode, std::filesystem::perms::owner_all) << mask << directory;
        }
    }
}

// If the directory belonged to another user, that user could redirect the program's writes to other files.
TEST(MakeMachineProgram, WritesOnlyIntoAnEmptyDirectoryOfItsUser) {
    TestMachine parent;
    const std::string directory = parent.Directory() + "/casr";
    const std::string rejected = "mkmachine: " + directory + ": other users can write to this directory\n";
    const auto errors = [&](const std::string& path) {
        const RunResult run = RunProgram(ProgramPath("mkmachine"), {path}, parent.Directory());
        EXPECT_EQ(run.status, 1) << run.errors;
        return run.errors;
    };
    chmod(directory.c_str(), 0770);
    EXPECT_EQ(errors(directory), rejected);
    chmod(directory.c_str(), 0700);
    EXPECT_EQ(chown(directory.c_str(), 65534, 0), 0);
    EXPECT_EQ(errors(directory), rejected);
    EXPECT_EQ(symlink("crom", (parent.Directory() + "/link").c_str()), 0);
    EXPECT_EQ(errors(parent.Directory() + "/link"),
              "mkmachine: " + parent.Directory() + "/link: Not a directory\n");
    EXPECT_TRUE(std::filesystem::is_empty(directory));
    EXPECT_EQ(chown(directory.c_str(), 0, 0), 0);
    parent.Write("casr/.kept", "kept");
    EXPECT_EQ(errors(directory), "mkmachine: " + directory + " exists and isn't empty\n");
    EXPECT_EQ(parent.Read("casr/.kept") + parent.Read("casr/cevt/hlog"), "kept");
}

}  // namespace
