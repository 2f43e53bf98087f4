#include "src/utils/standard_streams.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

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

bool KeepStandardDescriptors() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // The streams below fd are open, so an open() returns fd if fd is free.
        if (fcntl(fd, F_GETFD) >= 0 || open("/dev/null", O_RDONLY) == fd) continue;
        std::fprintf(stderr, "ERROR: Could not open /dev/null: %s.\n", std::strerror(errno));
        return false;
    }
    return true;
}

int MessagesToStandardError() {
    const int output = fcntl(STDOUT_FILENO, F_DUPFD, STDERR_FILENO + 1);
    if (output >= 0 && dup2(STDERR_FILENO, STDOUT_FILENO) >= 0) return output;
    std::fprintf(stderr, "ERROR: Could not duplicate standard output: %s.\n", std::strerror(errno));
    return -1;
}

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

// The caller, or another process with the same open file, may have set O_NONBLOCK; a write then fails with
// EAGAIN while the reader is slow.
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
