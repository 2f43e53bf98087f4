// Several programs at once on one machine, killed at any moment.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "include/rom_variables.h"
#include "tests/support/test_machine.h"

namespace {

constexpr size_t kChanges = 4000;  // of a program: as many as one argument holds

// A change's argument and what it stores, both of the change's number.
struct Value {
    std::string word, bytes;
};

// The number twice, so that half a write shows.
std::string Digits(size_t number) {
    const std::string digits = std::to_string(number);
    const std::string ten = std::string(10 - digits.size(), '0') + digits;
    return ten + ten;
}

Value Name(size_t number) {
    const std::string digits = Digits(number);
    return {digits, digits.substr(0, 14) + '\0' + digits.substr(14)};
}

Value Asset(size_t number) {
    return {Digits(number), Digits(number)};
}

Value BootDevice(size_t number) {
    return number % 2 == 0 ? Value{"HDD", "\3"} : Value{"PXE", "@"};
}

struct Setting {
    const char* command;
    const char* variable;
    size_t size;  // of the variable; zeros follow what is stored
    Value (*value)(size_t number);
    std::string report;  // as long for each number, the newline after the command included
};
const Setting kSettings[] = {
    {"SET NAME ", "crom/ZTHLS1", sizeof(ServerName), Name,
     "\nNOTE: On some servers the name may be split in two depending on length"
     "\nSuccessfully set new server name: 00000000000000000000\n"},
    {"SET ASSET ", "crom/ZTSCAT", sizeof(AssetText), Asset, "\nSuccessfully set Asset Text.\n"},
    {"SET BOOT ONCE ", "crom/ZTTBT1", sizeof(ZTTBT1STRUCT), BootDevice,
     "\nSuccessfully set next boot to HDD.\n"},
};

std::string Stored(const Setting& setting, size_t number) {
    std::string bytes = setting.value(number).bytes;
    bytes.resize(setting.size);
    return bytes;
}

// A program that makes the changes after a number, its output in a file, which never blocks it.
class Changing {
  public:
    Changing(const TestMachine& machine, const Setting& setting, size_t before)
        : machine_(machine), setting_(setting), before_(before), output_(memfd_create("", MFD_CLOEXEC)) {
        std::string script;
        for (size_t i = 1; i <= kChanges; ++i) {
            script += setting.command + setting.value(before + i).word + ";";
        }
        program_ = fork();
        if (program_ != 0) return;
        dup2(output_, STDOUT_FILENO);
        setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
        ExecProgram(ProgramPath("brantcli_interposed"), {"-s", script});
    }
    ~Changing() { close(output_); }
    Changing(const Changing&) = delete;
    Changing& operator=(const Changing&) = delete;

    // How many changes are reported; the last one's newline may be missing.
    size_t Reported() const {
        struct stat status {};
        fstat(output_, &status);
        return (static_cast<size_t>(status.st_size) + 1) / setting_.report.size();
    }
    // The number of the change that is stored: the last reported one, or one that has been begun since.
    size_t Look() const {
        size_t number = before_ + Reported();
        const std::string bytes = machine_.Read(setting_.variable);
        const size_t begun = before_ + Reported() + 1;
        while (number < begun && bytes != Stored(setting_, number)) ++number;
        if (bytes != Stored(setting_, number) && !testing::Test::HasFailure()) {
            ADD_FAILURE() << setting_.variable << " holds " << bytes << " before change " << begun;
        }
        return number;
    }
    bool HasEnded() const {
        siginfo_t ended{};
        waitid(P_PID, static_cast<id_t>(program_), &ended, WEXITED | WNOHANG | WNOWAIT);
        return ended.si_pid != 0;
    }
    // Waits for the end: the status, or 128 + N of signal N.
    int End() const {
        int status = 0;
        waitpid(program_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    // The number of the change that is stored then.
    size_t Kill(int signal) const {
        kill(program_, signal);
        EXPECT_EQ(End(), 128 + signal) << "has ended by itself";
        return Look();
    }

  private:
    const TestMachine& machine_;
    const Setting& setting_;
    const size_t before_;
    const int output_;
    pid_t program_ = -1;
};

}  // namespace

TEST(Stress, NoReportedChangeIsMissingAndNoFileTorn) {
    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    TestMachine machine("tr500k2");
    for (const Setting& setting : kSettings) machine.Write(setting.variable, Stored(setting, 0));
    size_t last[] = {0, 0}, kills = 0, looks = 0;
    const Changing untouched(machine, kSettings[2], 0);
    while ((!untouched.HasEnded() || kills < 40) && !HasFailure()) {
        const Changing programs[] = {{machine, kSettings[0], last[0]}, {machine, kSettings[1], last[1]}};
        const size_t enough[] = {1 + random() % (kChanges / 20), 1 + random() % (kChanges / 20)};
        bool running[] = {true, true};
        while (running[0] || running[1]) {
            for (size_t i : {0, 1}) {
                if (!running[i]) continue;
                last[i] = programs[i].Look();
                ++looks;
                running[i] = programs[i].Reported() < enough[i] && !programs[i].HasEnded();
                if (!running[i]) last[i] = programs[i].Kill(random() % 4 == 0 ? SIGTERM : SIGKILL);
                if (!running[i]) ++kills;
            }
            usleep(static_cast<useconds_t>(random() % 200));
        }
    }
    EXPECT_EQ(untouched.End(), 0);
    EXPECT_EQ(untouched.Look(), kChanges);
    std::printf("seed %u: %zu kills, %zu changes, %zu looks\n", seed, kills, last[0] + last[1] + kChanges,
                looks);
}
