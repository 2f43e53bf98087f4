#include "platform/sim/call.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "platform/sim/faults.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr char kTraceFile[] = "trace";
constexpr size_t kLongestLine = kSubjectSize + kDetailSize + sizeof " -> -1 errno=2147483647\n";

// Opens the trace, if there is one. Doesn't open a trace that has a second name (a hard link), because that
// name may be a file of another user. If the trace can't be written, prints the reason on standard error and
// returns an empty descriptor.
Descriptor OpenTrace() {
    const Descriptor machine = OpenMachine();
    if (!machine) return Descriptor();
    Descriptor trace = OpenFile(machine, kTraceFile, O_WRONLY | O_APPEND);
    if (!trace && errno == ENOENT) return trace;
    struct stat status;
    if (trace && fstat(trace.Get(), &status) == 0) {
        if (status.st_nlink == 1) return trace;
        errno = EMLINK;
    }
    std::fprintf(stderr, "simulated machine: trace: %s\n", std::strerror(errno));
    return Descriptor();
}

struct Session {
    Faults faults;
    Descriptor trace = OpenTrace();
};

const Session& TheSession() {
    static const Session session;
    return session;
}

// Appends a line to the trace. `format` ends in a newline; a line that is too long is truncated before the
// newline.
__attribute__((format(printf, 1, 2))) void Append(const char* format, ...) {
    const Descriptor& trace = TheSession().trace;
    if (!trace) return;
    char line[kLongestLine];
    va_list arguments;
    va_start(arguments, format);
    const int wanted = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    if (wanted <= 0) return;
    // A name in a request may contain any bytes. Control characters are replaced, so that the call stays on
    // one line.
    char* const end = line + std::min(static_cast<size_t>(wanted), sizeof line - 1) - 1;
    for (char* next = line; next < end; ++next) {
        if (static_cast<unsigned char>(*next) < ' ') *next = '?';
    }
    *end = '\n';
    // A single write, so that the lines of two processes don't mix. If the disk is full, the line is lost and
    // the call continues.
    if (write(trace.Get(), line, static_cast<size_t>(end + 1 - line)) < 0) return;
}

}  // namespace

void Call::SetSubject(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(subject, sizeof subject, format, arguments);
    va_end(arguments);
}

void Call::SetDetail(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(detail, sizeof detail, format, arguments);
    va_end(arguments);
}

bool NeedsDescriptions() {
    return TheSession().trace || !TheSession().faults.Empty();
}

bool FindFault(const Call& call, int* result) {
    return TheSession().faults.Find(call.subject, call.request, result);
}

void Trace(const Call& call, int result) {
    if (result < 0) {
        Append("%s%s -> -1 errno=%d\n", call.subject, call.detail, -result);
    } else {
        Append("%s%s -> %d\n", call.subject, call.detail, result);
    }
}

void Trace(const Call& call) {
    Append("%s%s\n", call.subject, call.detail);
}

int ReturnValue(int result) {
    if (result >= 0) return result;
    errno = -result;
    return -1;
}
