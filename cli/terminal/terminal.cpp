#include "cli/terminal/terminal.h"

#include <sys/select.h>
#include <termios.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>  // for FD_ZERO, which calls memset on some systems

namespace {

constexpr int kKeyboard = STDIN_FILENO;
constexpr suseconds_t kEscapeWait = 10;  // in microseconds
constexpr int kEndOrStop[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGTSTP};

// The signal handlers use these settings and flags.
termios TTY;                                    // the original settings, to be restored
termios TTYTEMP;                                // the settings in character mode
volatile std::sig_atomic_t mode_wanted = 0;     // 1 between get_terminfo() and RestoreTerminal()
volatile std::sig_atomic_t settings_saved = 0;  // 1: TTY and TTYTEMP are valid
volatile std::sig_atomic_t continued = 0;       // 1: SIGCONT has arrived since the last check

termios CharacterMode(const termios& found) {
    termios settings = found;
    settings.c_iflag &=
        ~static_cast<tcflag_t>(IGNBRK | BRKINT | PARMRK | ISTRIP | INLCR | IGNCR | ICRNL | IXON);
    settings.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL | ICANON | ISIG | IEXTEN);
    settings.c_cflag &= ~static_cast<tcflag_t>(CSIZE | PARENB);
    settings.c_cflag |= CS8;
    settings.c_oflag |= OPOST;
    settings.c_cc[VMIN] = 1;  // read() returns after each byte
    settings.c_cc[VTIME] = 1;
    return settings;
}

// Returns whether the process is in the background of the terminal. The settings then belong to the
// foreground process, and the system stops a background process that changes them.
bool IsInBackground() {
    const pid_t foreground = tcgetpgrp(kKeyboard);
    return foreground >= 0 && foreground != getpgrp();
}

// Saves the terminal settings and switches to character mode. Safe in a signal handler.
void EnterCharacterMode() {
    if (mode_wanted == 0 || IsInBackground()) return;
    if (settings_saved == 0) {
        if (tcgetattr(kKeyboard, &TTY) != 0) return;
        TTYTEMP = CharacterMode(TTY);
        // A signal handler that reads settings_saved as 1 must find both settings stored.
        std::atomic_signal_fence(std::memory_order_release);
        settings_saved = 1;
    }
    tcsetattr(kKeyboard, TCSANOW, &TTYTEMP);
}

// Restores the saved settings. Safe in a signal handler.
void LeaveCharacterMode() {
    if (settings_saved == 0 || IsInBackground()) return;
    std::atomic_signal_fence(std::memory_order_acquire);
    tcsetattr(kKeyboard, TCSANOW, &TTY);
    settings_saved = 0;
}

// Installs a handler. A signal that was ignored when the program started, such as SIGHUP under nohup, stays
// ignored.
void Catch(int signal, void (*handler)(int), int flags) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) return;

    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | flags;
    sigemptyset(&action.sa_mask);
    sigaddset(&action.sa_mask, SIGCONT);  // OnContinued must not interrupt LeaveCharacterMode
    sigaction(signal, &action, nullptr);
}

extern "C" void OnContinued(int /*signal*/) {
    const int saved_errno = errno;
    EnterCharacterMode();
    continued = 1;
    errno = saved_errno;
}

extern "C" void OnEndOrStop(int signal);

void CatchEndOrStop(int signal) {
    constexpr auto kOnce = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    Catch(signal, OnEndOrStop, kOnce);
}

// Restores the terminal settings and then ends or stops the process. raise() acts immediately: the first
// delivery of the signal has reset it to its default action (SA_RESETHAND) and has not blocked it
// (SA_NODEFER). raise() returns only if the process was stopped and has been continued.
extern "C" void OnEndOrStop(int signal) {
    const int saved_errno = errno;
    LeaveCharacterMode();
    raise(signal);
    CatchEndOrStop(signal);
    EnterCharacterMode();
    errno = saved_errno;
}

fd_set KeyboardSet() {
    fd_set keyboard;
    FD_ZERO(&keyboard);
    FD_SET(kKeyboard, &keyboard);
    return keyboard;
}

// Waits up to kEscapeWait. Returns whether read() would return immediately, with a byte or with the end of
// the input.
bool InputIsReady() {
    for (;;) {
        timeval timeout = {0, kEscapeWait};
        fd_set keyboard = KeyboardSet();
        const int ready = select(kKeyboard + 1, &keyboard, nullptr, nullptr, &timeout);
        if (ready >= 0) return ready > 0;
        if (errno != EINTR) return false;
    }
}

// Stops the process group, as the system does when a background process reads the terminal. If the system did
// it, read() would be restarted without a notification when the process continues, and the prompt wouldn't be
// drawn again. Returns false if the signal didn't stop the process; read() will then fail with the reason.
bool StopUntilContinued() {
    continued = 0;
    kill(0, SIGTTIN);
    return continued != 0;
}

// Waits until the keyboard can be read. Returns false if a signal handler has run. SIGCONT is blocked except
// during the wait, so that it can't arrive unnoticed between the check and the wait.
bool WaitUnlessContinued() {
    sigset_t blocked, original;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGCONT);
    sigprocmask(SIG_BLOCK, &blocked, &original);
    fd_set keyboard = KeyboardSet();
    const bool interrupted =
        continued != 0 ||
        (pselect(kKeyboard + 1, &keyboard, nullptr, nullptr, nullptr, &original) < 0 && errno == EINTR);
    sigprocmask(SIG_SETMASK, &original, nullptr);
    return !interrupted;
}

// Waits until the keyboard can be read. Returns false if the process was stopped and is in the foreground
// again.
bool WaitForByte() {
    for (;;) {
        if (IsInBackground()) {
            if (!StopUntilContinued()) return true;
        } else if (WaitUnlessContinued()) {
            return true;
        }
        if (continued == 0 || IsInBackground()) continue;
        continued = 0;
        if (settings_saved != 0) return false;
    }
}

}  // namespace

void get_terminfo() {
    for (const int signal : kEndOrStop) CatchEndOrStop(signal);
    Catch(SIGCONT, OnContinued, 0);
    mode_wanted = 1;
    EnterCharacterMode();
}

void RestoreTerminal() {
    mode_wanted = 0;
    LeaveCharacterMode();
}

ReadResult ReadByte(int wait, char& byte) {
    if (wait == 0 && !InputIsReady()) return ReadResult::None;
    for (;;) {
        if (wait != 0 && !WaitForByte()) return ReadResult::Continued;
        const ssize_t count = read(kKeyboard, &byte, 1);
        if (count == 1) return ReadResult::Byte;
        if (count == 0 || (errno != EINTR && errno != EAGAIN)) return ReadResult::Ended;
        if (errno == EAGAIN && wait == 0) return ReadResult::None;  // the descriptor is non-blocking
    }
}

void WaitForInput() {
    fd_set keyboard = KeyboardSet();
    select(kKeyboard + 1, &keyboard, nullptr, nullptr, nullptr);
}

char ReadChar(int wait) {
    char byte = 0;
    return ReadByte(wait, byte) == ReadResult::Byte ? byte : static_cast<char>(-1);
}

void DropRestOfLine() {
    const bool on_terminal = isatty(kKeyboard) != 0;
    for (char byte = 0; byte != '\n' && byte != '\r';) {
        if (on_terminal && !InputIsReady()) return;
        if (ReadByte(1, byte) == ReadResult::Ended) return;
    }
}

void RingBell() {
    std::putchar('\a');
    std::fflush(stdout);
}
