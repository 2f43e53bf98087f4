#include "cli/terminal/terminal.h"

#include <sys/select.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>  // memset, which the server's FD_ZERO is made of

namespace {

constexpr int kKeyboard = STDIN_FILENO;
constexpr suseconds_t kEscapeWait = 10;  // microseconds
constexpr int kEndOrStop[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGTSTP};

termios TTY;      // as found
termios TTYTEMP;  // character mode

// What the signal handlers read and set.
volatile std::sig_atomic_t terminal_wanted = 0;  // from get_terminfo to RestoreTerminal
volatile std::sig_atomic_t terminal_taken = 0;   // TTY holds what was found, TTYTEMP may be in force
volatile std::sig_atomic_t continued = 0;        // a SIGCONT has come since this was last looked at

// How the last ReadChar ended.
bool input_ended = false;
bool was_continued = false;

termios CharacterMode(const termios& found) {
    termios settings = found;
    settings.c_iflag &=
        ~static_cast<tcflag_t>(IGNBRK | BRKINT | PARMRK | ISTRIP | INLCR | IGNCR | ICRNL | IXON);
    settings.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL | ICANON | ISIG | IEXTEN);
    settings.c_cflag &= ~static_cast<tcflag_t>(CSIZE | PARENB);
    settings.c_cflag |= CS8;
    settings.c_oflag |= OPOST;
    settings.c_cc[VMIN] = 1;  // each key arrives at once
    settings.c_cc[VTIME] = 1;
    return settings;
}

// Whether the process runs in the background of the terminal: touching it would take it away from whoever
// has it now, and the system stops a process that tries.
bool AnotherHasTerminal() {
    const pid_t foreground = tcgetpgrp(kKeyboard);
    return foreground >= 0 && foreground != getpgrp();
}

// These two are safe in a signal handler.
void TakeTerminal() {
    if (terminal_wanted == 0 || AnotherHasTerminal()) return;
    if (terminal_taken == 0) {
        if (tcgetattr(kKeyboard, &TTY) != 0) return;
        TTYTEMP = CharacterMode(TTY);
        terminal_taken = 1;
    }
    tcsetattr(kKeyboard, TCSANOW, &TTYTEMP);
}

void GiveTerminalBack() {
    if (terminal_taken == 0 || AnotherHasTerminal()) return;
    tcsetattr(kKeyboard, TCSANOW, &TTY);
    terminal_taken = 0;
}

// A signal that was ignored at start, as nohup has it, stays so.
void Catch(int signal, void (*handler)(int), int flags) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) return;

    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | flags;
    sigemptyset(&action.sa_mask);
    sigaddset(&action.sa_mask, SIGCONT);  // which would take the terminal while it is being given back
    sigaction(signal, &action, nullptr);
}

extern "C" void OnContinued(int /*signal*/) {
    const int saved_errno = errno;
    TakeTerminal();
    continued = 1;
    errno = saved_errno;
}

extern "C" void OnEndOrStop(int signal);

void CatchEndOrStop(int signal) {
    constexpr auto kOnce = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    Catch(signal, OnEndOrStop, kOnce);
}

// raise() has the signal's own action follow at once: the handler is no longer in place (SA_RESETHAND), the
// signal isn't held back (SA_NODEFER). Only a process that was stopped gets past it, when it continues.
extern "C" void OnEndOrStop(int signal) {
    const int saved_errno = errno;
    GiveTerminalBack();
    raise(signal);
    CatchEndOrStop(signal);
    TakeTerminal();
    errno = saved_errno;
}

// Whether a byte, or the end of the input, is there or comes in a moment.
bool InputIsReady() {
    for (;;) {
        timeval moment = {0, kEscapeWait};
        fd_set keyboard;
        FD_ZERO(&keyboard);
        FD_SET(kKeyboard, &keyboard);
        const int ready = select(kKeyboard + 1, &keyboard, nullptr, nullptr, &moment);
        if (ready >= 0) return ready > 0;
        if (errno != EINTR) return false;
    }
}

// The system stops a process in the background when it reads the terminal. Once the process continues, the
// same read goes on, and nothing shows that it was stopped. So it stops itself before it reads. False when
// the signal didn't stop it; the read will then tell why.
bool StopUntilContinued() {
    continued = 0;
    kill(0, SIGTTIN);
    return continued != 0;
}

// Waits until the keyboard can be read, or a signal's handler has run; false for the latter. SIGCONT is
// blocked except while the process waits, so that none is missed.
bool WaitUnlessContinued() {
    sigset_t held_back, found;
    sigemptyset(&held_back);
    sigaddset(&held_back, SIGCONT);
    sigprocmask(SIG_BLOCK, &held_back, &found);
    fd_set keyboard;
    FD_ZERO(&keyboard);
    FD_SET(kKeyboard, &keyboard);
    const bool interrupted =
        continued != 0 ||
        (pselect(kKeyboard + 1, &keyboard, nullptr, nullptr, nullptr, &found) < 0 && errno == EINTR);
    sigprocmask(SIG_SETMASK, &found, nullptr);
    return !interrupted;
}

// Waits until the keyboard can be read. False when the process has its terminal again after it was stopped.
bool WaitForByte() {
    for (;;) {
        if (AnotherHasTerminal()) {
            if (!StopUntilContinued()) return true;
        } else if (WaitUnlessContinued()) {
            return true;
        }
        if (continued == 0 || AnotherHasTerminal()) continue;
        continued = 0;
        if (terminal_taken != 0) return false;
    }
}

}  // namespace

void get_terminfo() {
    for (const int signal : kEndOrStop) CatchEndOrStop(signal);
    Catch(SIGCONT, OnContinued, 0);
    terminal_wanted = 1;
    TakeTerminal();
}

void RestoreTerminal() {
    terminal_wanted = 0;
    GiveTerminalBack();
}

char ReadChar(int wait) {
    input_ended = was_continued = false;
    if (wait == 0 && !InputIsReady()) return -1;
    for (;;) {
        if (wait != 0 && !WaitForByte()) {
            was_continued = true;
            return -1;
        }
        char byte = 0;
        const ssize_t count = read(kKeyboard, &byte, 1);
        if (count == 1) return byte;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 && errno == EAGAIN) {  // a descriptor that doesn't block
            if (wait == 0) return -1;
            continue;
        }
        input_ended = true;
        return -1;
    }
}

bool InputHasEnded() {
    return input_ended;
}

bool WasContinued() {
    return was_continued;
}

void DropRestOfLine() {
    const bool typed_ahead_only = isatty(kKeyboard) != 0;
    for (char byte = 0; byte != '\n' && byte != '\r' && !input_ended;) {
        if (typed_ahead_only && !InputIsReady()) return;
        byte = ReadChar(1);
    }
}

void RingBell() {
    std::putchar('\a');
    std::fflush(stdout);
}
