#include "src/utils/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

void KeepStandardDescriptors() {
    int fd = STDIN_FILENO;
    while (fd >= 0 && fd <= STDERR_FILENO) fd = open("/dev/null", O_RDONLY);
    if (fd >= 0) close(fd);
}

int MessagesToStandardError() {
    const int output = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    return output >= 0 && dup2(STDERR_FILENO, STDOUT_FILENO) >= 0 ? output : -1;
}
