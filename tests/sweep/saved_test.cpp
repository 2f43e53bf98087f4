// A machine and its copy by savemachine: every SHOW command prints the same bytes with the same status on
// both.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "tests/sweep/sweep.h"
#include "tools/mkmachine/events.h"

namespace {

namespace fs = std::filesystem;

class Saved : public testing::TestWithParam<std::string> {
  protected:
    enum Runs { kEachByItself, kAllInOne };  // the SHOW commands; each one's status is seen in the former

    // Saves the machine and compares; what: why it is one to be tried. Result: what savemachine says.
    std::string Compare(const SweptMachine& machine, const std::string& what, Runs runs = kEachByItself) {
        SCOPED_TRACE(what);
        const TestMachine parent;
        const std::string copy = parent.Directory() + "/copy";
        RunOptions options;
        options.looks_for_leaks = true;
        const RunResult saved = RunProgram(ProgramPath("savemachine"), {copy}, machine.Directory(), options);
        EXPECT_EQ(saved.status, 0) << saved.errors;
        EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_all);
        for (const std::string& script : Scripts(runs)) {
            const RunResult there = machine.Script(script);
            const RunResult here = RunProgram(ProgramPath("brantcli"), {"-s", script}, copy);
            EXPECT_EQ(here.output, there.output) << script;
            EXPECT_EQ(here.status, there.status) << script;
        }
        log_ = parent.Read("copy/cevt/hlog");
        return saved.errors;
    }
    std::string log_;  // of the last copy

  private:
    static std::vector<std::string> Scripts(Runs runs) {
        std::vector<std::string> each;
        std::string all;
        for (const std::string& command : Commands()) {
            if (command.rfind("SHOW", 0) != 0) continue;
            each.push_back(command);
            all += command + ';';
        }
        return runs == kEachByItself ? each : std::vector<std::string>{all};
    }
};

// Every piece is missing, another thing, or cut, in one machine of kMachines.
TEST_P(Saved, TellsTheSameWithoutSomePieces) {
    constexpr size_t kMachines = 3;
    SweptMachine machine(GetParam());
    EXPECT_EQ(Compare(machine, "whole"), "");
    const Files pieces = machine.State();
    const std::function<void(const std::string&)> damages[] = {
        [&](const std::string& path) { machine.Remove(path); },
        [&](const std::string& path) {
            machine.Remove(path);
            fs::create_directory(machine.Directory() + "/" + path);
        },
        [&](const std::string& path) {
            machine.Write(path, pieces.at(path).substr(0, pieces.at(path).size() / 2));
        },
    };
    for (size_t i = 0; i < kMachines * std::size(damages); ++i) {
        size_t place = 0;
        for (const auto& [path, bytes] : pieces) {
            if (place++ % kMachines == i % kMachines) damages[i / kMachines](path);
        }
        Compare(machine, "damage " + std::to_string(i), kAllInOne);
        for (const auto& [path, bytes] : pieces) machine.Remove(path);
        machine.Restore();
    }
}

TEST_P(Saved, TellsTheSameWhereCallsFail) {
    const std::string cases[] = {
        "open casr -13",
        "open cdt -5\nopen crom -5\npicl initialize 1",
        "xsvc map 0x000e8000 -5\ncevt read 3 3",
        "picl root 7\ncevt read * -1",
        "cdt 353.1.0 -5\ncdt 254.255.0 7\ncdt 1503.0.0 -5\ncasr 6 -5\ncrom read ZTSBKT -5\ncevt read 2 -5",
    };
    for (const std::string& faults : cases) {
        SweptMachine machine(GetParam());
        machine.Fault(faults);
        EXPECT_NE(Compare(machine, faults, kAllInOne), "");
    }
    const std::string behind = EventLog(3).substr(EventLog(2).size());
    EXPECT_EQ(log_, EventLog(1) + behind) << "an entry that can't be read ended the log";
}

TEST_P(Saved, TellsTheSameOfAnEntryTooLongForAListing) {
    SweptMachine machine(GetParam());
    std::string entry(400, 'x');
    entry.replace(0, 6, {'\x90', 1, 4, 0, 0, 0});  // its length and its number
    machine.Append("cevt/hlog", entry);
    EXPECT_EQ(Compare(machine, "long", kAllInOne), "");
}

INSTANTIATE_TEST_SUITE_P(Model, Saved, testing::ValuesIn(SweptModels()));

struct Refusal {
    const char* catches;
    std::string command;  // $1: the program, $2: an empty folder
    std::string errors;   // $2 as well
    int status;
};

std::string Replaced(std::string text, const std::string& word, const std::string& by) {
    for (size_t at = 0; (at = text.find(word, at)) != text.npos; at += by.size())
        text.replace(at, word.size(), by);
    return text;
}

TEST(SaveMachine, RefusesAndLeavesNothingBehind) {
    const Refusal cases[] = {
        {"no place", "$1", "usage: savemachine DIR\n", 2},
        {"an option taken for a place", "$1 -x", "usage: savemachine DIR\n", 2},
        {"a place that is taken", "ln -s nowhere $2/a; $1 $2/a/; s=$?; rm $2/a; exit $s",
         "savemachine: $2/a: File exists\n", 1},
        {"a folder that isn't there", "$1 $2/a/b", "savemachine: $2/a/b: No such file or directory\n", 1},
        {"a full disk", "ulimit -f 1000; $1 $2/a", "savemachine: $2/a: File too large\n", 1},
        {"foreign hardware", "BRANT_MACHINE=/ $1 $2/a", "ERROR: savemachine only runs on VX hardware.\n", 1},
        {"another user", "setpriv --reuid=65534 $1 $2/a", "ERROR: You must be root to run savemachine.\n", 1},
    };
    const TestMachine machine("tr300");
    const TestMachine parent;
    const std::string folder = parent.Directory() + "/casr";
    for (const Refusal& c : cases) {
        const std::string command = Replaced(Replaced(c.command, "$1", InShell("savemachine")), "$2", folder);
        const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory());
        EXPECT_EQ(run.errors, Replaced(c.errors, "$2", folder)) << c.catches;
        EXPECT_EQ(run.status, c.status) << c.catches;
        EXPECT_TRUE(fs::is_empty(folder)) << c.catches;
    }
}

}  // namespace
