#include "cli/command/refusals.h"

#include <cstdarg>
#include <cstdio>

#include "cli/command/command.h"

int InvalidArguments() {
    return Fail("\nInvalid argument(s)\n%s", current_command->Help);
}

int ShowUsage() {
    return Fail("\n%s", current_command->Help);
}

int Fail(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    return 1;
}
