// Standard output that is non-blocking. The caller, or another process with the same open file, may set
// O_NONBLOCK; a write then fails with EAGAIN while the reader is slow.
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "cli/brantcli/brantcli.h"

namespace {

pid_t relay = -1;  // the process that copies the output, if there is one

// Copies everything from `input` to standard output. Returns the exit status.
int Copy(int input) {
    char chunk[4096];
    for (;;) {
        const ssize_t count = read(input, chunk, sizeof chunk);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return count == 0 ? 0 : 1;
        if (!WriteAll(STDOUT_FILENO, {chunk, static_cast<size_t>(count)})) return 1;
    }
}

void FinishAtExit() {
    FinishOutput();
}

}  // namespace

bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(fd, bytes.data(), bytes.size());
        if (count >= 0) {
            bytes.remove_prefix(static_cast<size_t>(count));
        } else if (errno == EAGAIN) {
            pollfd writable = {fd, POLLOUT, 0};
            if (poll(&writable, 1, -1) < 0 && errno != EINTR) return false;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

void RelayNonBlockingOutput() {
    const int flags = fcntl(STDOUT_FILENO, F_GETFL);
    int ends[2];
    if (flags < 0 || (flags & O_NONBLOCK) == 0 || pipe(ends) != 0) return;
    std::signal(SIGCHLD, SIG_DFL);  // if it is ignored, the relay's status is lost
    relay = fork();
    if (relay == 0) {
        close(ends[1]);
        _exit(Copy(ends[0]));
    }
    if (relay > 0 && dup2(ends[1], STDOUT_FILENO) >= 0) std::atexit(FinishAtExit);
    close(ends[0]);
    close(ends[1]);
}

bool FinishOutput() {
    const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (relay <= 0) return written;
    close(STDOUT_FILENO);
    int status = -1;
    while (waitpid(relay, &status, 0) < 0 && errno == EINTR) {
    }
    relay = -1;
    return written && status == 0;
}
