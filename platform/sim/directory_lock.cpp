#include "platform/sim/directory_lock.h"

#include <sys/file.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>

namespace {

constexpr int kKeyboard = STDIN_FILENO;
constexpr cc_t kControlC = 3;
constexpr double kReportAfter = 1;       // seconds of waiting before the report
constexpr long kShortPause = 1'000'000;  // nanoseconds between two attempts, before the report
constexpr long kLongPause = 50'000'000;  // the same after the report

// Returns whether the process may change the terminal's settings. While it is in the background, another
// process uses the terminal.
bool IsInForeground() {
    return tcgetpgrp(kKeyboard) == getpgrp();
}

// Makes ^C end a wait in which the program reads no keys. In character mode, ^C is a byte like any other, and
// reading the input to find it would consume the keys typed ahead. So while this object exists, the terminal
// sends SIGINT for ^C. All other keys stay in the terminal's queue.
//
// If standard input isn't a terminal in character mode, nothing changes: ^C then ends the process.
class ControlC {
  public:
    ControlC();
    ~ControlC();
    ControlC(const ControlC&) = delete;
    ControlC& operator=(const ControlC&) = delete;

    // Sleeps. Returns true as soon as ^C is typed.
    bool TypedWithin(long nanoseconds);

  private:
    void Enable(const termios& character_mode);
    bool TakeInterrupt(long nanoseconds) const;

    bool is_enabled_ = false;
    termios character_mode_{};             // only valid if is_enabled_
    sigset_t interrupt_{}, found_mask_{};  // interrupt_ contains SIGINT if is_enabled_, otherwise nothing
};

ControlC::ControlC() {
    sigemptyset(&interrupt_);
    sigprocmask(SIG_BLOCK, &interrupt_, &found_mask_);
}

// Restores the terminal settings and the signal mask. Discards the SIGINT of a ^C that was typed just before
// the wait ended, so that it doesn't end the process.
ControlC::~ControlC() {
    if (is_enabled_ && IsInForeground()) tcsetattr(kKeyboard, TCSANOW, &character_mode_);
    TakeInterrupt(0);
    sigprocmask(SIG_SETMASK, &found_mask_, nullptr);
}

// Makes ^C send SIGINT; ^\ and ^Z remain ordinary bytes. NOFLSH keeps the keys typed ahead, which the
// terminal would otherwise discard at ^C.
void ControlC::Enable(const termios& character_mode) {
    is_enabled_ = true;
    character_mode_ = character_mode;
    sigaddset(&interrupt_, SIGINT);
    sigprocmask(SIG_BLOCK, &interrupt_, nullptr);

    termios settings = character_mode;
    settings.c_lflag |= static_cast<tcflag_t>(ISIG | NOFLSH);
    settings.c_cc[VINTR] = kControlC;
    settings.c_cc[VQUIT] = settings.c_cc[VSUSP] = _POSIX_VDISABLE;
    tcsetattr(kKeyboard, TCSANOW, &settings);
}

// Sleeps. Returns true as soon as the terminal has sent SIGINT. A SIGINT from another process has its usual
// effect.
bool ControlC::TakeInterrupt(long nanoseconds) const {
    const timespec pause = {0, nanoseconds};
    siginfo_t info{};
    if (sigtimedwait(&interrupt_, &info, &pause) != SIGINT) return false;
    if (info.si_code == SI_KERNEL) return true;
    sigprocmask(SIG_SETMASK, &found_mask_, nullptr);
    raise(SIGINT);
    sigprocmask(SIG_BLOCK, &interrupt_, nullptr);
    return false;
}

bool ControlC::TypedWithin(long nanoseconds) {
    // Checked at each call, because the shell switches to character mode again when it continues after a stop
    // or gets to the foreground.
    termios settings;
    const bool is_character_mode =
        IsInForeground() && tcgetattr(kKeyboard, &settings) == 0 && (settings.c_lflag & ISIG) == 0;
    if (is_character_mode) Enable(settings);
    return TakeInterrupt(nanoseconds);
}

double Now() {  // in seconds
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

void Report(const char* device) {
    std::fprintf(stderr,
                 "simulated machine: waiting for another program, which has locked %s/%s; ^C ends the wait\n",
                 MachinePath(), device);
}

}  // namespace

// Polls the lock, because flock() has no timeout.
int LockDirectory(const Descriptor& directory, const char* device) {
    if (flock(directory.Get(), LOCK_EX | LOCK_NB) == 0) return 0;

    ControlC control_c;
    const double report_at = Now() + kReportAfter;
    bool reported = false;
    while (flock(directory.Get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return errno;
        if (!reported && Now() >= report_at) {
            Report(device);
            reported = true;
        }
        if (control_c.TypedWithin(reported ? kLongPause : kShortPause)) return EINTR;
    }
    return 0;
}
