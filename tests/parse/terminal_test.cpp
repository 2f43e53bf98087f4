#include "cli/parse/terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>

#include "tests/support/screen.h"

namespace {

enum Event { kNothing, kSignal, kIgnoredSignal, kEndOfInput };
struct WayOut {
    const char* of;
    std::vector<std::string> arguments;
    Event event;
    std::string keys;
    int status;
};
// clang-format off
const WayOut kWaysOut[] = {
    {"EXIT",                      {},                  kNothing,       "exit\r", 0},
    {"a signal",                  {},                  kSignal,        "",       128 + SIGTERM},
    {"EXIT, after nohup's start", {},                  kIgnoredSignal, "exit\r", 0},
    {"the end of the input",      {},                  kEndOfInput,    "SHOW",   0},
    {"a script",                  {"-s", "SHOW FANS"}, kNothing,       "",       0},
    {"a start that fails late",   {"-s"},              kNothing,       "",       1},
};
// clang-format on

TEST(Terminal, IsHandedBackAsFound) {
    const TestMachine machine("tr500k2");
    for (const WayOut& way : kWaysOut) {
        std::signal(SIGTERM, way.event == kIgnoredSignal ? SIG_IGN : SIG_DFL);
        TerminalSession session(machine, way.arguments);
        std::signal(SIGTERM, SIG_DFL);
        if (way.arguments.empty()) {
            session.ReceiveUntil("brantcli> ");
            EXPECT_NE(session.Settings(), session.found) << way.of;
        }
        if (way.event == kSignal || way.event == kIgnoredSignal) kill(session.program, SIGTERM);
        if (way.event == kEndOfInput) session.HaveReadsEnd();
        session.Type(way.keys);
        EXPECT_EQ(session.End(), way.status) << way.of;
        EXPECT_EQ(session.Settings(), session.found) << way.of;
    }
}

int keyboard[2];
int ticks;
extern "C" void Tick(int /*signal*/) {
    if (++ticks == 3 && write(keyboard[1], "x", 1) != 1) std::abort();
}

TEST(Terminal, WaitsForAKeyThroughInterruptions) {
    struct sigaction action {};  // without SA_RESTART
    action.sa_handler = Tick;
    sigaction(SIGALRM, &action, nullptr);
    const itimerval every_millisecond = {{0, 1000}, {0, 1000}}, never = {};
    for (const int flags : {0, O_NONBLOCK}) {
        ticks = 0;
        ASSERT_TRUE(pipe2(keyboard, flags) == 0 && dup2(keyboard[0], STDIN_FILENO) == 0);
        setitimer(ITIMER_REAL, &every_millisecond, nullptr);
        EXPECT_EQ(ReadChar(1), 'x');
        EXPECT_TRUE(ReadChar(0) == -1 && !InputHasEnded());
        setitimer(ITIMER_REAL, &never, nullptr);
    }
}

}  // namespace
