// A terminal for a process that has none, at first with seven bits and a parity bit, which no pseudo-terminal
// has. Each call that sets it or waits for a key is a line of the machine's trace, among those of the
// devices.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/select.h>
#include <termios.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr tcflag_t kFound = CS7 | PARENB;

// Allocates nothing: a test may have counted the allocations. The line is written with the interposed write.
__attribute__((format(printf, 1, 2))) void AppendToTrace(const char* format, ...) {
    char text[4096];
    std::snprintf(text, sizeof text, "%s/trace", std::getenv("BRANT_MACHINE"));
    const int trace = open(text, O_WRONLY | O_APPEND);
    if (trace < 0) return;
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (write(trace, text, std::strlen(text)) < 0) std::abort();
    close(trace);
}

}  // namespace

// Each replaces the C library's function of the name at its end.
extern "C" {
int GetSettings(int fd, termios* settings) asm("tcgetattr");
int SetSettings(int fd, int when, const termios* settings) asm("tcsetattr");
int Select(int count, fd_set* in, fd_set* out, fd_set* other, timeval* longest) asm("select");
}

int GetSettings(int /*fd*/, termios* settings) {
    *settings = {};
    settings->c_cflag = kFound;
    return 0;
}

int SetSettings(int fd, int when, const termios* settings) {
    const bool as_found = settings->c_cc[VTIME] == 0 && settings->c_cflag == kFound;
    const bool character_mode = settings->c_cc[VTIME] == 1 && settings->c_cflag == CS8;
    AppendToTrace("tcsetattr %d %s, %s\n", fd, when == TCSANOW ? "TCSANOW" : "later",
                  as_found         ? "as found"
                  : character_mode ? "character mode"
                                   : "neither");
    return 0;
}

int Select(int count, fd_set* in, fd_set* out, fd_set* other, timeval* longest) {
    AppendToTrace("select %ld s %ld us\n", static_cast<long>(longest->tv_sec),
                  static_cast<long>(longest->tv_usec));
    return reinterpret_cast<decltype(Select)*>(dlsym(RTLD_NEXT, "select"))(count, in, out, other, longest);
}
