#include "src/utils/standard_streams.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "src/utils/descriptor.h"

namespace {

int found_flags = 0;  // original flags of standard output; 0 if they were not changed

}  // namespace

bool KeepStandardDescriptors() {
    for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // open() returns the lowest free descriptor. Those below fd are open, so it returns fd if fd is free.
        if (fcntl(fd, F_GETFD) >= 0 || open("/dev/null", O_RDONLY) == fd) continue;
        std::fprintf(stderr, "ERROR: Could not open /dev/null: %s.\n", std::strerror(errno));
        return false;
    }
    return true;
}

void IgnoreWriteSignals() {
    struct sigaction action {};
    action.sa_handler = SIG_IGN;
    for (const int signal : {SIGPIPE, SIGXFSZ}) sigaction(signal, &action, nullptr);
}

int MessagesToStandardError() {
    const int output = fcntl(STDOUT_FILENO, F_DUPFD, STDERR_FILENO + 1);
    if (output >= 0 && dup2(STDERR_FILENO, STDOUT_FILENO) >= 0) return output;
    std::fprintf(stderr, "ERROR: Could not duplicate standard output: %s.\n", std::strerror(errno));
    return -1;
}

bool WriteAll(int fd, std::string_view bytes) {
    while (!WriteRest(fd, bytes)) {
        if (errno != EAGAIN) return false;
        pollfd writable = {fd, POLLOUT, 0};
        if (poll(&writable, 1, -1) < 0 && errno != EINTR) return false;
    }
    return true;
}

void MakeOutputBlocking() {
    const int flags = fcntl(STDOUT_FILENO, F_GETFL);
    if (flags < 0 || (flags & O_NONBLOCK) == 0) return;
    if (fcntl(STDOUT_FILENO, F_SETFL, flags & ~O_NONBLOCK) == 0) found_flags = flags;
}

bool FinishOutput() {
    const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (found_flags != 0) fcntl(STDOUT_FILENO, F_SETFL, found_flags);
    found_flags = 0;
    return written;
}
