// Tests of the terminal settings, which must be restored on every exit or stop of the program, and of reading
// from the terminal.
#include "cli/terminal/terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>

#include "tests/support/screen.h"

namespace {

struct ExitPath {
    const char* name;
    std::vector<std::string> arguments;
    const char* prompt;      // end of the output when the program waits for a key
    int signal;              // signal that is sent at this prompt; 0: none
    void (*inherited)(int);  // action for SIGTERM that the program inherits
    std::string keys;        // keys that are typed at this prompt
    int status;
};
constexpr char kAtPrompt[] = "\nbrantcli> ";
// clang-format off
const ExitPath kExitPaths[] = {
    {"EXIT",                      {},                  kAtPrompt,     0,       SIG_DFL, "exit\r", 0},
    {"a hang-up",                 {},                  kAtPrompt,     SIGHUP,  SIG_DFL, "",       128 + SIGHUP},
    {"an interrupt",              {},                  kAtPrompt,     SIGINT,  SIG_DFL, "",       128 + SIGINT},
    {"a quit",                    {},                  kAtPrompt,     SIGQUIT, SIG_DFL, "",       128 + SIGQUIT},
    {"a termination",             {},                  kAtPrompt,     SIGTERM, SIG_DFL, "",       128 + SIGTERM},
    {"EXIT, SIGTERM being ignored", {},                  kAtPrompt,     SIGTERM, SIG_IGN, "exit\r", 0},
    {"a script",                  {"-s", "SHOW HLOG"}, "screen.: ",   0,       SIG_DFL, "q",      0},
};
// clang-format on

termios CharacterMode(termios settings) {
    settings.c_iflag &= ~TerminalSession::kInputFlags;
    settings.c_lflag &= ~TerminalSession::kLocalFlags;
    settings.c_oflag |= OPOST;
    settings.c_cc[VMIN] = settings.c_cc[VTIME] = 1;
    return settings;
}

// Sets the action of a signal, which a new process inherits.
void SetAction(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigaction(signal, &action, nullptr);
}

TEST(Terminal, RestoresTheSettingsOnEveryExitPath) {
    const TestMachine machine("tr500k2");
    for (const ExitPath& path : kExitPaths) {
        SCOPED_TRACE(path.name);
        SetAction(SIGTERM, path.inherited);
        TerminalSession session(machine, path.arguments);
        SetAction(SIGTERM, SIG_DFL);
        session.ReceiveUntil(path.prompt);
        EXPECT_TRUE(session.Settings() == CharacterMode(session.found))
            << "not in character mode at the prompt";
        if (path.signal != 0) kill(session.program, path.signal);
        session.Type(path.keys);
        EXPECT_EQ(session.End(), path.status);
        EXPECT_TRUE(session.Settings() == session.found) << "settings not restored";
    }
}

TEST(Terminal, EndsTheInputWhenItIsHungUp) {
    const TestMachine machine("tr500k2");
    SetAction(SIGHUP, SIG_IGN);
    TerminalSession session(machine);
    SetAction(SIGHUP, SIG_DFL);
    session.ReceiveUntil(kAtPrompt);
    session.HangUp();
    EXPECT_EQ(session.End(), 1) << "expected status 1, because the output can't be written";
}

TEST(Terminal, ShowsPromptAndLineAgainWhenTheProgramContinues) {
    const TestMachine machine("tr500k2");
    TerminalSession session(machine);
    session.ReceiveUntil(kAtPrompt);
    session.Type("show\33[D\33[D");
    session.ReceiveUntil("show\b\b");
    session.StopAndContinue();
    EXPECT_EQ(session.ReceiveUntil("\b\b"), "brantcli> show\b\b");
    EXPECT_EQ(session.screen.CursorLine(), "brantcli> show");
    EXPECT_TRUE(session.Settings() == CharacterMode(session.found));
    if (!Emulated()) kill(session.program, SIGTSTP);  // the signal has no effect on a session leader
    usleep(100000);                                   // until its handler has run
    session.Type("x");
    EXPECT_EQ(session.ReceiveUntil("\b\b"), "xow\b\b");
    EXPECT_EQ(session.screen.CursorLine(), "brantcli> shxow");
}

TEST(Terminal, StopsABackgroundProgramUntilItIsInTheForeground) {
    const TestMachine machine("tr500k2");
    const std::string script = "set -m; " + InShell("brantcli") + " & sleep .5; jobs; fg >/dev/null";
    TerminalSession session(machine, {"-c", script}, "/bin/sh");
    const std::string shown = session.ReceiveUntil("(tty input)");
    EXPECT_NE(shown.find(" Stopped "), shown.npos) << shown;
    session.ReceiveUntil("brantcli> ");
    session.Type("exit\r");
    EXPECT_EQ(session.End(), 0);
    EXPECT_TRUE(session.Settings() == session.found);
}

TEST(Terminal, RestoresTheSettingsThatWereChangedDuringAStop) {
    const TestMachine machine("tr500k2");
    const std::string script =
        "set -m; sh -c 'echo $$; exec \"$@\"' sh " + InShell("brantcli") + "; stty susp ^A; fg >/dev/null";
    TerminalSession session(machine, {"-c", script}, "/bin/sh");
    kill(std::stoi(session.ReceiveUntil(kAtPrompt)), SIGTSTP);
    session.ReceiveUntil("brantcli> ");
    session.Type("exit\r");
    EXPECT_EQ(session.End(), 0);
    EXPECT_EQ(session.Settings().c_cc[VSUSP], 1);
}

TEST(Terminal, EndsTheInputOfABackgroundProgramThatIgnoresSigttin) {
    const TestMachine machine("tr500k2");
    const std::string script = "set -m; trap '' TTIN; ulimit -t 2; " + InShell("brantcli") + " & wait $!";
    TerminalSession session(machine, {"-c", script}, "/bin/sh");
    session.ReceiveUntil(kAtPrompt);
    EXPECT_EQ(session.End(), 0);
}

TEST(Terminal, AStopAtThePagerDoesNotCountAsAKey) {
    const TestMachine machine("tr500k2");
    TerminalSession session(machine, {"-s", "SHOW HLOG"});
    session.ReceiveUntil("screen.: ");
    session.StopAndContinue();
    usleep(100000);  // so that the program runs again
    session.Type("q");
    EXPECT_EQ(session.ReceiveUntil("\xFF"), "\n\n");
    EXPECT_EQ(session.End(), 0);
}

TEST(Terminal, IsNotChangedByABackgroundProgramThatEnds) {
    const TestMachine machine("tr500k2");
    const std::string script = "set -m; sh -c 'echo $$; exec \"$@\"' sh " + InShell("brantcli") +
                               "; kill -CONT %1; sleep .5; kill %1; kill -CONT %1; sleep .5; jobs";
    TerminalSession session(machine, {"-c", script}, "/bin/sh");
    kill(std::stoi(session.ReceiveUntil(kAtPrompt)), SIGSTOP);
    const std::string shown = session.ReceiveUntil("Terminated");
    EXPECT_NE(shown.find("Terminated"), shown.npos) << shown;
    EXPECT_EQ(shown.find("brantcli> "), shown.npos) << "a prompt in the background: " << shown;
}

int keyboard[2];
int ticks;
extern "C" void Tick(int /*signal*/) {
    if (++ticks == 3 && write(keyboard[1], "x", 1) != 1) std::abort();
}

TEST(Terminal, WaitsForAKeyThroughInterruptions) {
    struct sigaction action {};  // without SA_RESTART, so that system calls fail with EINTR
    action.sa_handler = Tick;
    sigaction(SIGALRM, &action, nullptr);
    const itimerval every_millisecond = {{0, 1000}, {0, 1000}}, never = {};
    for (const int flags : {0, O_NONBLOCK}) {
        ticks = 0;
        ASSERT_TRUE(pipe2(keyboard, flags) == 0 && dup2(keyboard[0], STDIN_FILENO) == 0);
        setitimer(ITIMER_REAL, &every_millisecond, nullptr);
        EXPECT_EQ(ReadChar(1), 'x');
        char byte = 0;
        EXPECT_EQ(ReadByte(0, byte), ReadResult::None);
        setitimer(ITIMER_REAL, &never, nullptr);
    }
}

}  // namespace
