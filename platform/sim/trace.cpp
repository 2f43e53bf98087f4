#include "platform/sim/trace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "platform/sim/call.h"
#include "platform/sim/machine.h"

namespace {

constexpr int kAppend = O_WRONLY | O_APPEND | O_NONBLOCK | O_CLOEXEC;
constexpr size_t kLongestLine = kSubjectSize + kDetailSize + sizeof " -> -1 errno=2147483647\n";

// Clear of the standard streams, which may be closed: what the program prints must not end up in the trace.
int AboveStandardStreams(int fd) {
    if (fd < 0 || fd > STDERR_FILENO) return fd;
    const int moved = fcntl(fd, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    close(fd);
    return moved;
}

int OpenTrace() {
    const Descriptor machine = OpenMachine();
    struct stat status;
    if (!machine || fstatat(machine.Get(), "trace", &status, 0) != 0) return -1;

    int fd = -1;
    errno = EINVAL;
    if (S_ISREG(status.st_mode)) fd = openat(machine.Get(), "trace", kAppend);
    if (fd < 0) std::fprintf(stderr, "simulated machine: trace: %s\n", std::strerror(errno));
    return AboveStandardStreams(fd);
}

}  // namespace

TraceFile::TraceFile() : fd_(OpenTrace()) {}

TraceFile::~TraceFile() {
    if (fd_ >= 0) close(fd_);
}

void TraceFile::Append(const char* format, ...) const {
    if (fd_ < 0) return;
    char line[kLongestLine];
    va_list arguments;
    va_start(arguments, format);
    const int wanted = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    if (wanted <= 0) return;
    // Whatever a request carries in the place of a name, and however much, it stays within its own line.
    char* const end = line + std::min(static_cast<size_t>(wanted), sizeof line - 1) - 1;
    for (char* next = line; next < end; ++next) {
        if (static_cast<unsigned char>(*next) < ' ') *next = '?';
    }
    *end = '\n';
    // One write, so that the lines of two processes don't mix. A full disk costs the line, not the call.
    if (write(fd_, line, static_cast<size_t>(end + 1 - line)) < 0) return;
}
