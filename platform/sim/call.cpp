#include "platform/sim/call.h"

#include <cstdarg>
#include <cstdio>

#include "platform/sim/faults.h"
#include "platform/sim/trace.h"

namespace {

struct Session {
    Faults faults;
    TraceFile trace;
};

const Session& TheSession() {
    static const Session session;
    return session;
}

}  // namespace

void Call::Subject(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(subject, sizeof subject, format, arguments);
    va_end(arguments);
}

void Call::Detail(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(detail, sizeof detail, format, arguments);
    va_end(arguments);
}

bool MeetsFault(const Call& call, int* result) {
    return TheSession().faults.Meets(call.subject, call.request, result);
}

void Trace(const Call& call, int result) {
    if (result < 0) {
        TheSession().trace.Append("%s%s -> -1 errno=%d\n", call.subject, call.detail, -result);
    } else {
        TheSession().trace.Append("%s%s -> %d\n", call.subject, call.detail, result);
    }
}

void Trace(const Call& call) {
    TheSession().trace.Append("%s%s\n", call.subject, call.detail);
}

int Returned(int result) {
    if (result >= 0) return result;
    errno = -result;
    return -1;
}
