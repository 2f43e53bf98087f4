// A terminal emulator (libvterm), and a program that runs on a pseudo-terminal and is shown on the emulator's
// screen.
#pragma once

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utmp.h>
#include <vterm.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/test_machine.h"

class Screen {
  public:
    explicit Screen(int columns) : columns_(columns), terminal_(vterm_new(24, columns), vterm_free) {
        vterm_screen_reset(vterm_obtain_screen(terminal_.get()), 1);
        Show("\33[20h");  // mode in which a newline also moves the cursor to column 0
    }
    void Show(const std::string& written) {
        vterm_input_write(terminal_.get(), written.data(), written.size());
    }
    // Returns the row of the screen that contains the cursor, without trailing spaces.
    std::string CursorLine() const {
        const VTermRect row = {Cursor().row, Cursor().row + 1, 0, columns_};
        char text[512];
        const size_t length =
            vterm_screen_get_text(vterm_obtain_screen(terminal_.get()), text, sizeof text, row);
        const std::string line(text, length);
        return line.substr(0, line.find_last_not_of(' ') + 1);
    }
    VTermPos Cursor() const {
        VTermPos cursor;
        vterm_state_get_cursorpos(vterm_obtain_state(terminal_.get()), &cursor);
        return cursor;
    }

  private:
    int columns_;
    std::unique_ptr<VTerm, void (*)(VTerm*)> terminal_;
};

inline bool operator==(const termios& one, const termios& other) {
    return std::memcmp(&one, &other, sizeof one) == 0;
}

// Runs brantcli, or the program at `path`, on a pseudo-terminal of 80 columns. Each initial setting of the
// terminal differs from that in character mode.
struct TerminalSession {
    explicit TerminalSession(const TestMachine& machine, const std::vector<std::string>& arguments = {},
                             const std::string& path = ProgramPath("brantcli")) {
        int keyboard = -1;
        if (openpty(&terminal, &keyboard, nullptr, nullptr, nullptr) != 0) std::abort();
        termios settings = Settings();
        settings.c_iflag |= kInputFlags | IXOFF;
        settings.c_lflag |= kLocalFlags | NOFLSH;
        settings.c_oflag &= ~tcflag_t{OPOST};
        settings.c_cc[VMIN] = settings.c_cc[VTIME] = 7;
        tcsetattr(terminal, TCSANOW, &settings);
        found = Settings();
        program = fork();
        if (program == 0) {
            close(terminal);
            login_tty(keyboard);
            setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
            ExecProgram(path, arguments);
        }
        close(keyboard);
    }
    ~TerminalSession() { HangUp(); }

    void Type(const std::string& keys) const {
        if (write(terminal, keys.data(), keys.size()) < 0) std::abort();
    }
    // Stops the program with SIGSTOP, for which it can't have a handler, resets the terminal settings and
    // continues the program.
    void StopAndContinue() const {
        kill(program, SIGSTOP);
        waitpid(program, nullptr, WUNTRACED);
        tcsetattr(terminal, TCSANOW, &found);
        kill(program, SIGCONT);
    }
    // Returns the output up to and including `end`, without carriage returns. If the program ends, or writes
    // nothing for 20 seconds, returns the output so far.
    std::string ReceiveUntil(const std::string& end) {
        std::string received;
        while (received.size() < end.size() || received.substr(received.size() - end.size()) != end) {
            char byte = 0;
            pollfd ready = {terminal, POLLIN, 0};
            if (poll(&ready, 1, 20000) <= 0 || read(terminal, &byte, 1) <= 0) break;
            screen.Show({byte});
            if (byte != '\r') received += byte;
        }
        return received;
    }
    void HangUp() {
        close(terminal);
        terminal = -1;
    }
    // Waits until the program ends, or kills it if it doesn't. Returns its status, or 128 + N if signal N
    // ended it.
    int End() {
        if (terminal >= 0) ReceiveUntil("\xFF");
        int status = 0;
        for (int waits = 0; waitpid(program, &status, WNOHANG) == 0; ++waits) {
            if (waits == 10000) kill(program, SIGKILL);
            usleep(1000);
        }
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    // Returns the terminal's current settings.
    termios Settings() const {
        termios settings{};
        tcgetattr(terminal, &settings);
        return settings;
    }

    // Flags that are cleared in character mode.
    static constexpr tcflag_t kInputFlags = IGNBRK | BRKINT | PARMRK | ISTRIP | INLCR | IGNCR | ICRNL | IXON;
    static constexpr tcflag_t kLocalFlags = ECHO | ECHONL | ICANON | ISIG | IEXTEN;

    Screen screen{80};
    int terminal = -1;  // descriptor of the controlling side of the pseudo-terminal
    pid_t program = -1;
    termios found{};  // settings before the program started
};
