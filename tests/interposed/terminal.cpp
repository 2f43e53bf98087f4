// Simulates a terminal for a process that has none. Its initial settings are seven bits and parity, which a
// pseudo-terminal doesn't support. Each call that changes the settings or waits for a key appends a line to
// the machine's trace, so that a test can check the order of these calls and the device requests.
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

constexpr tcflag_t kInitialFlags = CS7 | PARENB;

// Appends a line to the trace. Doesn't allocate memory, because the tests count the allocations.
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

// Each function replaces the C library's function that the asm label names.
extern "C" {
int GetSettings(int fd, termios* settings) asm("tcgetattr");
int SetSettings(int fd, int when, const termios* settings) asm("tcsetattr");
int Select(int count, fd_set* in, fd_set* out, fd_set* other, timeval* longest) asm("select");
}

int GetSettings(int /*fd*/, termios* settings) {
    *settings = {};
    settings->c_cflag = kInitialFlags;
    return 0;
}

int SetSettings(int fd, int when, const termios* settings) {
    const bool is_initial = settings->c_cc[VTIME] == 0 && settings->c_cflag == kInitialFlags;
    const bool character_mode = settings->c_cc[VTIME] == 1 && settings->c_cflag == CS8;
    AppendToTrace("tcsetattr %d %s, %s\n", fd, when == TCSANOW ? "TCSANOW" : "later",
                  is_initial       ? "as found"
                  : character_mode ? "character mode"
                                   : "neither");
    return 0;
}

int Select(int count, fd_set* in, fd_set* out, fd_set* other, timeval* longest) {
    AppendToTrace("select %ld s %ld us\n", static_cast<long>(longest->tv_sec),
                  static_cast<long>(longest->tv_usec));
    return reinterpret_cast<decltype(Select)*>(dlsym(RTLD_NEXT, "select"))(count, in, out, other, longest);
}
