// Tests of a command on a device that another program has locked: the command waits, and ^C ends the wait.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <csignal>
#include <filesystem>

#include "tests/support/screen.h"

namespace {

// Holds a shared lock of the device crom (the ROM variables). Only a request for an exclusive lock waits for
// it.
class Lock {
  public:
    explicit Lock(const TestMachine& machine)
        : fd_(open((machine.Directory() + "/crom").c_str(), O_RDONLY | O_CLOEXEC)) {
        if (flock(fd_, LOCK_SH) != 0) std::abort();
    }
    ~Lock() { Release(); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    void Release() {
        if (fd_ >= 0) close(fd_);
        fd_ = -1;
    }

  private:
    int fd_;
};

constexpr char kReported[] = "/crom; ^C ends the wait\n";
constexpr char kFailed[] = "\nERROR: Failed to set Asset Text.\n";
constexpr char kPrompt[] = "\nbrantcli> ";

}  // namespace

TEST(Lock, ControlCEndsTheWaitAndTheScriptContinues) {
    const TestMachine machine("tr500k2");
    Lock lock(machine);
    TerminalSession session(machine, {"-s", "SET ASSET web7;SHOW UID"});
    EXPECT_EQ(session.ReceiveUntil(kReported),
              "simulated machine: waiting for another program, which has locked " + machine.Directory() +
                  kReported);
    session.StopAndContinue();
    usleep(200000);  // so that the program has made ^C send a signal again
    session.Type("\3");
    EXPECT_EQ(session.ReceiveUntil(kFailed), kFailed);
    EXPECT_EQ(session.ReceiveUntil("off.\n"), "\nUID is currently off.\n");
    lock.Release();
    EXPECT_EQ(session.End(), 0);
    EXPECT_TRUE(session.Settings() == session.found);
}

TEST(Lock, TheWaitKeepsTypedKeysAndTheTerminalMode) {
    const TestMachine machine("tr500k2");
    Lock lock(machine);
    TerminalSession session(machine);
    session.ReceiveUntil(kPrompt);
    termios character_mode = session.Settings();
    // With NOFLSH, the terminal would keep the keys at ^C even if the program did nothing.
    character_mode.c_lflag &= ~tcflag_t{NOFLSH};
    tcsetattr(session.terminal, TCSANOW, &character_mode);

    session.Type("set asset web7\r");
    session.ReceiveUntil(kReported);
    session.Type("sho\34");  // ^\ is inserted as a character, as at the prompt
    session.Type("\3");
    session.ReceiveUntil(kFailed);
    session.ReceiveUntil("sho");
    EXPECT_EQ(session.screen.CursorLine(), "brantcli> sho");
    EXPECT_TRUE(session.Settings() == character_mode);
    session.Type("w uid\r");
    session.ReceiveUntil(kPrompt);
    session.Type("exit\r");
    lock.Release();
    EXPECT_EQ(session.End(), 0);
}

TEST(Lock, ControlCEndsAWaitThatBeganInTheBackground) {
    const TestMachine machine("tr500k2");
    Lock lock(machine);
    const std::string script =
        "set -m; " + InShell("brantcli") + " -s 'SET ASSET web7' & sleep .3; fg >/dev/null";
    TerminalSession session(machine, {"-c", script}, "/bin/sh");
    session.ReceiveUntil(kReported);
    session.Type("\3");
    EXPECT_EQ(session.ReceiveUntil(kFailed), kFailed);
    lock.Release();
    EXPECT_EQ(session.End(), 1);
}

// While the command waits, another program replaces the variable.
TEST(Lock, ACommandReadsTheFileAfterItsWait) {
    TestMachine machine("tr500k2");
    Lock lock(machine);
    TerminalSession session(machine, {"-s", "SET ASSET web7"});
    session.ReceiveUntil(kReported);
    machine.Write("new", std::string(256, 'x'));
    std::filesystem::rename(machine.Directory() + "/new", machine.Directory() + "/crom/ZTSCAT");
    lock.Release();
    EXPECT_EQ(session.End(), 0);
    EXPECT_EQ(machine.Read("crom/ZTSCAT").substr(0, 5), std::string("WEB7", 5));
    EXPECT_EQ(machine.Read("crom/ZTSCAT").substr(255), "x") << "the other program's change was lost";
}

TEST(Lock, ASignalFromOutsideStillEndsTheProcess) {
    const TestMachine machine("tr500k2");
    Lock lock(machine);
    TerminalSession session(machine, {"-s", "SET ASSET web7"});
    session.ReceiveUntil(kReported);
    kill(session.program, SIGINT);
    lock.Release();
    EXPECT_EQ(session.End(), 128 + SIGINT);
    EXPECT_TRUE(session.Settings() == session.found);
}
